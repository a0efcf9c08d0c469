#include "orvantools/tileshape.h"

#include <OrvanData/orvandata.h>

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kTurnedFrom = 0.0001; ///< degrees; the library's own limit
constexpr double kRounding = 1.5;      ///< pixels that two turned neighbours may share
constexpr double kFarthest = 1 << 24;  ///< pixels

struct Range
{
    double low;
    double high;
};

/// Also for corners that were turned about a point beyond all bounds.
double Reachable(double place)
{
    return std::isnan(place) ? kFarthest : std::clamp(place, -kFarthest, kFarthest);
}

double Length(const QPointF& way)
{
    return std::hypot(way.x(), way.y());
}

Range Project(const TileShape& shape, const QPointF& axis)
{
    Range range{1e300, -1e300};
    for (const QPointF& corner : shape.corners) {
        const double place = QPointF::dotProduct(corner, axis);
        range.low = std::min(range.low, place);
        range.high = std::max(range.high, place);
    }
    return range;
}

/// Whether the edges of `a` leave a line between the two shapes.
bool IsSeparatedByEdges(const TileShape& a, const TileShape& b, double rounding)
{
    for (size_t i = 0; i < 2; ++i) {
        const QPointF edge = a.corners[i + 1] - a.corners[i];
        const double length = Length(edge);
        if (length == 0)
            return true;
        const QPointF axis(-edge.y() / length, edge.x() / length);
        const Range first = Project(a, axis);
        const Range second = Project(b, axis);
        if (std::min(first.high, second.high) - std::max(first.low, second.low) <= rounding)
            return true;
    }
    return false;
}

} // namespace

QPointF TileShape::Center() const
{
    return (corners[0] + corners[2]) / 2;
}

bool TileShape::CanOverlap() const
{
    const double least = IsTurned() ? kRounding : 0;
    return Length(corners[1] - corners[0]) > least && Length(corners[3] - corners[0]) > least;
}

QRectF TileShape::Bound() const
{
    const auto x = [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); };
    const auto y = [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); };
    const auto across = std::minmax_element(corners.begin(), corners.end(), x);
    const auto down = std::minmax_element(corners.begin(), corners.end(), y);
    return QRectF(QPointF(across.first->x(), down.first->y()), QPointF(across.second->x(), down.second->y()));
}

QPointF TileShape::At(double x, double y) const
{
    return corners[0] + (corners[1] - corners[0]) * x + (corners[3] - corners[0]) * y;
}

QPolygonF TileShape::Polygon() const
{
    return QPolygonF({corners[0], corners[1], corners[2], corners[3]});
}

QSizeF TileShape::Size() const
{
    return QSizeF(Length(corners[1] - corners[0]), Length(corners[3] - corners[0]));
}

TileShape TileShape::Mirrored() const
{
    const auto mirror = [](const QPointF& corner) { return QPointF(-corner.x(), corner.y()); };
    return {{mirror(corners[1]), mirror(corners[0]), mirror(corners[3]), mirror(corners[2])}, -angle};
}

TileShape TurnedShape(const QPointF& middle, const QSizeF& size, double angle)
{
    QTransform turn;
    turn.translate(middle.x(), middle.y());
    turn.rotate(angle);
    const QRectF rect(QPointF(-size.width(), -size.height()) / 2, size);
    return {{turn.map(rect.topLeft()), turn.map(rect.topRight()), turn.map(rect.bottomRight()),
             turn.map(rect.bottomLeft())},
            angle};
}

TileShape ShapeOf(const CTile& tile)
{
    const double left = tile.GetX();
    const double top = tile.GetY();
    const double right = left + std::max(0, tile.GetWidth());
    const double bottom = top + std::max(0, tile.GetHeight());
    TileShape shape{{QPointF(left, top), QPointF(right, top), QPointF(right, bottom), QPointF(left, bottom)},
                    0};
    const SRotateParam& record = tile.GetRotateRecord();
    if (!record.rotated || std::abs(record.angle) <= kTurnedFrom)
        return shape;
    shape.angle = record.angle;
    for (QPointF& corner : shape.corners) {
        const CPointEx<double> turned = GetRotatePoint(&record, corner.x(), corner.y());
        corner = QPointF(Reachable(turned.x), Reachable(turned.y));
    }
    return shape;
}

QPointF OffsetOf(const CSender& sender)
{
    const QSize offset = sender.GetOffset();
    return offset == QSize(-1, -1) ? QPointF() : QPointF(offset.width(), offset.height());
}

bool IsOverlap(const TileShape& a, const TileShape& b)
{
    const double rounding = a.IsTurned() || b.IsTurned() ? kRounding : 0;
    return !IsSeparatedByEdges(a, b, rounding) && !IsSeparatedByEdges(b, a, rounding);
}

} // namespace OrvanTools
