// The edits of the selected cabinets.
#include "documentcontroller.h"

#include <orvantools/wallarea.h>

#include <algorithm>

using OrvanTools::FreePlace;
using OrvanTools::LargestCanvasOf;

namespace {

/// How far to move instead, so that it comes to lie inside the area.
QPoint Kept(const QPoint& by, const QRect& bound, const QRect& area)
{
    return QPoint(qMax(qMin(by.x(), area.right() - bound.right()), area.left() - bound.left()),
                  qMax(qMin(by.y(), area.bottom() - bound.bottom()), area.top() - bound.top()));
}

} // namespace

bool DocumentController::MayEditSelection()
{
    FinishNumbering();
    const QList<CPort*> ports = GetSender() ? CSenderSelection(*GetSender()).GetPorts() : QList<CPort*>();
    return !ports.isEmpty() && std::all_of(ports.begin(), ports.end(), [this](const CPort* port) {
        return IsAllowed(WhyClosed(*port));
    });
}

/// What lies outside already is not drawn in along the other axis.
QPoint DocumentController::Limited(const QRect& bound, const QPoint& by) const
{
    if (!GetSender())
        return {};
    const QPoint kept = Kept(by, bound, LargestCanvasOf(*GetSender()));
    return QPoint(by.x() == 0 ? 0 : kept.x(), by.y() == 0 ? 0 : kept.y());
}

bool DocumentController::MoveSelection(const QPoint& by)
{
    const QPoint limited = Limited(GetSelectionBound(), by);
    if (limited.isNull() || !MayEditSelection())
        return false;
    CSenderSelection(*GetSender()).Offset(limited.x(), limited.y());
    return Record(CSenderRecordItem::OperationMoveTiles);
}

bool DocumentController::RemoveSelection(CProjectUndoRedo::Type type)
{
    if (!MayEditSelection())
        return false;
    CSenderSelection(*GetSender()).Delete();
    return Record(type);
}

bool DocumentController::DeleteSelection()
{
    return RemoveSelection(CSenderRecordItem::OperationDeleteTiles);
}

bool DocumentController::TurnSelection(double angle)
{
    if (qFuzzyIsNull(angle) || !MayEditSelection())
        return false;
    SetRotationOn(true); // upright, the selection may have its middle elsewhere
    CSenderSelection(*GetSender()).Turn(angle);
    return FinishTurn();
}

bool DocumentController::TurnSelectionTo(double angle)
{
    const QList<CTile*> tiles = GetSelection();
    const auto isThere = [=](const CTile* tile) {
        return qFuzzyIsNull(tile->GetRotateRecord().angle - angle);
    };
    if (std::all_of(tiles.begin(), tiles.end(), isThere) || !MayEditSelection())
        return false;
    SetRotationOn(true);
    CSenderSelection(*GetSender()).TurnTo(angle);
    return FinishTurn();
}

/// What would then lie beyond the largest canvas comes back onto it.
bool DocumentController::FinishTurn()
{
    const QPoint back = Kept({}, GetSelectionBound(), LargestCanvasOf(*GetSender()));
    CSenderSelection(*GetSender()).Offset(back.x(), back.y());
    return Record(CSenderRecordItem::OperationRotate);
}

void DocumentController::SetRotationOn(bool on)
{
    if (GetConfigData()->IsEnableRotate() == on)
        return;
    GetConfigData()->SetEnableRotate(on);
    emit RotationChanged(on);
}

/// Files are drawn and checked as turned whatever the setting is, so whoever opens one expects to see it so.
void DocumentController::ShowTurned()
{
    for (int i = 0; i < GetProject().GetSenderCount(); ++i) {
        for (const CPort& port : GetProject().GetSender(i)->GetPorts()) {
            const CTileSet& tiles = port.GetTileSet();
            if (std::any_of(tiles.begin(), tiles.end(),
                            [](const CTile* tile) { return tile->GetRotateRecord().rotated; })) {
                SetRotationOn(true);
                return;
            }
        }
    }
}

