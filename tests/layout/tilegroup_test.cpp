#include "layout/tilegroup.h"

#include "common/interfacedlg.h"
#include "layout/tilegroupset.h"

#include <gtest/gtest.h>

namespace {

CTileGroup* AddBelow(CTileGroup& parent)
{
    auto* group = new CTileGroup;
    group->SetParentGroupID(parent.GetID());
    parent.GetSubGroupSet()->AddGroup(group, true);
    return group;
}

/// A group that holds two, the first of which holds one more.
class TileGroupTest : public testing::Test
{
protected:
    ~TileGroupTest() override { m_top.GetSubGroupSet()->DeleteAll(); }

    CTileGroup m_top;
    CTileGroup* m_first = AddBelow(m_top);
    CTileGroup* m_deep = AddBelow(*m_first);
    CTileGroup* m_second = AddBelow(m_top);
};

} // namespace

TEST_F(TileGroupTest, CopyTakesTheWholeTreeButIsVisible)
{
    m_top.SetVisible(false);
    m_top.SetSelected(InterfaceDesign, true);
    m_top.GetRotateParam()->angle = 30;
    m_deep->GetRotateParam()->width = 12;
    CTileGroup copy(m_top);
    CTileGroup assigned;
    assigned = m_top;
    for (const CTileGroup* group : {&copy, &assigned}) {
        EXPECT_TRUE(group->IsVisible());
        EXPECT_EQ(*group, m_top);
        const CTileGroup* deep = group->GetSubGroupSet()->GetSubGroupBySubID(m_deep->GetID());
        EXPECT_TRUE(deep && deep != m_deep && *deep == *m_deep);
        group->GetSubGroupSet()->DeleteAll();
    }
}

TEST_F(TileGroupTest, VisibilityAndSubGroupsDoNotCountInComparison)
{
    CTileGroup other(m_top);
    other.SetVisible(false);
    other.GetSubGroupSet()->DeleteAll();
    other.GetRotateParam()->angle = 0.3;
    EXPECT_EQ(other, m_top);
    other.GetRotateParam()->angle = 0.5;
    EXPECT_NE(other, m_top);
}

TEST_F(TileGroupTest, SelectionReachesTheWholeTreeInTheDesignViewAlone)
{
    m_top.SetSelected(InterfaceSoftEdge, true);
    EXPECT_FALSE(m_top.IsSelected(InterfaceSoftEdge) || m_deep->IsSelected(InterfaceDesign));
    m_top.SetSelected(InterfaceDesign, true);
    m_second->SetSelected(InterfaceDesign, false);
    EXPECT_TRUE(m_top.IsSelected(InterfaceDesign) && m_deep->IsSelected(InterfaceDesign));
    EXPECT_FALSE(m_second->IsSelected(InterfaceDesign) || m_top.IsSelected(InterfaceSoftEdge));
}

TEST_F(TileGroupTest, OffsetPutsTheVerticalPlaceIntoTheHorizontal)
{
    SRotateParam* record = m_top.GetRotateParam();
    record->centerX = 100;
    record->centerY = 50;
    record->leftTopX = 40;
    record->leftTopY = 30;
    m_top.SetOffset(10, 20);
    EXPECT_EQ(record->centerX, 70);
    EXPECT_EQ(record->centerY, 50);
    EXPECT_EQ(record->leftTopX, 50);
    EXPECT_EQ(record->leftTopY, 30);
}

TEST_F(TileGroupTest, RenumberingGoesDownInPreOrder)
{
    const QUuid before[] = {m_top.GetID(), m_first->GetID(), m_deep->GetID(), m_second->GetID()};
    QList<SGuidCompare> records;
    m_top.ModifyIDAndRecord(records);
    const CTileGroup* groups[] = {&m_top, m_first, m_deep, m_second};
    ASSERT_EQ(records.size(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(records[i].oldId, before[i]) << i;
        EXPECT_EQ(records[i].newId, groups[i]->GetID()) << i;
        EXPECT_NE(before[i], groups[i]->GetID()) << i;
    }
    EXPECT_EQ(m_first->GetParentGroupID(), m_top.GetID());
    EXPECT_EQ(m_deep->GetParentGroupID(), m_first->GetID());
    EXPECT_EQ(m_second->GetParentGroupID(), m_top.GetID());
}
