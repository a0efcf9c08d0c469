#pragma once

#include "settings/settingsfile.h"

#include <QStringList>
#include <QVector>

constexpr int kMaxSpecifiedIps = 1024;
constexpr qint64 kMaxIpListBytes = 1 << 20;

/// An IPv4 network, both numbers in host byte order.
struct Ipv4Network
{
    quint32 address = 0;
    quint32 mask = 0;
};

QVector<Ipv4Network> GetLocalNetworks(); ///< of the interfaces of this machine that are up

/// Addresses of processors outside the local networks, which a search does not find. A text file holds one a
/// line.
class SpecifiedIpList
{
public:
    bool Load(const QString& path); ///< false, with the list unchanged, when the file cannot be read
    bool Save(); ///< to the file loaded from, a broken one kept as ".bak"; false before loading

    const QStringList& Addresses() const { return m_addresses; }
    bool Add(const QString& address);    ///< false for no dotted address, one listed already, or a full list
    bool Remove(const QString& address); ///< false when it is not listed
    void Clear() { m_addresses.clear(); }

    /// The addresses that lie outside all these networks.
    QStringList Outside(const QVector<Ipv4Network>& networks) const;

private:
    SettingsFile m_file;
    QStringList m_addresses;
};
