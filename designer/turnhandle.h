#pragma once

#include <QPoint>
#include <QRect>

class DesignView;
class QPainter;

/// The knob above the selected cabinets that turns them, and the picture of where they would come to lie.
class TurnHandle
{
public:
    explicit TurnHandle(const DesignView& view) : m_view(view) {} ///< [keep]

    bool IsAt(const QPoint& view) const;
    void Grip(const QPoint& view);
    void TurnTo(const QPoint& view, bool inSteps);
    double GetAngle() const { return m_angle; } ///< degrees, clockwise

    void Paint(QPainter& painter) const;
    void PaintTurned(QPainter& painter) const; ///< while it is dragged

private:
    const QRect& Bound() const;
    bool IsShown() const;
    QPoint Place() const;
    double AngleOf(const QPoint& view) const; ///< seen from the middle of what is turned

    const DesignView& m_view;
    double m_gripped = 0;
    double m_angle = 0;
    QPoint m_mouse;             ///< view pixels
    mutable QRect m_bound;      ///< of the selection, wall pixels
    mutable quint64 m_read = 0; ///< the revision of the scene then
};
