#include "orvantools/backupmap.h"

#include <OrvanData/orvandata.h>

namespace OrvanTools {

namespace {

constexpr int kNone = -1;

} // namespace

BackupMap::BackupMap(const CProjectData& project)
{
    for (int s = 0; s < project.GetSenderCount(); ++s) {
        const CSender& sender = *project.GetSender(s);
        m_firstPort.push_back(static_cast<int>(m_places.size()));
        for (int p = 0; p < sender.GetPortCount(); ++p)
            m_places.push_back({s, p});
        if (!m_senderById.contains(sender.GetId()))
            m_senderById.insert(sender.GetId(), s);
        const auto ip = static_cast<quint32>(sender.GetNetSenderIP());
        if (ip != 0 && !m_senderByIp.contains(ip))
            m_senderByIp.insert(ip, s);
    }
    m_firstPort.push_back(static_cast<int>(m_places.size()));

    m_sources.assign(m_places.size(), kNone);
    m_backups.resize(m_places.size());
    for (size_t i = 0; i < m_places.size(); ++i) {
        const CPort& port = *project.GetSender(m_places[i].sender)->GetPort(m_places[i].port);
        if (const auto source = FindSource(port)) {
            m_sources[i] = IndexOf(*source);
            m_backups[static_cast<size_t>(m_sources[i])].push_back(static_cast<int>(i));
        }
    }
    FindLoops();
}

std::optional<PortPlace> BackupMap::FindSource(const CPort& port) const
{
    if (!port.IsBackupDest())
        return {};
    const auto ip = static_cast<quint32>(port.GetBackupSrcIP());
    const int sender =
        ip != 0 ? m_senderByIp.value(ip, kNone) : m_senderById.value(port.GetBackupSrcSenderId(), kNone);
    const PortPlace source{sender, port.GetBackupSrcPortIndex()};
    return IndexOf(source) == kNone ? std::nullopt : std::optional(source);
}

int BackupMap::IndexOf(const PortPlace& port) const
{
    if (port.sender < 0 || port.sender + 1 >= static_cast<int>(m_firstPort.size()) || port.port < 0)
        return kNone;
    const auto sender = static_cast<size_t>(port.sender);
    const int ports = m_firstPort[sender + 1] - m_firstPort[sender];
    return port.port < ports ? m_firstPort[sender] + port.port : kNone;
}

void BackupMap::FindLoops()
{
    m_loops.assign(m_places.size(), false);
    std::vector<int> walk(m_places.size(), kNone); // the walk that came by first
    for (int start = 0; start < static_cast<int>(m_places.size()); ++start) {
        int port = start;
        while (port != kNone && walk[static_cast<size_t>(port)] == kNone) {
            walk[static_cast<size_t>(port)] = start;
            port = m_sources[static_cast<size_t>(port)];
        }
        if (port == kNone || walk[static_cast<size_t>(port)] != start)
            continue;
        while (!m_loops[static_cast<size_t>(port)]) {
            m_loops[static_cast<size_t>(port)] = true;
            port = m_sources[static_cast<size_t>(port)];
        }
    }
}

std::optional<PortPlace> BackupMap::SourceOf(const PortPlace& port) const
{
    const int index = IndexOf(port);
    const int source = index == kNone ? kNone : m_sources[static_cast<size_t>(index)];
    return source == kNone ? std::nullopt : std::optional(m_places[static_cast<size_t>(source)]);
}

std::vector<PortPlace> BackupMap::BackupsOf(const PortPlace& port) const
{
    std::vector<PortPlace> backups;
    const int index = IndexOf(port);
    if (index == kNone)
        return backups;
    for (const int backup : m_backups[static_cast<size_t>(index)])
        backups.push_back(m_places[static_cast<size_t>(backup)]);
    return backups;
}

PortPlace BackupMap::OriginalOf(PortPlace port) const
{
    while (!IsInLoop(port)) {
        const auto source = SourceOf(port);
        if (!source)
            break;
        port = *source;
    }
    return port;
}

bool BackupMap::IsInLoop(const PortPlace& port) const
{
    const int index = IndexOf(port);
    return index != kNone && m_loops[static_cast<size_t>(index)];
}

} // namespace OrvanTools
