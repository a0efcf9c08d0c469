#include "settings/designbackground.h"

#include "common/canvaslimits.h"
#include "common/saturated.h"
#include "settings/settingslookup.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kWideCanvasWidth = 131072;
constexpr double kSameScaling = 1e-5;
constexpr double kMinimumTolerance = 0.0001;
constexpr double kStepTolerance = 0.001;
constexpr int kLastInterface = 8;

struct StepRange
{
    int first; ///< index of its first step
    double scaling;
    double step;
};

// The first range ends at 0.055, which lies above the 0.05 that follows. The wheel stops at each of them in
// one direction only.
constexpr StepRange kStepRanges[] = {{0, 0.01, 0.005}, {10, 0.05, 0.01}, {15, 0.1, 0.02}, {20, 0.2, 0.05},
                                     {26, 0.5, 0.1},   {31, 1.0, 0.2},   {36, 2.0, 0.5},  {42, 5.0, 1.0}};
constexpr int kStepCount = 48;

double Step(int index)
{
    const StepRange* range = std::end(kStepRanges) - 1;
    while (index < range->first)
        --range;
    return range->scaling + range->step * (index - range->first);
}

QPoint ToPoint(const QPointF& point)
{
    return QPoint(TruncatedInt(point.x()), TruncatedInt(point.y()));
}

/// The last distance from the view's start that is rounded to this view pixel or to one before it.
double LastAt(int view, double scaling)
{
    const double next = (view + 0.5) / scaling; // a half is rounded away from zero
    return view < 0 ? std::floor(next) : std::ceil(next) - 1;
}

/// In floating point: a host may set corners that are far apart.
double Width(const QRect& rect)
{
    return double(rect.right()) - rect.left() + 1;
}

double Height(const QRect& rect)
{
    return double(rect.bottom()) - rect.top() + 1;
}

bool Bound(int& coordinate, int largest)
{
    const int bounded = coordinate > largest ? largest : std::max(coordinate, 0);
    const bool moved = bounded != coordinate;
    coordinate = bounded;
    return moved;
}

/// The canvas that several senders share side by side.
bool IsWideCanvas(const SettingsLookup& lookup)
{
    switch (lookup.CurrentInterface()) {
    case InterfaceDesign:
        return lookup.DesignSubDlg() == 3;
    case InterfaceCalibration:
        return lookup.CalibrationSubDlg() == 1;
    case InterfaceSoftEdge:
        return lookup.SoftEdgeSubDlg() == 1;
    default:
        return false;
    }
}

int VideoDesignIndex(int subDialog)
{
    switch (subDialog) {
    case 0:
        return 4;
    case 1:
        return 11;
    case 2:
        return 6;
    case 3:
        return 5;
    default:
        return 0;
    }
}

bool IsZoomable(const SettingsLookup& lookup)
{
    const int design = lookup.DesignSubDlg();
    const int video = lookup.VideoSourceSubDlg();
    switch (lookup.CurrentInterface()) {
    case InterfaceDesign:
        return design == 0 || design == 3;
    case InterfaceVideoDesign:
        return video >= 0 && video <= 2;
    default:
        return true;
    }
}

} // namespace

int CDesignBackground::GetScalingIndex() const
{
    const SettingsLookup& lookup = *GetSettingsLookup();
    switch (lookup.CurrentInterface()) {
    case InterfaceVideoDesign:
        return VideoDesignIndex(lookup.VideoSourceSubDlg());
    case InterfaceDesign:
        return lookup.DesignSubDlg() == 3 ? 1 : 0;
    case InterfaceCalibration:
        return lookup.CalibrationSubDlg() == 1 ? 8 : 7;
    case InterfaceSoftEdge:
        return lookup.SoftEdgeSubDlg() == 1 ? 3 : 2;
    case InterfaceGamutAdjustment:
        return 9;
    case InterfaceMonitoring:
        return 10;
    default:
        return 0;
    }
}

QSize CDesignBackground::GetBackgroundMaxSize() const
{
    return QSize(IsWideCanvas(*GetSettingsLookup()) ? kWideCanvasWidth : kMaxCanvasWidth, kMaxCanvasHeight);
}

