#include "pantool.h"

#include "designview.h"

#include <QCoreApplication>
#include <QMouseEvent>

QString PanTool::GetHint() const
{
    return QCoreApplication::translate("PanTool", "Drag to move the view.");
}

void PanTool::Press(const QMouseEvent& event)
{
    m_held = true;
    m_grip = m_view.GetMap().ToWall(event.localPos());
}

void PanTool::Move(const QMouseEvent& event)
{
    const QPointF away = m_grip - m_view.GetMap().ToWall(event.localPos());
    m_view.ScrollTo(m_view.GetMap().GetStart() + away.toPoint());
}

void PanTool::Release(const QMouseEvent& /*event*/)
{
    m_held = false;
}
