#include "scenepainter.h"

#include "scenemodel.h"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kLeastCell = 5;    ///< view pixels
constexpr double kLeastNumber = 22; ///< the same
constexpr double kLeastCard = 12;   ///< of a receiving card
constexpr double kLeastArrow = 16;  ///< length of a chain's link
constexpr double kGroupInset = 3;   ///< of its outline
constexpr int kLeastGrid = 16;      ///< between two lines
constexpr int kStrongLine = 4;      ///< each fourth one
constexpr int kMostMoved = 2000;    ///< cabinets drawn one by one while they are dragged

QPointF Center(const QRect& rect)
{
    return QRectF(rect).center();
}

QColor Mixed(const QColor& a, const QColor& b, double share)
{
    const auto mix = [share](double p, double q) { return p + (q - p) * share; };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

/// Head in the middle of the way.
QPolygonF Arrow(const QLineF& way, double size)
{
    const QPointF along = (way.p2() - way.p1()) / way.length() * size;
    const QPointF across(-along.y() * 0.5, along.x() * 0.5);
    const QPointF tip = way.center() + along * 0.5;
    return QPolygonF({tip, tip - along + across, tip - along - across});
}

} // namespace

ScenePainter::ScenePainter(QPainter& painter, const SceneModel& scene, const ViewMap& map,
                           const QPalette& palette)
    : m_painter(painter), m_scene(scene), m_map(map), m_palette(palette)
{}

ScenePainter::Detail ScenePainter::DetailFor(double side)
{
    return side < kLeastCell ? Detail::Areas : side < kLeastNumber ? Detail::Cells : Detail::Numbers;
}

QColor ScenePainter::TextOn(const QColor& ground)
{
    return ground.redF() * 0.299 + ground.greenF() * 0.587 + ground.blueF() * 0.114 > 0.5 ? Qt::black
                                                                                          : Qt::white;
}

QColor ScenePainter::Selected(const QColor& color) const
{
    return Mixed(color, m_palette.color(QPalette::Base), 0.65);
}

void ScenePainter::Paint(const QRect& view)
{
    m_painter.fillRect(view, m_palette.color(QPalette::Window));
    PaintCanvas(view);
    m_shown = QRect(m_map.ToWallPixel(view.topLeft()), m_map.ToWallPixel(view.bottomRight()));
    const std::vector<ScenePort>& ports = m_scene.GetPorts();
    const int current = m_scene.GetCurrentPort();
    for (int i = 0; i < static_cast<int>(ports.size()); ++i) {
        if (i != current)
            PaintPort(ports[static_cast<size_t>(i)], i);
    }
    if (current >= 0 && current < static_cast<int>(ports.size())) // where edits go: on top
        PaintPort(ports[static_cast<size_t>(current)], current);
}

void ScenePainter::PaintMoved(const QTransform& moved)
{
    const QRect area = moved.inverted().mapRect(QRectF(m_map.GetShown())).toAlignedRect();
    QVector<QPolygonF> outlines;
    QRect bound;
    for (const ScenePort& port : m_scene.GetPorts()) {
        for (const SceneCabinet& cabinet : port.cabinets) {
            if (!cabinet.selected)
                continue;
            bound |= cabinet.place;
            if (outlines.size() <= kMostMoved && cabinet.place.intersects(area))
                outlines.append(CornersOf(port, cabinet));
        }
    }
    if (outlines.size() > kMostMoved)
        outlines = {QPolygonF(QRectF(bound))};
    QColor color = m_palette.color(QPalette::Highlight);
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing, moved.isRotating());
    m_painter.setPen(QPen(color, 0)); // of one view pixel
    color.setAlpha(90);
    m_painter.setBrush(color);
    m_painter.translate(m_map.ToView(QPointF()));
    m_painter.scale(m_map.GetScaling(), m_map.GetScaling());
    m_painter.setTransform(moved, true);
    for (const QPolygonF& outline : qAsConst(outlines))
        m_painter.drawConvexPolygon(outline);
    m_painter.restore();
}