float CDesignBackground::GetViewScaling(bool* modified) const
{
    const View& view = Current();
    if (modified)
        *modified = view.modified;
    return view.scaling;
}

QPoint CDesignBackground::GetViewStartPt(bool* modified) const
{
    const View& view = Current();
    if (modified)
        *modified = view.modified;
    return view.start;
}

bool CDesignBackground::SetViewStartPt(QPoint start, bool, QSize)
{
    View& view = Current();
    const QPoint valid(std::max(start.x(), 0), std::max(start.y(), 0));
    if (valid == view.start)
        return false;
    view.start = valid;
    Notify();
    return true;
}

QRect CDesignBackground::GetClientRect() const
{
    return Current().client;
}

void CDesignBackground::SetClientRect(int index, const QRect& rect)
{
    if (index >= 0 && index < kViewCount)
        m_views[size_t(index)].client = rect;
}

void CDesignBackground::ResetViewScaling()
{
    const View initial;
    for (View& view : m_views) {
        view.modified = initial.modified;
        view.scaling = initial.scaling;
        view.start = initial.start;
    }
    m_history.clear();
}

bool CDesignBackground::SetViewScaling(float scaling, QPoint fix)
{
    float valid = scaling;
    ViewScalingValid(valid);
    if (!IsZoomable(*GetSettingsLookup()) || !std::isfinite(scaling) || !(valid > 0))
        return false;

    View& view = Current();
    view.modified = true;
    if (std::abs(double(scaling) - double(view.scaling)) < kSameScaling)
        return false;
    if (fix.x() >= 0 && fix.y() >= 0) {
        ZoomAbout(valid, m_lockLeftTop ? QPoint() : fix);
        return true;
    }
    view.scaling = valid;
    ViewStartPtValid(view.start, valid);
    Notify();
    return true;
}

/// Does nothing when the view has this scaling already.
void CDesignBackground::ZoomAbout(float scaling, QPoint fix)
{
    View& view = Current();
    QPoint start = GetFixPointerStart(scaling, fix);
    if (scaling > view.scaling) {
        if (const Zoom* zoom = FindZoom(scaling))
            start = zoom->start;
        ViewStartPtValid(start, scaling);
    } else if (scaling < view.scaling) {
        if (ViewStartPtValid(start, scaling))
            AddZoom(view.scaling, view.start);
    } else {
        return;
    }
    view.scaling = scaling;
    view.start = start;
}

bool CDesignBackground::MouseScalingModify(bool zoomIn, QPoint fix)
{
    const double current = double(GetViewScaling());
    for (int i = 0; i < kStepCount; ++i) {
        const bool found = zoomIn ? Step(i) > current + kStepTolerance
                                  : (i + 1 < kStepCount && Step(i + 1) > current - kStepTolerance);
        if (!found)
            continue;
        SetViewScaling(static_cast<float>(Step(i)), fix);
        return true;
    }
    return false;
}

bool CDesignBackground::SetAdaptiveScaling(QSize client, QSize content, int margin)
{
    // Both sides are multiplied by 100, so that no rounding decides at the border.
    const auto fits = [margin](qint64 available, qint64 needed, qint64 percent) {
        return available * 100 > needed * percent + qint64(margin) * 100;
    };
    for (int percent = 100; percent >= 2; --percent) {
        if (!fits(client.width(), content.width(), percent)
            || !fits(client.height(), content.height(), percent))
            continue;
        SetViewScaling(static_cast<float>(percent / 100.0), QPoint(-1, -1));
        Notify();
        return true;
    }
    return false;
}

bool CDesignBackground::NewProSetAdeptScaling(QSize content, int margin)
{
    SettingsLookup& lookup = *GetSettingsLookup();
    const int interface = lookup.CurrentInterface();
    const int subDialog = lookup.DesignSubDlg();
    lookup.SetDesignSubDlg(0);
    for (int i = 0; i <= kLastInterface; ++i) {
        lookup.SetCurrentInterface(i);
        const QRect client = GetClientRect();
        SetAdaptiveScaling(QSize(TruncatedInt(Width(client)), TruncatedInt(Height(client))), content, margin);
    }
    lookup.SetCurrentInterface(interface);
    lookup.SetDesignSubDlg(subDialog);
    return true;
}

