#include "settings/specifiediplist.h"

#include "common/atomicfile.h"
#include "common/dottedaddress.h"
#include "common/inputfile.h"

#include <QNetworkInterface>

#include <algorithm>

namespace {

/// As the list holds it; empty for a text that is no address.
QString Dotted(const QString& text)
{
    const std::optional<quint32> address = ReadDottedAddress(text, 3);
    return address ? QHostAddress(*address).toString() : QString();
}

} // namespace

QVector<Ipv4Network> GetLocalNetworks()
{
    QVector<Ipv4Network> networks;
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& interface : interfaces) {
        if (!interface.flags().testFlag(QNetworkInterface::IsUp))
            continue;
        const QList<QNetworkAddressEntry> entries = interface.addressEntries();
        for (const QNetworkAddressEntry& entry : entries) {
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
                networks.append({entry.ip().toIPv4Address(), entry.netmask().toIPv4Address()});
        }
    }
    return networks;
}

bool SpecifiedIpList::Load(const QString& path)
{
    m_file.SetPath(path);
    QByteArray content;
    const bool read = ReadInput(path, kMaxIpListBytes, &content);
    if (!read) {
        m_file.Hold();
        return false;
    }
    m_addresses.clear();
    const QStringList lines = QString::fromUtf8(content).split(QLatin1Char('\n'));
    for (const QString& line : lines)
        Add(line); // a comment or an empty line is no address
    return true;
}

bool SpecifiedIpList::Save()
{
    QByteArray content;
    for (const QString& address : m_addresses)
        content += address.toUtf8() + '\n';
    return m_file.MakeWritable() && ReplaceFile(m_file.Path(), content);
}

bool SpecifiedIpList::Add(const QString& address)
{
    const QString dotted = Dotted(address);
    if (m_addresses.size() >= kMaxSpecifiedIps || dotted.isEmpty() || m_addresses.contains(dotted))
        return false;
    m_addresses.append(dotted);
    return true;
}

bool SpecifiedIpList::Remove(const QString& address)
{
    return m_addresses.removeOne(Dotted(address));
}

QStringList SpecifiedIpList::Outside(const QVector<Ipv4Network>& networks) const
{
    QStringList outside;
    for (const QString& dotted : m_addresses) {
        const quint32 address = QHostAddress(dotted).toIPv4Address();
        const bool inside =
            std::any_of(networks.begin(), networks.end(), [address](const Ipv4Network& network) {
                // A link between two points may have no mask. It reaches only its own address.
                const quint32 mask = network.mask ? network.mask : ~quint32(0);
                return ((address ^ network.address) & mask) == 0;
            });
        if (!inside)
            outside.append(dotted);
    }
    return outside;
}
