// The selection of the open document, and the edits of its layout.
#include "documentcontroller.h"

#include <cmath>

namespace {

/// The ports in use that have cabinets of their own.
QList<CPort*> PortsOf(CSender* sender)
{
    QList<CPort*> ports;
    for (int i = 0; sender && i < sender->GetPortCount(); ++i) {
        if (!sender->GetPort(i)->IsBackupDest() && sender->GetPort(i)->GetTileSet().GetCount() > 0)
            ports.append(sender->GetPort(i));
    }
    return ports;
}

/// The outermost groups all of whose cabinets are selected.
QList<CTileGroup*> WholeGroups(CPort& port)
{
    CTileSet selected;
    port.GetTileSet().GetSelTileSet(selected, InterfaceDesign);
    QList<QUuid> ids;
    const CPortProject& layout = *port.GetPortProject();
    layout.GetDirectGroupsInTileSet(ids, selected);
    layout.RemoveGroupWhenTileOut(ids, selected);
    QList<CTileGroup*> groups;
    for (const QUuid& id : qAsConst(ids))
        groups.append(port.GetTileGroupSet().GetDirectGroupByDirID(id));
    return groups;
}

/// Those and the groups inside them.
QList<CTileGroup*> AllWholeGroups(CPort& port)
{
    QList<CTileGroup*> groups = WholeGroups(port);
    for (const CTileGroup* group : WholeGroups(port))
        group->GetSubGroupSet()->GetGroupListRecursive(groups);
    return groups;
}

/// Moves what a group is turned by.
void MoveRecord(CTileGroup& group, const QPointF& by)
{
    SRotateParam record = *group.GetRotateParam();
    record.centerX += by.x();
    record.centerY += by.y();
    record.leftTopX += by.x();
    record.leftTopY += by.y();
    group.SetRotateParam(&record);
}

/// What the groups of a port are turned by.
QVector<SRotateParam> RecordsOf(const QList<CTileGroup*>& groups)
{
    QVector<SRotateParam> records;
    for (const CTileGroup* group : groups)
        records.append(*group->GetRotateParam());
    return records;
}

/// Turns the record of an unturned block, which goes with its centre.
void TurnRecord(CTileGroup& group, const SRotateParam& turn)
{
    const SRotateParam before = *group.GetRotateParam();
    const CPointEx<double> center = GetRotatePoint(&turn, before.centerX, before.centerY);
    MoveRecord(group, QPointF(center.x - before.centerX, center.y - before.centerY));
    SRotateParam record = *group.GetRotateParam();
    record.angle = std::remainder(record.angle + turn.angle, 360);
    record.rotated = record.angle != 0;
    group.SetRotateParam(&record);
}

} // namespace

// selection

void DocumentController::Select(const QList<CTile*>& tiles, Choice choice)
{
    if (choice == Choice::Replace) {
        for (CPort* port : PortsOf(GetSender()))
            port->GetTileSet().UnSelectAll(InterfaceDesign);
    }
    for (CTile* tile : tiles)
        tile->SetSelected(choice != Choice::Toggle || !tile->IsSelected(InterfaceDesign), InterfaceDesign,
                          -1);
    SelectionDone();
}

void DocumentController::SelectBlock(const CTile& tile)
{
    CPort* port = GetSender()->GetPort(tile.GetPortIndex());
    CTileSet block;
    const CTileGroup* group =
        port ? port->GetTileGroupSet().GetDirectGroupBySubID(tile.GetGroupId()) : nullptr;
    if (!group || !port->GetPortProject()->GetAllTileSetInFirstGroup(block, group->GetID()))
        return;
    QList<CTile*> tiles;
    for (CTile* other : block)
        tiles.append(other);
    Select(tiles, Choice::Replace);
}

void DocumentController::SelectAll()
{
    for (CPort* port : PortsOf(GetSender())) {
        if (port->IsVisible() && !port->IsFlagLock())
            port->GetTileSet().SelectAll(InterfaceDesign);
    }
    SelectionDone();
}

/// A group is selected with the last of its cabinets, and no longer than all of them are: deleting the
/// selection deletes such groups.
void DocumentController::SelectionDone()
{
    for (CPort* port : PortsOf(GetSender())) {
        port->GetTileGroupSet().CancelAllSelect(InterfaceDesign);
        for (CTileGroup* group : WholeGroups(*port))
            group->SetSelected(InterfaceDesign, true);
    }
    emit SelectionChanged();
}

