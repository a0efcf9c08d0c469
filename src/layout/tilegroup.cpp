#include "layout/tilegroup.h"

#include "common/interfacedlg.h"
#include "layout/corners.h"
#include "layout/tilegroupset.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr unsigned kDesignBit = 0x01;

} // namespace

bool operator==(const GroupFields& a, const GroupFields& b)
{
    return a.id == b.id && a.parentId == b.parentId && a.selection == b.selection && a.rotate == b.rotate;
}

CTileGroup::CTileGroup() : m_subGroups(std::make_unique<CTileGroupSet>())
{
    m_fields.id = QUuid::createUuid();
}

CTileGroup::CTileGroup(const CTileGroup& other)
    : m_fields(other.m_fields), m_subGroups(std::make_unique<CTileGroupSet>(*other.m_subGroups))
{}

CTileGroup::~CTileGroup() = default;

CTileGroup& CTileGroup::operator=(const CTileGroup& other)
{
    if (this == &other)
        return *this;
    m_fields = other.m_fields;
    *m_subGroups = *other.m_subGroups; // last, `other` may lie below this group
    return *this;
}

bool CTileGroup::operator==(const CTileGroup& other) const
{
    return m_fields == other.m_fields;
}

void CTileGroup::SetID(const QUuid& id)
{
    m_fields.id = id;
    for (int i = 0; i < GetSubGroupCount(); ++i)
        m_subGroups->GetDirectGroupByDirIndex(i)->SetParentGroupID(id);
}

bool CTileGroup::IsSelected(int iface) const
{
    return iface == InterfaceDesign && (m_fields.selection & kDesignBit) != 0;
}

void CTileGroup::SetSelected(int iface, bool selected)
{
    if (iface == InterfaceDesign)
        m_fields.selection = selected ? m_fields.selection | kDesignBit : m_fields.selection & ~kDesignBit;
    for (int i = 0; i < GetSubGroupCount(); ++i)
        m_subGroups->GetDirectGroupByDirIndex(i)->SetSelected(iface, selected);
}

void CTileGroup::SetRotateParam(const SRotateParam* param)
{
    if (param)
        m_fields.rotate = *param;
}

void CTileGroup::TakeStored(const GroupFields& stored)
{
    if (!stored.id.isNull())
        SetID(stored.id);
    m_fields.rotate = stored.rotate;
    m_fields.rotate.rotated = IsRotationAngle(stored.rotate.angle);
}

/// The vertical place goes into the horizontal one and `dx` takes no part. Hosts were built around that, so
/// it stays; the Y coordinates do not move.
void CTileGroup::SetOffset(int /*dx*/, int dy)
{
    m_fields.rotate.centerX = m_fields.rotate.centerY + dy;
    m_fields.rotate.leftTopX = m_fields.rotate.leftTopY + dy;
}

int CTileGroup::GetSubGroupCount() const
{
    return m_subGroups->GetDirectCount();
}

bool CTileGroup::HasAnySubGroupInArray(const QList<QUuid>& ids) const
{
    if (ids.contains(m_fields.id))
        return true;
    const QSet<QUuid> wanted(ids.begin(), ids.end());
    QList<CTileGroup*> below;
    m_subGroups->GetGroupListRecursive(below);
    return std::any_of(below.begin(), below.end(),
                       [&](const CTileGroup* group) { return wanted.contains(group->GetID()); });
}

void CTileGroup::ModifyIDAndRecord(QList<SGuidCompare>& records)
{
    const SGuidCompare record{m_fields.id, QUuid::createUuid()};
    records.append(record);
    SetID(record.newId);
    for (int i = 0; i < GetSubGroupCount(); ++i)
        m_subGroups->GetDirectGroupByDirIndex(i)->ModifyIDAndRecord(records);
}
