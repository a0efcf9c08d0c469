#pragma once

#include "snaplines.h"
#include "turnhandle.h"
#include "viewtool.h"

#include <QCoreApplication>
#include <QList>

class CTile;
class DesignView;
class DocumentController;

/// Selects by click and by rubber band, and moves and turns what is selected.
class SelectTool : public ViewTool
{
    Q_DECLARE_TR_FUNCTIONS(SelectTool)

public:
    SelectTool(DesignView& view, DocumentController& document)
        : m_view(view), m_document(document), m_handle(view)
    {}

    QString GetHint() const override;
    void Press(const QMouseEvent& event) override;
    void Move(const QMouseEvent& event) override;
    void Release(const QMouseEvent& event) override;
    void DoubleClick(const QMouseEvent& event) override; ///< the cabinet's outermost group
    bool Key(const QKeyEvent& event) override;
    void Cancel() override;
    void Paint(QPainter& painter) const override;

private:
    enum class State
    {
        Idle,
        Pressed, ///< on a cabinet; the mouse has not gone far enough to drag it
        Moving,
        Banding,
        Turning,
    };

    CTile* TileAt(const QPoint& view) const;
    QRect Band() const;                                              ///< wall pixels
    bool TakesWhole() const { return m_mouse.x() >= m_pressed.x(); } ///< a band drawn to the right
    void PressCabinet(CTile* tile, Qt::KeyboardModifiers keys);
    void StartMoving();
    void MoveTo(const QPoint& view, bool snaps);
    void FinishBand(Qt::KeyboardModifiers keys);
    void PaintMoved(QPainter& painter) const;
    bool MoveByKey(const QPoint& direction, bool onePixel);
    bool SelectByKey(const QKeyEvent& event);

    DesignView& m_view;             ///< [keep]
    DocumentController& m_document; ///< [keep]
    State m_state = State::Idle;
    QPoint m_pressed; ///< view pixels
    QPoint m_mouse;
    QPointF m_grip;            ///< the place of the wall that was pressed
    bool m_selectsOne = false; ///< a click without a drag leaves the cabinet alone selected
    QRect m_bound;             ///< of what is moved
    SnapLines m_lines;
    SnapLines::Snapped m_snapped;
    TurnHandle m_handle;
};
