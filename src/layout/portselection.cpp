#include "layout/portselection.h"

#include "common/interfacedlg.h"
#include "common/rotateparam.h"
#include "layout/port.h"
#include "layout/rotation.h"
#include "layout/tile.h"
#include "layout/tilegroup.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace {

/// Each behind the one that it lies in.
QList<CTileGroup*> AllGroups(const CPort& port)
{
    QList<CTileGroup*> groups;
    port.GetTileGroupSet().GetGroupListRecursive(groups);
    return groups;
}

/// Those and the groups inside them.
QList<CTileGroup*> WithInner(const QList<CTileGroup*>& outer)
{
    QList<CTileGroup*> groups = outer;
    for (const CTileGroup* group : outer)
        group->GetSubGroupSet()->GetGroupListRecursive(groups);
    return groups;
}

/// The outermost group of each group.
QHash<QUuid, CTileGroup*> OutermostGroups(const CPort& port)
{
    QHash<QUuid, CTileGroup*> outermost;
    for (CTileGroup* group : AllGroups(port))
        outermost.insert(group->GetID(), outermost.value(group->GetParentGroupID(), group));
    return outermost;
}

/// The outermost groups that have some of the cabinets.
QSet<CTileGroup*> Touched(const QHash<QUuid, CTileGroup*>& outermost, const CTileSet& tiles)
{
    QSet<CTileGroup*> touched;
    for (const CTile* tile : tiles)
        touched.insert(outermost.value(tile->GetGroupId()));
    touched.remove(nullptr);
    return touched;
}

/// Of what is not turned.
SRotateParam RecordOf(const QRect& bound)
{
    SRotateParam record;
    record.width = bound.width();
    record.height = bound.height();
    record.leftTopX = bound.left();
    record.leftTopY = bound.top();
    record.centerX = bound.left() + record.width / 2;
    record.centerY = bound.top() + record.height / 2;
    return record;
}

void MoveRecord(CTileGroup& group, double dx, double dy)
{
    SRotateParam record = *group.GetRotateParam();
    record.centerX += dx;
    record.centerY += dy;
    record.leftTopX += dx;
    record.leftTopY += dy;
    group.SetRotateParam(&record);
}

/// Turns the record of an unturned block, which goes with its centre.
void TurnRecord(CTileGroup& group, const SRotateParam& turn)
{
    const SRotateParam before = *group.GetRotateParam();
    const CPointEx<double> center = GetRotatePoint(&turn, before.centerX, before.centerY);
    MoveRecord(group, center.x - before.centerX, center.y - before.centerY);
    SRotateParam record = *group.GetRotateParam();
    record.angle = std::remainder(record.angle + turn.angle, 360);
    record.rotated = record.angle != 0;
    group.SetRotateParam(&record);
}

/// A port's only group takes the record of the turn itself there; a whole group turns from where it was.
void TurnCabinets(CPort& port, const CTileSet& tiles, const SRotateParam& turn)
{
    CTileGroup* first = port.GetTileGroupSet().GetDirectGroupByDirIndex(0);
    const SRotateParam record = first ? *first->GetRotateParam() : SRotateParam();
    port.GetPortProject()->SetTileGroupRotateParam(&turn, tiles, turn.angle);
    if (first)
        first->SetRotateParam(&record);
}

/// Groups get ids of their own. A cabinet of another group than these is in none afterwards.
void Append(CPortProject& to, const QList<CTileGroup*>& groups, const CTileSet& tiles)
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

} // namespace

CTileSet CPortSelection::GetTiles() const
{
    CTileSet selected;
    m_port.GetTileSet().GetSelTileSet(selected, InterfaceDesign);
    return selected;
}

QList<CTileGroup*> CPortSelection::GetWholeGroups() const
{
    QSet<QUuid> chosen; // groups with selected cabinets, in them or in a group inside
    QSet<QUuid> open;   // with others
    for (const CTile* tile : m_port.GetTileSet())
        (tile->IsSelected(InterfaceDesign) ? chosen : open).insert(tile->GetGroupId());
    QList<CTileGroup*> groups = AllGroups(m_port);
    for (int i = groups.size() - 1; i >= 0; --i) {
        for (QSet<QUuid>* ids : {&chosen, &open}) {
            if (ids->contains(groups[i]->GetID()))
                ids->insert(groups[i]->GetParentGroupID());
        }
    }
    open.insert(QUuid()); // outermost groups lie in none
    const auto isWhole = [&](const QUuid& id) { return chosen.contains(id) && !open.contains(id); };
    const auto end = std::remove_if(groups.begin(), groups.end(), [&](const CTileGroup* group) {
        return !isWhole(group->GetID()) || isWhole(group->GetParentGroupID());
    });
    groups.erase(end, groups.end());
    return groups;
}

void CPortSelection::MarkWholeGroups()
{
    m_port.GetTileGroupSet().CancelAllSelect(InterfaceDesign);
    for (CTileGroup* group : GetWholeGroups())
        group->SetSelected(InterfaceDesign, true);
}

QList<CTile*> CPortSelection::GetTilesAround() const
{
    const QHash<QUuid, CTileGroup*> outermost = OutermostGroups(m_port);
    const QSet<CTileGroup*> touched = Touched(outermost, GetTiles());
    QList<CTile*> tiles;
    for (CTile* tile : m_port.GetTileSet()) {
        if (touched.contains(outermost.value(tile->GetGroupId())))
            tiles.append(tile);
    }
    return tiles;
}

