#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

#include <array>

class CSender;
class CTile;

namespace OrvanTools {

/// Where a cabinet lies on the canvas. It is turned by its own record, whatever the rotation setting says.
struct TileShape
{
    std::array<QPointF, 4> corners; ///< left-top, right-top, right-bottom, left-bottom before turning
    double angle = 0;               ///< degrees, clockwise; 0: not turned

    bool IsTurned() const { return angle != 0; }
    QPointF Center() const;
    bool CanOverlap() const; ///< false without area, and for what is no wider than rounding
    QRectF Bound() const;
    QPointF At(double x, double y) const; ///< from (0, 0) at the first corner to (1, 1) at the third
    QPolygonF Polygon() const;
    QSizeF Size() const;        ///< before turning
    TileShape Mirrored() const; ///< as seen from behind: x is negated, the first corner is the left-top again
};

/// A rectangle that is turned about its middle.
TileShape TurnedShape(const QPointF& middle, const QSizeF& size, double angle);

/// A width or height below 0 counts as 0, and no corner lies farther out than any canvas could.
TileShape ShapeOf(const CTile& tile);

/// From the canvas to the cabinets' coordinates; (-1, -1) in a file is that of a sender nobody has placed
/// yet.
QPointF OffsetOf(const CSender& sender);

/// Whether two shapes share more than rounding. Turned cabinets that stand side by side have positions in
/// whole pixels, so they overlap a little.
bool IsOverlap(const TileShape& a, const TileShape& b);

} // namespace OrvanTools
