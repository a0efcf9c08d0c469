#include "orvantools/labelplacer.h"

#include <algorithm>
#include <cmath>

namespace OrvanTools {

template <class Visit> bool LabelPlacer::VisitCells(const QRectF& place, Visit visit)
{
    const auto cell = [this](double at) { return static_cast<int>(std::floor(at / m_cell)); };
    for (int y = cell(place.top()); y <= cell(place.bottom()); ++y) {
        for (int x = cell(place.left()); x <= cell(place.right()); ++x) {
            if (!visit(m_taken[y * (qint64(1) << 32) + x]))
                return false;
        }
    }
    return true;
}

bool LabelPlacer::Take(const QRectF& place)
{
    const auto isFree = [&place](const std::vector<QRectF>& taken) {
        return std::none_of(taken.begin(), taken.end(),
                            [&place](const QRectF& other) { return other.intersects(place); });
    };
    if (!VisitCells(place, isFree))
        return false;
    Block(place);
    return true;
}

void LabelPlacer::Block(const QRectF& place)
{
    VisitCells(place, [&place](std::vector<QRectF>& taken) {
        taken.push_back(place);
        return true;
    });
}

} // namespace OrvanTools
