#pragma once

#include <QJsonObject>
#include <QString>

#include <vector>

class CMonitorInterfaceData;
class CProjectData;

namespace OrvanTools {

/// What can differ between two projects.
enum class DifferenceKind
{
    Project,
    SenderAdded,
    SenderRemoved,
    Sender,
    Port,
    CabinetAdded,
    CabinetRemoved,
    CabinetMoved,
    CabinetRenumbered,
    Cabinet,
    Group,
    Settings, ///< monitoring, demo mode, printed form
    ParameterFile,
};

QString DifferenceKindName(DifferenceKind kind); ///< "project", "sender-added" …

/// One difference. Numbers count from 1 in the second project, in the first for what was removed; 0 means
/// that it does not apply.
struct Difference
{
    DifferenceKind kind = DifferenceKind::Project;
    int sender = 0;
    int port = 0;
    int cabinet = 0; ///< place in the order of the port's cabinets
    QString text;

    QString Line() const; ///< "sender 1 port 2 cabinet 3: …", fit for a terminal
    QJsonObject Json() const;
};

/// A project with the monitoring settings that were read with it. They belong to the process, so whoever
/// reads a second file takes those of the first before.
struct ProjectSide
{
    const CProjectData& project;
    const CMonitorInterfaceData& monitor;
};

/// What differs from a to b, in the order of senders, ports, kinds and cabinets, what belongs to no sender
/// first. Compared is what DescribeProject shows, and some settings more, but for what follows from the rest
/// (bounds, counts, loads, first receivers) and for what a wall made anew changes: ids of senders and groups,
/// and the order in which a port lists its cabinets. Groups are the same when the same cabinets are in them.
std::vector<Difference> CompareProjects(const ProjectSide& a, const ProjectSide& b);

/// "3 differences: cabinets moved 2, ports changed 1"; empty when there is none.
QString CountDifferences(const std::vector<Difference>& differences);

} // namespace OrvanTools
