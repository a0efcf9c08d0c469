#pragma once

#include "common/export.h"
#include "common/guidcompare.h"
#include "common/rotateparam.h"

#include <QList>
#include <QMetaType>
#include <QUuid>

#include <memory>

class CTileGroupSet;
class QDebug;

/// What a group holds beside its sub-groups. A copy takes all of it; files store the id and the rotation.
struct GroupFields
{
    QUuid id;
    QUuid parentId; ///< null: top level
    unsigned int selection = 0;
    SRotateParam rotate;
};

ORVANDATA_EXPORT bool operator==(const GroupFields& a, const GroupFields& b);

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
    bool operator!=(const CTileGroup& other) const { return !(*this == other); }

    QUuid GetID() const { return m_fields.id; }
    void SetID(const QUuid& id); ///< the direct sub-groups follow as its children
    QUuid GetParentGroupID() const { return m_fields.parentId; } ///< null: top level
    void SetParentGroupID(const QUuid& id) { m_fields.parentId = id; }

    bool IsSelected(int iface) const;           ///< only view 3 carries a selection
    void SetSelected(int iface, bool selected); ///< the whole subtree follows
    bool IsVisible() const { return m_visible; }
    void SetVisible(bool visible) { m_visible = visible; }

    SRotateParam* GetRotateParam() { return &m_fields.rotate; } ///< [ref] the group's own record
    const SRotateParam* GetRotateParam() const { return &m_fields.rotate; }
    void SetRotateParam(const SRotateParam* param);
    bool IsRotated() const { return m_fields.rotate.rotated; }
    void SetOffset(int dx, int dy);

    CTileGroupSet* GetSubGroupSet() const { return m_subGroups.get(); } ///< [ref]
    int GetSubGroupCount() const;                                       ///< direct ones
    bool HasAnySubGroupInArray(const QList<QUuid>& ids) const;          ///< this group or one below it
    void ModifyIDAndRecord(QList<SGuidCompare>& records); ///< fresh ids for the whole subtree, in pre-order

    // inside the library: whole, as files take it
    const GroupFields& GetFields() const { return m_fields; }
    void TakeStored(const GroupFields& stored); ///< puts right what a file may say

private:
    GroupFields m_fields;
    bool m_visible = true; ///< for the host's drawing: neither copied nor compared
    std::unique_ptr<CTileGroupSet> m_subGroups;
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const CTileGroup& group);

Q_DECLARE_METATYPE(CTileGroup*)