void ScenePainter::PaintCanvas(const QRect& view)
{
    const QRect canvas = m_map.ToView(m_scene.GetCanvas());
    const bool hasCanvas = !m_scene.GetCanvas().isNull();
    const QRect ground = hasCanvas ? canvas.intersected(view) : view;
    m_painter.fillRect(ground, m_palette.color(QPalette::Base));
    if (GetConfigData()->IsShowGrid())
        PaintGrid(ground);
    if (!hasCanvas)
        return;
    m_painter.setPen(QPen(m_palette.color(QPalette::Dark), 1));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(canvas.adjusted(-1, -1, 0, 0).intersected(view.adjusted(-2, -2, 2, 2)));
}

/// As fine as can be seen, in steps that double, so that each line stays where it is while the view zooms.
void ScenePainter::PaintGrid(const QRect& view)
{
    int step = 1;
    while (step * m_map.GetScaling() < kLeastGrid)
        step *= 2;
    const QPoint first = m_map.ToWallPixel(view.topLeft());
    const QPoint last = m_map.ToWallPixel(view.bottomRight());
    const auto colorAt = [&](int at) { // rectangles, because lines take Qt ten times as long
        const bool isStrong = at % (kStrongLine * step) == 0;
        return Mixed(m_palette.color(QPalette::Base), m_palette.color(QPalette::Text), isStrong ? 0.25 : 0.1);
    };
    for (int x = std::max(0, first.x() / step * step); x <= last.x(); x += step)
        m_painter.fillRect(m_map.ToView(QPoint(x, 0)).x(), view.top(), 1, view.height(), colorAt(x));
    for (int y = std::max(0, first.y() / step * step); y <= last.y(); y += step)
        m_painter.fillRect(view.left(), m_map.ToView(QPoint(0, y)).y(), view.width(), 1, colorAt(y));
}

void ScenePainter::PaintPort(const ScenePort& port, int index)
{
    if (!port.visible || !port.bound.intersects(m_shown))
        return;
    const double mean = std::sqrt(double(port.pixels) / double(port.cabinets.size()));
    m_detail = DetailFor(mean * m_map.GetScaling());
    const QColor color(SceneModel::ColorOf(index).rgb()); // opaque: what lies below must not shine through
    if (m_detail == Detail::Areas) {
        PaintAreas(port, color);
        return;
    }
    PaintCells(port, color);
    PaintGroups(port);
    PaintChain(port);
    if (m_detail == Detail::Numbers)
        PaintNumbers(port, color);
}

/// Cabinets side by side are one rectangle, so that a whole wall is a few of them.
void ScenePainter::PaintAreas(const ScenePort& port, const QColor& color)
{
    Fills fills;
    QRect row;
    bool isSelected = false;
    const auto add = [&] {
        if (!row.isNull())
            (isSelected ? fills.selected : fills.plain).append(m_map.ToView(row));
    };
    port.Walk(m_shown, [&](size_t i) {
        const SceneCabinet& cabinet = port.cabinets[i];
        if (cabinet.turned >= 0) {
            PaintTurned(port, cabinet, color);
            return;
        }
        const QRect& place = cabinet.place;
        const bool goesOn = isSelected == cabinet.selected && row.top() == place.top()
                            && row.bottom() == place.bottom() && row.right() + 1 == place.left();
        if (!goesOn)
            add();
        row = goesOn ? QRect(row.topLeft(), place.bottomRight()) : place;
        isSelected = cabinet.selected;
    });
    add();
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawRects(fills.plain);
    m_painter.setBrush(Selected(color));
    m_painter.drawRects(fills.selected);
}

