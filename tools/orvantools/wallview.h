#pragma once

#include "orvantools/wallpicture.h"

#include <QPointF>
#include <QPolygonF>
#include <QRectF>

namespace OrvanTools {

/// What is drawn of a port.
struct WallPart
{
    const PicturePort* port = nullptr;
    std::vector<int> cabinets; ///< places of those that show
    std::vector<int> chain;    ///< places in the chain of cabinets that show, or the one before does
    QRectF bound;              ///< of its cabinets, canvas pixels
    double side = 0;           ///< painter units, the mean of its cabinets' shorter sides
    bool isSmall = false;      ///< the cabinets are too small to draw each

    const TileShape& ShapeOf(int place) const { return port->shapes[static_cast<size_t>(place)]; }
};

/// Where a picture, or a part of it, lies on a drawing. From the picture's coordinates to the painter's
/// units.
class WallView
{
public:
    static constexpr double kMargin = 30; ///< around the wall, for marks beside it

    /// [ref] the picture. `shown` is the part of it to draw, null for all; cabinets with a shorter side below
    /// `leastSide` are small.
    WallView(const WallPicture& picture, const QRectF& area, double leastText, double leastSide,
             const QRectF& shown);

    QPointF Map(const QPointF& place) const { return place * m_scale + m_origin; }
    QRectF Map(const QRectF& rect) const { return QRectF(Map(rect.topLeft()), rect.size() * m_scale); }
    QPolygonF Map(const QPolygonF& polygon) const;
    double SideOf(const TileShape& shape) const; ///< the shorter side
    double NarrowOf(const WallPart& part) const; ///< the shorter side of its bound
    bool IsShown(const TileShape& shape) const;  ///< its middle

    double GetScale() const { return m_scale; }
    const QPointF& GetOrigin() const { return m_origin; }
    const QRectF& GetArea() const { return m_around; } ///< all of it, also what is left free around the wall
    double GetLeastText() const { return m_leastText; }
    double GetGrowth() const
    {
        return m_growth;
    } ///< of the widest lines and largest texts; above 1 on large pages
    const std::vector<WallPart>& GetParts() const { return m_parts; } ///< of the ports that show

private:
    void CollectParts(const WallPicture& picture);
    void Fit(const QRectF& shown, double margin);
    double RoomBeside(const QRectF& bound) const; ///< for marks that do not fit on their port's cabinets

    QRectF m_around;
    QRectF m_shown; ///< null: all
    double m_leastText;
    double m_growth;
    double m_scale = 1;
    QPointF m_origin;
    std::vector<WallPart> m_parts;
};

} // namespace OrvanTools