bool DocumentController::ResizeSelection(int width, int height)
{
    if (!MayEditSelection())
        return false;
    width = qMin(width, kMaxCabinetSize);
    height = qMin(height, kMaxCabinetSize);
    CSenderSelection selection(*GetSender());
    const QRect limits = LargestCanvasOf(*GetSender()) | selection.GetBound();
    const QRect wanted = selection.GetBoundIfResized(width, height);
    if (wanted.right() > limits.right() || wanted.bottom() > limits.bottom())
        return Refuse(WhyTooLarge());
    selection.Resize(width, height);
    return Record(CSenderRecordItem::OperationResizeTiles);
}

// groups

bool DocumentController::GroupSelection()
{
    if (!MayEditSelection())
        return false;
    if (GetSender()->IsSelectMultiPortTile(-1))
        return Refuse(tr("A group holds cabinets of one port. Select some of one port alone."));
    switch (CPortSelection(*GetSender()->GetPort(GetSelection().first()->GetPortIndex())).Group()) {
    case CPortSelection::Grouped::TooFew:
        return Refuse(tr("Select two cabinets or groups at least."));
    case CPortSelection::Grouped::InPart:
        return Refuse(
            tr("Only a part of a group is selected; a block is one too. Select all of it, or ungroup it."));
    default:
        MarkGroups();
        return Record(CSenderRecordItem::OperationGroup);
    }
}

bool DocumentController::UngroupSelection()
{
    if (!MayEditSelection())
        return false;
    if (!CSenderSelection(*GetSender()).Ungroup())
        return Refuse(tr("No selected cabinet is in a group."));
    MarkGroups();
    return Record(CSenderRecordItem::OperationUngroup);
}

// copies

void DocumentController::CopySelection()
{
    if (GetSelection().isEmpty())
        return;
    m_copies.ClearAllTiles();
    CSenderSelection(*GetSender()).CopyTo(m_copies);
}

bool DocumentController::CutSelection()
{
    if (!MayEditSelection())
        return false;
    CopySelection();
    return RemoveSelection(CSenderRecordItem::OperationCutTiles);
}

QString DocumentController::WhyNoRoom(const CPort& port, qint64 cabinets) const
{
    const QString why = WhyClosed(port);
    if (!why.isEmpty())
        return why;
    return cabinets > kMaxTilesOfPort - port.GetTileSet().GetCount()
               ? tr("A port holds at most %1 cabinets.").arg(kMaxTilesOfPort)
               : QString();
}

bool DocumentController::Paste()
{
    FinishNumbering();
    CPort* port = GetPort();
    if (!port || !HasCopies() || !IsAllowed(WhyNoRoom(*port, m_copies.GetTileSet()->GetCount())))
        return false;
    const QRect bound = m_copies.GetTileSet()->GetBound();
    const QPoint place = FreePlace(*GetSender(), bound);
    Select({}, Choice::Replace);
    const QPoint by = Limited(bound, place - bound.topLeft());
    CPortSelection(*port).Paste(m_copies, by.x(), by.y());
    QList<SMD5> types;
    m_copies.GetTileSet()->GetProductTypeArray(&types);
    for (const SMD5& type : qAsConst(types)) { // the copies may come from another project
        if (const CProduct* product = GetRuntimeData()->GetProductDirectorySet()->FindProductFromGuid(type))
            GetProject().AddParameterFileInfo(product->GetName(), type);
    }
    MarkGroups();
    return Record(CSenderRecordItem::OperationPasteTiles);
}

/// Those that are on that port already stay as they are.
bool DocumentController::MoveSelectionToPort(int index)
{
    if (!MayEditSelection())
        return false;
    CPort* port = GetSender()->GetPort(index);
    const QList<CTile*> tiles = GetSelection();
    const auto comes = [=](const CTile* tile) { return tile->GetPortIndex() != index; };
    if (!port || !IsAllowed(WhyNoRoom(*port, std::count_if(tiles.begin(), tiles.end(), comes)))
        || !CSenderSelection(*GetSender()).MoveTo(*port))
        return false;
    MarkGroups();
    GetSender()->SetRecentPortIndex(index);
    const bool done = Record(CSenderRecordItem::OperationMoveToPort);
    emit PortStatesChanged();
    return done;
}