void ScenePainter::PaintCells(const ScenePort& port, const QColor& color)
{
    Fills outlines;
    Fills fills;
    port.Walk(m_shown, [&](size_t i) {
        const SceneCabinet& cabinet = port.cabinets[i];
        if (cabinet.turned >= 0)
            return;
        const QRect place = m_map.ToView(cabinet.place);
        const int edge = cabinet.selected && place.width() > 12 && place.height() > 12 ? 2 : 1;
        (cabinet.selected ? outlines.selected : outlines.plain).append(place);
        (cabinet.selected ? fills.selected : fills.plain)
            .append(place.adjusted(edge, edge, 1 - edge, 1 - edge));
    });
    const auto fill = [this](const QVector<QRect>& rects, const QColor& with) {
        m_painter.setBrush(with);
        m_painter.drawRects(rects);
    };
    m_painter.setPen(Qt::NoPen);
    fill(outlines.plain, color.darker(170));
    fill(fills.plain, color);
    fill(outlines.selected, m_palette.color(QPalette::Highlight));
    fill(fills.selected, Selected(color));
    port.Walk(m_shown, [&](size_t i) {
        if (port.cabinets[i].turned >= 0)
            PaintTurned(port, port.cabinets[i], color);
        if (m_detail == Detail::Numbers && port.cabinets[i].cardColumns * port.cabinets[i].cardRows > 1)
            PaintCards(port, port.cabinets[i]);
    });
}

void ScenePainter::PaintTurned(const ScenePort& port, const SceneCabinet& cabinet, const QColor& color)
{
    QPolygonF polygon = port.corners[static_cast<size_t>(cabinet.turned)];
    for (QPointF& point : polygon)
        point = m_map.ToView(point);
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(cabinet.selected ? QPen(m_palette.color(QPalette::Highlight), 2)
                                      : QPen(color.darker(170), 1));
    m_painter.setBrush(cabinet.selected ? Selected(color) : color);
    m_painter.drawPolygon(polygon);
    m_painter.restore();
}

/// Left top of the unturned one first.
QPolygonF ScenePainter::CornersOf(const ScenePort& port, const SceneCabinet& cabinet)
{
    if (cabinet.turned >= 0)
        return port.corners[static_cast<size_t>(cabinet.turned)];
    const QRectF place = cabinet.place;
    return QPolygonF({place.topLeft(), place.topRight(), place.bottomRight(), place.bottomLeft()});
}

/// The receiving cards inside a cabinet, also inside a turned one.
void ScenePainter::PaintCards(const ScenePort& port, const SceneCabinet& cabinet)
{
    const QPolygonF corners = CornersOf(port, cabinet);
    const QPointF across = corners[1] - corners[0];
    const QPointF down = corners[3] - corners[0];
    const double scaling = m_map.GetScaling();
    if (std::hypot(across.x(), across.y()) * scaling < kLeastCard * cabinet.cardColumns
        || std::hypot(down.x(), down.y()) * scaling < kLeastCard * cabinet.cardRows)
        return;
    QVector<QLineF> lines;
    for (int i = 1; i < cabinet.cardColumns; ++i) {
        const QPointF from = corners[0] + across * i / cabinet.cardColumns;
        lines.append(QLineF(m_map.ToView(from), m_map.ToView(from + down)));
    }
    for (int i = 1; i < cabinet.cardRows; ++i) {
        const QPointF from = corners[0] + down * i / cabinet.cardRows;
        lines.append(QLineF(m_map.ToView(from), m_map.ToView(from + across)));
    }
    m_painter.setPen(QPen(QColor(0, 0, 0, 110), 1, Qt::DotLine));
    m_painter.drawLines(lines);
}

/// A little inside, so that the edges of cabinets can be told from it.
void ScenePainter::PaintGroups(const ScenePort& port)
{
    QColor color = m_palette.color(QPalette::Text);
    color.setAlpha(150);
    m_painter.setPen(QPen(color, 1, Qt::DashLine));
    m_painter.setBrush(Qt::NoBrush);
    for (const QPolygonF& group : port.groups) {
        if (!group.boundingRect().intersects(m_shown))
            continue;
        QLineF top(m_map.ToView(group[0]), m_map.ToView(group[1]));
        QLineF left(m_map.ToView(group[0]), m_map.ToView(group[3]));
        top.setLength(kGroupInset);
        left.setLength(kGroupInset);
        const QPointF across(top.dx(), top.dy());
        const QPointF down(left.dx(), left.dy());
        m_painter.drawPolygon(
            QPolygonF({m_map.ToView(group[0]) + across + down, m_map.ToView(group[1]) - across + down,
                       m_map.ToView(group[2]) - across - down, m_map.ToView(group[3]) + across - down}));
    }
}

