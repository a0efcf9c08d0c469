#include "layout/tilegroup.h"

#include "common/interfacedlg.h"
#include "layout/layouthelpers.h"
#include "layout/tilegroupset.h"

#include <gtest/gtest.h>

namespace {

constexpr int kView = InterfaceDesign;

using CountedGroup = Counted<CTileGroup>;

CTileGroup* AddTo(CTileGroupSet& set, CTileGroup* parent = nullptr)
{
    auto* group = new CountedGroup;
    if (parent)
        group->SetParentGroupID(parent->GetID());
    (parent ? *parent->GetSubGroupSet() : set).AddGroup(group, true);
    return group;
}

/// Two top-level groups; the first holds `below`, which holds `deep`.
struct TileGroupTest : testing::Test
{
    ~TileGroupTest() override
    {
        m_set.DeleteAll();
        EXPECT_EQ(CountedGroup::alive, 0);
    }

    CTileGroupSet m_set;
    CTileGroup* m_first = AddTo(m_set);
    CTileGroup* m_below = AddTo(m_set, m_first);
    CTileGroup* m_deep = AddTo(m_set, m_below);
    CTileGroup* m_last = AddTo(m_set);
};

} // namespace

TEST_F(TileGroupTest, CopyTakesTheWholeTreeButIsVisible)
{
    m_first->SetVisible(false);
    m_first->SetSelected(kView, true);
    m_first->GetRotateParam()->angle = 30;
    CTileGroup copy(*m_first);
    CTileGroup assigned;
    assigned = *m_first;
    for (const CTileGroup* group : {&copy, &assigned}) {
        EXPECT_TRUE(group->IsVisible());
        EXPECT_EQ(*group, *m_first);
        const CTileGroup* deep = group->GetSubGroupSet()->GetSubGroupBySubID(m_deep->GetID());
        EXPECT_TRUE(deep && deep != m_deep);
        group->GetSubGroupSet()->DeleteAll();
        EXPECT_EQ(*group, *m_first) << "sub-groups do not count in comparison";
    }
    copy.GetRotateParam()->angle = 30.3;
    EXPECT_EQ(copy, *m_first);
    copy.GetRotateParam()->angle = 30.5;
    EXPECT_NE(copy, *m_first);
}

TEST_F(TileGroupTest, SelectionReachesTheWholeTreeInTheDesignViewAlone)
{
    m_first->SetSelected(InterfaceSoftEdge, true);
    EXPECT_FALSE(m_first->IsSelected(InterfaceSoftEdge) || m_deep->IsSelected(kView));
    m_first->SetSelected(kView, true);
    EXPECT_TRUE(m_first->IsSelected(kView) && m_deep->IsSelected(kView));
    QList<CTileGroup*> selected{m_last, m_last};
    m_set.GetSelTileGroup(selected, kView);
    EXPECT_EQ(selected, QList<CTileGroup*>{m_first});
    m_set.SelectAll(kView);
    EXPECT_TRUE(m_first->IsSelected(kView) && m_last->IsSelected(kView));
}

TEST_F(TileGroupTest, OffsetPutsTheVerticalPlaceIntoTheHorizontal)
{
    const SRotateParam before = {false, false, 100, 50, 40, 30, 0, 1, 1};
    const SRotateParam after = {false, false, 70, 50, 50, 30, 0, 1, 1};
    m_first->SetRotateParam(&before);
    m_below->SetRotateParam(&before);
    m_set.SetOffset(10, 20);
    EXPECT_EQ(*m_first->GetRotateParam(), after);
    EXPECT_EQ(*m_below->GetRotateParam(), before) << "groups below stay";
}

