#include "layout/portselection.h"

#include "common/interfacedlg.h"
#include "layout/layouthelpers.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

namespace {

constexpr int kView = InterfaceDesign;

/// Two blocks of 2 × 2, and a cabinet without a group at the end.
struct PortSelectionTest : testing::Test
{
    PortSelectionTest()
    {
        MakeWall(port, {2, 2, {100, 50}, {0, 0}});
        MakeWall(port, {2, 2, {100, 50}, {300, 0}});
        MakeWall(port, {1, 1, {100, 50}, {600, 0}});
    }
    void Select(std::initializer_list<int> tiles)
    {
        port.GetTileSet().UnSelectAll(kView);
        for (const int tile : tiles)
            Tile(tile).SetSelected(true, kView, -1);
    }
    CTile& Tile(int index) { return *port.GetTileSet().GetTile(index); }
    CTileGroup& Group(int index) { return *GroupsOf(port).GetDirectGroupByDirIndex(index); }

    CPort port;
    CPortSelection selection{port};
};

} // namespace

TEST_F(PortSelectionTest, GroupsNestAndComeApart)
{
    CTileGroup* first = &Group(0);
    const QUuid inner = first->GetID();
    Select({0, 1, 8});
    EXPECT_EQ(selection.Group(), CPortSelection::Grouped::InPart);
    EXPECT_TRUE(selection.GetWholeGroups().isEmpty());
    EXPECT_EQ(selection.GetTilesAround().size(), 4) << "of the group that is touched";
    Select({0, 1, 2, 3});
    EXPECT_EQ(selection.Group(), CPortSelection::Grouped::TooFew);
    selection.MarkWholeGroups();
    EXPECT_TRUE(Group(0).IsSelected(kView) && !Group(1).IsSelected(kView));

    Select({0, 1, 2, 3, 8});
    ASSERT_EQ(selection.Group(), CPortSelection::Grouped::Done);
    EXPECT_EQ(GroupsOf(port).GetDirectCount(), 2);
    const CTileGroup& outer = Group(1);
    EXPECT_EQ(outer.GetSubGroupSet()->GetDirectGroupByDirIndex(0), first);
    EXPECT_EQ(first->GetParentGroupID(), outer.GetID());
    EXPECT_EQ(Tile(8).GetGroupId(), outer.GetID());
    EXPECT_EQ(outer.GetRotateParam()->width, 700);
    EXPECT_EQ(QPointF(outer.GetRotateParam()->centerX, outer.GetRotateParam()->centerY), QPointF(350, 50));
    Select({0, 1, 2, 3});
    EXPECT_EQ(selection.GetWholeGroups(), QList<CTileGroup*>{first});
    EXPECT_EQ(selection.GetTilesAround().size(), 5);

    EXPECT_TRUE(selection.Ungroup());
    EXPECT_TRUE(GroupsOf(port).GetDirectCount() == 2 && Tile(8).GetGroupId().isNull());
    EXPECT_EQ(Tile(0).GetGroupId(), inner);
    EXPECT_TRUE(GroupsOf(port).GetDirectGroupByDirID(inner)->GetParentGroupID().isNull());
    Select({8});
    EXPECT_FALSE(selection.Ungroup());

    GroupsOf(port).AddGroup(new CTileGroup(Group(0)), true); // two of one id, as a damaged file may hold
    Select({0});
    EXPECT_TRUE(selection.Ungroup() && GroupsOf(port).GetDirectCount() == 2) << "both stay";
}

TEST_F(PortSelectionTest, RecordsOfWholeGroupsGoAlong)
{
    SRotateParam turn = Rotation(90, 100, 50);
    Select({0, 1, 2, 3, 4});
    selection.Turn(turn);
    EXPECT_EQ(Group(0).GetRotateParam()->angle, 90);
    EXPECT_EQ(Group(1).GetRotateParam()->angle, 0) << "only a part of it";
    Select({0, 1, 2, 3});
    selection.Turn(turn);
    selection.Offset(10, 20);
    const SRotateParam record = *Group(0).GetRotateParam();
    EXPECT_EQ(QPointF(record.centerX, record.centerY), QPointF(110, 70));
    EXPECT_EQ(std::abs(record.angle), 180);
    EXPECT_EQ(Tile(0).GetRotateRecord().angle, 180);
    const SRotateParam before = Tile(0).GetRotateRecord();
    selection.Offset(3, 4);
    const SRotateParam after = Tile(0).GetRotateRecord();
    EXPECT_EQ(QPointF(after.leftTopX - before.leftTopX, after.leftTopY - before.leftTopY), QPointF(3, 4));
    EXPECT_EQ(QPointF(after.centerX - before.centerX, after.centerY - before.centerY), QPointF(3, 4));
    selection.Offset(-3, -4);
    selection.TurnEachTo(30);
    EXPECT_EQ(Tile(3).GetRotateRecord().angle, 30);

    Select({4, 5, 6, 7});
    for (CTile* tile : selection.GetTiles())
        tile->SetWidth(50);
    Tile(4).SetWidth(250);
    selection.TakeSizes();
    EXPECT_EQ(Group(1).GetRotateParam()->width, selection.GetTiles().GetBound().width());
    EXPECT_EQ(Tile(5).GetRotateRecord().width, 50);
}

