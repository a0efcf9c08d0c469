#include "orvantools/wallview.h"

#include "orvantools/wallpaintertools.h"

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kLeastCover = 0.6;  ///< of the canvas, to show it whole
constexpr double kTiniest = 0.1;     ///< a text has some height
constexpr double kUsualWidth = 4000; ///< of a drawing whose lines need not grow
constexpr double kMostBeside = 0.12; ///< of the height, for what stands beside the wall

/// The part of the canvas to show: all of it when the wall fills much of it, else only the wall.
QRectF Shown(const WallPicture& picture)
{
    if (picture.bound.isEmpty())
        return picture.canvas.isEmpty() ? QRectF(0, 0, 1, 1) : picture.canvas;
    const bool fills = !picture.canvas.isEmpty()
                       && (picture.bound.width() >= kLeastCover * picture.canvas.width()
                           && picture.bound.height() >= kLeastCover * picture.canvas.height());
    return fills ? picture.bound.united(picture.canvas) : picture.bound;
}

} // namespace

WallView::WallView(const WallPicture& picture, const QRectF& area, double leastText, double leastSide,
                   const QRectF& shown)
    : m_around(area), m_shown(shown), m_leastText(std::max(leastText, kTiniest)),
      m_growth(std::max(1.0, std::sqrt(area.width() / kUsualWidth)))
{
    CollectParts(picture);
    const QRectF part = shown.isNull() ? Shown(picture) : shown;
    Fit(part, kMargin);
    Fit(part, kMargin + RoomBeside(picture.bound));
    for (WallPart& each : m_parts) {
        each.side *= m_scale;
        each.isSmall = each.side < leastSide;
    }
}

void WallView::Fit(const QRectF& shown, double margin)
{
    const QRectF area = m_around.adjusted(margin, margin, -margin, -margin);
    m_scale = std::min(area.width() / shown.width(), area.height() / shown.height());
    m_origin = area.center() - shown.center() * m_scale;
}

double WallView::RoomBeside(const QRectF& bound) const
{
    double length = 0; // of the marks beside one another
    const double height = StartSize(QString(), m_leastText).height() * 1.1;
    for (const WallPart& part : m_parts) {
        const double width = StartSize(FromOne(part.port->index), m_leastText).width() * 1.1;
        if (part.bound.width() * m_scale < width || part.bound.height() * m_scale < height)
            length += width;
    }
    if (m_parts.size() < 2 || length == 0)
        return 0;
    const double along = std::max(bound.width(), bound.height()) * m_scale;
    return std::min(std::ceil(length / along) * height, kMostBeside * m_around.height());
}

void WallView::CollectParts(const WallPicture& picture)
{
    for (const PicturePort& port : picture.ports) {
        WallPart part;
        part.port = &port;
        std::vector<bool> shows(port.shapes.size(), true);
        for (size_t i = 0; i < port.shapes.size(); ++i) {
            const QRectF bound = port.shapes[i].Bound();
            shows[i] = m_shown.isNull() || bound.intersects(m_shown);
            if (!shows[i])
                continue;
            part.cabinets.push_back(static_cast<int>(i));
            part.bound = part.bound.united(bound);
            const QSizeF size = port.shapes[i].Size();
            part.side += std::min(size.width(), size.height());
        }
        if (part.cabinets.empty())
            continue;
        const auto isSeen = [&](size_t i) { return shows[static_cast<size_t>(port.chain[i])]; };
        for (size_t i = 0; i < port.chain.size(); ++i) {
            if (isSeen(i) || (i > 0 && isSeen(i - 1)))
                part.chain.push_back(static_cast<int>(i));
        }
        part.side /= static_cast<double>(part.cabinets.size());
        m_parts.push_back(std::move(part));
    }
}

QPolygonF WallView::Map(const QPolygonF& canvas) const
{
    QPolygonF mapped;
    mapped.reserve(canvas.size());
    for (const QPointF& point : canvas)
        mapped.append(Map(point));
    return mapped;
}

double WallView::SideOf(const TileShape& shape) const
{
    const QSizeF size = shape.Size();
    return std::min(size.width(), size.height()) * m_scale;
}

double WallView::NarrowOf(const WallPart& part) const
{
    return std::min(part.bound.width(), part.bound.height()) * m_scale;
}

bool WallView::IsShown(const TileShape& shape) const
{
    return m_shown.isNull() || m_shown.contains(shape.Center());
}

} // namespace OrvanTools
