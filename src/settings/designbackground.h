#pragma once

#include "common/export.h"

#include <QList>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>

#include <array>
#include <functional>

/// Zoom and scroll position of the canvas views. Whole pixels are those of the wall, view pixels those of the
/// screen. Every interface, and some sub-dialogs, has a record of its own; all operations act on the record
/// of the interface that is current, unless they name one.
class ORVANDATA_EXPORT CDesignBackground
{
public:
    static constexpr int kViewCount = 12;

    /// Called after the changes that the caller does not redraw by itself.
    void SetNotification(std::function<void()> notify) { m_notify = std::move(notify); }

    // the current view
    int GetScalingIndex() const;
    QSize GetBackgroundMaxSize() const;                    ///< largest canvas in whole pixels
    float GetViewScaling(bool* modified = nullptr) const;  ///< view pixels a whole pixel
    QPoint GetViewStartPt(bool* modified = nullptr) const; ///< whole pixel at the view's left top
    bool SetViewStartPt(QPoint start, bool = false,
                        QSize = QSize());             ///< false when that is the start already
    QRect GetClientRect() const;                      ///< view pixels
    void SetClientRect(int index, const QRect& rect); ///< by scaling index
    void ResetViewScaling();                          ///< of every view; the client rectangles stay
    bool GetLockLeftTopScaling() const { return m_lockLeftTop; }
    void SetLockLeftTopScaling(bool lock) { m_lockLeftTop = lock; } ///< zooming keeps the view's left top

    // zooming; `fix` is the view pixel that keeps its place, a negative coordinate means none
    bool SetViewScaling(float scaling, QPoint fix);   ///< false when it is refused or the same
    bool MouseScalingModify(bool zoomIn, QPoint fix); ///< to the next step; false when there is none
    /// The largest whole percentage, 100 at most, at which content and margin (view pixels) fit.
    bool SetAdaptiveScaling(QSize client, QSize content, int margin);
    bool NewProSetAdeptScaling(QSize content, int margin); ///< the same for every interface
    bool ViewScalingValid(float& scaling) const; ///< false when it had to be raised to the smallest allowed
    bool ViewStartPtValid(QPoint& start, float scaling) const; ///< true when the start was moved into bounds
    QPoint GetFixPointerStart(float scaling, QPoint fix) const;

    // conversion, rounded half away from zero; always true; a null pointer is passed over
    bool WholePixelToViewPixel(const QPoint& whole, QPoint* view) const;
    bool WholePixelToViewPixel(const QPointF& whole, QPointF* view) const;
    bool WholePixelToViewPixel(const QRect& whole, QRect* view) const; ///< left, top, right and bottom
    bool WholePixelToViewPixel(int whole, int* view) const;            ///< a length
    QPointF GetViewPoint(const QPointF& whole) const;                  ///< not rounded
    /// The pixel that is drawn there: the last one whose view pixel does not lie behind it.
    bool ViewPixelToWholePixel(const QPoint& view, QPoint* whole) const;
    bool ViewPixelToWholePixel(const QPointF& view, QPointF* whole) const; ///< not rounded

private:
    struct View
    {
        bool modified = false;
        float scaling = 1;
        QPoint start;
        QRect client = QRect(0, 0, 1920, 1080);
    };

    struct Zoom
    {
        float scaling;
        QPoint start;
    };

    View& Current() { return m_views[size_t(GetScalingIndex())]; }
    const View& Current() const { return m_views[size_t(GetScalingIndex())]; }
    QPointF ToView(const QPointF& whole) const;
    void ZoomAbout(float scaling, QPoint fix);
    const Zoom* FindZoom(float scaling) const;
    void AddZoom(float scaling, QPoint start);
    void Notify() const;

    std::array<View, kViewCount> m_views;
    QList<Zoom> m_history; ///< places left when zooming out had to move the start
    std::function<void()> m_notify;
    bool m_lockLeftTop = false;
};
