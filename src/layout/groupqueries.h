#pragma once

#include <QHash>
#include <QList>
#include <QUuid>

class CTileGroup;
class CTileGroupSet;
class CTileSet;

/// Finds the groups of a tree by id, for work that asks for many of them. Where an id stands twice, the first
/// group in pre-order counts. Valid while the tree stays as it is.
class GroupIndex
{
public:
    explicit GroupIndex(const CTileGroupSet& groups);

    const CTileGroup* Group(const QUuid& id) const;    ///< null when absent
    const CTileGroup* TopGroup(const QUuid& id) const; ///< the top-level group that is or holds it, or null

private:
    struct Entry
    {
        const CTileGroup* group = nullptr;
        const CTileGroup* top = nullptr;
    };
    QHash<QUuid, Entry> m_entries;
};

/// Questions about tiles and the group tree they belong to: of one port, or of a whole sender. Each walks the
/// tiles once, however many groups there are.
namespace GroupQueries {

/// Appends the tiles of a group and of those below it, group by group in pre-order. False when the tree does
/// not have the group; tiles that name it are appended even then.
bool AppendTilesOfGroup(CTileSet& out, const CTileSet& tiles, const CTileGroupSet& groups, const QUuid& id);

/// The same for all groups of a level. False for none.
bool AppendTilesOfLevel(CTileSet& out, const CTileSet& tiles, const CTileGroupSet* level);

/// `out` becomes the tiles of a top-level group and of those below it. False: no such top-level group.
bool TilesOfTopGroup(CTileSet& out, const CTileSet& tiles, const CTileGroupSet& groups, const QUuid& id);

/// `out` becomes the top-level groups of these tiles, that of the last tile first. Whether there are any.
bool TopGroupsOfTiles(QList<QUuid>& out, const CTileSet& tiles, const CTileGroupSet& groups);

/// Drops the ids whose top-level group is unknown or has a tile of `all` that `chosen` lacks. Whether any
/// went.
bool DropIncompleteGroups(QList<QUuid>& ids, const CTileSet& chosen, const CTileSet& all,
                          const CTileGroupSet& groups);

/// `out` becomes, for each tile in order, its group and that group's ancestors, each once. Whether there are
/// any.
bool GroupsAndAncestorsOfTiles(QList<QUuid>& out, const CTileSet& tiles, const CTileGroupSet& groups);

} // namespace GroupQueries
