#pragma once

#include <QPoint>
#include <QRect>

class CDesignBackground;

/// From pixels of the wall to those of the design view and back. Zoom and scroll place are the library's; the
/// view leaves a margin free around what it shows.
class ViewMap
{
public:
    static constexpr int kMargin = 12;

    QPoint ToView(const QPoint& wall) const;
    QPointF ToView(const QPointF& wall) const;
    QRect ToView(const QRect& wall) const; ///< neighbours share no pixel and leave none between them
    QPointF ToWall(const QPointF& view) const;
    QPoint ToWallPixel(const QPoint& view) const; ///< the pixel below that point
    double GetScaling() const;
    QRect GetShown() const; ///< wall pixels

    // changing what is shown; whether that changed anything
    void SetViewSize(const QSize& size);
    bool ZoomStep(bool in, const QPoint& about);
    bool ZoomTo(double scaling, const QPoint& about);
    bool Fit(const QRect& wall); ///< never larger than 1 : 1
    bool ScrollTo(const QPoint& start);
    QPoint GetStart() const;

private:
    static CDesignBackground& Scaling();
    QPoint Fixed(const QPoint& about) const;
};