QList<CTile*> DocumentController::GetSelection() const
{
    QList<CTile*> selection;
    CTileSet selected;
    for (const CPort* port : PortsOf(GetSender())) {
        port->GetTileSet().GetSelTileSet(selected, InterfaceDesign);
        for (CTile* tile : selected)
            selection.append(tile);
    }
    return selection;
}

QRect DocumentController::GetSelectionBound() const
{
    QRect bound;
    for (const CTile* tile : GetSelection())
        bound |= tile->GetBound();
    return bound;
}

CTile* DocumentController::FindNeighbour(int key) const
{
    CPort* port = GetPort();
    if (!port)
        return nullptr;
    CTileSet selected;
    port->GetTileSet().GetSelTileSet(selected, InterfaceDesign);
    const CTile* last = selected.GetTile(selected.GetCount() - 1);
    return port->GetTileSet().GetDirectionTile(last ? last->GetBound() : QRect(),
                                               static_cast<unsigned long>(key), false, false);
}

// edits

bool DocumentController::MayEditSelection()
{
    for (const CPort* port : PortsOf(GetSender())) {
        CTileSet selected;
        port->GetTileSet().GetSelTileSet(selected, InterfaceDesign);
        const QString why = selected.GetCount() > 0 ? WhyClosed(*port) : QString();
        if (why.isEmpty())
            continue;
        emit Refused(why);
        return false;
    }
    return true;
}

QPoint DocumentController::Limited(const QRect& bound, const QPoint& by) const
{
    const auto limit = [](int wanted, int first, int last, int size) {
        return qMax(qMin(wanted, size - 1 - last), -first);
    };
    return QPoint(limit(by.x(), bound.left(), bound.right(), kMaxCanvasWidth),
                  limit(by.y(), bound.top(), bound.bottom(), kMaxCanvasHeight));
}

bool DocumentController::MoveSelection(const QPoint& by)
{
    if (by.isNull() || !MayEditSelection())
        return false;
    for (CPort* port : PortsOf(GetSender())) {
        for (CTileGroup* group : AllWholeGroups(*port))
            MoveRecord(*group, by);
    }
    for (CTile* tile : GetSelection())
        tile->Offset(by.x(), by.y());
    return Record(CSenderRecordItem::OperationMoveTiles);
}

/// The chains close up over what is gone.
bool DocumentController::DeleteSelection()
{
    if (GetSelection().isEmpty() || !MayEditSelection())
        return false;
    for (CPort* port : PortsOf(GetSender())) {
        const int before = port->GetTileSet().GetCount();
        port->GetPortProject()->DeleteSelectedTileAndGroup();
        if (port->GetTileSet().GetCount() != before)
            port->GetTileSet().TileSetNormalization();
    }
    return Record(CSenderRecordItem::OperationDeleteTiles);
}

/// The library gives the record of the turn to a port's only group, whether that was turned or not; so the
/// records of groups are set afterwards.
bool DocumentController::TurnSelection(double angle)
{
    const QRectF bound = GetSelectionBound();
    if (bound.isEmpty() || qFuzzyIsNull(angle) || !MayEditSelection())
        return false;
    SRotateParam turn;
    turn.angle = angle;
    turn.centerX = bound.center().x();
    turn.centerY = bound.center().y();
    for (CPort* port : PortsOf(GetSender())) {
        CTileSet selected;
        port->GetTileSet().GetSelTileSet(selected, InterfaceDesign);
        if (selected.GetCount() == 0)
            continue;
        QList<CTileGroup*> groups;
        port->GetTileGroupSet().GetGroupListRecursive(groups);
        const QVector<SRotateParam> records = RecordsOf(groups);
        port->GetPortProject()->SetTileGroupRotateParam(&turn, selected, angle);
        for (int i = 0; i < groups.size(); ++i)
            groups[i]->SetRotateParam(&records[i]);
        for (CTileGroup* group : AllWholeGroups(*port))
            TurnRecord(*group, turn);
    }
    SetRotationOn(true);
    return Record(CSenderRecordItem::OperationRotate);
}

void DocumentController::SetRotationOn(bool on)
{
    if (GetConfigData()->IsEnableRotate() == on)
        return;
    GetConfigData()->SetEnableRotate(on);
    emit RotationChanged(on);
}