bool CDesignBackground::ViewScalingValid(float& scaling) const
{
    const QSize canvas = GetBackgroundMaxSize();
    const QRect& client = Current().client;
    const double minimum = std::max(Height(client) / canvas.height(), Width(client) / canvas.width());
    if (!(minimum - kMinimumTolerance > double(scaling)))
        return true;
    scaling = static_cast<float>(minimum);
    return false;
}

bool CDesignBackground::ViewStartPtValid(QPoint& start, float scaling) const
{
    const QSize canvas = GetBackgroundMaxSize();
    const QRect& client = Current().client;
    const int largestX = TruncatedInt(canvas.width() - std::trunc(Width(client) / double(scaling)));
    const int largestY = TruncatedInt(canvas.height() - std::trunc(Height(client) / double(scaling)));
    const bool movedX = Bound(start.rx(), largestX);
    const bool movedY = Bound(start.ry(), largestY);
    return movedX || movedY;
}

QPoint CDesignBackground::GetFixPointerStart(float scaling, QPoint fix) const
{
    const View& view = Current();
    return ToPoint(QPointF(view.start) + QPointF(fix) / double(view.scaling)
                   - QPointF(fix) / double(scaling));
}

bool CDesignBackground::WholePixelToViewPixel(const QPoint& whole, QPoint* view) const
{
    if (view)
        *view = ToPoint(ToView(whole));
    return true;
}

bool CDesignBackground::WholePixelToViewPixel(const QPointF& whole, QPointF* view) const
{
    if (view)
        *view = ToView(whole);
    return true;
}

bool CDesignBackground::WholePixelToViewPixel(const QRect& whole, QRect* view) const
{
    if (view)
        *view = QRect(ToPoint(ToView(whole.topLeft())), ToPoint(ToView(whole.bottomRight())));
    return true;
}

bool CDesignBackground::WholePixelToViewPixel(int whole, int* view) const
{
    if (view)
        *view = TruncatedInt(std::round(whole * double(GetViewScaling())));
    return true;
}

QPointF CDesignBackground::GetViewPoint(const QPointF& whole) const
{
    const View& view = Current();
    return (whole - QPointF(view.start)) * double(view.scaling);
}

bool CDesignBackground::ViewPixelToWholePixel(const QPoint& view, QPoint* whole) const
{
    const double scaling = double(GetViewScaling());
    const QPoint start = GetViewStartPt();
    if (whole)
        *whole = QPoint(TruncatedInt(start.x() + LastAt(view.x(), scaling)),
                        TruncatedInt(start.y() + LastAt(view.y(), scaling)));
    return true;
}

bool CDesignBackground::ViewPixelToWholePixel(const QPointF& view, QPointF* whole) const
{
    if (whole)
        *whole = QPointF(GetViewStartPt()) + view / double(GetViewScaling());
    return true;
}

QPointF CDesignBackground::ToView(const QPointF& whole) const
{
    const QPointF point = GetViewPoint(whole);
    return QPointF(std::round(point.x()), std::round(point.y()));
}

const CDesignBackground::Zoom* CDesignBackground::FindZoom(float scaling) const
{
    for (const Zoom& zoom : m_history) {
        if (std::abs(double(zoom.scaling) - double(scaling)) < kSameScaling)
            return &zoom;
    }
    return nullptr;
}

void CDesignBackground::AddZoom(float scaling, QPoint start)
{
    if (FindZoom(scaling))
        return;
    for (int i = m_history.size() - 1; i >= 0; --i) {
        if (double(m_history[i].scaling) < double(scaling) + kSameScaling)
            m_history.removeAt(i);
    }
    m_history.append({scaling, start});
}

void CDesignBackground::Notify() const
{
    if (m_notify)
        m_notify();
}
