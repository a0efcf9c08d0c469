#include "viewmap.h"

#include <OrvanData/orvandata.h>

#include <algorithm>

namespace {

constexpr QPoint kMargins(ViewMap::kMargin, ViewMap::kMargin);

} // namespace

CDesignBackground& ViewMap::Scaling()
{
    return *GetRuntimeData()->GetDesignBackground();
}

QPoint ViewMap::ToView(const QPoint& wall) const
{
    QPoint view;
    Scaling().WholePixelToViewPixel(wall, &view);
    return view + kMargins;
}

/// Between whole pixels of the view too, for what is turned.
QPointF ViewMap::ToView(const QPointF& wall) const
{
    return Scaling().GetViewPoint(wall) + QPointF(kMargins);
}

QRect ViewMap::ToView(const QRect& wall) const
{
    const QPoint leftTop = ToView(wall.topLeft());
    const QPoint end = ToView(wall.bottomRight() + QPoint(1, 1));
    return QRect(leftTop, end - QPoint(1, 1));
}

QPointF ViewMap::ToWall(const QPointF& view) const
{
    QPointF wall;
    Scaling().ViewPixelToWholePixel(view - QPointF(kMargins), &wall);
    return wall;
}

QPoint ViewMap::ToWallPixel(const QPoint& view) const
{
    QPoint wall;
    Scaling().ViewPixelToWholePixel(view - kMargins, &wall);
    return wall;
}

double ViewMap::GetScaling() const
{
    return double(Scaling().GetViewScaling());
}

QPoint ViewMap::GetStart() const
{
    return Scaling().GetViewStartPt();
}

QRect ViewMap::GetShown() const
{
    const QPoint end = Scaling().GetClientRect().bottomRight() + 2 * kMargins;
    return QRect(ToWallPixel(QPoint()), ToWallPixel(end));
}

void ViewMap::SetViewSize(const QSize& size)
{
    CDesignBackground& scaling = Scaling();
    const QSize inner = (size - QSize(2 * kMargin, 2 * kMargin)).expandedTo(QSize(1, 1));
    scaling.SetClientRect(scaling.GetScalingIndex(), QRect(QPoint(), inner));
    float least = scaling.GetViewScaling();
    if (!scaling.ViewScalingValid(least)) // a larger view would look beyond the largest canvas
        scaling.SetViewScaling(least, QPoint(-1, -1));
    ScrollTo(GetStart());
}

/// Inside the view, because a place beyond its left or top stands for no fixed place.
QPoint ViewMap::Fixed(const QPoint& about) const
{
    const QPoint inner = about - kMargins;
    return QPoint(std::max(inner.x(), 0), std::max(inner.y(), 0));
}

bool ViewMap::ZoomStep(bool in, const QPoint& about)
{
    return Scaling().MouseScalingModify(in, Fixed(about));
}

bool ViewMap::ZoomTo(double scaling, const QPoint& about)
{
    return Scaling().SetViewScaling(static_cast<float>(scaling), Fixed(about));
}

bool ViewMap::Fit(const QRect& wall)
{
    CDesignBackground& scaling = Scaling();
    const bool fits =
        !wall.isEmpty() && scaling.SetAdaptiveScaling(scaling.GetClientRect().size(), wall.size(), 0);
    return ScrollTo(wall.topLeft()) || fits;
}

bool ViewMap::ScrollTo(const QPoint& start)
{
    CDesignBackground& scaling = Scaling();
    QPoint bounded = start;
    scaling.ViewStartPtValid(bounded, scaling.GetViewScaling());
    return scaling.SetViewStartPt(bounded);
}
