#include "cabinetcopies.h"

#include "wallgroups.h"

#include <QHash>

/// Groups get ids of their own. A cabinet of another group than these is in none afterwards.
void CabinetCopies::Append(CPortProject& to, const QList<CTileGroup*>& groups, const CTileSet& tiles)
{
    QList<SGuidCompare> renamed;
    for (const CTileGroup* group : groups) {
        auto* copy = new CTileGroup(*group);
        copy->SetParentGroupID({});
        copy->ModifyIDAndRecord(renamed);
        to.GetTileGroupSet()->AddGroup(copy, true);
    }
    QHash<QUuid, QUuid> ids;
    for (const SGuidCompare& id : qAsConst(renamed))
        ids.insert(id.oldId, id.newId);
    for (const CTile* tile : tiles) {
        auto* copy = new CTile(*tile);
        copy->SetGroupId(ids.value(tile->GetGroupId()));
        copy->SetConnectionIndex(-1, nullptr);
        copy->SetBeginRcvCnnt(-1);
        to.GetTileSet()->AddTile(copy);
    }
}

void CabinetCopies::Take(const QList<CPort*>& ports)
{
    m_layout.ClearAllTiles();
    for (const CPort* port : ports) {
        CTileSet selected;
        port->GetTileSet().GetSelTileSet(selected, InterfaceDesign);
        Append(m_layout, WallGroups::Whole(*port), selected);
    }
}

QList<SMD5> CabinetCopies::GetTypes() const
{
    QList<SMD5> types;
    m_layout.GetTileSet()->GetProductTypeArray(&types);
    return types;
}

void CabinetCopies::PutOn(CPort& port, const QPoint& by) const
{
    const int firstGroup = port.GetTileGroupSet().GetDirectCount();
    const int firstTile = port.GetTileSet().GetCount();
    QList<CTileGroup*> groups;
    for (int i = 0; i < m_layout.GetTileGroupSet()->GetDirectCount(); ++i)
        groups.append(m_layout.GetTileGroupSet()->GetDirectGroupByDirIndex(i));
    Append(*port.GetPortProject(), groups, *m_layout.GetTileSet());
    for (int i = firstGroup; i < port.GetTileGroupSet().GetDirectCount(); ++i)
        WallGroups::MoveRecord(*port.GetTileGroupSet().GetDirectGroupByDirIndex(i), by);
    for (int i = firstTile; i < port.GetTileSet().GetCount(); ++i) {
        CTile& tile = *port.GetTileSet().GetTile(i);
        tile.SetSenderId(port.GetSenderId());
        tile.SetPortIndex(port.GetPortIndex());
        tile.SetSelected(true, InterfaceDesign, -1);
        tile.Offset(by.x(), by.y());
    }
}
