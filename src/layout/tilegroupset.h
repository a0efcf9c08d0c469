#pragma once

#include "common/export.h"

#include <QList>
#include <QMap>
#include <QUuid>

class CTileGroup;

/// The groups of one level of a group tree, in order. Groups are deleted only by the Delete operations and by
/// assignment; the destructor drops the list alone.
class ORVANDATA_EXPORT CTileGroupSet
{
public:
    CTileGroupSet();
    CTileGroupSet(const CTileGroupSet& other); ///< a deep copy with the same ids
    virtual ~CTileGroupSet();
    CTileGroupSet& operator=(const CTileGroupSet& other); ///< safe when `other` lies in this tree
    bool operator==(const CTileGroupSet& other) const;    ///< direct groups by position
    bool operator!=(const CTileGroupSet& other) const { return !(*this == other); }

    // contents
    void AddFromOther(const CTileGroupSet& other); ///< shares the pointers
    bool AddGroup(CTileGroup* group, bool force);  ///< [own]; without force, false when the id is in the tree
    int GetDirectCount() const { return m_groups.size(); }
    CTileGroup* GetDirectGroupByDirIndex(int index) const { return m_groups.value(index); } ///< or null
    int GetDirectGroupIndex(const QUuid& id) const; ///< -1 when absent
    CTileGroup* GetDirectGroupByDirID(const QUuid& id) const;
    CTileGroup* GetSubGroupBySubID(const QUuid& id) const;    ///< anywhere below, depth first
    CTileGroup* GetDirectGroupBySubID(const QUuid& id) const; ///< the direct group that is or holds it
    int GetGroupListRecursive(QList<CTileGroup*>& out) const; ///< appended in pre-order; how many
    void GetGroupListRecursive(QMap<QUuid, CTileGroup*>& out) const;

    // selection and movement
    void GetSelTileGroup(QList<CTileGroup*>& out, int iface) const; ///< direct groups only
    void SelectAll(int iface);
    void CancelAllSelect(int iface);
    void SetOffset(int dx, int dy); ///< direct groups only

    // id lists
    static bool AddGuidToGuidArray(QList<QUuid>& ids, const QUuid& id); ///< false when it is there already
    bool GroupAndParentAddGuidArray(QList<QUuid>& ids,
                                    const QUuid& id) const; ///< the group and its ancestors
    int GetGroupCountWithoutParent(const QList<QUuid>& ids, QUuid* first) const; ///< 0 when an id is unknown

    // removal
    CTileGroup* RemoveDirectGroup(int index); ///< [new] taken out, not deleted; null when absent
    CTileGroup* RemoveDirectGroup(const QUuid& id);
    int RemoveAll();                   ///< deletes nothing; how many there were
    int DeleteAll();                   ///< the whole tree; how many direct groups there were
    bool DeleteDirectGroup(int index); ///< the sub-groups are not deleted
    bool DeleteGroupRecursive(int index);
    bool DeleteGroupSelectedRecursive(int index); ///< the selected groups of that subtree

private:
    QList<CTileGroup*> m_groups;
};
