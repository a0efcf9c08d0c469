#pragma once

#include <QCursor>
#include <QPoint>
#include <QString>

class QKeyEvent;
class QMouseEvent;
class QPainter;

/// What the mouse and the keys do in the design view. One tool is at work at a time.
class ViewTool
{
public:
    ViewTool() = default;
    virtual ~ViewTool() = default;
    ViewTool(const ViewTool&) = delete;
    ViewTool& operator=(const ViewTool&) = delete;

    virtual QCursor GetCursor() const { return Qt::ArrowCursor; }
    virtual QString GetHint() const = 0; ///< for the user: what it does now

    // places in view pixels
    virtual void Press(const QMouseEvent& event) = 0;
    virtual void Move(const QMouseEvent& event) = 0; ///< with a button held that the tool was told of
    virtual void Release(const QMouseEvent& event) = 0;
    virtual void DoubleClick(const QMouseEvent& /*event*/) {}
    virtual bool Key(const QKeyEvent& /*event*/) { return false; } ///< whether the tool took it
    virtual void Cancel() {}                                       ///< what was begun with the mouse
    virtual void Paint(QPainter& /*painter*/) const {}             ///< over the wall
};