CPortSelection::Grouped CPortSelection::Group()
{
    const QHash<QUuid, CTileGroup*> outermost = OutermostGroups(m_port);
    const QList<CTileGroup*> wholeList = GetWholeGroups();
    const QSet<CTileGroup*> whole(wholeList.begin(), wholeList.end());
    const CTileSet selected = GetTiles();
    QList<CTile*> loose;
    for (CTile* tile : selected) {
        CTileGroup* around = outermost.value(tile->GetGroupId());
        if (!around)
            loose.append(tile);
        else if (!whole.contains(around))
            return Grouped::InPart;
    }
    if (loose.size() + whole.size() < 2)
        return Grouped::TooFew;

    auto* group = new CTileGroup;
    const SRotateParam record = RecordOf(selected.GetBound());
    group->SetRotateParam(&record);
    CTileGroupSet& level = m_port.GetTileGroupSet();
    CTileGroupSet staying;
    for (int i = 0; i < level.GetDirectCount(); ++i) {
        CTileGroup* each = level.GetDirectGroupByDirIndex(i);
        if (whole.contains(each))
            each->SetParentGroupID(group->GetID());
        (whole.contains(each) ? *group->GetSubGroupSet() : staying).AddGroup(each, true);
    }
    level.RemoveAll();
    level.AddFromOther(staying);
    level.AddGroup(group, true);
    for (CTile* tile : qAsConst(loose))
        tile->SetGroupId(group->GetID());
    return Grouped::Done;
}

/// The groups inside take the place of theirs.
bool CPortSelection::Ungroup()
{
    const QSet<CTileGroup*> touched = Touched(OutermostGroups(m_port), GetTiles());
    CTileGroupSet& level = m_port.GetTileGroupSet();
    CTileGroupSet staying;
    QSet<QUuid> gone;
    for (int i = 0; i < level.GetDirectCount(); ++i) {
        CTileGroup* group = level.GetDirectGroupByDirIndex(i);
        if (!touched.contains(group)) {
            staying.AddGroup(group, true);
            continue;
        }
        gone.insert(group->GetID());
        staying.AddFromOther(*group->GetSubGroupSet());
        group->SetID({}); // to those inside: they have no parent
        delete group;
    }
    level.RemoveAll();
    level.AddFromOther(staying);
    for (CTile* tile : m_port.GetTileSet()) {
        if (gone.contains(tile->GetGroupId()))
            tile->SetGroupId({});
    }
    return !gone.isEmpty();
}

void CPortSelection::Offset(int dx, int dy)
{
    for (CTileGroup* group : WithInner(GetWholeGroups()))
        MoveRecord(*group, dx, dy);
    for (CTile* tile : GetTiles())
        tile->Offset(dx, dy);
}

void CPortSelection::TakeSizes()
{
    for (CTile* tile : GetTiles()) {
        const bool isTurned = tile->GetRotateRecord().rotated;
        SRotateParam record = isTurned ? tile->GetRotateRecord() : RecordOf(tile->GetBound());
        record.width = tile->GetWidth();
        record.height = tile->GetHeight();
        tile->SetTileRotateParam(&record);
    }
    QHash<QUuid, QRect> bounds;
    for (const CTile* tile : m_port.GetTileSet())
        bounds[tile->GetGroupId()] |= tile->GetBound();
    const QList<CTileGroup*> groups = AllGroups(m_port);
    for (int i = groups.size() - 1; i >= 0; --i)
        bounds[groups[i]->GetParentGroupID()] |= bounds.value(groups[i]->GetID());
    for (CTileGroup* group : WithInner(GetWholeGroups())) {
        const SRotateParam record = RecordOf(bounds.value(group->GetID()));
        if (!group->IsRotated())
            group->SetRotateParam(&record);
    }
}

void CPortSelection::Turn(const SRotateParam& turn)
{
    TurnCabinets(m_port, GetTiles(), turn);
    for (CTileGroup* group : WithInner(GetWholeGroups()))
        TurnRecord(*group, turn);
}

void CPortSelection::TurnEachTo(double angle)
{
    for (CTile* tile : GetTiles()) {
        SRotateParam turn = tile->GetRotateRecord();
        if (!turn.rotated) {
            turn.centerX = tile->GetX() + tile->GetWidth() / 2.0;
            turn.centerY = tile->GetY() + tile->GetHeight() / 2.0;
        }
        turn.angle = angle - turn.angle;
        CTileSet one;
        one.AddTile(tile);
        TurnCabinets(m_port, one, turn);
    }
}

void CPortSelection::CopyTo(CPortProject& layout) const
{
    Append(layout, GetWholeGroups(), GetTiles());
}

void CPortSelection::Paste(const CPortProject& copies, int dx, int dy)
{
    const int firstGroup = m_port.GetTileGroupSet().GetDirectCount();
    const int firstTile = m_port.GetTileSet().GetCount();
    QList<CTileGroup*> groups;
    for (int i = 0; i < copies.GetTileGroupSet()->GetDirectCount(); ++i)
        groups.append(copies.GetTileGroupSet()->GetDirectGroupByDirIndex(i));
    Append(*m_port.GetPortProject(), groups, *copies.GetTileSet());
    groups.clear();
    for (int i = firstGroup; i < m_port.GetTileGroupSet().GetDirectCount(); ++i)
        groups.append(m_port.GetTileGroupSet().GetDirectGroupByDirIndex(i));
    for (CTileGroup* group : WithInner(groups))
        MoveRecord(*group, dx, dy);
    for (int i = firstTile; i < m_port.GetTileSet().GetCount(); ++i) {
        CTile& tile = *m_port.GetTileSet().GetTile(i);
        tile.SetSenderId(m_port.GetSenderId());
        tile.SetPortIndex(m_port.GetPortIndex());
        tile.SetSelected(true, InterfaceDesign, -1);
        tile.Offset(dx, dy);
    }
}
