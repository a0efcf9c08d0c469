#include "orvantools/wallpainter.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kDigitWidth = 0.62; ///< of a number's height, the widest of usual fonts
constexpr double kMostText = 70;
constexpr double kLeastCover = 0.6; ///< of the canvas, to show it whole
constexpr double kMargin = 30;
constexpr double kSmallSide = 50; ///< of a cabinet whose arrows and groups are bare of white edges

QColor TextOn(const QColor& ground)
{
    const double light = 0.299 * ground.red() + 0.587 * ground.green() + 0.114 * ground.blue();
    return light > 130 ? QColor(Qt::black) : QColor(Qt::white);
}

QColor Lighter(const QColor& color)
{
    const auto mix = [](int channel) { return (channel + 3 * 255) / 4; };
    return QColor(mix(color.red()), mix(color.green()), mix(color.blue()));
}

QColor FillOf(const PicturePort& port)
{
    return port.hidden ? Lighter(port.color) : port.color;
}

int NumberOf(const PicturePort& port, int place)
{
    return port.cabinets[static_cast<size_t>(place)].number;
}

double Limited(double value, double least, double most)
{
    return std::max(least, std::min(value, most));
}

/// The part of the canvas to show: all of it when the wall fills a fair part, else the wall.
QRectF Shown(const WallPicture& picture)
{
    if (picture.bound.isEmpty())
        return picture.canvas.isEmpty() ? QRectF(0, 0, 1, 1) : picture.canvas;
    const bool fills = !picture.canvas.isEmpty()
                       && (picture.bound.width() >= kLeastCover * picture.canvas.width()
                           && picture.bound.height() >= kLeastCover * picture.canvas.height());
    return fills ? picture.bound.united(picture.canvas) : picture.bound;
}

/// Goes on to a point; a point before it on the same straight way is left out.
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

