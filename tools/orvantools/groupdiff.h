#pragma once

#include "orvantools/cabinetmatch.h"

#include <QString>

#include <functional>
#include <vector>

class CPort;

namespace OrvanTools {

/// A group that differs, at the first cabinet in it.
struct GroupDifference
{
    bool removed; ///< then the cabinet is one of the port before
    int cabinet;  ///< counted from 0, -1: no cabinet is in it
    QString text;
};

/// Tells how the groups of a port differ. Groups with the same id are the same, then groups in which the same
/// cabinet is, then those around them, at last those without cabinets in their order. `pairs`: the cabinets
/// that stayed on the port.
void CompareGroups(const CPort* a, const CPort* b, const std::vector<CabinetPair>& pairs,
                   const std::function<void(const GroupDifference&)>& found);

} // namespace OrvanTools
