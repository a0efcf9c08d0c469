#pragma once

#include <QHash>
#include <QUuid>

#include <optional>
#include <vector>

class CPort;
class CProjectData;

namespace OrvanTools {

/// A port of a project, counted from 0.
struct PortPlace
{
    int sender = 0;
    int port = 0;
};

inline bool operator==(const PortPlace& a, const PortPlace& b)
{
    return a.sender == b.sender && a.port == b.port;
}

/// Which port backs up which. Only ports in use exist here.
class BackupMap
{
public:
    explicit BackupMap(const CProjectData& project); ///< [ref] only while it is made

    /// The port that a port backs up; none when it is no backup or its source does not exist.
    std::optional<PortPlace> SourceOf(const PortPlace& port) const;
    /// The port that a port backs up, also through other backups; itself when it backs up none.
    PortPlace OriginalOf(PortPlace port) const;
    std::vector<PortPlace> BackupsOf(const PortPlace& port) const;
    bool IsInLoop(const PortPlace& port) const; ///< following the sources from it leads back to it

private:
    int IndexOf(const PortPlace& port) const;
    std::optional<PortPlace> FindSource(const CPort& port) const;
    void FindLoops();

    std::vector<int> m_firstPort; ///< index of each sender's first port, and one behind the last sender's
    std::vector<PortPlace> m_places;
    std::vector<int> m_sources; ///< by index, -1: none
    std::vector<std::vector<int>> m_backups;
    std::vector<bool> m_loops;
    QHash<QUuid, int> m_senderById;
    QHash<quint32, int> m_senderByIp;
};

} // namespace OrvanTools
