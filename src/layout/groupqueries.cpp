#include "layout/groupqueries.h"

#include "layout/tile.h"
#include "layout/tilegroup.h"
#include "layout/tilegroupset.h"
#include "layout/tileset.h"

#include <QSet>

#include <algorithm>
#include <vector>

GroupIndex::GroupIndex(const CTileGroupSet& groups)
{
    for (int i = 0; i < groups.GetDirectCount(); ++i) {
        CTileGroup* top = groups.GetDirectGroupByDirIndex(i);
        QList<CTileGroup*> subtree{top};
        top->GetSubGroupSet()->GetGroupListRecursive(subtree);
        for (const CTileGroup* group : qAsConst(subtree)) {
            Entry& entry = m_entries[group->GetID()];
            if (!entry.group)
                entry = {group, top};
        }
    }
}

const CTileGroup* GroupIndex::Group(const QUuid& id) const
{
    return m_entries.value(id).group;
}

const CTileGroup* GroupIndex::TopGroup(const QUuid& id) const
{
    return m_entries.value(id).top;
}

namespace {

/// Appends the tiles of each id in turn; those of one id in list order.
void AppendTilesOfIds(CTileSet& out, const CTileSet& tiles, const QList<QUuid>& ids)
{
    QHash<QUuid, size_t> places;
    for (const QUuid& id : ids) {
        if (!places.contains(id))
            places.insert(id, static_cast<size_t>(places.size()));
    }
    std::vector<std::vector<CTile*>> found(static_cast<size_t>(places.size()));
    for (int i = 0; i < tiles.GetCount(); ++i) {
        const auto place = places.constFind(tiles.GetTile(i)->GetGroupId());
        if (place != places.constEnd())
            found[*place].push_back(tiles.GetTile(i));
    }
    for (const auto& group : found) {
        for (CTile* tile : group)
            out.AddTile(tile);
    }
}

void AppendIdsOfSubtree(QList<QUuid>& ids, const CTileGroup& group)
{
    QList<CTileGroup*> below;
    group.GetSubGroupSet()->GetGroupListRecursive(below);
    ids.append(group.GetID());
    for (const CTileGroup* each : qAsConst(below))
        ids.append(each->GetID());
}

} // namespace

bool GroupQueries::AppendTilesOfGroup(CTileSet& out, const CTileSet& tiles, const CTileGroupSet& groups,
                                      const QUuid& id)
{
    const CTileGroup* group = groups.GetSubGroupBySubID(id);
    QList<QUuid> ids;
    if (group)
        AppendIdsOfSubtree(ids, *group);
    else
        ids.append(id);
    AppendTilesOfIds(out, tiles, ids);
    return group;
}

bool GroupQueries::AppendTilesOfLevel(CTileSet& out, const CTileSet& tiles, const CTileGroupSet* level)
{
    if (!level || level->GetDirectCount() == 0)
        return false;
    QList<CTileGroup*> groups;
    level->GetGroupListRecursive(groups);
    QList<QUuid> ids;
    for (const CTileGroup* group : qAsConst(groups))
        ids.append(group->GetID());
    AppendTilesOfIds(out, tiles, ids);
    return true;
}

bool GroupQueries::TilesOfTopGroup(CTileSet& out, const CTileSet& tiles, const CTileGroupSet& groups,
                                   const QUuid& id)
{
    const CTileGroup* group = groups.GetDirectGroupByDirID(id);
    CTileSet found;
    if (group) {
        QList<QUuid> ids;
        AppendIdsOfSubtree(ids, *group);
        AppendTilesOfIds(found, tiles, ids);
    }
    out = found;
    return group;
}

bool GroupQueries::TopGroupsOfTiles(QList<QUuid>& out, const CTileSet& tiles, const CTileGroupSet& groups)
{
    const GroupIndex index(groups);
    QSet<QUuid> seen;
    out.clear();
    for (int i = tiles.GetCount() - 1; i >= 0; --i) {
        const QUuid id = tiles.GetTile(i)->GetGroupId();
        const CTileGroup* top = id.isNull() ? nullptr : index.TopGroup(id);
        if (!top || seen.contains(top->GetID()))
            continue;
        seen.insert(top->GetID());
        out.append(top->GetID());
    }
    return !out.isEmpty();
}

bool GroupQueries::DropIncompleteGroups(QList<QUuid>& ids, const CTileSet& chosen, const CTileSet& all,
                                        const CTileGroupSet& groups)
{
    QSet<const CTile*> held;
    for (int i = 0; i < chosen.GetCount(); ++i)
        held.insert(chosen.GetTile(i));

    const GroupIndex index(groups);
    QSet<const CTileGroup*> incomplete{nullptr};
    for (int i = 0; i < all.GetCount(); ++i) {
        if (!held.contains(all.GetTile(i)))
            incomplete.insert(index.TopGroup(all.GetTile(i)->GetGroupId()));
    }
    const auto end = std::remove_if(ids.begin(), ids.end(),
                                    [&](const QUuid& id) { return incomplete.contains(index.TopGroup(id)); });
    const bool dropped = end != ids.end();
    ids.erase(end, ids.end());
    return dropped;
}

bool GroupQueries::GroupsAndAncestorsOfTiles(QList<QUuid>& out, const CTileSet& tiles,
                                             const CTileGroupSet& groups)
{
    const GroupIndex index(groups);
    QSet<QUuid> seen;
    out.clear();
    for (int i = 0; i < tiles.GetCount(); ++i) {
        const CTileGroup* group = index.Group(tiles.GetTile(i)->GetGroupId());
        while (group && !seen.contains(group->GetID())) {
            seen.insert(group->GetID());
            out.append(group->GetID());
            group = index.Group(group->GetParentGroupID());
        }
    }
    return !out.isEmpty();
}
