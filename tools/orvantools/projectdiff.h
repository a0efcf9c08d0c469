#pragma once

#include "orvantools/placedtext.h"

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

/// Its numbers are those of the second project, of the first for what was removed.
struct Difference : PlacedText
{
    DifferenceKind kind = DifferenceKind::Project;

    QJsonObject Json() const { return JsonOfKind(DifferenceKindName(kind)); }
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
/// the order in which a port lists its cabinets, and the place of turning of those that are not turned.
/// Groups are the same when the same cabinets are in them.
std::vector<Difference> CompareProjects(const ProjectSide& a, const ProjectSide& b);

/// "3 differences: cabinets moved 2, ports changed 1"; empty when there is none.
QString CountDifferences(const std::vector<Difference>& differences);

} // namespace OrvanTools
