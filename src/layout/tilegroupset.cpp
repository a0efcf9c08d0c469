#include "layout/tilegroupset.h"

#include "common/interfacedlg.h"
#include "layout/groupqueries.h"
#include "layout/tilegroup.h"

#include <QSet>

#include <algorithm>

namespace {

QList<CTileGroup*> CopiesOf(const QList<CTileGroup*>& groups)
{
    QList<CTileGroup*> copies;
    copies.reserve(groups.size());
    for (const CTileGroup* group : groups)
        copies.append(new CTileGroup(*group));
    return copies;
}

} // namespace

CTileGroupSet::CTileGroupSet() = default;

CTileGroupSet::CTileGroupSet(const CTileGroupSet& other) : m_groups(CopiesOf(other.m_groups))
{}

CTileGroupSet::~CTileGroupSet() = default;

CTileGroupSet& CTileGroupSet::operator=(const CTileGroupSet& other)
{
    if (this == &other)
        return *this;
    const QList<CTileGroup*> copies = CopiesOf(other.m_groups);
    DeleteAll();
    m_groups = copies;
    return *this;
}

bool CTileGroupSet::operator==(const CTileGroupSet& other) const
{
    return std::equal(m_groups.begin(), m_groups.end(), other.m_groups.begin(), other.m_groups.end(),
                      [](const CTileGroup* a, const CTileGroup* b) { return *a == *b; });
}

void CTileGroupSet::AddFromOther(const CTileGroupSet& other)
{
    const QList<CTileGroup*> groups = other.m_groups;
    m_groups.append(groups);
}

bool CTileGroupSet::AddGroup(CTileGroup* group, bool force)
{
    if (!group || (!force && GetSubGroupBySubID(group->GetID())))
        return false;
    m_groups.append(group);
    return true;
}

int CTileGroupSet::GetDirectGroupIndex(const QUuid& id) const
{
    const auto it = std::find_if(m_groups.begin(), m_groups.end(),
                                 [&](const CTileGroup* group) { return group->GetID() == id; });
    return it == m_groups.end() ? -1 : static_cast<int>(it - m_groups.begin());
}

CTileGroup* CTileGroupSet::GetDirectGroupByDirID(const QUuid& id) const
{
    return GetDirectGroupByDirIndex(GetDirectGroupIndex(id));
}

CTileGroup* CTileGroupSet::GetSubGroupBySubID(const QUuid& id) const
{
    for (CTileGroup* group : m_groups) {
        if (group->GetID() == id)
            return group;
        if (CTileGroup* below = group->GetSubGroupSet()->GetSubGroupBySubID(id))
            return below;
    }
    return nullptr;
}

CTileGroup* CTileGroupSet::GetDirectGroupBySubID(const QUuid& id) const
{
    const auto holds = [&](const CTileGroup* group) {
        return group->GetID() == id || group->GetSubGroupSet()->GetSubGroupBySubID(id);
    };
    const auto it = std::find_if(m_groups.begin(), m_groups.end(), holds);
    return it == m_groups.end() ? nullptr : *it;
}

int CTileGroupSet::GetGroupListRecursive(QList<CTileGroup*>& out) const
{
    int count = m_groups.size();
    for (CTileGroup* group : m_groups) {
        out.append(group);
        count += group->GetSubGroupSet()->GetGroupListRecursive(out);
    }
    return count;
}

void CTileGroupSet::GetGroupListRecursive(QMap<QUuid, CTileGroup*>& out) const
{
    for (CTileGroup* group : m_groups) {
        out.insert(group->GetID(), group);
        group->GetSubGroupSet()->GetGroupListRecursive(out);
    }
}

void CTileGroupSet::GetSelTileGroup(QList<CTileGroup*>& out, int iface) const
{
    out.clear();
    std::copy_if(m_groups.begin(), m_groups.end(), std::back_inserter(out),
                 [=](const CTileGroup* group) { return group->IsSelected(iface); });
}

void CTileGroupSet::SelectAll(int iface)
{
    for (CTileGroup* group : qAsConst(m_groups))
        group->SetSelected(iface, true);
}

void CTileGroupSet::CancelAllSelect(int iface)
{
    for (CTileGroup* group : qAsConst(m_groups))
        group->SetSelected(iface, false);
}

void CTileGroupSet::SetOffset(int dx, int dy)
{
    for (CTileGroup* group : qAsConst(m_groups))
        group->SetOffset(dx, dy);
}

bool CTileGroupSet::AddGuidToGuidArray(QList<QUuid>& ids, const QUuid& id)
{
    if (ids.contains(id))
        return false;
    ids.append(id);
    return true;
}

bool CTileGroupSet::GroupAndParentAddGuidArray(QList<QUuid>& ids, const QUuid& id) const
{
    const GroupIndex groups(*this);
    const CTileGroup* const found = groups.Group(id);
    QSet<QUuid> climbed; // parents may name each other in a circle
    for (const CTileGroup* group = found; group && !climbed.contains(group->GetID());) {
        climbed.insert(group->GetID());
        AddGuidToGuidArray(ids, group->GetID());
        const QUuid parent = group->GetParentGroupID();
        group = parent.isNull() ? nullptr : groups.Group(parent);
    }
    return found;
}

int CTileGroupSet::GetGroupCountWithoutParent(const QList<QUuid>& ids, QUuid* first) const
{
    const GroupIndex groups(*this);
    int count = 0;
    for (const QUuid& id : ids) {
        const CTileGroup* group = groups.Group(id);
        if (!group)
            return 0;
        if (!group->GetParentGroupID().isNull())
            continue;
        if (first && count == 0)
            *first = id;
        ++count;
    }
    return count;
}

CTileGroup* CTileGroupSet::RemoveDirectGroup(int index)
{
    return index >= 0 && index < m_groups.size() ? m_groups.takeAt(index) : nullptr;
}

CTileGroup* CTileGroupSet::RemoveDirectGroup(const QUuid& id)
{
    return RemoveDirectGroup(GetDirectGroupIndex(id));
}

int CTileGroupSet::RemoveAll()
{
    const int count = m_groups.size();
    m_groups.clear();
    return count;
}

int CTileGroupSet::DeleteAll()
{
    QList<CTileGroup*> groups;
    groups.swap(m_groups);
    for (auto it = groups.rbegin(); it != groups.rend(); ++it)
        (*it)->GetSubGroupSet()->DeleteAll();
    qDeleteAll(QSet<CTileGroup*>(groups.begin(), groups.end())); // once each, however often listed
    return groups.size();
}

bool CTileGroupSet::DeleteDirectGroup(int index)
{
    if (index < 0 || index > m_groups.size())
        return false;
    if (CTileGroup* group = GetDirectGroupByDirIndex(index)) {
        m_groups.removeAll(group);
        delete group;
    }
    return true;
}

bool CTileGroupSet::DeleteGroupRecursive(int index)
{
    CTileGroup* group = GetDirectGroupByDirIndex(index);
    if (!group)
        return false;
    group->GetSubGroupSet()->DeleteAll();
    return DeleteDirectGroup(index);
}

bool CTileGroupSet::DeleteGroupSelectedRecursive(int index)
{
    CTileGroup* group = GetDirectGroupByDirIndex(index);
    if (!group)
        return false;
    if (group->IsSelected(InterfaceDesign))
        return DeleteGroupRecursive(index);
    CTileGroupSet* below = group->GetSubGroupSet();
    for (int i = below->GetDirectCount() - 1; i >= 0; --i)
        below->DeleteGroupSelectedRecursive(i);
    return true;
}
