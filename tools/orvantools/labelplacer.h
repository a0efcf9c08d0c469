#pragma once

#include <QHash>
#include <QRectF>

#include <vector>

namespace OrvanTools {

/// Keeps labels from covering one another: each place is given once.
class LabelPlacer
{
public:
    explicit LabelPlacer(double cell) : m_cell(cell) {} ///< about the size of a label

    bool Take(const QRectF& place);  ///< false when some of it is taken
    void Block(const QRectF& place); ///< takes a place, also one that is not free

private:
    template <class Visit> bool VisitCells(const QRectF& place, Visit visit);

    double m_cell;
    QHash<qint64, std::vector<QRectF>> m_taken;
};

} // namespace OrvanTools
