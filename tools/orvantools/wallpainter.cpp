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

constexpr double kSmallSide = 50;          ///< of a cabinet whose arrows and groups are bare of white edges
constexpr double kLeastGrouped = 16;       ///< width of a port, in steps from one group's line to the next
constexpr double kLeastOutlined = 17;      ///< side of cabinets that are drawn each
constexpr double kLeastOutlinedPixels = 8; ///< the same on a screen
constexpr double kLeastStep = 12;          ///< of a chain from cabinet to cabinet
constexpr double kLeastStepPixels = 4;     ///< the same on a screen
constexpr double kLeastBorder = 1.3;       ///< of a dark line, which else would leave no colour
constexpr double kLeastChained = 2;        ///< width of a port with a chain, in least steps

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
    : m_painter(painter), m_asPixels(painter.paintEngine()->type() == QPaintEngine::Raster),
      m_canvas(picture.canvas), m_isBare(!picture.bound.contains(picture.canvas)),
      m_view(picture, area, leastText,
             m_asPixels ? kLeastOutlinedPixels / painter.worldTransform().m11() : kLeastOutlined, shown)
{}

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

double WallPainter::BorderWidth(const WallPart& part) const
{
    const double narrow = m_view.NarrowOf(part);
    return std::min(Limited(part.side * 0.05, 3.5, 7 * m_view.GetGrowth()), narrow * 0.1);
}

Omissions WallPainter::Paint()
{
    m_painter.save();
    m_painter.setClipRect(m_view.GetArea());
    PaintCanvas();
    for (const WallPart& part : m_view.GetParts()) {
        PaintCabinets(part);
        PaintReceivers(part);
    }
    for (const WallPart& part : m_view.GetParts())
        PaintBorder(part);
    for (const WallPart& part : m_view.GetParts())
        PaintGroups(part);
    int hiddenChains = 0;
    for (const WallPart& part : m_view.GetParts()) {
        if (IsChainSeen(part))
            PaintChain(part);
        else
            ++hiddenChains;
    }
    Omissions omitted = WallLabels(m_painter, m_view).Paint();
    omitted.chains = hiddenChains;
    m_painter.restore();
    return omitted;
}

/// Cut off at the edge of the drawing here, because an SVG is not clipped.
void WallPainter::PaintCanvas()
{
    const QRectF& area = m_view.GetArea();
    const QRectF canvas = m_view.Map(m_canvas);
    const QRectF shown = canvas.intersected(area);
    if (m_canvas.isEmpty() || shown.isEmpty())
        return;
    const QColor ground(246, 246, 246);
    if (m_isBare && m_asPixels)
        FillPixels({m_painter.worldTransform().mapRect(shown).toRect()}, ground);
    else if (m_isBare)
        m_painter.fillRect(shown, ground);
    m_painter.setPen(QPen(QColor(110, 110, 110), 3, Qt::DashDotLine));
    for (const double y : {canvas.top(), canvas.bottom()}) {
        if (y >= area.top() && y <= area.bottom())
            m_painter.drawLine(QPointF(shown.left(), y), QPointF(shown.right(), y));
    }
    for (const double x : {canvas.left(), canvas.right()}) {
        if (x >= area.left() && x <= area.right())
            m_painter.drawLine(QPointF(x, shown.top()), QPointF(x, shown.bottom()));
    }
}

void WallPainter::PaintCabinets(const WallPart& part)
{
    const PicturePort& port = *part.port;
    if (part.isSmall) {
        PaintArea(part);
        return;
    }
    QPen outline(QColor(20, 20, 20), Limited(part.side * 0.02, 0.8, 3 * m_view.GetGrowth()));
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
        path.addPolygon(m_view.Map(part.ShapeOf(place).Polygon()));
        path.closeSubpath();
    }
    m_painter.drawPath(path);
}

/// Outlines of small cabinets would hide the colour, so only the area is filled.
void WallPainter::PaintArea(const WallPart& part)
{
    const PicturePort& port = *part.port;
    QVector<QRect> pixels;
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const QRectF& rect : JoinedRects(port.shapes, part.cabinets)) {
        const QRectF place = m_view.Map(rect);
        if (m_asPixels)
            pixels.append(OnPixels(place));
        else
            path.addRect(place);
    }
    FillPixels(pixels, FillOf(port));
    for (const int place : part.cabinets) {
        const TileShape& shape = part.ShapeOf(place);
        if (!shape.IsTurned())
            continue;
        path.addPolygon(m_view.Map(shape.Polygon()));
        path.closeSubpath();
    }
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(FillOf(port));
    m_painter.drawPath(path);
}

