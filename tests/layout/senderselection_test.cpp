#include "layout/senderselection.h"

#include "common/interfacedlg.h"
#include "layout/layouthelpers.h"
#include "layout/senderundoredo.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

namespace {

/// Two ports with a block of 3 × 1 each; the first cabinet of the first, and all of the second are selected.
struct SenderSelectionTest : testing::Test
{
    SenderSelectionTest()
    {
        MakeWall(*sender->GetPort(0), {3, 1, {100, 50}, {0, 0}});
        MakeWall(*sender->GetPort(1), {3, 1, {100, 50}, {0, 50}});
        sender->GetPort(0)->GetTileSet().UnSelectAll(InterfaceDesign);
        Tile(0, 0).SetSelected(true, InterfaceDesign, -1);
    }
    CTile& Tile(int port, int index) { return *sender->GetPort(port)->GetTileSet().GetTile(index); }

    TestLookup lookup;
    std::unique_ptr<CSender> sender = std::make_unique<CSender>();
    CSenderSelection selection{*sender};
};

} // namespace

TEST_F(SenderSelectionTest, KnowsWhatIsSelectedOnAllPortsButBackups)
{
    EXPECT_EQ(selection.GetPorts(), (QList<CPort*>{sender->GetPort(0), sender->GetPort(1)}));
    EXPECT_EQ(selection.GetTiles(), (QList<CTile*>{&Tile(0, 0), &Tile(1, 0), &Tile(1, 1), &Tile(1, 2)}));
    EXPECT_EQ(selection.GetBound(), QRect(0, 0, 300, 100));
    EXPECT_EQ(selection.GetTilesAround().size(), 6);
    selection.MarkWholeGroups();
    EXPECT_FALSE(GroupsOf(*sender->GetPort(0)).GetDirectGroupByDirIndex(0)->IsSelected(InterfaceDesign));
    EXPECT_TRUE(GroupsOf(*sender->GetPort(1)).GetDirectGroupByDirIndex(0)->IsSelected(InterfaceDesign));

    sender->GetPort(1)->SetBeBackupDest(sender->GetId(), 0);
    EXPECT_EQ(selection.GetTiles(), QList<CTile*>{&Tile(0, 0)});
    EXPECT_TRUE(selection.Ungroup() && Tile(0, 0).GetGroupId().isNull());
    selection.Clear();
    EXPECT_TRUE(selection.GetPorts().isEmpty() && selection.GetBound().isNull());
    EXPECT_FALSE(selection.Ungroup());
}

TEST_F(SenderSelectionTest, IsMovedTurnedAndResizedAsAWhole)
{
    lookup.rotateEnabled = true;
    selection.Offset(10, 20);
    EXPECT_EQ(selection.GetBound(), QRect(10, 20, 300, 100));
    EXPECT_EQ(Tile(0, 1).GetPosition(), QPoint(100, 0)) << "not selected";
    EXPECT_EQ(selection.GetBoundIfResized(200, 0), QRect(10, 20, 600, 100));
    EXPECT_EQ(selection.GetBound(), QRect(10, 20, 300, 100));
    selection.Resize(200, 0);
    EXPECT_EQ(Tile(1, 2).GetBound(), QRect(410, 70, 200, 50));
    const CTileGroup& group = *GroupsOf(*sender->GetPort(1)).GetDirectGroupByDirIndex(0);
    EXPECT_EQ(selection.GetBoundIfResized(0, 80), QRect(10, 20, 600, 160));
    selection.Resize(0, 80);
    EXPECT_EQ(Tile(1, 2).GetBound(), QRect(410, 100, 200, 80));
    EXPECT_TRUE(group.GetRotateParam()->width == 600 && group.GetRotateParam()->height == 80);
    selection.Resize(100, 50);

    const SRotateParam straight = Tile(1, 2).GetRotateRecord();
    selection.TurnTo(0);
    EXPECT_EQ(Tile(1, 2).GetRotateRecord(), straight);
    selection.Turn(90); // about the middle of 10, 20 to 310, 120
    EXPECT_EQ(selection.GetBound().size(), QSize(100, 300));
    EXPECT_EQ(selection.GetBound().center(), QRect(10, 20, 300, 100).center());
    EXPECT_TRUE(selection.GetBoundIfResized(200, 0).isNull()) << "all of them are turned";
    selection.TurnTo(0); // alike, so as one
    EXPECT_EQ(selection.GetBound(), QRect(10, 20, 300, 100));
    const SRotateParam turned = Rotation(30, 60, 45);
    Tile(0, 0).SetTileRotateParam(&turned);
    selection.TurnTo(90);
    EXPECT_EQ(Tile(1, 2).GetRotateRecord().angle, 90);
    EXPECT_EQ(Tile(1, 2).GetBound().center().y(), 94) << "about its own middle";
    EXPECT_EQ(Tile(0, 0).GetRotateRecord().angle, 90);
}

TEST_F(SenderSelectionTest, DeletingAndMovingToAPortCloseTheChains)
{
    CPort& first = *sender->GetPort(0);
    CPort& third = *sender->GetPort(2);
    CPortProject copies;
    selection.CopyTo(copies);
    EXPECT_EQ(copies.GetTileSet()->GetCount(), 4);
    EXPECT_TRUE(selection.MoveTo(third));
    EXPECT_EQ(third.GetTileSet().GetCount(), 4);
    EXPECT_EQ(GroupsOf(third).GetDirectCount(), 1) << "the one that was whole";
    EXPECT_EQ(selection.GetPorts(), QList<CPort*>{&third});
    EXPECT_FALSE(third.GetTileSet().HasNumberedTiles());
    EXPECT_FALSE(selection.MoveTo(third)) << "they are there";
    EXPECT_TRUE(first.GetTileSet().GetCount() == 2 && Tile(0, 0).GetConnectionIndex() == 0);
    Tile(0, 0).SetSelected(true, InterfaceDesign, -1);
    selection.Delete();
    EXPECT_TRUE(third.GetTileSet().GetCount() == 0 && Tile(0, 0).GetConnectionIndex() == 0);
}

TEST_F(SenderSelectionTest, AStepHoldsNoOtherPortCountAndNoOtherBackups)
{
    CSender other;
    other.CopySender(*sender);
    EXPECT_TRUE(CSenderUndoRedo::HoldsChange(*sender, other));
    other.GetPort(3)->SetBeBackupDest(sender->GetId(), 0);
    EXPECT_FALSE(CSenderUndoRedo::HoldsChange(*sender, other));
    CSender third;
    third.CopySender(other);
    third.GetPort(3)->SetBeBackupDest(sender->GetId(), 1);
    EXPECT_FALSE(CSenderUndoRedo::HoldsChange(other, third)) << "of another port";
    third.CopySender(other);
    third.SetPortCount(2);
    EXPECT_FALSE(CSenderUndoRedo::HoldsChange(other, third));
}
