#include "orvantools/storedreceivers.h"

#include <OrvanData/orvandata.h>

#include <QFile>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <iterator>

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
    bool hasRoot = false;
    QXmlStreamReader xml;
    while (!file.atEnd()) {
        // Digests end with a NUL character, which no XML reader takes.
        xml.addData(file.read(kChunk).replace('\0', QByteArray()));
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
