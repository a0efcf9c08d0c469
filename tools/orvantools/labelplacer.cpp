#include "orvantools/labelplacer.h"

#include <algorithm>
#include <cmath>

namespace OrvanTools {

template <class Visit> bool LabelPlacer::VisitCells(const QRectF& bound, Visit visit)
{
    const auto cell = [this](double at) { return static_cast<int>(std::floor(at / m_cell)); };
    for (int y = cell(bound.top()); y <= cell(bound.bottom()); ++y) {
        for (int x = cell(bound.left()); x <= cell(bound.right()); ++x) {
            if (!visit(m_taken[y * (qint64(1) << 32) + x]))
                return false;
        }
    }
    return true;
}

bool LabelPlacer::Take(const QRectF& place)
{
    return Take(TileShape{{place.topLeft(), place.topRight(), place.bottomRight(), place.bottomLeft()}, 0});
}

bool LabelPlacer::Take(const TileShape& place)
{
    const Place wanted{place.Bound(), place};
    const auto overlaps = [&wanted](const Place& other) {
        return other.bound.intersects(wanted.bound)
               && ((!other.shape.IsTurned() && !wanted.shape.IsTurned())
                   || IsOverlap(other.shape, wanted.shape));
    };
    const auto isFree = [&overlaps](const std::vector<Place>& taken) {
        return std::none_of(taken.begin(), taken.end(), overlaps);
    };
    if (!VisitCells(wanted.bound, isFree))
        return false;
    return VisitCells(wanted.bound, [&wanted](std::vector<Place>& taken) {
        taken.push_back(wanted);
        return true;
    });
}

} // namespace OrvanTools
