#pragma once

#include "orvantools/edgelines.h"

#include <QHash>
#include <QPolygonF>
#include <QUuid>

#include <vector>

class CTileGroupSet;
class CTileSet;

namespace OrvanTools {

struct TileShape;

/// Where a group's edge is drawn, canvas pixels.
struct GroupOutline
{
    int depth = 0; ///< 0: no group around it
    std::vector<BorderLine> lines;
};

/// Outlines the groups of one port, also groups inside others: the edge of the area of a group's cabinets, or
/// their convex hull when some are turned.
class GroupOutlines
{
public:
    /// [ref] the shapes, one for each of the tiles.
    GroupOutlines(const CTileSet& tiles, const std::vector<TileShape>& shapes);

    std::vector<GroupOutline> Make(const CTileGroupSet& groups);

private:
    std::vector<int> MakeLevel(const CTileGroupSet& groups, int depth);
    void Collect(const CTileGroupSet& groups, std::vector<int>& members) const;
    std::vector<BorderLine> Border(const std::vector<int>& members) const;

    const std::vector<TileShape>& m_shapes;
    QHash<QUuid, std::vector<int>> m_members; ///< places of the cabinets that name a group
    std::vector<GroupOutline> m_outlines;
};

} // namespace OrvanTools