TEST_F(PortSelectionTest, CopiesHaveGroupsOfTheirOwnAndNoNumbers)
{
    Select({0, 1, 2, 3, 4});
    CPortProject copies;
    selection.CopyTo(copies);
    Select({});
    CPort other;
    other.SetSenderIdAndPortIndex(QUuid::createUuid(), 7);
    MakeWall(other, 1, 1);
    const QUuid taken = Group(0).GetID();
    port.GetPortProject()->ClearAllTiles(); // copies outlive what they were made of
    CPortSelection(other).Paste(copies, 5, 6);
    const CTile& tile = *other.GetTileSet().GetTile(1);
    const CTileGroup& group = *GroupsOf(other).GetDirectGroupByDirIndex(0);
    EXPECT_TRUE(tile.GetPosition() == QPoint(5, 6) && tile.GetPortIndex() == 7 && tile.IsSelected(kView));
    EXPECT_TRUE(!tile.HasSetConnectIndex() && tile.GetSenderId() == other.GetSenderId());
    EXPECT_TRUE(tile.GetGroupId() == group.GetID() && group.GetID() != taken);
    EXPECT_EQ(group.GetRotateParam()->leftTopX, 5);
    EXPECT_TRUE(other.GetTileSet().GetTile(5)->GetGroupId().isNull()) << "its group was taken in part";
}

TEST_F(PortSelectionTest, WhatHappensToAGroupHappensToThoseInside)
{
    const QUuid left = Group(0).GetID();
    const QUuid right = Group(1).GetID();
    Select({0, 1, 2, 3, 4, 5, 6, 7});
    EXPECT_EQ(selection.GetWholeGroups().size(), 2);
    ASSERT_EQ(selection.Group(), CPortSelection::Grouped::Done);
    CTileGroup& outer = Group(0); // it has no cabinets of its own
    CTileGroup& inner = *GroupsOf(port).GetSubGroupBySubID(right);
    EXPECT_EQ(selection.GetWholeGroups(), QList<CTileGroup*>{&outer});
    EXPECT_EQ(QPointF(outer.GetRotateParam()->leftTopX, outer.GetRotateParam()->leftTopY), QPointF(0, 0));

    selection.Offset(10, 20);
    EXPECT_EQ(QPointF(inner.GetRotateParam()->leftTopX, inner.GetRotateParam()->leftTopY), QPointF(310, 20));
    EXPECT_EQ(QPointF(inner.GetRotateParam()->centerX, inner.GetRotateParam()->centerY), QPointF(410, 70));
    Tile(7).SetHeight(90);
    selection.TakeSizes();
    EXPECT_TRUE(inner.GetRotateParam()->height == 140 && outer.GetRotateParam()->height == 140);
    EXPECT_EQ(QPointF(outer.GetRotateParam()->leftTopX, outer.GetRotateParam()->leftTopY), QPointF(10, 20));
    EXPECT_EQ(outer.GetRotateParam()->width, 500);
    selection.Turn(Rotation(90, 410, 0));
    EXPECT_EQ(QPointF(inner.GetRotateParam()->centerX, inner.GetRotateParam()->centerY), QPointF(320, 0));
    EXPECT_TRUE(inner.IsRotated());
    selection.Turn(Rotation(120, 410, 0));
    EXPECT_NEAR(outer.GetRotateParam()->angle, -150, 1e-6);
    selection.Turn(Rotation(150, 410, 0));
    EXPECT_FALSE(outer.IsRotated() || inner.IsRotated());

    Select({4, 5, 6, 7});
    EXPECT_EQ(selection.GetWholeGroups(), QList<CTileGroup*>{&inner});
    CPortProject copies;
    selection.CopyTo(copies);
    const CTileGroup& copy = *copies.GetTileGroupSet()->GetDirectGroupByDirIndex(0);
    EXPECT_TRUE(copy.GetParentGroupID().isNull() && copies.GetTileSet()->GetTile(0)->GetBeginRcvCnnt() == -1);
    copies.CancelAllSelected();
    for (const int count : {3, 4}) { // pasting changes no copy
        selection.Paste(copies, 1000, 0);
        const CTileGroup& pasted = Group(count - 2);
        EXPECT_EQ(pasted.GetRotateParam()->centerX, copy.GetRotateParam()->centerX + 1000);
        EXPECT_TRUE(port.GetTileSet().GetTile(4 * count)->IsSelected(kView));
    }
    Select({0});
    EXPECT_TRUE(selection.Ungroup() && GroupsOf(port).GetDirectGroupByDirID(left));
}

TEST_F(PortSelectionTest, CabinetsTurnAboutTheirPresentMiddle)
{
    const SRotateParam before = *Group(0).GetRotateParam();
    delete GroupsOf(port).RemoveDirectGroup(1);
    Select({0, 1});
    selection.Turn(Rotation(90, 50, 50));
    EXPECT_EQ(*Group(0).GetRotateParam(), before) << "a part of the port's only group";

    Select({8});
    Tile(8).SetWidth(60);
    Tile(8).SetHeight(80);
    for (const double angle : {30.0, 30.0, 70.0, 0.0}) {
        selection.TurnEachTo(angle);
        const SRotateParam& record = Tile(8).GetRotateRecord();
        EXPECT_NEAR(record.angle, angle, 1e-6);
        EXPECT_NEAR(record.centerX, 630, 1e-6);
        EXPECT_NEAR(record.centerY, 40, 1e-6);
    }
    selection.TurnEachTo(30);
    Tile(8).SetWidth(70);
    Tile(8).SetHeight(90);
    selection.TakeSizes();
    EXPECT_TRUE(Tile(8).GetRotateRecord().width == 70 && Tile(8).GetRotateRecord().height == 90);
    EXPECT_NEAR(Tile(8).GetRotateRecord().centerX, 630, 1e-6) << "a turned one keeps its centre";
}
