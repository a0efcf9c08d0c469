#include "orvantools/groupoutlines.h"

#include "orvantools/tileshape.h"

#include <OrvanData/orvandata.h>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr int kMostDepth = 5; ///< groups deeper inside are drawn by those around them

double Cross(const QPointF& from, const QPointF& a, const QPointF& b)
{
    return (a.x() - from.x()) * (b.y() - from.y()) - (a.y() - from.y()) * (b.x() - from.x());
}

void AddToHull(std::vector<QPointF>& hull, const QPointF& point, size_t keep)
{
    while (hull.size() >= keep + 2 && Cross(hull[hull.size() - 2], hull.back(), point) <= 0)
        hull.pop_back();
    hull.push_back(point);
}

/// The convex hull, clockwise on the screen.
std::vector<QPointF> Hull(std::vector<QPointF> points)
{
    std::sort(points.begin(), points.end(), [](const QPointF& a, const QPointF& b) {
        return a.x() != b.x() ? a.x() < b.x() : a.y() < b.y();
    });
    if (points.size() < 3)
        return points;
    std::vector<QPointF> hull;
    for (const QPointF& point : points)
        AddToHull(hull, point, 0);
    const size_t lower = hull.size() - 1;
    for (auto point = points.rbegin() + 1; point != points.rend(); ++point)
        AddToHull(hull, *point, lower);
    hull.pop_back();
    return hull;
}

std::vector<BorderLine> HullBorder(const std::vector<QPointF>& hull)
{
    std::vector<BorderLine> border;
    for (size_t i = 0; i < hull.size(); ++i) {
        const QLineF line(hull[i], hull[(i + 1) % hull.size()]);
        if (line.length() > 0)
            border.push_back({line, QPointF(-line.dy(), line.dx()) / line.length()});
    }
    return border;
}

} // namespace

GroupOutlines::GroupOutlines(const CTileSet& tiles, const std::vector<TileShape>& shapes) : m_shapes(shapes)
{
    for (int i = 0; i < tiles.GetCount(); ++i) {
        const QUuid id = tiles.GetTile(i)->GetGroupId();
        if (!id.isNull())
            m_members[id].push_back(i);
    }
}

std::vector<GroupOutline> GroupOutlines::Make(const CTileGroupSet& groups)
{
    m_outlines.clear();
    MakeLevel(groups, 0);
    return std::move(m_outlines);
}

std::vector<int> GroupOutlines::MakeLevel(const CTileGroupSet& groups, int depth)
{
    std::vector<int> all;
    if (depth == kMostDepth) {
        Collect(groups, all);
        return all;
    }
    for (int i = 0; i < groups.GetDirectCount(); ++i) {
        const CTileGroup& group = *groups.GetDirectGroupByDirIndex(i);
        std::vector<int> members = MakeLevel(*group.GetSubGroupSet(), depth + 1);
        const std::vector<int> own = m_members.value(group.GetID());
        members.insert(members.end(), own.begin(), own.end());
        if (!members.empty())
            m_outlines.push_back({depth, Border(members)});
        all.insert(all.end(), members.begin(), members.end());
    }
    return all;
}

void GroupOutlines::Collect(const CTileGroupSet& groups, std::vector<int>& members) const
{
    for (int i = 0; i < groups.GetDirectCount(); ++i) {
        const CTileGroup& group = *groups.GetDirectGroupByDirIndex(i);
        const std::vector<int> own = m_members.value(group.GetID());
        members.insert(members.end(), own.begin(), own.end());
        Collect(*group.GetSubGroupSet(), members);
    }
}

std::vector<BorderLine> GroupOutlines::Border(const std::vector<int>& members) const
{
    EdgeLines edges;
    std::vector<QPointF> corners;
    for (const int member : members) {
        const TileShape& shape = m_shapes[static_cast<size_t>(member)];
        corners.insert(corners.end(), shape.corners.begin(), shape.corners.end());
        if (!shape.IsTurned())
            edges.Add(shape.Bound());
    }
    const bool anyTurned = std::any_of(members.begin(), members.end(), [this](int member) {
        return m_shapes[static_cast<size_t>(member)].IsTurned();
    });
    return anyTurned ? HullBorder(Hull(std::move(corners))) : edges.GetBorder();
}

} // namespace OrvanTools
