// The selection of the open document, blocks that are added, and the chain.
#include "documentcontroller.h"

#include <orvantools/tileshape.h>

namespace {

constexpr double kFarthest = 1000000; ///< of an offset, which a file may set to anything

QPoint CanvasPlace(const CSender& sender)
{
    const QPointF offset = OrvanTools::OffsetOf(sender);
    return QPoint(-qRound(qBound(-kFarthest, offset.x(), kFarthest)),
                  -qRound(qBound(-kFarthest, offset.y(), kFarthest)));
}

} // namespace

QRect DocumentController::CanvasOf(const CSender& sender)
{
    const QSize size = sender.GetCanvasSize();
    return size.isEmpty() ? QRect() : QRect(CanvasPlace(sender), size);
}

QRect DocumentController::LimitsOf(const CSender& sender)
{
    const QSize largest(kMaxCanvasWidth, kMaxCanvasHeight);
    return QRect(CanvasPlace(sender), largest)
           & QRect(-kMaxCanvasWidth, -kMaxCanvasHeight, 2 * kMaxCanvasWidth, 2 * kMaxCanvasHeight);
}

/// Those of ports in use that have cabinets of their own.
QList<CPort*> DocumentController::PortsWithCabinets() const
{
    CSender* sender = GetSender();
    QList<CPort*> ports;
    for (int i = 0; sender && i < sender->GetPortCount(); ++i) {
        if (!sender->GetPort(i)->IsBackupDest() && sender->GetPort(i)->GetTileSet().GetCount() > 0)
            ports.append(sender->GetPort(i));
    }
    return ports;
}

bool DocumentController::Refuse(const QString& why)
{
    emit Refused(why);
    return false;
}

bool DocumentController::IsAllowed(const QString& whyNot)
{
    return whyNot.isEmpty() || Refuse(whyNot);
}

// selection

void DocumentController::Select(const QList<CTile*>& tiles, Choice choice)
{
    if (choice == Choice::Replace) {
        for (CPort* port : PortsWithCabinets())
            port->GetTileSet().UnSelectAll(InterfaceDesign);
    }
    for (CTile* tile : tiles)
        tile->SetSelected(choice != Choice::Toggle || !tile->IsSelected(InterfaceDesign), InterfaceDesign,
                          -1);
    SelectionDone();
}

void DocumentController::SelectGroups()
{
    QList<CTile*> tiles;
    for (CPort* port : PortsWithCabinets())
        tiles += CPortSelection(*port).GetTilesAround();
    Select(tiles, Choice::Add);
}

void DocumentController::SelectAll()
{
    if (CSender* sender = GetSender()) {
        for (CPort* port : OpenPorts(*sender))
            port->GetTileSet().SelectAll(InterfaceDesign);
    }
    SelectionDone();
}

void DocumentController::SelectionDone()
{
    MarkGroups();
    emit SelectionChanged();
}

void DocumentController::MarkGroups()
{
    for (CPort* port : PortsWithCabinets())
        CPortSelection(*port).MarkWholeGroups();
}

