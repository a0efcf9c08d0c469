// The selection of the open document, blocks that are added, and the chain.
#include "documentcontroller.h"

#include <algorithm>
#include <iterator>

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
    if (choice == Choice::Replace && GetSender())
        CSenderSelection(*GetSender()).Clear();
    for (CTile* tile : tiles)
        tile->SetSelected(choice != Choice::Toggle || !tile->IsSelected(InterfaceDesign), InterfaceDesign,
                          -1);
    SelectionDone();
}

void DocumentController::SelectGroups()
{
    if (GetSender())
        Select(CSenderSelection(*GetSender()).GetTilesAround(), Choice::Add);
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
    if (GetSender())
        CSenderSelection(*GetSender()).MarkWholeGroups();
}

QList<CTile*> DocumentController::GetSelection() const
{
    return GetSender() ? CSenderSelection(*GetSender()).GetTiles() : QList<CTile*>();
}

QRect DocumentController::GetSelectionBound() const
{
    return GetSender() ? CSenderSelection(*GetSender()).GetBound() : QRect();
}

CTile* DocumentController::FindNeighbour(int key)
{
    if (!MayEditPort())
        return nullptr;
    CTileSet& tiles = GetPort()->GetTileSet();
    const CTileSet selected = CPortSelection(*GetPort()).GetTiles();
    const CTile* last = selected.GetTile(selected.GetCount() - 1);
    return tiles.GetDirectionTile(last ? last->GetBound() : QRect(), static_cast<unsigned long>(key), false,
                                  false);
}

// adding

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
    if (!QRect(0, 0, kMaxCanvasWidth, kMaxCanvasHeight).contains(block.GetBound()))
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
    QList<CTile*> own;
    std::copy_if(tiles.begin(), tiles.end(), std::back_inserter(own),
                 [&](const CTile* tile) { return tile->GetPortIndex() == current->GetPortIndex(); });
    if (!current->GetTileSet().AppendToChain(own))
        return false;
    m_numbered = true;
    emit PortEdited(current->GetPortIndex());
    return true;
}

bool DocumentController::FinishNumbering()
{
    return std::exchange(m_numbered, false) && Record(CSenderRecordItem::OperationConnect);
}

bool DocumentController::InsertIntoChain(CTile& tile)
{
    if (!MayEditPort() || tile.HasSetConnectIndex() || tile.GetPortIndex() != GetPort()->GetPortIndex())
        return false;
    const CTile* before = CPortSelection(*GetPort()).GetTiles().GetEndIndexTile();
    if (!before)
        return Refuse(tr("Click the numbered cabinet first that it is to come behind."));
    GetPort()->GetTileSet().InsertIntoChain(&tile, before);
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
