#include "orvantools/storedreceivers.h"

#include "orvantools/tagreader.h"

#include <OrvanData/orvandata.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QTextDecoder>

#include <charconv>
#include <iterator>
#include <memory>

namespace OrvanTools {

namespace {

constexpr qint64 kChunk = 1 << 18; ///< bytes

/// The number behind a prefix, 0 when the name is another.
int NumberBehind(std::string_view name, std::string_view prefix)
{
    int number = 0;
    if (name.substr(0, prefix.size()) == prefix)
        std::from_chars(name.data() + prefix.size(), name.data() + name.size(), number);
    return number;
}

/// Brings UTF-16 to UTF-8. Of other encodings what is looked for is ASCII, whatever the other bytes mean.
std::unique_ptr<QTextDecoder> DecoderFor(const QByteArray& start)
{
    const QTextCodec* codec = QTextCodec::codecForUtfText(start, nullptr);
    const bool utf8 = !codec || codec == QTextCodec::codecForName("UTF-8");
    return std::unique_ptr<QTextDecoder>(utf8 ? nullptr : codec->makeDecoder());
}

} // namespace

bool StoredReceivers::Read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    if (file.peek(2) != "PK")
        return ReadDocument(path);
    QTemporaryDir unpacked;
    CConstantData::UnZipFile(path, unpacked.path());
    return ReadDocument(unpacked.filePath(QStringLiteral("project/new.prj")));
}

bool StoredReceivers::ReadDocument(const QString& path)
{
    m_senders.clear();
    m_sender = nullptr;
    m_port = nullptr;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const std::unique_ptr<QTextDecoder> decoder = DecoderFor(file.peek(4));
    TagReader tags([this](std::string_view name, std::string_view attributes) { TakeTag(name, attributes); });
    while (!file.atEnd()) {
        QByteArray bytes = file.read(kChunk);
        if (decoder)
            bytes = decoder->toUnicode(bytes).toUtf8();
        tags.Take({bytes.constData(), static_cast<size_t>(bytes.size())});
    }
    return tags.IsComplete();
}

void StoredReceivers::TakeTag(std::string_view name, std::string_view attributes)
{
    if (const int sender = NumberBehind(name, "Sender_")) {
        m_sender = &m_senders[sender];
        m_port = nullptr;
    } else if (const int port = NumberBehind(name, "Port_")) {
        m_port = m_sender ? &(*m_sender)[port] : nullptr;
    } else if (const int tile = NumberBehind(name, "Tile_")) {
        const std::string_view value = TagReader::Attribute(attributes, "FirstRcvIndex");
        if (m_port)
            m_port->emplace_hint(m_port->end(), tile, QByteArray(value.data(), int(value.size())).toInt());
    }
}

std::vector<int> StoredReceivers::OfPort(int sender, int port) const
{
    std::vector<int> values;
    if (sender < 0 || sender >= static_cast<int>(m_senders.size()))
        return values;
    const auto& ports = std::next(m_senders.begin(), sender)->second;
    const auto found = ports.find(port + 1);
    if (found == ports.end())
        return values;
    for (const auto& tile : found->second)
        values.push_back(tile.second);
    return values;
}

} // namespace OrvanTools