const QFont& WallPainter::Font(double height)
{
    const int pixels = std::max(1, static_cast<int>(height));
    auto font = m_fonts.find(pixels);
    if (font == m_fonts.end()) {
        font = m_fonts.insert(pixels, m_painter.font());
        font->setPixelSize(pixels);
    }
    return *font;
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
    // What may give way comes last, the most useful first.
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

/// Thousands of cabinets as one path are slow to fill pixel by pixel, and so are long upright lines: a row in
/// the colour of the outline shows it where the cabinets laid on it leave it bare. On whole pixels, so that
/// every line is as wide as the next one.
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
    // Inwards from group to group, so that none hides another.
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
        if (before >= 0 && NumberOf(port, place) == NumberOf(port, before) + 1) {
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

/// As one path, which makes a small file; for pixels piece by piece, which is many times as fast.
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

void WallPainter::PaintEnds(const PicturePort& port)
{
    if (port.chain.empty())
        return;
    const TileShape& first = port.shapes[static_cast<size_t>(port.chain.front())];
    const double radius = EndRadius(port);
    const QPointF start = Map(first.Center());
    const QPointF end = Map(port.shapes[static_cast<size_t>(port.chain.back())].Center());
    if (port.chain.size() > 1) {
        const QPointF half(radius * 0.6, radius * 0.6);
        m_painter.setPen(QPen(Qt::black, radius * 0.2));
        m_painter.setBrush(Qt::white);
        m_painter.drawRect(QRectF(end - half, end + half));
        m_labels.Block(QRectF(end - half, end + half));
    }
    m_painter.setPen(QPen(Qt::white, radius * 0.12));
    m_painter.setBrush(Qt::black);
    m_painter.drawEllipse(start, radius, radius);
    m_labels.Block(QRectF(start - QPointF(radius, radius), start + QPointF(radius, radius)));
    const QString text = QString::number(port.index + 1);
    PaintInside({start, text, radius * (text.size() > 2 ? 0.8 : 1.1), 0}, Qt::white);
}

double WallPainter::EndRadius(const PicturePort& port) const
{
    return Limited(SideOf(port.shapes[static_cast<size_t>(port.chain.front())]) * 0.16, m_leastText, 50);
}

void WallPainter::PaintBackups(const PicturePort& port)
{
    if (port.chain.empty() || port.backups.isEmpty())
        return;
    const QString text =
        QCoreApplication::translate("OrvanTools", "backup: ") + port.backups.join(QStringLiteral(", "));
    const QPointF end = Map(port.shapes[static_cast<size_t>(port.chain.back())].Center());
    const double radius = EndRadius(port);
    PaintTagNear({end, text, Limited(radius * 0.8, m_leastText, 34), 0}, QPointF(), radius);
}

double WallPainter::NumberHeight(const PicturePort& port, const TileShape& shape) const
{
    const int digits = QString::number(NumberOf(port, port.chain.back()) + 1).size();
    const double side = SideOf(shape);
    return std::min({kMostText, side * 0.27, side * 0.42 / (digits * kDigitWidth)}); // left of the chain
}

/// The number of each cabinet that has room for it, in its first corner.
void WallPainter::PaintNumbers(const PicturePort& port)
{
    const QColor color = TextOn(FillOf(port));
    for (const int place : port.chain) {
        const TileShape& shape = port.shapes[static_cast<size_t>(place)];
        const double height = NumberHeight(port, shape);
        if (height < m_leastText)
            continue;
        const QString text = QString::number(NumberOf(port, place) + 1);
        const double inset = SideOf(shape) * 0.09;
        const QPointF middle(inset + text.size() * height * kDigitWidth * 0.5, inset + height * 0.5);
        const QPointF corner = Map(shape.corners[0]);
        QTransform turn;
        turn.rotate(shape.angle);
        const QPointF at = corner + turn.map(middle);
        PaintInside({at, text, height, shape.angle}, color);
        m_labels.Block(QRectF(at - middle, at + middle).adjusted(inset, inset, -inset, -inset));
    }
}

/// In cabinets too small for that, where the chain begins, ends and turns.
void WallPainter::PaintNumbersOfTurns(const PicturePort& port)
{
    const auto shapeAt = [&port](size_t i) -> const TileShape& {
        return port.shapes[static_cast<size_t>(port.chain[i])];
    };
    for (size_t i = 0; i < port.chain.size(); ++i) {
        const TileShape& shape = shapeAt(i);
        if (NumberHeight(port, shape) >= m_leastText || (i == 0 && NumberOf(port, port.chain[i]) == 0))
            continue;
        const QPointF here = Map(shape.Center());
        const bool isLast = i + 1 == port.chain.size();
        const QPointF in = i == 0 ? QPointF() : here - Map(shapeAt(i - 1).Center());
        const QPointF out = isLast ? QPointF() : Map(shapeAt(i + 1).Center()) - here;
        const bool turns = std::abs(in.x() * out.y() - in.y() * out.x()) > 1e-6 * (1 + in.manhattanLength());
        if (i != 0 && !isLast && !turns)
            continue;
        // Moved along the row into the port's own cabinets, away from the next port's numbers.
        const QString text = QString::number(NumberOf(port, port.chain[i]) + 1);
        const double beyond = QFontMetricsF(Font(m_leastText)).horizontalAdvance(text) + m_leastText * 0.5
                              - shape.Bound().width() * m_scale;
        const double row = std::abs(in.x()) > std::abs(out.x()) ? -in.x() : out.x();
        const double aside = beyond > 0 && std::abs(row) > 1e-6 ? std::copysign(beyond * 0.5, row) : 0;
        PaintTagNear({here, text, m_leastText, 0}, QPointF(aside, 0), m_leastText);
    }
}

void WallPainter::PaintReceiverNumbers(const PicturePort& port)
{
    const QColor color = TextOn(FillOf(port));
    for (size_t c = 0; c < port.cabinets.size(); ++c) {
        const PictureCabinet& cabinet = port.cabinets[c];
        const double side = SideOf(port.shapes[c]);
        for (size_t i = 0; cabinet.firstReceiver >= 0 && i < cabinet.receivers.size(); ++i) {
            const QRectF& part = cabinet.receivers[i];
            const QString text = QString::number(cabinet.firstReceiver + static_cast<int>(i) + 1);
            const double height = std::min({40.0, side * 0.16, side * part.height() * 0.3,
                                            side * part.width() * 0.5 / (text.size() * kDigitWidth)});
            if (height < m_leastText)
                continue;
            const QPointF place =
                Map(port.shapes[c].At(part.left() + part.width() * 0.75, part.top() + part.height() * 0.75));
            PaintInside({place, text, height, port.shapes[c].angle}, color);
        }
    }
}

void WallPainter::PaintInside(const Label& label, const QColor& color)
{
    const QFont& font = Font(label.height);
    const QFontMetricsF metrics(font);
    const QPointF baseline(-metrics.horizontalAdvance(label.text) / 2, metrics.capHeight() / 2);
    m_painter.setFont(font);
    m_painter.setPen(color);
    if (label.angle == 0) {
        m_painter.drawText(label.place + baseline, label.text);
        return;
    }
    m_painter.save();
    m_painter.translate(label.place);
    m_painter.rotate(label.angle);
    m_painter.drawText(baseline, label.text);
    m_painter.restore();
}

bool WallPainter::PaintTag(const Label& label)
{
    const QFontMetricsF metrics(Font(label.height));
    QRectF ground(0, 0, metrics.horizontalAdvance(label.text) + label.height * 0.5, label.height * 1.2);
    ground.moveCenter(label.place);
    if (!m_labels.Take(ground))
        return false;
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(QColor(255, 255, 255, 225));
    m_painter.drawRect(ground);
    PaintInside(label, Qt::black);
    return true;
}

bool WallPainter::PaintTagNear(const Label& label, const QPointF& aside, double distance)
{
    const double width = QFontMetricsF(Font(label.height)).horizontalAdvance(label.text);
    const double across = distance + width * 0.5 + label.height * 0.3;
    const double down = distance + label.height * 0.7;
    const QPointF ways[] = {aside, {0, -down}, {0, down}, {across, 0}, {-across, 0}};
    return std::any_of(std::begin(ways), std::end(ways), [&](const QPointF& way) {
        return PaintTag({label.place + way, label.text, label.height, 0});
    });
}

} // namespace OrvanTools