QList<CTile*> DocumentController::GetSelection() const
{
    QList<CTile*> selection;
    CTileSet selected;
    for (const CPort* port : PortsWithCabinets()) {
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

CTile* DocumentController::FindNeighbour(int key)
{
    if (!MayEditPort())
        return nullptr;
    CTileSet& tiles = GetPort()->GetTileSet();
    CTileSet selected;
    tiles.GetSelTileSet(selected, InterfaceDesign);
    const CTile* last = selected.GetTile(selected.GetCount() - 1);
    return tiles.GetDirectionTile(last ? last->GetBound() : QRect(), static_cast<unsigned long>(key), false,
                                  false);
}

// adding

QRect DocumentController::BoundOf(const SAddTileInfo& block)
{
    const auto end = [](int start, int count, int size, int most) {
        return static_cast<int>(qMin(start + qint64(count) * size, 2 * qint64(most)));
    };
    return QRect(QPoint(block.left, block.top),
                 QPoint(end(block.left, block.columns, block.width, kMaxCanvasWidth) - 1,
                        end(block.top, block.rows, block.height, kMaxCanvasHeight) - 1));
}

QString DocumentController::WhyTooLarge()
{
    return tr("It would reach beyond %1 × %2 pixels, the largest canvas there is.")
        .arg(kMaxCanvasWidth)
        .arg(kMaxCanvasHeight);
}

QString DocumentController::WhyNotAddable(const SAddTileInfo& block) const
{
    const CSender* sender = GetSender();
    const CPort* port = sender ? sender->GetPort(block.portIndex) : nullptr;
    if (!port)
        return tr("There is no sender yet. Add one first.");
    const QString why = WhyNoRoom(*port, qint64(block.columns) * block.rows);
    if (!why.isEmpty())
        return why;
    if (!QRect(0, 0, kMaxCanvasWidth, kMaxCanvasHeight).contains(BoundOf(block)))
        return WhyTooLarge();
    return {};
}

bool DocumentController::AddBlock(const SAddTileInfo& block)
{
    FinishNumbering();
    if (!IsAllowed(WhyNotAddable(block)))
        return false;
    Select({}, Choice::Replace);
    GetSender()->SetRecentPortIndex(block.portIndex);
    GetPort()->GetPortProject()->AddTile(block);
    const bool done = Record(CSenderRecordItem::OperationAddTiles);
    emit PortStatesChanged();
    return done;
}

// chain

bool DocumentController::MayEditPort()
{
    FinishNumbering();
    const CPort* port = GetPort();
    return port && IsAllowed(WhyClosed(*port));
}

bool DocumentController::NumberAll(EnAutoNumberType pattern)
{
    if (!MayEditPort())
        return false;
    if (GetPort()->GetTileSet().GetCount() == 0)
        return Refuse(tr("Port %1 has no cabinets to number.").arg(GetPort()->GetPortIndex() + 1));
    if (GetPort()->GetTileSet().GetConnectionType() == pattern)
        return false; // a selection changed meanwhile would make a step of its own
    GetPort()->GetTileSet().AutoConnection(pattern, 0);
    return Record(CSenderRecordItem::OperationAutoConnect);
}

bool DocumentController::ClearNumbers()
{
    if (!MayEditPort() || !GetPort()->GetTileSet().HasNumberedTiles())
        return false;
    GetPort()->GetTileSet().ClearConnectIndex();
    GetPort()->GetTileSet().TileSetNormalization();
    return Record(CSenderRecordItem::OperationDisconnect);
}

bool DocumentController::NumberNext(const QList<CTile*>& tiles)
{
    CPort* current = GetPort();
    if (!current || !WhyClosed(*current).isEmpty())
        return false;
    const int port = current->GetPortIndex();
    CTile* last = current->GetTileSet().GetEndIndexTile();
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

/// The later ones move up by one.
bool DocumentController::InsertIntoChain(CTile& tile)
{
    if (!MayEditPort() || tile.HasSetConnectIndex() || tile.GetPortIndex() != GetPort()->GetPortIndex())
        return false;
    CTileSet& tiles = GetPort()->GetTileSet();
    CTileSet selected;
    tiles.GetSelTileSet(selected, InterfaceDesign);
    const CTile* before = selected.GetEndIndexTile();
    if (!before)
        return Refuse(tr("Click the numbered cabinet first that it is to come behind."));
    tiles.TileSetNormalization();
    const int place = before->GetConnectionIndex() + 1;
    CTileSet nowhere; // spares the look for the neighbour among all
    for (CTile* other : tiles) {
        if (other->GetConnectionIndex() >= place)
            other->SetConnectionIndex(other->GetConnectionIndex() + 1, &nowhere);
    }
    tile.SetConnectionIndex(place, &nowhere);
    tiles.TileSetNormalization();
    Select({&tile}, Choice::Replace);
    return Record(CSenderRecordItem::OperationConnect);
}

bool DocumentController::NumberByKey(int key)
{
    return MayEditPort() && GetPort()->GetTileSet().DirectionKeyConnection(static_cast<unsigned long>(key))
           && Record(CSenderRecordItem::OperationConnect);
}

const CTile* DocumentController::GetEndOfChain() const
{
    const CPort* port = GetPort();
    return port ? port->GetTileSet().GetEndIndexTile() : nullptr;
}
