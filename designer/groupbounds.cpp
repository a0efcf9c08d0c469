#include "groupbounds.h"

#include <QLineF>

GroupBounds::GroupBounds(const CTileGroupSet& groups)
{
    QList<CTileGroup*> all;
    groups.GetGroupListRecursive(all);
    for (const CTileGroup* group : qAsConst(all)) {
        Outline outline;
        outline.parent = m_places.value(group->GetParentGroupID(), -1);
        m_places.insert(group->GetID(), static_cast<int>(m_outlines.size()));
        m_outlines.push_back(outline);
    }
}

int GroupBounds::Find(const QUuid& group)
{
    if (m_lastId != group) {
        m_lastId = group;
        m_last = m_places.value(group, -1);
    }
    return m_last;
}

void GroupBounds::Add(const QUuid& group, const QRect& place, const QPolygonF* corners)
{
    for (int i = Find(group); i >= 0; i = m_outlines[static_cast<size_t>(i)].parent) {
        Outline& outline = m_outlines[static_cast<size_t>(i)];
        if (outline.bound.isNull() && corners)
            outline.upright.rotate(QLineF(corners->at(0), corners->at(1)).angle());
        outline.bound |=
            corners ? outline.upright.map(*corners).boundingRect() : outline.upright.mapRect(QRectF(place));
    }
}

std::vector<QPolygonF> GroupBounds::GetPolygons() const
{
    std::vector<QPolygonF> polygons;
    for (const Outline& outline : m_outlines) {
        if (!outline.bound.isNull())
            polygons.push_back(outline.upright.inverted().map(QPolygonF(outline.bound)));
    }
    return polygons;
}
