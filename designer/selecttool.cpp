#include "selecttool.h"

#include "designview.h"
#include "documentcontroller.h"
#include "hittest.h"
#include "scenemodel.h"
#include "scenepainter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace {

DocumentController::Choice ChoiceBy(Qt::KeyboardModifiers keys)
{
    if (keys & Qt::ControlModifier)
        return DocumentController::Choice::Toggle;
    return keys & Qt::ShiftModifier ? DocumentController::Choice::Add : DocumentController::Choice::Replace;
}

QPoint DirectionOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

QString SelectTool::GetHint() const
{
    switch (m_state) {
    case State::Moving:
        return tr("Release to place; Alt moves freely, Esc leaves all as it was.");
    case State::Turning:
        return tr("Release to turn; Shift keeps to 15 degrees, Esc leaves all as it was.");
    case State::Banding:
        return TakesWhole() ? tr("Selects the cabinets that lie wholly inside.")
                            : tr("Selects all cabinets that are touched.");
    default:
        return tr("Click, double click or drag a band to select; the knob above turns. Arrow keys move by a "
                  "cabinet, with Shift by a pixel.");
    }
}

CTile* SelectTool::TileAt(const QPoint& view) const
{
    CSender* sender = m_document.GetSender();
    return sender ? HitTest::TopAt(*sender, m_view.GetMap().ToWallPixel(view)) : nullptr;
}

void SelectTool::Press(const QMouseEvent& event)
{
    m_pressed = m_mouse = event.pos();
    m_grip = m_view.GetMap().ToWall(event.localPos());
    m_selectsOne = false;
    if (m_handle.IsAt(event.pos())) {
        const bool may = m_document.MayEditSelection();
        m_state = may ? State::Turning : State::Idle;
        if (may)
            m_document.SetRotationOn(true); // upright, the selection may have its middle elsewhere
        m_handle.Grip(event.pos());
        return;
    }
    CTile* tile = TileAt(event.pos());
    m_state = tile ? State::Pressed : State::Banding;
    if (tile)
        PressCabinet(tile, event.modifiers());
}

void SelectTool::PressCabinet(CTile* tile, Qt::KeyboardModifiers keys)
{
    const DocumentController::Choice choice = ChoiceBy(keys);
    if (choice == DocumentController::Choice::Replace && tile->IsSelected(InterfaceDesign))
        m_selectsOne = true;
    else
        m_document.Select({tile}, choice);
    if (choice == DocumentController::Choice::Replace) // what is edited next is about its port
        m_document.SetCurrentPort(m_document.GetProject().GetCurSenderIndex(), tile->GetPortIndex());
    if (!tile->IsSelected(InterfaceDesign))
        m_state = State::Idle; // taken out of the selection: nothing to drag
}

void SelectTool::Move(const QMouseEvent& event)
{
    m_mouse = event.pos();
    if (m_state == State::Pressed
        && (m_mouse - m_pressed).manhattanLength() >= QApplication::startDragDistance())
        StartMoving();
    if (m_state == State::Moving)
        MoveTo(m_mouse, !(event.modifiers() & Qt::AltModifier));
    if (m_state == State::Turning)
        m_handle.TurnTo(m_mouse, event.modifiers() & Qt::ShiftModifier);
    m_view.ShowTool();
    m_view.Redraw();
}

void SelectTool::StartMoving()
{
    if (!m_document.MayEditSelection()) {
        m_state = State::Idle;
        return;
    }
    m_state = State::Moving;
    m_bound = m_document.GetSelectionBound();
    m_lines = SnapLines(m_view.GetScene());
}

/// How near is near enough is in pixels of the wall in the settings; zoomed out far, a few on the screen.
void SelectTool::MoveTo(const QPoint& view, bool snaps)
{
    const QPointF away = m_view.GetMap().ToWall(QPointF(view)) - m_grip;
    const QPoint by = m_document.Limited(m_bound, QPoint(qRound(away.x()), qRound(away.y())));
    const double scaling = m_view.GetMap().GetScaling();
    const int reach = static_cast<int>(qMin(GetConfigData()->GetAttractionDis(), 12 / scaling));
    if (snaps && GetConfigData()->IsEnableAttraction())
        m_snapped = m_lines.Snap(m_bound, by, reach);
    else
        m_snapped = {by, {}, {}};
}

