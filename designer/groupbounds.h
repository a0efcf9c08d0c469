#pragma once

#include <OrvanData/orvandata.h>

#include <QHash>
#include <QPolygonF>
#include <QTransform>

#include <vector>

/// Gathers the rectangle around the cabinets of each group of a port, turned as its first cabinet is. The
/// edge of their area would take much longer, and each edit asks anew.
class GroupBounds
{
public:
    explicit GroupBounds(const CTileGroupSet& groups);

    /// To the group and those around it; `corners` of a turned cabinet, else null.
    void Add(const QUuid& group, const QRect& place, const QPolygonF* corners);
    std::vector<QPolygonF> GetPolygons() const; ///< without empty groups

private:
    struct Outline
    {
        int parent = -1;    ///< stands before it in the list
        QTransform upright; ///< turns the first cabinet back
        QRectF bound;       ///< of what was turned back
    };

    int Find(const QUuid& group);

    std::vector<Outline> m_outlines;
    QHash<QUuid, int> m_places;
    QUuid m_lastId; ///< cabinets of a group follow each other
    int m_last = -1;
};
