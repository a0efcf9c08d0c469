#include "turnhandle.h"

#include "designview.h"
#include "scenemodel.h"

#include <QLineF>
#include <QPainter>

#include <cmath>

namespace {

// view pixels
constexpr int kAbove = 24;
constexpr int kRadius = 6;
constexpr int kReach = 9;

constexpr int kMostOutlined = 2000; ///< of more cabinets the bound alone turns
constexpr double kStep = 15;        ///< degrees

template <class Found> void WalkSelected(const SceneModel& scene, const Found& found)
{
    for (const ScenePort& port : scene.GetPorts()) {
        for (const SceneCabinet& cabinet : port.cabinets) {
            if (cabinet.selected)
                found(port, cabinet);
        }
    }
}

} // namespace

const QRect& TurnHandle::Bound() const
{
    const SceneModel& scene = m_view.GetScene();
    if (m_read != scene.GetRevision()) {
        m_bound = QRect();
        WalkSelected(scene,
                     [this](const ScenePort&, const SceneCabinet& cabinet) { m_bound |= cabinet.place; });
        m_read = scene.GetRevision();
    }
    return m_bound;
}

/// Within the view as long as the selection is, so that it can be had at the edge of the canvas too.
QPoint TurnHandle::Place() const
{
    const QRect bound = m_view.GetMap().ToView(Bound());
    const QRect inside = m_view.viewport()->rect().adjusted(kReach, kReach, -kReach, -kReach);
    return QPoint(qBound(inside.left(), bound.center().x(), inside.right()),
                  qBound(inside.top(), bound.top() - kAbove, inside.bottom()));
}

bool TurnHandle::IsShown() const
{
    return !Bound().isEmpty() && Bound().intersects(m_view.GetMap().GetShown());
}

bool TurnHandle::IsAt(const QPoint& view) const
{
    return IsShown() && QLineF(Place(), view).length() <= kReach;
}

double TurnHandle::AngleOf(const QPoint& view) const
{
    return -QLineF(m_view.GetMap().ToView(QRectF(m_bound).center()), view).angle();
}

void TurnHandle::Grip(const QPoint& view)
{
    m_outlines.clear();
    WalkSelected(m_view.GetScene(), [this](const ScenePort& port, const SceneCabinet& cabinet) {
        if (m_outlines.size() <= kMostOutlined)
            m_outlines.append(cabinet.turned < 0 ? QPolygonF(QRectF(cabinet.place))
                                                 : port.corners[static_cast<size_t>(cabinet.turned)]);
    });
    if (m_outlines.size() > kMostOutlined)
        m_outlines = {QPolygonF(QRectF(Bound()))};
    m_gripped = AngleOf(view);
    m_mouse = view;
    m_angle = 0;
}

void TurnHandle::TurnTo(const QPoint& view, bool inSteps)
{
    const double step = inSteps ? kStep : 0.1;
    m_angle = std::round(std::remainder(AngleOf(view) - m_gripped, 360) / step) * step + 0.0; // never -0
    m_mouse = view;
}

void TurnHandle::Paint(QPainter& painter) const
{
    if (!IsShown())
        return;
    const QPoint place = Place();
    const QColor color = m_view.palette().color(QPalette::Highlight);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 2));
    painter.drawLine(place, QPoint(place.x(), m_view.GetMap().ToView(Bound()).top()));
    painter.setBrush(m_view.palette().color(QPalette::Base));
    painter.drawEllipse(place, kRadius, kRadius);
    painter.restore();
}

void TurnHandle::PaintTurned(QPainter& painter) const
{
    const ViewMap& map = m_view.GetMap();
    const QPalette palette = m_view.palette();
    const QPointF center = QRectF(m_bound).center();
    QColor color = palette.color(QPalette::Highlight);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 0)); // of one view pixel
    color.setAlpha(90);
    painter.setBrush(color);
    painter.translate(map.ToView(center));
    painter.rotate(m_angle);
    painter.scale(map.GetScaling(), map.GetScaling());
    painter.translate(-center);
    for (const QPolygonF& outline : m_outlines)
        painter.drawPolygon(outline);
    painter.restore();

    const QString text = QStringLiteral(" %1° ").arg(m_angle);
    const QRect place(m_mouse + QPoint(2 * kReach, 0), painter.fontMetrics().size(Qt::TextSingleLine, text));
    painter.fillRect(place, palette.color(QPalette::ToolTipBase));
    painter.setPen(palette.color(QPalette::ToolTipText));
    painter.drawText(place, Qt::AlignCenter, text);
}
