#pragma once

#include "viewtool.h"

#include <QPointF>

class DesignView;

/// Drags the wall below the view.
class PanTool : public ViewTool
{
public:
    explicit PanTool(DesignView& view) : m_view(view) {} ///< [keep]

    QCursor GetCursor() const override { return m_held ? Qt::ClosedHandCursor : Qt::OpenHandCursor; }
    QString GetHint() const override;
    void Press(const QMouseEvent& event) override;
    void Move(const QMouseEvent& event) override;
    void Release(const QMouseEvent& event) override;

private:
    DesignView& m_view;
    bool m_held = false;
    QPointF m_grip; ///< the place of the wall that follows the mouse
};
