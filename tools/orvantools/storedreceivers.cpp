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
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader xml;
    bool hasRoot = false;
    Numbered* port = nullptr;
    std::map<int, Numbered>* sender = nullptr;
    const QString name = QStringLiteral("FirstRcvIndex");
    while (!file.atEnd()) {
        // Digests end with a NUL character, which no XML reader takes.
        xml.addData(file.read(kChunk).replace('\0', QByteArray()));
        while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::Invalid) {
            if (!xml.isStartElement())
                continue;
            hasRoot = true;
            if (const int number = NumberBehind(xml.name(), "Sender_")) {
                sender = &m_senders[number];
                port = nullptr;
            } else if (const int portNumber = NumberBehind(xml.name(), "Port_")) {
                port = sender ? &(*sender)[portNumber] : nullptr;
            } else if (const int tile = NumberBehind(xml.name(), "Tile_")) {
                if (port)
                    port->emplace(tile, xml.attributes().value(name).toInt());
            }
        }
        if (xml.hasError() && xml.error() != QXmlStreamReader::PrematureEndOfDocumentError)
            return false;
    }
    return hasRoot && !xml.hasError();
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
