#include "wallgroups.h"

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

CTileSet Selected(const CPort& port)
{
    CTileSet selected;
    port.GetTileSet().GetSelTileSet(selected, InterfaceDesign);
    return selected;
}

/// The outermost groups that have selected cabinets.
QSet<CTileGroup*> Touched(const CPort& port)
{
    const QHash<QUuid, CTileGroup*> outermost = OutermostGroups(port);
    QSet<CTileGroup*> touched;
    for (const CTile* tile : Selected(port))
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

void MoveOne(CTileGroup& group, double dx, double dy)
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
    MoveOne(group, center.x - before.centerX, center.y - before.centerY);
    SRotateParam record = *group.GetRotateParam();
    record.angle = std::remainder(record.angle + turn.angle, 360);
    record.rotated = record.angle != 0;
    group.SetRotateParam(&record);
}

/// The library gives the record of the turn to a port's only group, whether that was turned or not.
void TurnCabinets(CPort& port, const CTileSet& tiles, const SRotateParam& turn)
{
    CTileGroup* first = port.GetTileGroupSet().GetDirectGroupByDirIndex(0);
    const SRotateParam record = first ? *first->GetRotateParam() : SRotateParam();
    port.GetPortProject()->SetTileGroupRotateParam(&turn, tiles, turn.angle);
    if (first)
        first->SetRotateParam(&record);
}

} // namespace

QList<CTileGroup*> WallGroups::Whole(const CPort& port)
{
    QSet<QUuid> chosen; // groups with selected cabinets, in them or in a group inside
    QSet<QUuid> open;   // with others
    for (const CTile* tile : port.GetTileSet())
        (tile->IsSelected(InterfaceDesign) ? chosen : open).insert(tile->GetGroupId());
    QList<CTileGroup*> groups = AllGroups(port);
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

void WallGroups::MarkWhole(CPort& port)
{
    port.GetTileGroupSet().CancelAllSelect(InterfaceDesign);
    for (CTileGroup* group : Whole(port))
        group->SetSelected(InterfaceDesign, true);
}

QList<CTile*> WallGroups::TilesAround(const CPort& port)
{
    const QHash<QUuid, CTileGroup*> outermost = OutermostGroups(port);
    const QSet<CTileGroup*> touched = Touched(port);
    QList<CTile*> tiles;
    for (CTile* tile : port.GetTileSet()) {
        if (touched.contains(outermost.value(tile->GetGroupId())))
            tiles.append(tile);
    }
    return tiles;
}

WallGroups::Gathered WallGroups::Gather(CPort& port)
{
    const QHash<QUuid, CTileGroup*> outermost = OutermostGroups(port);
    const QList<CTileGroup*> wholeList = Whole(port);
    const QSet<CTileGroup*> whole(wholeList.begin(), wholeList.end());
    const CTileSet selected = Selected(port);
    QList<CTile*> loose;
    for (CTile* tile : selected) {
        CTileGroup* around = outermost.value(tile->GetGroupId());
        if (!around)
            loose.append(tile);
        else if (!whole.contains(around))
            return Gathered::InPart;
    }
    if (loose.size() + whole.size() < 2)
        return Gathered::TooFew;

    auto* group = new CTileGroup;
    const SRotateParam record = RecordOf(selected.GetBound());
    group->SetRotateParam(&record);
    CTileGroupSet& level = port.GetTileGroupSet();
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
    return Gathered::Done;
}

/// The groups inside take the place of theirs.
bool WallGroups::Dissolve(CPort& port)
{
    const QSet<CTileGroup*> touched = Touched(port);
    CTileGroupSet& level = port.GetTileGroupSet();
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
    for (CTile* tile : port.GetTileSet()) {
        if (gone.contains(tile->GetGroupId()))
            tile->SetGroupId({});
    }
    return !gone.isEmpty();
}

void WallGroups::MoveRecord(CTileGroup& group, const QPoint& by)
{
    for (CTileGroup* each : WithInner({&group}))
        MoveOne(*each, by.x(), by.y());
}

void WallGroups::RenewRecords(CPort& port)
{
    for (CTile* tile : Selected(port)) {
        const bool isTurned = tile->GetRotateRecord().rotated;
        SRotateParam record = isTurned ? tile->GetRotateRecord() : RecordOf(tile->GetBound());
        record.width = tile->GetWidth();
        record.height = tile->GetHeight();
        tile->SetTileRotateParam(&record);
    }
    QHash<QUuid, QRect> bounds;
    for (const CTile* tile : port.GetTileSet())
        bounds[tile->GetGroupId()] |= tile->GetBound();
    const QList<CTileGroup*> groups = AllGroups(port);
    for (int i = groups.size() - 1; i >= 0; --i)
        bounds[groups[i]->GetParentGroupID()] |= bounds.value(groups[i]->GetID());
    for (CTileGroup* group : WithInner(Whole(port))) {
        const SRotateParam record = RecordOf(bounds.value(group->GetID()));
        if (!group->IsRotated())
            group->SetRotateParam(&record);
    }
}

void WallGroups::Turn(CPort& port, const SRotateParam& turn)
{
    TurnCabinets(port, Selected(port), turn);
    for (CTileGroup* group : WithInner(Whole(port)))
        TurnRecord(*group, turn);
}

void WallGroups::TurnEachTo(CPort& port, double angle)
{
    for (CTile* tile : Selected(port)) {
        SRotateParam turn = tile->GetRotateRecord();
        if (!turn.rotated) {
            turn.centerX = tile->GetX() + tile->GetWidth() / 2.0;
            turn.centerY = tile->GetY() + tile->GetHeight() / 2.0;
        }
        turn.angle = angle - turn.angle;
        CTileSet one;
        one.AddTile(tile);
        TurnCabinets(port, one, turn);
    }
}
