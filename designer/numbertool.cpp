#include "numbertool.h"

#include "designview.h"
#include "documentcontroller.h"

#include <QKeyEvent>
#include <QLineF>

#include <cmath>

namespace {

constexpr double kStep = 3; ///< view pixels between the places that are looked at along a drag

} // namespace

QString NumberTool::GetHint() const
{
    const CTile* end = m_document.GetEndOfChain();
    return tr("Number from %1 on: click, drag or arrow keys. With Shift: insert after the selected cabinet.")
        .arg(end ? end->GetConnectionIndex() + 2 : 1);
}

void NumberTool::Press(const QMouseEvent& event)
{
    if (!m_document.MayEditPort())
        return;
    m_held = !(event.modifiers() & Qt::ShiftModifier);
    m_last = m_view.GetMap().ToWall(event.localPos());
    CTile* tile = TileAt(m_last);
    if (tile && (!m_held || tile->HasSetConnectIndex()))
        Insert(*tile);
    NumberAlong(QLineF(m_last, m_last));
}

/// Behind the one selected; a numbered one is selected instead.
void NumberTool::Insert(CTile& tile)
{
    if (tile.HasSetConnectIndex())
        m_document.Select({&tile}, DocumentController::Choice::Replace);
    else
        m_document.InsertIntoChain(tile);
}

/// Of the current port, which may go while the mouse is dragged.
CTile* NumberTool::TileAt(const QPointF& wall) const
{
    CTileSet found;
    if (const CPort* port = m_document.GetPort())
        port->GetTileSet().GetTileSetAtPosition(found, static_cast<int>(std::floor(wall.x())),
                                                static_cast<int>(std::floor(wall.y())));
    return found.GetTile(0);
}

void NumberTool::Move(const QMouseEvent& event)
{
    const QPointF to = m_view.GetMap().ToWall(event.localPos());
    NumberAlong(QLineF(m_last, to));
    m_last = to;
}

/// A quick mouse tells few places, and passes over cabinets between them.
void NumberTool::NumberAlong(const QLineF& way)
{
    if (!m_held)
        return;
    const int steps =
        qMax(1, static_cast<int>(std::ceil(way.length() * m_view.GetMap().GetScaling() / kStep)));
    QList<CTile*> passed;
    for (int i = 1; i <= steps; ++i) {
        CTile* tile = TileAt(way.pointAt(double(i) / steps));
        if (tile && (passed.isEmpty() || passed.last() != tile))
            passed.append(tile);
    }
    if (m_document.NumberNext(passed))
        m_view.ShowTool();
}

void NumberTool::Release(const QMouseEvent& /*event*/)
{
    Cancel();
}

void NumberTool::Cancel()
{
    if (std::exchange(m_held, false))
        m_document.FinishNumbering();
}

bool NumberTool::Key(const QKeyEvent& event)
{
    const bool isArrow = event.key() >= Qt::Key_Left && event.key() <= Qt::Key_Down;
    if (!isArrow || event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier))
        return false;
    if (event.modifiers() & Qt::ShiftModifier) {
        if (CTile* tile = m_document.FindNeighbour(event.key()))
            Insert(*tile);
        return true;
    }
    if (m_document.NumberByKey(event.key())) {
        m_view.Show(m_document.GetEndOfChain()->GetBound());
        m_view.ShowTool();
    }
    return true;
}
