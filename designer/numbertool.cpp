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
    return tr("Number from %1 on: click cabinets, drag over them, or use the arrow keys.")
        .arg(end ? end->GetConnectionIndex() + 2 : 1);
}

void NumberTool::Press(const QMouseEvent& event)
{
    m_held = m_document.MayNumber();
    m_last = m_view.GetMap().ToWall(event.localPos());
    NumberAlong(QLineF(m_last, m_last));
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
    CTileSet found;
    for (int i = 1; i <= steps; ++i) {
        const QPointF at = way.pointAt(double(i) / steps);
        const int x = static_cast<int>(std::floor(at.x()));
        const int y = static_cast<int>(std::floor(at.y()));
        if (m_document.GetPort()->GetTileSet().GetTileSetAtPosition(found, x, y)
            && (passed.isEmpty() || passed.last() != found.GetTile(0)))
            passed.append(found.GetTile(0));
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
    if (!isArrow || event.modifiers() & ~Qt::KeypadModifier)
        return false;
    if (m_document.NumberByKey(event.key())) {
        m_view.Show(m_document.GetEndOfChain()->GetBound());
        m_view.ShowTool();
    }
    return true;
}
