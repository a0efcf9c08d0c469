#include "orvantools/groupdiff.h"

#include "orvantools/textrows.h"

#include <OrvanData/orvandata.h>

#include <QHash>
#include <QStringList>

namespace OrvanTools {

namespace {

constexpr int kNone = -1;
constexpr int kOrphan = -2;

struct Group
{
    int parent = kNone; ///< kOrphan: cabinets name it, but the port does not have it
    int cabinets = 0;   ///< directly in it
    int first = kNone;  ///< of these cabinets
    int partner = kNone;
    int changed = 0; ///< cabinets that left it, or joined it
};

/// The groups of one side, outer ones before inner ones, and which group each cabinet is in.
class GroupSide
{
public:
    explicit GroupSide(const CPort* port);

    size_t Count() const { return m_groups.size(); }
    Group& At(int group) { return m_groups[static_cast<size_t>(group)]; }
    int Of(const CabinetRef& cabinet) const { return m_of[static_cast<size_t>(cabinet.cabinet)]; }
    int Find(const QUuid& id) const { return m_byId.value(id, kNone); }
    const QUuid& IdOf(int group) const { return m_ids[static_cast<size_t>(group)]; }

private:
    int Add(const QUuid& id, int parent);

    std::vector<Group> m_groups;
    std::vector<QUuid> m_ids;
    QHash<QUuid, int> m_byId;
    std::vector<int> m_of;
};

GroupSide::GroupSide(const CPort* port)
{
    if (!port)
        return;
    QList<CTileGroup*> groups;
    port->GetTileGroupSet().GetGroupListRecursive(groups);
    for (const CTileGroup* group : groups)
        Add(group->GetID(), Find(group->GetParentGroupID()));
    const CTileSet& tiles = port->GetTileSet();
    for (int i = 0; i < tiles.GetCount(); ++i) {
        const QUuid id = tiles.GetTile(i)->GetGroupId();
        const int known = id.isNull() ? kNone : Find(id);
        const int group = known == kNone && !id.isNull() ? Add(id, kOrphan) : known;
        m_of.push_back(group);
        if (group != kNone && At(group).cabinets++ == 0)
            At(group).first = i;
    }
}

int GroupSide::Add(const QUuid& id, int parent)
{
    const auto group = static_cast<int>(m_groups.size());
    m_groups.push_back({});
    m_groups.back().parent = parent;
    m_ids.push_back(id);
    m_byId.insert(id, group);
    return group;
}

/// Finds which groups are the same before and after.
class GroupComparer
{
public:
    GroupComparer(const CPort* a, const CPort* b, const std::vector<CabinetPair>& pairs)
        : m_a(a), m_b(b), m_pairs(pairs)
    {}

    void Tell(const std::function<void(const GroupDifference&)>& found);

private:
    void Pair(int a, int b);
    void PairAll();
    void PairEmpty();
    int ParentAfter(const Group& before); ///< the partner of the group around it
    void CountChanges();
    QString ChangeText(const Group& before, const Group& after);

    GroupSide m_a;
    GroupSide m_b;
    const std::vector<CabinetPair>& m_pairs; ///< [ref]
};

void GroupComparer::Pair(int a, int b)
{
    if (a < 0 || b < 0 || m_a.At(a).partner != kNone || m_b.At(b).partner != kNone)
        return;
    m_a.At(a).partner = b;
    m_b.At(b).partner = a;
}

void GroupComparer::PairAll()
{
    const auto count = static_cast<int>(m_a.Count());
    for (int group = 0; group < count; ++group)
        Pair(group, m_b.Find(m_a.IdOf(group)));
    for (const CabinetPair& pair : m_pairs)
        Pair(m_a.Of(pair.a), m_b.Of(pair.b));
    for (int group = count - 1; group >= 0; --group) {
        if (const int partner = m_a.At(group).partner; partner != kNone)
            Pair(m_a.At(group).parent, m_b.At(partner).parent);
    }
    PairEmpty();
}

/// Groups without cabinets that are left go by their order.
void GroupComparer::PairEmpty()
{
    QHash<int, QList<int>> left; // by the group around them
    for (int group = 0; group < static_cast<int>(m_b.Count()); ++group) {
        const Group& after = m_b.At(group);
        if (after.partner == kNone && after.cabinets == 0)
            left[after.parent].append(group);
    }
    for (int group = 0; group < static_cast<int>(m_a.Count()) && !left.isEmpty(); ++group) {
        const Group& before = m_a.At(group);
        const auto found = left.find(ParentAfter(before));
        if (before.partner == kNone && before.cabinets == 0 && found != left.end() && !found->isEmpty())
            Pair(group, found->takeFirst());
    }
}

int GroupComparer::ParentAfter(const Group& before)
{
    return before.parent < 0 ? before.parent : m_a.At(before.parent).partner;
}

void GroupComparer::CountChanges()
{
    for (const CabinetPair& pair : m_pairs) {
        const int before = m_a.Of(pair.a);
        const int after = m_b.Of(pair.b);
        if ((before == kNone ? kNone : m_a.At(before).partner) == after)
            continue;
        if (before != kNone)
            ++m_a.At(before).changed;
        if (after != kNone)
            ++m_b.At(after).changed;
    }
}

QString GroupComparer::ChangeText(const Group& before, const Group& after)
{
    QStringList changes;
    if (after.changed > 0)
        changes.append(QStringLiteral("%1 joined").arg(after.changed));
    if (before.changed > 0)
        changes.append(QStringLiteral("%1 left").arg(before.changed));
    if (ParentAfter(before) != after.parent)
        changes.append(after.parent >= 0         ? QStringLiteral("inside another group")
                       : after.parent == kOrphan ? QStringLiteral("not known to the port")
                                                 : QStringLiteral("inside no group"));
    return changes.join(QStringLiteral(", "));
}

QString Name(const Group& group)
{
    return QStringLiteral("group of ") + Counted(group.cabinets, "cabinet");
}

void GroupComparer::Tell(const std::function<void(const GroupDifference&)>& found)
{
    PairAll();
    CountChanges();
    for (int group = 0; group < static_cast<int>(m_a.Count()); ++group) {
        const Group& before = m_a.At(group);
        if (before.partner == kNone)
            found({true, before.first, Name(before) + QStringLiteral(" removed")});
    }
    for (int group = 0; group < static_cast<int>(m_b.Count()); ++group) {
        const Group& after = m_b.At(group);
        const QString change = after.partner == kNone ? QString() : ChangeText(m_a.At(after.partner), after);
        if (after.partner == kNone)
            found({false, after.first, Name(after) + QStringLiteral(" added")});
        else if (!change.isEmpty())
            found({false, after.first, Name(after) + QStringLiteral(": ") + change});
    }
}

} // namespace

void CompareGroups(const CPort* a, const CPort* b, const std::vector<CabinetPair>& pairs,
                   const std::function<void(const GroupDifference&)>& found)
{
    GroupComparer(a, b, pairs).Tell(found);
}

} // namespace OrvanTools