/// Light lines with a dark edge can be seen on every port and on what is selected.
void ScenePainter::PaintChain(const ScenePort& port)
{
    if (port.chain.empty())
        return;
    QVector<QLineF> links;
    port.WalkLinks(m_shown, [&](const SceneCabinet& from, const SceneCabinet& to) {
        links.append(QLineF(m_map.ToView(Center(from.place)), m_map.ToView(Center(to.place))));
    });
    if (m_detail != Detail::Numbers) {
        m_painter.setPen(QPen(QColor(0, 0, 0, 170), 1));
        m_painter.drawLines(links);
        return;
    }
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(QPen(QColor(0, 0, 0, 150), 3.4));
    m_painter.drawLines(links);
    m_painter.setPen(QPen(Qt::white, 1.6));
    m_painter.drawLines(links);
    m_painter.setPen(QPen(QColor(0, 0, 0, 150), 0.8));
    m_painter.setBrush(Qt::white);
    for (const QLineF& link : qAsConst(links)) {
        if (link.length() >= kLeastArrow)
            m_painter.drawConvexPolygon(Arrow(link, std::min(link.length() * 0.25, 10.0)));
    }
    PaintStart(port);
    m_painter.restore();
}

void ScenePainter::PaintStart(const ScenePort& port)
{
    const SceneCabinet& first = port.cabinets[static_cast<size_t>(port.chain.front().cabinet)];
    if (first.number != 0 || !first.place.intersects(m_shown))
        return;
    const double side = std::min(first.place.width(), first.place.height()) * m_map.GetScaling();
    const double radius = std::max(2.5, std::min(side * 0.12, 7.0));
    m_painter.setPen(QPen(Qt::black, 1));
    m_painter.setBrush(Qt::white);
    m_painter.drawEllipse(m_map.ToView(Center(first.place)), radius, radius);
}

/// The left upper quarter, beside the lines of the chain, or the middle of that quarter of a turned one.
QRectF ScenePainter::NumberCell(const ScenePort& port, const SceneCabinet& cabinet) const
{
    const double scaling = m_map.GetScaling();
    if (cabinet.turned < 0) {
        const QSizeF size = QSizeF(cabinet.place.size()) * (scaling / 2);
        const double inset = std::min(size.width() * 0.12, 6.0);
        return QRectF(m_map.ToView(QRectF(cabinet.place).topLeft()), size).adjusted(inset, 0, inset, 0);
    }
    const QPolygonF& corners = port.corners[static_cast<size_t>(cabinet.turned)];
    const double side =
        std::min(QLineF(corners[0], corners[1]).length(), QLineF(corners[0], corners[3]).length()) * scaling
        / 2;
    QRectF cell(0, 0, side, side);
    cell.moveCenter(m_map.ToView((corners[0] * 3 + corners[2]) / 4));
    return cell;
}

/// All in the size in which the longest one has room, where cabinets are alike.
void ScenePainter::PaintNumbers(const ScenePort& port, const QColor& color)
{
    if (port.chain.empty())
        return;
    const int digits = QString::number(qint64(port.chain.back().number) + 1).size();
    const QColor onSelected = TextOn(Selected(color));
    QFont font = m_painter.font();
    int height = 0;
    port.Walk(m_shown, [&](size_t i) {
        const SceneCabinet& cabinet = port.cabinets[i];
        if (cabinet.number < 0)
            return;
        const QRectF place = NumberCell(port, cabinet);
        const double room = std::min(place.height() * 0.76, place.width() * 1.44 / digits);
        const int wanted = std::min(static_cast<int>(room), 26);
        if (wanted < 6)
            return;
        if (wanted != height) {
            height = wanted;
            font.setPixelSize(height);
            m_painter.setFont(font);
        }
        m_painter.setPen(cabinet.selected ? onSelected : TextOn(color));
        m_painter.drawText(place, cabinet.turned < 0 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter,
                           QString::number(qint64(cabinet.number) + 1));
    });
}
