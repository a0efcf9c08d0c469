#include "turnhandle.h"

#include "designview.h"
#include "scenemodel.h"
#include "scenepainter.h"

#include <QLineF>
#include <QPainter>

#include <cmath>

namespace {

// view pixels
constexpr int kAbove = 24;
constexpr int kRadius = 6;
constexpr int kReach = 9;

constexpr double kStep = 15; ///< degrees

} // namespace

const QRect& TurnHandle::Bound() const
{
    const SceneModel& scene = m_view.GetScene();
    if (m_read != scene.GetRevision()) {
        m_bound = QRect();
        for (const ScenePort& port : scene.GetPorts()) {
            for (const SceneCabinet& cabinet : port.cabinets)
                m_bound |= cabinet.selected ? cabinet.place : QRect();
        }
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
    return -QLineF(m_view.GetMap().ToView(QRectF(Bound()).center()), view).angle();
}

void TurnHandle::Grip(const QPoint& view)
{
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
    const QPalette palette = m_view.palette();
    const QPointF center = QRectF(Bound()).center();
    QTransform turned = QTransform::fromTranslate(center.x(), center.y());
    turned.rotate(m_angle).translate(-center.x(), -center.y());
    ScenePainter(painter, m_view.GetScene(), m_view.GetMap(), palette).PaintMoved(turned);

    const QString text = QStringLiteral(" %1° ").arg(m_angle);
    const QRect place(m_mouse + QPoint(2 * kReach, 0), painter.fontMetrics().size(Qt::TextSingleLine, text));
    painter.fillRect(place, palette.color(QPalette::ToolTipBase));
    painter.setPen(palette.color(QPalette::ToolTipText));
    painter.drawText(place, Qt::AlignCenter, text);
}