/// Both sides of an edge between ports have their own line and a white one between them, which can be seen on
/// any colour and without colours.
void WallPainter::PaintBorder(const WallPart& part)
{
    const std::vector<BorderLine> border = PortBorder(*part.port, part.cabinets);
    const double width = BorderWidth(part);
    const bool isThin = width < kLeastBorder; // then both sides share the white line
    for (const bool isLight : {true, false}) {
        if (isThin && !isLight)
            break;
        std::vector<QPolygonF> lines;
        const double inset = isThin ? 0 : width * (isLight ? 0.15 : 0.8);
        for (const BorderLine& piece : border) {
            const QLineF line(m_view.Map(piece.line.p1()), m_view.Map(piece.line.p2()));
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
void WallPainter::PaintCabinetsAsPixels(const WallPart& part)
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
        const TileShape& shape = part.ShapeOf(number);
        if (shape.IsTurned() || port.hidden) {
            drawn.addPolygon(m_view.Map(shape.Polygon()));
            drawn.closeSubpath();
            continue;
        }
        const QRect place = OnPixels(m_view.Map(shape.Bound()));
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

void WallPainter::PaintReceivers(const WallPart& part)
{
    if (part.isSmall)
        return;
    const PicturePort& port = *part.port;
    constexpr double edge = 0.999; // where the cabinet's own outline runs
    QPainterPath path;
    for (const int place : part.cabinets) {
        const TileShape& shape = part.ShapeOf(place);
        for (const QRectF& card : port.cabinets[static_cast<size_t>(place)].receivers) {
            if (card.right() < edge) {
                path.moveTo(m_view.Map(shape.At(card.right(), card.top())));
                path.lineTo(m_view.Map(shape.At(card.right(), card.bottom())));
            }
            if (card.bottom() < edge) {
                path.moveTo(m_view.Map(shape.At(card.left(), card.bottom())));
                path.lineTo(m_view.Map(shape.At(card.right(), card.bottom())));
            }
        }
    }
    if (path.isEmpty())
        return;
    m_painter.setPen(QPen(TextOn(FillOf(port)), 1.2, Qt::DotLine));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawPath(path);
}

void WallPainter::PaintGroups(const WallPart& part)
{
    const PicturePort& port = *part.port;
    if (port.groups.empty())
        return;
    // From the outer group inwards, so that none hides another.
    const bool hasEdges = part.side >= kSmallSide;
    const double step = hasEdges ? Limited(part.side * 0.05, 8, 10 * m_view.GetGrowth()) : 4;
    const double border = BorderWidth(part) * 1.3;
    if (m_view.NarrowOf(part) < kLeastGrouped * step)
        return;
    std::vector<QPolygonF> lines;
    for (const GroupOutline& outline : port.groups) {
        const double inset = border + step * (0.5 + outline.depth);
        for (const BorderLine& piece : outline.lines) {
            const QLineF line(m_view.Map(piece.line.p1()) + piece.inward * inset,
                              m_view.Map(piece.line.p2()) + piece.inward * inset);
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

/// No line is thinner than a dot of the screen or the printer: chains of tiny cabinets would hide the colour.
bool WallPainter::IsChainSeen(const WallPart& part) const
{
    const double step = m_asPixels ? kLeastStepPixels / m_painter.worldTransform().m11() : kLeastStep;
    return part.chain.size() < 2 || !part.isSmall
           || (part.side >= step && m_view.NarrowOf(part) >= kLeastChained * step);
}

void WallPainter::PaintChain(const WallPart& part)
{
    const PicturePort& port = *part.port;
    std::vector<QPolygonF> lines;
    std::vector<QPolygonF> arrows;
    int before = -1; // place in the chain
    for (const int at : part.chain) {
        const int place = port.chain[static_cast<size_t>(at)];
        const int last = at > 0 ? port.chain[static_cast<size_t>(at - 1)] : place;
        const TileShape& shape = part.ShapeOf(place);
        // A number may be missing or there twice.
        if (at == 0 || NumberOf(port, place) - 1 != NumberOf(port, last))
            continue;
        const TileShape& lastShape = part.ShapeOf(last);
        const QPointF from = m_view.Map(lastShape.Center());
        const QPointF to = m_view.Map(shape.Center());
        if (lines.empty() || before != at - 1)
            lines.push_back(QPolygonF({from}));
        before = at;
        LineTo(lines.back(), to);
        if (!part.isSmall)
            arrows.push_back(Arrow(from, to,
                                   Limited(std::min(m_view.SideOf(lastShape), m_view.SideOf(shape)) * 0.24, 4,
                                           40 * m_view.GetGrowth())));
    }
    const double width =
        part.isSmall ? part.side * 0.1 : Limited(part.side * 0.035, 1.5, 7 * m_view.GetGrowth());
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
