#include "support/wallbuilder.h"

#include "layout/tile.h"
#include "layout/tilegroup.h"

#include <QtGlobal>

namespace {

void Number(CTileSet& tiles, int first)
{
    CTileSet none;
    int index = 0;
    int receivers = 0;
    for (int i = 0; i < tiles.GetCount(); ++i) {
        CTile* tile = tiles.GetTile(i);
        if (i >= first) {
            tile->SetConnectionIndex(index, &none);
            tile->SetBeginRcvCnnt(receivers);
        }
        if (tile->HasSetConnectIndex()) {
            ++index;
            receivers += tile->GetMultiRcvsCount();
        }
    }
}

} // namespace

QUuid MakeWall(CPort& port, const Wall& wall)
{
    SAddTileInfo info;
    info.senderId = port.GetSenderId();
    info.portIndex = port.GetPortIndex();
    info.type = wall.type;
    info.left = wall.leftTop.x();
    info.top = wall.leftTop.y();
    info.columns = wall.columns;
    info.rows = wall.rows;
    info.width = wall.cabinet.width();
    info.height = wall.cabinet.height();
    info.multiSize = wall.receivers;
    info.multi = wall.receivers != QSize(1, 1);
    const int count = wall.receivers.width() * wall.receivers.height();
    for (int i = 0; i < qMin(count, kMaxReceiversInTile); ++i)
        info.line[i] = static_cast<unsigned char>(i);

    CTileSet& tiles = TilesOf(port);
    const int first = tiles.GetCount();
    if (!port.GetPortProject()->AddTile(info))
        return QUuid();
    if (wall.numbered)
        Number(tiles, first);
    return tiles.GetTile(first)->GetGroupId();
}

QUuid MakeWall(CPort& port, int columns, int rows)
{
    Wall wall;
    wall.columns = columns;
    wall.rows = rows;
    return MakeWall(port, wall);
}

std::unique_ptr<CSender> MakeWall(int columns, int rows, int ports)
{
    auto sender = std::make_unique<CSender>();
    for (int count = ports; count <= kMaxPorts && sender->GetPortCount() < ports; ++count)
        sender->SetPortCount(count);
    for (int i = 0; i < ports; ++i)
        MakeWall(*sender->GetPort(i), columns, rows);
    return sender;
}

CTileSet& TilesOf(CPort& port)
{
    return port.GetTileSet();
}

CTileGroupSet& GroupsOf(CPort& port)
{
    return port.GetTileGroupSet();
}

void NestGroups(CPort& port, const QUuid& parent, std::initializer_list<QUuid> children)
{
    CTileGroup* above = GroupsOf(port).GetDirectGroupByDirID(parent);
    for (const QUuid& id : children) {
        CTileGroup* child = GroupsOf(port).RemoveDirectGroup(id);
        child->SetParentGroupID(parent);
        above->GetSubGroupSet()->AddGroup(child, true);
    }
}

bool TestLookup::FindProduct(const SMD5& type, Product* found) const
{
    if (productType.IsNull() || productType != type)
        return false;
    *found = product;
    return true;
}

CSender* TestLookup::FindSender(const QUuid& id) const
{
    for (CSender* sender : senders) {
        if (sender->GetId() == id)
            return sender;
    }
    return nullptr;
}
