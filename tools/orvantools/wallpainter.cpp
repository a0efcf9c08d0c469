#include "orvantools/wallpainter.h"

#include "orvantools/portborder.h"
#include "orvantools/wallpaintertools.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kLeastCover = 0.6;        ///< of the canvas, to show it whole
constexpr double kUsualWidth = 4000;       ///< of a drawing whose lines need not grow
constexpr double kMostBeside = 0.12;       ///< of the height, for what stands beside the wall
constexpr double kSmallSide = 50;          ///< of a cabinet whose arrows and groups are bare of white edges
constexpr double kLeastGrouped = 16;       ///< width of a port, in steps from one group's line to the next
constexpr double kLeastOutlined = 17;      ///< side of cabinets that are drawn each
constexpr double kLeastOutlinedPixels = 8; ///< the same on a screen

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

/// Adds a point. The point before it is left out when it lies on the same straight way.
void LineTo(QPolygonF& line, const QPointF& to)
{
    if (line.size() >= 2) {
        const QPointF in = line.last() - line[line.size() - 2];
        const QPointF out = to - line.last();
        const double tolerance = 1e-6 * (1 + in.manhattanLength() * out.manhattanLength());
        if (QPointF::dotProduct(in, out) > 0 && std::abs(in.x() * out.y() - in.y() * out.x()) < tolerance)
            line.removeLast();
    }
    line.append(to);
}

/// A head that points from one place to another, in the middle of the way.
QPolygonF Arrow(const QPointF& from, const QPointF& to, double size)
{
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    if (length <= 0)
        return {};
    const QPointF along = way / length * size;
    const QPointF across(-along.y() * 0.5, along.x() * 0.5);
    const QPointF tip = (from + to) / 2 + along * 0.5;
    return QPolygonF({tip, tip - along + across, tip - along - across});
}

} // namespace

WallPainter::WallPainter(QPainter& painter, const WallPicture& picture, const QRectF& area, double leastText,
                         const QRectF& shown)
    : m_painter(painter), m_picture(picture), m_around(area), m_shown(shown), m_leastText(leastText),
      m_growth(std::max(1.0, std::sqrt(area.width() / kUsualWidth))),
      m_asPixels(painter.paintEngine()->type() == QPaintEngine::Raster), m_labels(100)
{
    CollectParts();
    const QRectF part = shown.isNull() ? Shown(picture) : shown;
    m_area = area.adjusted(kMargin, kMargin, -kMargin, -kMargin);
    Fit(part);
    const double room = RoomBeside();
    m_area.adjust(room, room, -room, -room);
    Fit(part);
    const double least = m_asPixels ? kLeastOutlinedPixels / painter.worldTransform().m11() : kLeastOutlined;
    for (Part& each : m_parts) {
        each.side *= m_scale;
        each.isSmall = each.side < least;
    }
}

void WallPainter::Fit(const QRectF& shown)
{
    m_scale = std::min(m_area.width() / shown.width(), m_area.height() / shown.height());
    m_origin = m_area.center() - shown.center() * m_scale;
}

double WallPainter::RoomBeside() const
{
    double length = 0; // of the marks beside one another
    const double height = StartSize(QString(), m_leastText).height() * 1.1;
    for (const Part& part : m_parts) {
        const double width = StartSize(FromOne(part.port->index), m_leastText).width() * 1.1;
        if (part.bound.width() * m_scale < width || part.bound.height() * m_scale < height)
            length += width;
    }
    if (m_parts.size() < 2 || length == 0)
        return 0;
    const double along = std::max(m_picture.bound.width(), m_picture.bound.height()) * m_scale;
    return std::min(std::ceil(length / along) * height, kMostBeside * m_around.height());
}

