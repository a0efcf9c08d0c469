// The edits of the selected cabinets.
#include "documentcontroller.h"

#include <algorithm>

namespace {

const QRect kSeen(0, 0, kMaxCanvasWidth, kMaxCanvasHeight); ///< by the design view
constexpr QPoint kAside(16, 16);

/// Where copies go: where they were when nothing lies there, else beside that, else beside all cabinets,
/// else on top of what is there.
QPoint FreePlace(const QList<CPort*>& ports, const CSender& sender, const QRect& bound)
{
    const QRect all = sender.GetBound();
    const QPoint places[] = {bound.topLeft(),
                             {bound.right() + 1, bound.top()},
                             {bound.left(), bound.bottom() + 1},
                             {bound.left() - bound.width(), bound.top()},
                             {bound.left(), bound.top() - bound.height()},
                             {all.right() + 1, bound.top()},
                             {bound.left(), all.bottom() + 1}};
    const auto isFree = [&](const QRect& place) {
        CTileSet found;
        return std::none_of(ports.begin(), ports.end(), [&](const CPort* port) {
            return port->GetTileSet().GetTileSetAtRect(found, place, false);
        });
    };
    for (const QRect& canvas : {DocumentController::CanvasOf(sender) & kSeen, kSeen}) {
        for (const QPoint& place : places) {
            const QRect covered(place, bound.size());
            if (canvas.contains(covered) && isFree(covered))
                return place;
        }
    }
    return bound.topLeft() + kAside;
}

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
    bool any = false;
    for (CPort* port : PortsWithCabinets()) {
        if (CPortSelection(*port).GetTiles().GetCount() == 0)
            continue;
        if (!IsAllowed(WhyClosed(*port)))
            return false;
        any = true;
    }
    return any;
}

/// What lies outside already is not drawn in along the other axis.
QPoint DocumentController::Limited(const QRect& bound, const QPoint& by) const
{
    if (!GetSender())
        return {};
    const QPoint kept = Kept(by, bound, LimitsOf(*GetSender()));
    return QPoint(by.x() == 0 ? 0 : kept.x(), by.y() == 0 ? 0 : kept.y());
}

void DocumentController::MoveSelected(const QPoint& by)
{
    for (CPort* port : PortsWithCabinets())
        CPortSelection(*port).Offset(by.x(), by.y());
}

bool DocumentController::MoveSelection(const QPoint& by)
{
    const QPoint limited = Limited(GetSelectionBound(), by);
    if (limited.isNull() || !MayEditSelection())
        return false;
    MoveSelected(limited);
    return Record(CSenderRecordItem::OperationMoveTiles);
}

/// The chain closes up over what is gone.
void DocumentController::DeleteSelected(CPort& port)
{
    const int before = port.GetTileSet().GetCount();
    port.GetPortProject()->DeleteSelectedTileAndGroup();
    if (port.GetTileSet().GetCount() != before)
        port.GetTileSet().TileSetNormalization();
}

bool DocumentController::RemoveSelection(CProjectUndoRedo::Type type)
{
    if (!MayEditSelection())
        return false;
    for (CPort* port : PortsWithCabinets())
        DeleteSelected(*port);
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
    const QRectF bound = GetSelectionBound();
    SRotateParam turn;
    turn.angle = angle;
    turn.centerX = bound.center().x();
    turn.centerY = bound.center().y();
    for (CPort* port : PortsWithCabinets())
        CPortSelection(*port).Turn(turn);
    return FinishTurn();
}

bool DocumentController::TurnSelectionTo(double angle)
{
    if (!MayEditSelection())
        return false;
    SetRotationOn(true);
    const QList<CTile*> tiles = GetSelection();
    const double present = tiles.first()->GetRotateRecord().angle;
    if (std::all_of(tiles.begin(), tiles.end(),
                    [&](const CTile* tile) { return qFuzzyIsNull(tile->GetRotateRecord().angle - present); }))
        return TurnSelection(angle - present);
    for (CPort* port : PortsWithCabinets())
        CPortSelection(*port).TurnEachTo(angle);
    return FinishTurn();
}

/// What would then lie beyond the largest canvas comes back onto it.
bool DocumentController::FinishTurn()
{
    MoveSelected(Kept({}, GetSelectionBound(), LimitsOf(*GetSender())));
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

/// Turned cabinets stay where they are, as their rows do not go along the canvas.
bool DocumentController::ResizeSelection(int width, int height)
{
    if (!MayEditSelection())
        return false;
    CTileSet tiles;
    for (CTile* tile : GetSelection())
        tiles.AddTile(tile);
    width = qMin(width, kMaxCabinetSize);
    height = qMin(height, kMaxCabinetSize);
    const bool keepsGrid = std::none_of(tiles.begin(), tiles.end(),
                                        [](const CTile* tile) { return tile->GetRotateRecord().rotated; });
    const QRect bound = tiles.GetBound();
    const QRect limits = LimitsOf(*GetSender());
    const auto end = [](int start, int at, int size, int wanted) {
        return size > 0 ? start + (qint64(at - start) / size + 1) * wanted : 0;
    };
    if (keepsGrid && std::any_of(tiles.begin(), tiles.end(), [&](const CTile* tile) {
            return end(bound.left(), tile->GetX(), tile->GetWidth(), width) > limits.right() + 1
                   || end(bound.top(), tile->GetY(), tile->GetHeight(), height) > limits.bottom() + 1;
        }))
        return Refuse(WhyTooLarge());
    tiles.SetWidthAuto(width, keepsGrid);
    tiles.SetHeightAuto(height, keepsGrid);
    for (CPort* port : PortsWithCabinets())
        CPortSelection(*port).TakeSizes();
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
    bool any = false;
    for (CPort* port : PortsWithCabinets())
        any = CPortSelection(*port).Ungroup() || any;
    if (!any)
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
    for (CPort* port : PortsWithCabinets())
        CPortSelection(*port).CopyTo(m_copies);
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
    const QPoint place = FreePlace(PortsWithCabinets(), *GetSender(), bound);
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
    QList<CPort*> others = PortsWithCabinets();
    others.removeAll(port);
    CPortProject moved;
    for (CPort* other : qAsConst(others))
        CPortSelection(*other).CopyTo(moved);
    if (!port || moved.GetTileSet()->GetCount() == 0
        || !IsAllowed(WhyNoRoom(*port, moved.GetTileSet()->GetCount())))
        return false;
    for (CPort* other : qAsConst(others))
        DeleteSelected(*other);
    CPortSelection(*port).Paste(moved, 0, 0);
    MarkGroups();
    GetSender()->SetRecentPortIndex(index);
    const bool done = Record(CSenderRecordItem::OperationMoveToPort);
    emit PortStatesChanged();
    return done;
}
