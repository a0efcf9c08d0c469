#pragma once

#include "common/export.h"
#include "common/guidcompare.h"
#include "common/rotateparam.h"

#include <QList>
#include <QUuid>

#include <memory>

class CTileGroupSet;

/// One node of a port's group tree. Tiles name the group that holds them by its id. Owns its rotation record
/// and the object that lists its sub-groups, but not the sub-groups themselves: whoever drops a tree calls
/// DeleteAll on it first.
class ORVANDATA_EXPORT CTileGroup
{
public:
    CTileGroup();                        ///< a fresh id
    CTileGroup(const CTileGroup& other); ///< copies the sub-groups in depth; the copy is visible
    virtual ~CTileGroup();
    CTileGroup& operator=(const CTileGroup& other);
    bool operator==(const CTileGroup& other) const; ///< visibility and sub-groups take no part
    bool operator!=(const CTileGroup& other) const;

    QUuid GetID() const;
    void SetID(const QUuid& id);    ///< the direct sub-groups follow as its children
    QUuid GetParentGroupID() const; ///< null: top level
    void SetParentGroupID(const QUuid& id);

    bool IsSelected(int iface) const;           ///< only view 3 carries a selection
    void SetSelected(int iface, bool selected); ///< the whole subtree follows
    bool IsVisible() const;
    void SetVisible(bool visible);

    SRotateParam* GetRotateParam(); ///< [ref] the group's own record
    const SRotateParam* GetRotateParam() const;
    void SetRotateParam(const SRotateParam* param);
    bool IsRotated() const;
    void SetOffset(int dx, int dy);

    CTileGroupSet* GetSubGroupSet() const;                     ///< [ref]
    int GetSubGroupCount() const;                              ///< direct ones
    bool HasAnySubGroupInArray(const QList<QUuid>& ids) const; ///< this group or one below it
    void ModifyIDAndRecord(QList<SGuidCompare>& records); ///< fresh ids for the whole subtree, in pre-order

private:
    QUuid m_id;
    QUuid m_parentId;
    unsigned int m_selection = 0;
    bool m_visible = true;
    SRotateParam m_rotate;
    std::unique_ptr<CTileGroupSet> m_subGroups;
};