QRect DocumentController::BoundOf(const SAddTileInfo& block)
{
    const auto end = [](int start, int count, int size, int most) {
        return static_cast<int>(qMin(start + qint64(count) * size, 2 * qint64(most)));
    };
    return QRect(QPoint(block.left, block.top),
                 QPoint(end(block.left, block.columns, block.width, kMaxCanvasWidth) - 1,
                        end(block.top, block.rows, block.height, kMaxCanvasHeight) - 1));
}

QString DocumentController::WhyNotAddable(const SAddTileInfo& block) const
{
    const CSender* sender = GetSender();
    const CPort* port = sender ? sender->GetPort(block.portIndex) : nullptr;
    if (!port)
        return tr("There is no sender yet. Add one first.");
    const QString why = WhyClosed(*port);
    if (!why.isEmpty())
        return why;
    if (qint64(block.columns) * block.rows > kMaxTilesOfPort - port->GetTileSet().GetCount())
        return tr("A port holds at most %1 cabinets.").arg(kMaxTilesOfPort);
    if (!QRect(0, 0, kMaxCanvasWidth, kMaxCanvasHeight).contains(BoundOf(block)))
        return tr("It would reach beyond %1 × %2 pixels, the largest canvas there is.")
            .arg(kMaxCanvasWidth)
            .arg(kMaxCanvasHeight);
    return {};
}

bool DocumentController::AddBlock(const SAddTileInfo& block)
{
    const QString why = WhyNotAddable(block);
    if (!why.isEmpty()) {
        emit Refused(why);
        return false;
    }
    Select({}, Choice::Replace);
    GetSender()->SetRecentPortIndex(block.portIndex);
    GetPort()->GetPortProject()->AddTile(block);
    return Record(CSenderRecordItem::OperationAddTiles);
}

// chain

bool DocumentController::MayNumber()
{
    const CPort* port = GetPort();
    if (!port)
        return false;
    const QString why = WhyClosed(*port);
    if (!why.isEmpty())
        emit Refused(why);
    return why.isEmpty();
}

bool DocumentController::NumberAll(EnAutoNumberType pattern)
{
    if (!MayNumber())
        return false;
    if (GetPort()->GetTileSet().GetCount() == 0) {
        emit Refused(tr("Port %1 has no cabinets to number.").arg(GetPort()->GetPortIndex() + 1));
        return false;
    }
    if (GetPort()->GetTileSet().GetConnectionType() == pattern)
        return false; // a selection changed meanwhile would make a step of its own
    GetPort()->GetTileSet().AutoConnection(pattern, 0);
    return Record(CSenderRecordItem::OperationAutoConnect);
}

bool DocumentController::ClearNumbers()
{
    if (!MayNumber() || !GetPort()->GetTileSet().HasNumberedTiles())
        return false;
    GetPort()->GetTileSet().ClearConnectIndex();
    GetPort()->GetTileSet().TileSetNormalization();
    return Record(CSenderRecordItem::OperationDisconnect);
}

bool DocumentController::NumberNext(const QList<CTile*>& tiles)
{
    const int port = GetPort()->GetPortIndex();
    CTile* last = GetPort()->GetTileSet().GetEndIndexTile();
    bool any = false;
    for (CTile* tile : tiles) {
        if (tile->HasSetConnectIndex() || tile->GetPortIndex() != port)
            continue;
        CTileSet before; // spares the look for the neighbour among all
        before.AddTile(last);
        tile->SetConnectionIndex(last ? last->GetConnectionIndex() + 1 : 0, &before);
        last = tile;
        any = true;
    }
    if (any)
        emit PortEdited(port);
    m_numbered = m_numbered || any;
    return any;
}

bool DocumentController::FinishNumbering()
{
    return std::exchange(m_numbered, false) && Record(CSenderRecordItem::OperationConnect);
}

bool DocumentController::NumberByKey(int key)
{
    return MayNumber() && GetPort()->GetTileSet().DirectionKeyConnection(static_cast<unsigned long>(key))
           && Record(CSenderRecordItem::OperationConnect);
}

const CTile* DocumentController::GetEndOfChain() const
{
    const CPort* port = GetPort();
    return port ? port->GetTileSet().GetEndIndexTile() : nullptr;
}
