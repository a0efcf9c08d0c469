#include "orvantools/wallpainter.h"

#include "orvantools/wallpaintertools.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kLeastCover = 0.6; ///< of the canvas, to show it whole
constexpr double kMargin = 30;
constexpr double kSmallSide = 50; ///< of a cabinet whose arrows and groups are bare of white edges

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

WallPainter::WallPainter(QPainter& painter, const WallPicture& picture, const QRectF& area, double leastText)
    : m_painter(painter), m_picture(picture), m_area(area.adjusted(kMargin, kMargin, -kMargin, -kMargin)),
      m_leastText(leastText), m_asPixels(painter.paintEngine()->type() == QPaintEngine::Raster), m_labels(100)
{
    const QRectF shown = Shown(picture);
    m_scale = std::min(m_area.width() / shown.width(), m_area.height() / shown.height());
    m_origin = m_area.center() - shown.center() * m_scale;
}

QPen WallPainter::ChainPen(int port, double width)
{
    static const QVector<qreal> styles[] = {{}, {6, 2}, {6, 2, 1.5, 2}, {2.5, 2}, {9, 2, 2, 2, 2, 2}};
    QPen pen(Qt::black, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    const QVector<qreal>& style = styles[static_cast<size_t>(port) % std::size(styles)];
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

double WallPainter::SideOf(const TileShape& shape) const
{
    const auto& c = shape.corners;
    const double width = std::hypot(c[1].x() - c[0].x(), c[1].y() - c[0].y());
    const double height = std::hypot(c[3].x() - c[0].x(), c[3].y() - c[0].y());
    return std::min(width, height) * m_scale;
}

void WallPainter::Paint()
{
    PaintCanvas();
    for (const PicturePort& port : m_picture.ports) {
        PaintCabinets(port);
        PaintReceivers(port);
    }
    for (const PicturePort& port : m_picture.ports)
        PaintGroups(port);
    for (const PicturePort& port : m_picture.ports)
        PaintChain(port);
    for (const PicturePort& port : m_picture.ports) {
        PaintReceiverNumbers(port);
        PaintNumbers(port);
        PaintEnds(port);
    }
    // What may be left out comes last, the most useful first.
    for (const PicturePort& port : m_picture.ports)
        PaintNumbersOfTurns(port);
    for (const PicturePort& port : m_picture.ports)
        PaintBackups(port);
}

void WallPainter::PaintCanvas()
{
    if (m_picture.canvas.isEmpty())
        return;
    const QRectF canvas(Map(m_picture.canvas.topLeft()), m_picture.canvas.size() * m_scale);
    const QRectF around = m_area.adjusted(-kMargin, -kMargin, kMargin, kMargin);
    m_painter.save();
    m_painter.setClipRect(around);
    const bool isBare = !m_picture.bound.contains(m_picture.canvas);
    const QColor ground(246, 246, 246);
    if (isBare && m_asPixels)
        FillPixels({m_painter.worldTransform().mapRect(canvas.intersected(around)).toRect()}, ground);
    m_painter.setPen(QPen(QColor(110, 110, 110), 3, Qt::DashDotLine));
    m_painter.setBrush(isBare && !m_asPixels ? ground : QBrush(Qt::NoBrush));
    m_painter.drawRect(canvas);
    m_painter.restore();
}

void WallPainter::PaintCabinets(const PicturePort& port)
{
    if (port.cabinets.empty())
        return;
    QPen outline(QColor(20, 20, 20), Limited(SideOf(port.shapes.front()) * 0.02, 0.8, 3));
    if (port.hidden)
        outline.setDashPattern({5, 4});
    m_painter.setPen(outline);
    m_painter.setBrush(FillOf(port));
    if (m_asPixels) {
        PaintCabinetsAsPixels(port);
        return;
    }
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const TileShape& shape : port.shapes) {
        path.addPolygon(Map(shape.Polygon()));
        path.closeSubpath();
    }
    m_painter.drawPath(path);
}

/// Thousands of cabinets in one path are slow to fill pixel by pixel, and so are long upright lines. So a row
/// is filled with the colour of the outline, and the cabinets laid on it leave the outline bare. On whole
/// pixels, so that all lines have the same width.
void WallPainter::PaintCabinetsAsPixels(const PicturePort& port)
{
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
    for (const TileShape& shape : port.shapes) {
        if (shape.IsTurned() || port.hidden) {
            drawn.addPolygon(Map(shape.Polygon()));
            drawn.closeSubpath();
            continue;
        }
        const QRectF bound = shape.Bound();
        const QPoint leftTop = toPixels.map(Map(bound.topLeft())).toPoint();
        const QPoint rightBottom = toPixels.map(Map(bound.bottomRight())).toPoint();
        const QRect place(leftTop, QSize(rightBottom.x() - leftTop.x(), rightBottom.y() - leftTop.y()));
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

void WallPainter::PaintReceivers(const PicturePort& port)
{
    constexpr double edge = 0.999; // where the cabinet's own outline runs
    QPainterPath path;
    for (size_t i = 0; i < port.cabinets.size(); ++i) {
        const TileShape& shape = port.shapes[i];
        for (const QRectF& part : port.cabinets[i].receivers) {
            if (part.right() < edge) {
                path.moveTo(Map(shape.At(part.right(), part.top())));
                path.lineTo(Map(shape.At(part.right(), part.bottom())));
            }
            if (part.bottom() < edge) {
                path.moveTo(Map(shape.At(part.left(), part.bottom())));
                path.lineTo(Map(shape.At(part.right(), part.bottom())));
            }
        }
    }
    if (path.isEmpty())
        return;
    m_painter.setPen(QPen(TextOn(FillOf(port)), 1.2, Qt::DotLine));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawPath(path);
}

void WallPainter::PaintGroups(const PicturePort& port)
{
    if (port.groups.empty() || port.shapes.empty())
        return;
    // From the outer group inwards, so that none hides another.
    const double step = Limited(SideOf(port.shapes.front()) * 0.08, 4, 12);
    std::vector<QPolygonF> lines;
    for (const GroupOutline& outline : port.groups) {
        const double inset = step * (0.5 + outline.depth);
        for (const BorderLine& border : outline.lines) {
            const QLineF line(Map(border.line.p1()) + border.inward * inset,
                              Map(border.line.p2()) + border.inward * inset);
            if (line.length() <= 2 * inset)
                continue;
            const QPointF end = (line.p2() - line.p1()) / line.length() * inset;
            lines.push_back(QPolygonF() << line.p1() + end << line.p2() - end);
        }
    }
    m_painter.setBrush(Qt::NoBrush);
    if (SideOf(port.shapes.front()) >= kSmallSide) {
        m_painter.setPen(QPen(Qt::white, 5, Qt::SolidLine, Qt::SquareCap));
        DrawLines(lines);
    }
    m_painter.setPen(GroupPen());
    DrawLines(lines);
}

void WallPainter::PaintChain(const PicturePort& port)
{
    if (port.chain.size() < 2)
        return;
    std::vector<QPolygonF> lines;
    std::vector<QPolygonF> arrows;
    int before = -1;
    for (const int place : port.chain) {
        const TileShape& shape = port.shapes[static_cast<size_t>(place)];
        const QPointF to = Map(shape.Center());
        if (before >= 0 && NumberOf(port, place) - 1 == NumberOf(port, before)) {
            const TileShape& last = port.shapes[static_cast<size_t>(before)];
            const double side = std::min(SideOf(last), SideOf(shape));
            LineTo(lines.back(), to);
            arrows.push_back(Arrow(Map(last.Center()), to, Limited(side * 0.24, 4, 40)));
        } else {
            lines.push_back(QPolygonF({to})); // the first, or a number is missing or there twice
        }
        before = place;
    }
    const double side = SideOf(port.shapes.front());
    const double width = Limited(side * 0.035, 1.5, 7);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(QPen(Qt::white, width * 2, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    DrawLines(lines);
    m_painter.setPen(ChainPen(port.index, width));
    DrawLines(lines);
    m_painter.setPen(side < kSmallSide ? QPen(Qt::NoPen) : QPen(Qt::white, width * 0.5));
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