void WallPainter::CollectParts()
{
    for (const PicturePort& port : m_picture.ports) {
        Part part;
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

bool WallPainter::IsShown(const TileShape& shape) const
{
    return m_shown.isNull() || m_shown.contains(shape.Center());
}

QPen WallPainter::ChainPen(int port, double width)
{
    constexpr int kColors = 20; // then the colours of ports repeat, and the styles are shifted
    static const QVector<qreal> styles[] = {{}, {6, 2}, {6, 2, 1.5, 2}, {2.5, 2}, {9, 2, 2, 2, 2, 2}};
    QPen pen(Qt::black, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    const QVector<qreal>& style = styles[static_cast<size_t>(port + port / kColors) % std::size(styles)];
    if (!style.isEmpty())
        pen.setDashPattern(style);
    return pen;
}

QPen WallPainter::GroupPen()
{
    return QPen(QColor(120, 0, 40), 3, Qt::DashDotDotLine);
}

QPolygonF WallPainter::Map(const QPolygonF& canvas) const
{
    QPolygonF mapped;
    mapped.reserve(canvas.size());
    for (const QPointF& point : canvas)
        mapped.append(Map(point));
    return mapped;
}

double WallPainter::BorderWidth(const Part& part) const
{
    const double narrow = std::min(part.bound.width(), part.bound.height()) * m_scale;
    return std::min(Limited(part.side * 0.05, 3.5, 7 * m_growth), narrow * 0.1);
}

double WallPainter::SideOf(const TileShape& shape) const
{
    const auto& c = shape.corners;
    const double width = std::hypot(c[1].x() - c[0].x(), c[1].y() - c[0].y());
    const double height = std::hypot(c[3].x() - c[0].x(), c[3].y() - c[0].y());
    return std::min(width, height) * m_scale;
}

Omissions WallPainter::Paint()
{
    m_painter.save();
    m_painter.setClipRect(m_around);
    PaintCanvas();
    for (const Part& part : m_parts) {
        PaintCabinets(part);
        PaintReceivers(part);
    }
    for (const Part& part : m_parts)
        PaintBorder(part);
    for (const Part& part : m_parts)
        PaintGroups(part);
    for (const Part& part : m_parts)
        PaintChain(part);
    for (Part& part : m_parts)
        PaintTexts(part);
    PaintStarts();
    // What may be left out comes last, the most useful first.
    for (const Part& part : m_parts)
        PaintPortNumber(part);
    for (Part& part : m_parts)
        PaintEnd(part);
    for (Part& part : m_parts)
        PaintTags(part);
    for (Part& part : m_parts)
        PaintInnerTags(part);
    for (const Part& part : m_parts)
        PaintBackups(part);
    m_painter.restore();
    return m_omitted;
}

void WallPainter::PaintCanvas()
{
    if (m_picture.canvas.isEmpty())
        return;
    const QRectF canvas = Map(m_picture.canvas);
    const bool isBare = !m_picture.bound.contains(m_picture.canvas);
    const QColor ground(246, 246, 246);
    if (isBare && m_asPixels)
        FillPixels({m_painter.worldTransform().mapRect(canvas.intersected(m_around)).toRect()}, ground);
    m_painter.setPen(QPen(QColor(110, 110, 110), 3, Qt::DashDotLine));
    m_painter.setBrush(isBare && !m_asPixels ? ground : QBrush(Qt::NoBrush));
    m_painter.drawRect(canvas);
}

void WallPainter::PaintCabinets(const Part& part)
{
    const PicturePort& port = *part.port;
    if (part.isSmall) {
        PaintArea(part);
        return;
    }
    QPen outline(QColor(20, 20, 20), Limited(part.side * 0.02, 0.8, 3 * m_growth));
    if (port.hidden)
        outline.setDashPattern({5, 4});
    m_painter.setPen(outline);
    m_painter.setBrush(FillOf(port));
    if (m_asPixels) {
        PaintCabinetsAsPixels(part);
        return;
    }
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const int place : part.cabinets) {
        path.addPolygon(Map(port.shapes[static_cast<size_t>(place)].Polygon()));
        path.closeSubpath();
    }
    m_painter.drawPath(path);
}

/// Outlines of small cabinets would hide the colour, so only the area is filled.
void WallPainter::PaintArea(const Part& part)
{
    const PicturePort& port = *part.port;
    QVector<QRect> pixels;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const QRectF& rect : JoinedRects(port.shapes, part.cabinets)) {
        const QRectF place = Map(rect);
        if (m_asPixels)
            pixels.append(OnPixels(place));
        else
            path.addRect(place);
    }
    FillPixels(pixels, FillOf(port));
    for (const int place : part.cabinets) {
        const TileShape& shape = port.shapes[static_cast<size_t>(place)];
        if (!shape.IsTurned())
            continue;
        path.addPolygon(Map(shape.Polygon()));
        path.closeSubpath();
    }
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(FillOf(port));
    m_painter.drawPath(path);
}

/// Both sides of an edge between ports have their own line and a white one between them, which can be seen on
/// any colour and without colours.
void WallPainter::PaintBorder(const Part& part)
{
    const std::vector<BorderLine> border = PortBorder(*part.port, part.cabinets);
    const double width = BorderWidth(part);
    for (const bool isLight : {true, false}) {
        std::vector<QPolygonF> lines;
        const double inset = width * (isLight ? 0.15 : 0.8);
        for (const BorderLine& piece : border) {
            const QLineF line(Map(piece.line.p1()), Map(piece.line.p2()));
            if (line.length() == 0)
                continue;
            const QPointF along = (line.p2() - line.p1()) / line.length() * inset;
            lines.push_back(QPolygonF() << line.p1() + piece.inward * inset + along
                                        << line.p2() + piece.inward * inset - along);
        }
        QPen pen(isLight ? QColor(Qt::white) : QColor(20, 20, 20), width * (isLight ? 0.3 : 1), Qt::SolidLine,
                 Qt::SquareCap);
        if (!isLight && part.port->hidden) {
            pen.setDashPattern({4, 3});
            pen.setCapStyle(Qt::FlatCap);
        }
        m_painter.setPen(pen);
        m_painter.setBrush(Qt::NoBrush);
        DrawLines(lines);
    }
}

/// Thousands of cabinets in one path are slow to fill pixel by pixel, and so are long upright lines. So a row
/// is filled with the colour of the outline, and the cabinets laid on it leave the outline bare. On whole
/// pixels, so that all lines have the same width.
void WallPainter::PaintCabinetsAsPixels(const Part& part)
{
    const PicturePort& port = *part.port;
    const QPen outline = m_painter.pen();
    const QTransform toPixels = m_painter.worldTransform();
    const int line = std::max(1, qRound(outline.widthF() * toPixels.m11()));
    QPainterPath drawn; // what areas along the axes cannot show
    QRect row;
    QVector<QRect> cabinets;
    const auto fillRow = [&] {
        FillPixels({row.adjusted(0, 0, line, line)}, outline.color());
        FillPixels(cabinets, FillOf(port));
        cabinets.clear();
    };
    for (const int number : part.cabinets) {
        const TileShape& shape = port.shapes[static_cast<size_t>(number)];
        if (shape.IsTurned() || port.hidden) {
            drawn.addPolygon(Map(shape.Polygon()));
            drawn.closeSubpath();
            continue;
        }
        const QRect place = OnPixels(Map(shape.Bound()));
        const bool goesOn = !cabinets.isEmpty() && row.top() == place.top() && row.bottom() == place.bottom()
                            && row.right() + 1 == place.left();
        if (!goesOn && !cabinets.isEmpty())
            fillRow();
        row = goesOn ? QRect(row.topLeft(), place.bottomRight()) : place;
        cabinets.append(place.adjusted(line, line, 0, 0));
    }
    if (!cabinets.isEmpty())
        fillRow();
    drawn.setFillRule(Qt::WindingFill);
    m_painter.drawPath(drawn);
}

QRect WallPainter::OnPixels(const QRectF& rect) const
{
    const QTransform& toPixels = m_painter.worldTransform();
    const QPoint leftTop = toPixels.map(rect.topLeft()).toPoint();
    const QPoint rightBottom = toPixels.map(rect.bottomRight()).toPoint();
    return QRect(leftTop, QSize(rightBottom.x() - leftTop.x(), rightBottom.y() - leftTop.y()));
}

void WallPainter::FillPixels(const QVector<QRect>& rects, const QColor& color)
{
    m_painter.save();
    m_painter.resetTransform();
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    m_painter.drawRects(rects);
    m_painter.restore();
}

void WallPainter::PaintReceivers(const Part& part)
{
    if (part.isSmall)
        return;
    const PicturePort& port = *part.port;
    constexpr double edge = 0.999; // where the cabinet's own outline runs
    QPainterPath path;
    for (const int place : part.cabinets) {
        const TileShape& shape = port.shapes[static_cast<size_t>(place)];
        for (const QRectF& card : port.cabinets[static_cast<size_t>(place)].receivers) {
            if (card.right() < edge) {
                path.moveTo(Map(shape.At(card.right(), card.top())));
                path.lineTo(Map(shape.At(card.right(), card.bottom())));
            }
            if (card.bottom() < edge) {
                path.moveTo(Map(shape.At(card.left(), card.bottom())));
                path.lineTo(Map(shape.At(card.right(), card.bottom())));
            }
        }
    }
    if (path.isEmpty())
        return;
    m_painter.setPen(QPen(TextOn(FillOf(port)), 1.2, Qt::DotLine));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawPath(path);
}

void WallPainter::PaintGroups(const Part& part)
{
    const PicturePort& port = *part.port;
    if (port.groups.empty())
        return;
    // From the outer group inwards, so that none hides another.
    const bool hasEdges = part.side >= kSmallSide;
    const double step = hasEdges ? Limited(part.side * 0.05, 8, 10 * m_growth) : 4;
    const double border = BorderWidth(part) * 1.3;
    if (std::min(part.bound.width(), part.bound.height()) * m_scale < kLeastGrouped * step)
        return;
    std::vector<QPolygonF> lines;
    for (const GroupOutline& outline : port.groups) {
        const double inset = border + step * (0.5 + outline.depth);
        for (const BorderLine& piece : outline.lines) {
            const QLineF line(Map(piece.line.p1()) + piece.inward * inset,
                              Map(piece.line.p2()) + piece.inward * inset);
            if (line.length() <= 2 * inset)
                continue;
            const QPointF end = (line.p2() - line.p1()) / line.length() * inset;
            lines.push_back(QPolygonF() << line.p1() + end << line.p2() - end);
        }
    }
    m_painter.setBrush(Qt::NoBrush);
    if (hasEdges) {
        m_painter.setPen(QPen(Qt::white, 5, Qt::SolidLine, Qt::SquareCap));
        DrawLines(lines);
    }
    m_painter.setPen(GroupPen());
    DrawLines(lines);
}

void WallPainter::PaintChain(const Part& part)
{
    const PicturePort& port = *part.port;
    std::vector<QPolygonF> lines;
    std::vector<QPolygonF> arrows;
    int before = -1; // place in the chain
    for (const int at : part.chain) {
        const int place = port.chain[static_cast<size_t>(at)];
        const int last = at > 0 ? port.chain[static_cast<size_t>(at - 1)] : place;
        const TileShape& shape = port.shapes[static_cast<size_t>(place)];
        // A number may be missing or there twice.
        if (at == 0 || NumberOf(port, place) - 1 != NumberOf(port, last))
            continue;
        const TileShape& lastShape = port.shapes[static_cast<size_t>(last)];
        const QPointF from = Map(lastShape.Center());
        const QPointF to = Map(shape.Center());
        if (lines.empty() || before != at - 1)
            lines.push_back(QPolygonF({from}));
        before = at;
        LineTo(lines.back(), to);
        if (!part.isSmall)
            arrows.push_back(Arrow(
                from, to, Limited(std::min(SideOf(lastShape), SideOf(shape)) * 0.24, 4, 40 * m_growth)));
    }
    const double width = part.isSmall ? part.side * 0.1 : Limited(part.side * 0.035, 1.5, 7 * m_growth);
    m_painter.setBrush(Qt::NoBrush);
    if (!part.isSmall) {
        m_painter.setPen(QPen(Qt::white, width * 2, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
        DrawLines(lines);
    }
    m_painter.setPen(part.isSmall ? QPen(TextOn(FillOf(port)), width) : ChainPen(port.index, width));
    DrawLines(lines);
    m_painter.setPen(part.side < kSmallSide ? QPen(Qt::NoPen) : QPen(Qt::white, width * 0.5));
    m_painter.setBrush(Qt::black);
    DrawArrows(arrows);
}

/// One path makes a small file. For pixels, pieces are many times as fast.
void WallPainter::DrawLines(const std::vector<QPolygonF>& lines)
{
    QPainterPath path;
    QVector<QLineF> pieces;
    for (const QPolygonF& line : lines) {
        if (!m_asPixels)
            path.addPolygon(line);
        for (int i = 1; m_asPixels && i < line.size(); ++i)
            pieces.append(QLineF(line[i - 1], line[i]));
    }
    if (m_asPixels)
        m_painter.drawLines(pieces);
    else
        m_painter.drawPath(path);
}

void WallPainter::DrawArrows(const std::vector<QPolygonF>& arrows)
{
    QPainterPath path;
    for (const QPolygonF& arrow : arrows) {
        if (m_asPixels) {
            m_painter.drawConvexPolygon(arrow);
        } else {
            path.addPolygon(arrow);
            path.closeSubpath();
        }
    }
    if (!m_asPixels)
        m_painter.drawPath(path);
}

} // namespace OrvanTools
