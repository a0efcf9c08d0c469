#include "layout/tilegroup.h"

#include "common/interfacedlg.h"
#include "layout/tilegroupset.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr unsigned kDesignBit = 0x01;

} // namespace

CTileGroup::CTileGroup() : m_id(QUuid::createUuid()), m_subGroups(std::make_unique<CTileGroupSet>())
{}

CTileGroup::CTileGroup(const CTileGroup& other)
    : m_id(other.m_id), m_parentId(other.m_parentId), m_selection(other.m_selection),
      m_rotate(other.m_rotate), m_subGroups(std::make_unique<CTileGroupSet>(*other.m_subGroups))
{}

CTileGroup::~CTileGroup() = default;

CTileGroup& CTileGroup::operator=(const CTileGroup& other)
{
    if (this == &other)
        return *this;
    m_id = other.m_id;
    m_parentId = other.m_parentId;
    m_selection = other.m_selection;
    m_rotate = other.m_rotate;
    *m_subGroups = *other.m_subGroups; // last, `other` may lie below this group
    return *this;
}

bool CTileGroup::operator==(const CTileGroup& other) const
{
    return m_id == other.m_id && m_parentId == other.m_parentId && m_selection == other.m_selection
           && m_rotate == other.m_rotate;
}

bool CTileGroup::operator!=(const CTileGroup& other) const
{
    return !(*this == other);
}

QUuid CTileGroup::GetID() const
{
    return m_id;
}

void CTileGroup::SetID(const QUuid& id)
{
    m_id = id;
    for (int i = 0; i < GetSubGroupCount(); ++i)
        m_subGroups->GetDirectGroupByDirIndex(i)->SetParentGroupID(id);
}

QUuid CTileGroup::GetParentGroupID() const
{
    return m_parentId;
}

void CTileGroup::SetParentGroupID(const QUuid& id)
{
    m_parentId = id;
}

bool CTileGroup::IsSelected(int iface) const
{
    return iface == InterfaceDesign && (m_selection & kDesignBit) != 0;
}

void CTileGroup::SetSelected(int iface, bool selected)
{
    if (iface == InterfaceDesign)
        m_selection = selected ? m_selection | kDesignBit : m_selection & ~kDesignBit;
    for (int i = 0; i < GetSubGroupCount(); ++i)
        m_subGroups->GetDirectGroupByDirIndex(i)->SetSelected(iface, selected);
}

bool CTileGroup::IsVisible() const
{
    return m_visible;
}

void CTileGroup::SetVisible(bool visible)
{
    m_visible = visible;
}

SRotateParam* CTileGroup::GetRotateParam()
{
    return &m_rotate;
}

const SRotateParam* CTileGroup::GetRotateParam() const
{
    return &m_rotate;
}

void CTileGroup::SetRotateParam(const SRotateParam* param)
{
    if (param)
        m_rotate = *param;
}

bool CTileGroup::IsRotated() const
{
    return m_rotate.rotated;
}

/// The vertical place goes into the horizontal one and `dx` takes no part. Hosts were built around that, so
/// it stays; the Y coordinates do not move.
void CTileGroup::SetOffset(int /*dx*/, int dy)
{
    m_rotate.centerX = m_rotate.centerY + dy;
    m_rotate.leftTopX = m_rotate.leftTopY + dy;
}

CTileGroupSet* CTileGroup::GetSubGroupSet() const
{
    return m_subGroups.get();
}

int CTileGroup::GetSubGroupCount() const
{
    return m_subGroups->GetDirectCount();
}

bool CTileGroup::HasAnySubGroupInArray(const QList<QUuid>& ids) const
{
    if (ids.contains(m_id))
        return true;
    const QSet<QUuid> wanted(ids.begin(), ids.end());
    QList<CTileGroup*> below;
    m_subGroups->GetGroupListRecursive(below);
    return std::any_of(below.begin(), below.end(),
                       [&](const CTileGroup* group) { return wanted.contains(group->GetID()); });
}

void CTileGroup::ModifyIDAndRecord(QList<SGuidCompare>& records)
{
    const SGuidCompare record{m_id, QUuid::createUuid()};
    records.append(record);
    SetID(record.newId);
    for (int i = 0; i < GetSubGroupCount(); ++i)
        m_subGroups->GetDirectGroupByDirIndex(i)->ModifyIDAndRecord(records);
}
