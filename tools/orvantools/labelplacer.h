#pragma once

#include "orvantools/tileshape.h"

#include <QHash>
#include <QRectF>

#include <vector>

namespace OrvanTools {

/// Keeps labels from covering one another: each place is given once.
class LabelPlacer
{
public:
    explicit LabelPlacer(double cell) : m_cell(cell) {} ///< about the size of a label

    bool Take(const QRectF& place);    ///< false when some of it is taken
    bool Take(const TileShape& place); ///< the same for one that may be turned

private:
    struct Place
    {
        QRectF bound;
        TileShape shape;
    };

    template <class Visit> bool VisitCells(const QRectF& bound, Visit visit);

    double m_cell;
    QHash<qint64, std::vector<Place>> m_taken;
};

} // namespace OrvanTools
