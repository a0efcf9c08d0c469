#include "orvantools/storedreceivers.h"

#include <OrvanData/orvandata.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <iterator>
#include <memory>

namespace OrvanTools {

namespace {

constexpr qint64 kChunk = 1 << 18; ///< bytes

/// The number behind a prefix, 0 when the name is another.
int NumberBehind(const QStringRef& name, const char* prefix)
{
    const QLatin1String start(prefix);
    return name.startsWith(start) ? name.mid(start.size()).toInt() : 0;
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
    // What is looked for is ASCII, whatever else the bytes mean.
    const bool isWide = file.peek(2) == "\xFF\xFE" || file.peek(2) == "\xFE\xFF";
    const std::unique_ptr<QTextDecoder> decoder(
        QTextCodec::codecForName(isWide ? "UTF-16" : "ISO-8859-1")->makeDecoder());
    // Digests end with a NUL character, in whatever form, which no XML reader takes; nor do they take
    // controls.
    static const QRegularExpression refused(
        QStringLiteral("&#x?0+;|[\\x{0}-\\x{8}\\x{B}\\x{C}\\x{E}-\\x{1F}]"));
    bool hasRoot = false;
    QXmlStreamReader xml;
    QString text; // no reference is cut in two where a tag ends
    while (!file.atEnd()) {
        text += decoder->toUnicode(file.read(kChunk));
        const int end = file.atEnd() ? text.size() : text.lastIndexOf(QLatin1Char('>')) + 1;
        xml.addData(text.left(end).remove(refused));
        text.remove(0, end);
        while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::Invalid) {
            if (xml.isStartElement())
                TakeElement(xml);
            hasRoot = hasRoot || xml.isStartElement();
        }
        if (xml.hasError() && xml.error() != QXmlStreamReader::PrematureEndOfDocumentError)
            return false;
    }
    return hasRoot && !xml.hasError();
}

void StoredReceivers::TakeElement(const QXmlStreamReader& xml)
{
    static const QString attribute = QStringLiteral("FirstRcvIndex");
    if (const int sender = NumberBehind(xml.name(), "Sender_")) {
        m_sender = &m_senders[sender];
        m_port = nullptr;
    } else if (const int port = NumberBehind(xml.name(), "Port_")) {
        m_port = m_sender ? &(*m_sender)[port] : nullptr;
    } else if (const int tile = NumberBehind(xml.name(), "Tile_")) {
        if (m_port)
            m_port->emplace(tile, xml.attributes().value(attribute).toInt());
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