TEST_F(TileGroupTest, RenumberingGoesDownInPreOrder)
{
    const CTileGroup* groups[] = {m_first, m_below, m_deep};
    const QUuid before[] = {m_first->GetID(), m_below->GetID(), m_deep->GetID()};
    QList<SGuidCompare> records;
    m_first->ModifyIDAndRecord(records);
    ASSERT_EQ(records.size(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(records[i].oldId == before[i] && records[i].newId == groups[i]->GetID()) << i;
        EXPECT_NE(before[i], groups[i]->GetID()) << i;
    }
    EXPECT_EQ(m_below->GetParentGroupID(), m_first->GetID());
    EXPECT_EQ(m_deep->GetParentGroupID(), m_below->GetID());
}

TEST_F(TileGroupTest, AStoredGroupIsTurnedWhenItsAngleSaysSo)
{
    for (const double angle : {0.0, 0.0001, -0.0001, 0.0002, -0.0002, 30.0}) {
        GroupFields stored;
        stored.rotate = Rotation(angle, 7, 8);
        m_first->TakeStored(stored);
        EXPECT_EQ(m_first->IsRotated(), qAbs(angle) > 0.00015) << angle;
        EXPECT_TRUE(m_first->GetRotateParam()->angle == angle && m_first->GetRotateParam()->centerX == 7);
    }
}

TEST_F(TileGroupTest, CopiesOfASetAreSeparateGroupsWithTheSameIds)
{
    CTileGroupSet copy;
    AddTo(copy);
    copy = m_set;
    EXPECT_EQ(CountedGroup::alive, 4) << "what the target held is gone";
    EXPECT_EQ(copy, m_set);
    copy.GetSubGroupBySubID(m_last->GetID())->SetSelected(kView, true);
    EXPECT_NE(copy, m_set);
    EXPECT_EQ(copy.DeleteAll(), 2);

    const QUuid below = m_below->GetID();
    m_set = *m_first->GetSubGroupSet(); // a level of its own tree
    EXPECT_EQ(CountedGroup::alive, 0) << "all replaced by copies";
    EXPECT_NE(m_set.GetDirectGroupByDirID(below), nullptr);
}

TEST_F(TileGroupTest, AGroupListedTwiceIsFreedOnce)
{
    CTileGroupSet list;
    list.AddFromOther(m_set);
    EXPECT_TRUE(list.RemoveAll() == 2 && list.GetDirectCount() == 0) << "frees nothing";
    m_set.AddFromOther(m_set);
    EXPECT_EQ(m_set.GetDirectCount(), 4);
    EXPECT_TRUE(m_set.DeleteGroupRecursive(2));
    EXPECT_EQ(m_set.GetDirectCount(), 2);
    EXPECT_EQ(CountedGroup::alive, 1);
}

TEST_F(TileGroupTest, GroupsAreFoundAtTheirLevel)
{
    EXPECT_EQ(m_set.GetDirectGroupBySubID(m_deep->GetID()), m_first);
    EXPECT_EQ(m_set.GetDirectGroupBySubID(m_last->GetID()), m_last);
    EXPECT_EQ(m_set.RemoveDirectGroup(m_deep->GetID()), nullptr);
    EXPECT_FALSE(m_first->HasAnySubGroupInArray({m_last->GetID()}));
    EXPECT_TRUE(m_first->HasAnySubGroupInArray({m_last->GetID(), m_deep->GetID()}));
    EXPECT_TRUE(m_first->HasAnySubGroupInArray({m_first->GetID()}));
    QMap<QUuid, CTileGroup*> byId;
    m_set.GetGroupListRecursive(byId);
    EXPECT_EQ(byId.size(), 4);
    EXPECT_TRUE(byId.value(m_deep->GetID()) == m_deep && byId.value(m_last->GetID()) == m_last);
    QList<CTileGroup*> list{m_last};
    EXPECT_EQ(m_set.GetGroupListRecursive(list), 4);
    EXPECT_EQ(list, (QList<CTileGroup*>{m_last, m_first, m_below, m_deep, m_last}));

    CTileGroup twin(*m_deep);
    EXPECT_FALSE(m_set.AddGroup(&twin, false)) << "its id is in the tree";
    EXPECT_FALSE(m_set.AddGroup(nullptr, true));
    twin.SetID(QUuid::createUuid());
    EXPECT_TRUE(m_set.AddGroup(&twin, false));
    EXPECT_EQ(m_set.RemoveDirectGroup(2), &twin);
}

TEST_F(TileGroupTest, AncestorsAreListedOnceFromTheGroupUp)
{
    QList<QUuid> ids;
    EXPECT_TRUE(CTileGroupSet::AddGuidToGuidArray(ids, m_below->GetID()));
    EXPECT_FALSE(CTileGroupSet::AddGuidToGuidArray(ids, m_below->GetID()));
    EXPECT_FALSE(m_set.GroupAndParentAddGuidArray(ids, QUuid::createUuid()));
    m_last->SetID(QUuid()); // is nobody's parent
    EXPECT_TRUE(m_set.GroupAndParentAddGuidArray(ids, m_deep->GetID()));
    EXPECT_EQ(ids, (QList<QUuid>{m_below->GetID(), m_deep->GetID(), m_first->GetID()}));
    m_first->SetParentGroupID(m_deep->GetID()); // a circle, as a damaged file may hold
    EXPECT_TRUE(m_set.GroupAndParentAddGuidArray(ids, m_deep->GetID()));
    EXPECT_EQ(ids.size(), 3);
}

TEST_F(TileGroupTest, TopLevelIdsAreCountedUnlessOneIsUnknown)
{
    QUuid first;
    const QList<QUuid> ids{m_deep->GetID(), m_last->GetID(), m_first->GetID()};
    EXPECT_EQ(m_set.GetGroupCountWithoutParent(ids, &first), 2);
    EXPECT_EQ(first, m_last->GetID());
    EXPECT_EQ(m_set.GetGroupCountWithoutParent(ids + QList<QUuid>{QUuid::createUuid()}, nullptr), 0);
}

TEST_F(TileGroupTest, DeletingKnowsItsBounds)
{
    for (int index : {-1, 3})
        EXPECT_FALSE(m_set.DeleteDirectGroup(index));
    EXPECT_TRUE(m_set.DeleteDirectGroup(2)) << "one past the last is let through";
    for (int index : {-1, 2})
        EXPECT_FALSE(m_set.DeleteGroupRecursive(index) || m_set.DeleteGroupSelectedRecursive(index));
    EXPECT_EQ(CountedGroup::alive, 4);
    EXPECT_TRUE(m_set.DeleteDirectGroup(0));
    EXPECT_EQ(CountedGroup::alive, 3) << "its sub-groups are left";
    m_set.AddGroup(m_below, true);
    EXPECT_TRUE(m_set.DeleteGroupRecursive(1));
    EXPECT_EQ(CountedGroup::alive, 1);
}

TEST_F(TileGroupTest, SelectedGroupsGoWithWhatTheyHold)
{
    m_below->SetSelected(kView, true);
    m_deep->SetSelected(kView, false);
    EXPECT_TRUE(m_set.DeleteGroupSelectedRecursive(0));
    EXPECT_EQ(CountedGroup::alive, 2);
    EXPECT_EQ(m_first->GetSubGroupCount(), 0);
}
