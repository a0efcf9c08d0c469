#include "support/wallbuilder.h"

QUuid MakeWall(CPort& port, const Wall& wall)
{
    SAddTileInfo info;
    info.senderId = port.GetSenderId();
    info.portIndex = port.GetPortIndex();
    info.left = wall.leftTop.x();
    info.top = wall.leftTop.y();
    info.columns = wall.columns;
    info.rows = wall.rows;
    info.width = wall.cabinet.width();
    info.height = wall.cabinet.height();

    CTileSet& tiles = TilesOf(port);
    const int first = tiles.GetCount();
    int receivers = tiles.GetRcvCount();
    const CTile* end = tiles.GetEndIndexTile();
    int index = end ? end->GetConnectionIndex() + 1 : 0;
    if (!port.GetPortProject()->AddTile(info))
        return QUuid();
    CTileSet none; // nobody looks for the one before
    for (int i = first; i < tiles.GetCount(); ++i) {
        tiles.GetTile(i)->SetConnectionIndex(index++, &none);
        tiles.GetTile(i)->SetBeginRcvCnnt(receivers++);
    }
    return tiles.GetTile(first)->GetGroupId();
}

QUuid MakeWall(CPort& port, int columns, int rows)
{
    return MakeWall(port, Wall{columns, rows});
}

std::unique_ptr<CSender> MakeWall(int columns, int rows, int ports)
{
    auto sender = std::make_unique<CSender>();
    for (int i = 0; i < ports; ++i)
        MakeWall(*sender->GetPort(i), columns, rows);
    return sender;
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