void SelectTool::Release(const QMouseEvent& event)
{
    const State state = std::exchange(m_state, State::Idle);
    m_mouse = event.pos();
    if (state == State::Moving)
        m_document.MoveSelection(m_snapped.moved);
    else if (state == State::Turning)
        m_document.TurnSelection(m_handle.GetAngle());
    else if (state == State::Banding)
        FinishBand(event.modifiers());
    else if (CTile* tile = std::exchange(m_selectsOne, false) ? TileAt(event.pos()) : nullptr)
        m_document.Select({tile}, DocumentController::Choice::Replace);
    m_view.Redraw();
}

/// Wall pixels that the band covers; a click covers none.
QRect SelectTool::Band() const
{
    const ViewMap& map = m_view.GetMap();
    return QRect(map.ToWallPixel(m_pressed), map.ToWallPixel(m_mouse)).normalized();
}

void SelectTool::FinishBand(Qt::KeyboardModifiers keys)
{
    CSender* sender = m_document.GetSender();
    const DocumentController::Choice choice = ChoiceBy(keys);
    const bool isClick = (m_mouse - m_pressed).manhattanLength() < QApplication::startDragDistance();
    if (isClick && choice == DocumentController::Choice::Replace)
        m_document.Select({}, choice);
    else if (!isClick && sender)
        m_document.Select(HitTest::InRect(*sender, Band(), TakesWhole()), choice);
}

void SelectTool::DoubleClick(const QMouseEvent& event)
{
    CTile* tile = TileAt(event.pos());
    if (!tile)
        return;
    m_document.Select({tile}, DocumentController::Choice::Replace);
    m_document.SelectGroups();
}

void SelectTool::Cancel()
{
    m_state = State::Idle;
    m_view.Redraw();
}

bool SelectTool::Key(const QKeyEvent& event)
{
    const QPoint direction = DirectionOf(event.key());
    if (direction.isNull())
        return false;
    if (event.modifiers() & Qt::ControlModifier)
        return SelectByKey(event);
    return MoveByKey(direction, event.modifiers() & Qt::ShiftModifier);
}

/// False with nothing selected: then the keys scroll.
bool SelectTool::MoveByKey(const QPoint& direction, bool onePixel)
{
    const QList<CTile*> selected = m_document.GetSelection();
    if (selected.isEmpty())
        return false;
    const QSize step = onePixel ? QSize(1, 1) : selected.first()->GetSize();
    m_document.MoveSelection(QPoint(direction.x() * step.width(), direction.y() * step.height()));
    return true;
}

/// The neighbour in that direction; the first cabinet when none is selected.
bool SelectTool::SelectByKey(const QKeyEvent& event)
{
    if (CTile* tile = m_document.FindNeighbour(event.key())) {
        const bool adds = event.modifiers() & Qt::ShiftModifier;
        m_document.Select({tile},
                          adds ? DocumentController::Choice::Add : DocumentController::Choice::Replace);
        m_view.Show(tile->GetBound());
    }
    return true;
}

void SelectTool::Paint(QPainter& painter) const
{
    const QColor color = m_view.palette().color(QPalette::Highlight);
    if (m_state == State::Moving)
        PaintMoved(painter);
    if (m_state == State::Turning)
        m_handle.PaintTurned(painter);
    if (m_state == State::Idle)
        m_handle.Paint(painter);
    if (m_state != State::Banding || m_mouse == m_pressed)
        return;
    QColor fill = color;
    fill.setAlpha(50);
    painter.setPen(QPen(color, 1, TakesWhole() ? Qt::SolidLine : Qt::DashLine));
    painter.setBrush(fill);
    painter.drawRect(QRect(m_pressed, m_mouse).normalized());
}

/// The cabinets where they would come to lie, and the edges that they keep to.
void SelectTool::PaintMoved(QPainter& painter) const
{
    const ViewMap& map = m_view.GetMap();
    ScenePainter(painter, m_view.GetScene(), map, m_view.palette())
        .PaintMoved(QTransform::fromTranslate(m_snapped.moved.x(), m_snapped.moved.y()));
    painter.setPen(QPen(QColor(220, 0, 120), 1, Qt::DashLine));
    for (const int x : m_snapped.uprightAt) {
        const int at = map.ToView(QPoint(x, 0)).x();
        painter.drawLine(at, 0, at, m_view.viewport()->height());
    }
    for (const int y : m_snapped.levelAt) {
        const int at = map.ToView(QPoint(0, y)).y();
        painter.drawLine(0, at, m_view.viewport()->width(), at);
    }
}
