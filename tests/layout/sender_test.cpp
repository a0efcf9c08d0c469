#include "layout/sender.h"

#include "layout/layouthelpers.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

TEST(SenderTest, PortsKnowTheirOwnerAndColourAndComeInCountsThatDevicesHave)
{
    CSender sender;
    for (const QUuid& id : {sender.GetId(), QUuid::createUuid()}) {
        sender.SetId(id);
        for (int i = 0; i < kMaxPorts; ++i)
            EXPECT_TRUE(sender.GetPort(i)->GetSenderId() == id && sender.GetPort(i)->GetPortIndex() == i)
                << i;
    }
    EXPECT_EQ(sender.GetPort(20)->GetPortColor(), QColor(204, 94, 16, 204));
    EXPECT_FALSE(sender.GetPort(-1) || sender.GetPort(kMaxPorts));

    sender.SetPortCount(160);
    StoredSender stored;
    stored.portCount = 3;
    for (const SenderParts parts : {SenderParts::LayoutOnly, SenderParts::LayoutAndView}) {
        sender.TakeStored(stored, parts);
        EXPECT_EQ(sender.GetPortCount(), 160) << "no device has three";
    }
    for (const int refused : {-4, 3, 100, 161}) {
        sender.SetPortCount(refused);
        EXPECT_EQ(sender.GetPortCount(), 160) << refused;
    }
    sender.SetPortCount(0);
    EXPECT_EQ(sender.GetPortCount(), 4);
}

TEST(SenderTest, ACopyTakesThePortsWithTheirViewAndTheParameters)
{
    const auto source = MakeWall(2, 2, 3);
    source->SetMonitorRenderArea(QRect(6, 7, 8, 9));
    source->SetMonitorRcvOffsetPt(QPoint(11, 12));
    source->SetMonitorRenderRelativePos(3);
    CPort& port = *source->GetPort(159);
    port.SetBeBackupDest(source->GetId(), 1);
    port.SetFlagLock(true);
    port.SetVisible(false);
    port.SetPortArea(QRect(1, 2, 3, 4));

    CSender copy;
    MakeWall(*copy.GetPort(7), 3, 3);
    copy.CopySender(*source);
    EXPECT_EQ(copy.GetId(), source->GetId());
    const CPort& last = *copy.GetPort(159);
    EXPECT_TRUE(last.IsFlagLock() && !last.IsVisible() && last.GetPortArea() == port.GetPortArea());
    for (int i = 0; i < kMaxPorts; ++i)
        EXPECT_TRUE(copy.GetPort(i)->BeSameAs(*source->GetPort(i))) << i;
    EXPECT_EQ(copy.GetMonitorRenderArea(), QRect(6, 7, 8, 9));
    EXPECT_EQ(copy.GetMonitorRenderRelativePos(), 3);
    copy.ResetMonitorRenderParam(false);
    EXPECT_TRUE(copy.GetMonitorRenderArea() == QRect() && copy.GetMonitorRenderRelativePos() == 0);
    EXPECT_EQ(copy.GetMonitorRcvOffsetPt(), QPoint(11, 12));
    copy.ResetMonitorRenderParam(true);
    EXPECT_EQ(copy.GetMonitorRcvOffsetPt(), QPoint());

    CSender layoutOnly;
    EXPECT_TRUE(layoutOnly.LayoutCopy(*source));
    EXPECT_EQ(*layoutOnly.GetPort(2)->GetPortProject(), *source->GetPort(2)->GetPortProject());
    EXPECT_FALSE(layoutOnly.GetPort(159)->IsBackupDest());
    MakeWall(*layoutOnly.GetPort(159), 1, 1);
    layoutOnly.ClearAllTiles();
    for (const int i : {0, 2, 159})
        EXPECT_EQ(TilesOf(*layoutOnly.GetPort(i)).GetCount(), 0) << i;
}

TEST(SenderTest, WhatAFileHoldsIsTakenAsFarAsWanted)
{
    StoredSender stored;
    stored.id = QUuid::createUuid();
    stored.belongGroup = QUuid::createUuid();
    stored.netIp = 5;
    stored.name = "file"_s;
    stored.signalFreq = 50;
    stored.colorDepth = 12;
    stored.portCount = 8;
    stored.recentPort = 159;
    for (const SenderParts parts :
         {SenderParts::LayoutOnly, SenderParts::LayoutAndView, SenderParts::Project}) {
        CSender sender;
        const QUuid id = sender.GetId();
        const QUuid group = QUuid::createUuid();
        sender.SetBelongGroup(group);
        sender.SetNetSenderIP(1);
        sender.TakeStored(stored, parts);
        const bool view = parts != SenderParts::LayoutOnly;
        const bool all = parts == SenderParts::Project;
        EXPECT_EQ(sender.GetSenderName(), view ? "file"_s : QString());
        EXPECT_TRUE(sender.GetSignalFreq() == (view ? 50 : 0) && sender.GetColorDepth() == (view ? 12 : 0));
        EXPECT_EQ(sender.GetId(), all ? stored.id : id);
        EXPECT_EQ(sender.GetPort(159)->GetSenderId(), sender.GetId());
        EXPECT_EQ(sender.GetBelongGroup(), all ? stored.belongGroup : group);
        EXPECT_EQ(sender.GetNetSenderIP(), all ? 5U : 1U);
        EXPECT_TRUE(sender.GetPortCount() == 8 && sender.GetRecentPortIndex() == 159);
    }
}

TEST(SenderTest, TheFirstBackupInUseTellsWhetherItIsASelfBackup)
{
    CSender sender;
    bool self = true;
    sender.GetPort(4)->SetBeBackupDest(sender.GetId(), 0);
    EXPECT_FALSE(sender.ExistBackupDest(&self)); // port 4 is not in use
    sender.SetPortCount(6);
    self = false;
    EXPECT_TRUE(sender.ExistBackupDest(&self) && self);
    sender.GetPort(1)->SetBeBackupDestIP(1, 0);
    EXPECT_TRUE(sender.ExistBackupDest(&self) && !self);
    EXPECT_TRUE(sender.ExistBackupDest(nullptr));
}

TEST(SenderTest, TheOffsetNeverStartsTheLayoutBeforeTheCanvas)
{
    EXPECT_FALSE(CSender::IsOffsetToZero());
    CSender sender;
    EXPECT_EQ(sender.GetBound(), QRect(QPoint(0, 0), QPoint(-1, -1)));
    CSender flat;
    MakeWall(*flat.GetPort(0), {1, 1, QSize(0, 64)});
    for (CSender* without : {&sender, &flat}) {
        without->SetOffset(QSize(-7, -8));
        without->OffsetValid();
        EXPECT_EQ(without->GetOffset(), QSize(-7, -8)) << "nothing to be seen";
    }
    MakeWall(*sender.GetPort(3), {1, 1, QSize(128, 64), QPoint(0, 5)});
    TilesOf(*sender.GetPort(3)).SetOffset(-30, 0);
    sender.SetOffset(QSize(10, 0));
    sender.OffsetValid();
    EXPECT_EQ(sender.GetOffset(), QSize(30, 0));
    sender.SetOffset(QSize(31, -6));
    sender.OffsetValid();
    EXPECT_EQ(sender.GetOffset(), QSize(31, -5));

    MakeWall(*sender.GetPort(1), {1, 1, QSize(128, 64), QPoint(2000, 100)});
    MakeWall(*sender.GetPort(4), 1, 1); // not in use
    EXPECT_EQ(sender.GetBound(), QRect(QPoint(-30, 5), QPoint(2127, 163)));
}

TEST(SenderTest, ASelectionOnSeveralPortsIsNoticed)
{
    const auto sender = MakeWall(2, 1, 3);
    EXPECT_TRUE(sender->IsSelectMultiPortTile(-1));
    TilesOf(*sender->GetPort(1)).UnSelectAll(3);
    TilesOf(*sender->GetPort(2)).UnSelectAll(3);
    EXPECT_FALSE(sender->IsSelectMultiPortTile(-1) || sender->IsSelectMultiPortTile(0));
    EXPECT_TRUE(sender->IsSelectMultiPortTile(1));
    for (const int port : {-1, 0})
        EXPECT_FALSE(CSender().IsSelectMultiPortTile(port)) << "nothing is selected";
    TilesOf(*sender->GetPort(0)).GetTile(0)->SetSelected(false, 3, -1);
    EXPECT_FALSE(sender->IsSelectMultiPortTile(-1)) << "one cabinet";
}

TEST(SenderTest, GroupOperationsWorkOnAllPortsInUse)
{
    const auto sender = MakeWall(2, 1, 2);
    CPort& second = *sender->GetPort(1);
    const QUuid first = TilesOf(*sender->GetPort(0)).GetTile(0)->GetGroupId();
    const QUuid outer = TilesOf(second).GetTile(0)->GetGroupId();
    const QUuid inner = MakeWall(second, 2, 1);
    NestGroups(second, outer, {inner});
    TilesOf(*sender->GetPort(0)).GetTile(1)->SetGroupId(inner); // one group over two ports

    CTileSet all;
    CTileSet tiles;
    EXPECT_TRUE(sender->GetTileSet(all) && sender->GetAllTileSetInGroup(tiles, outer));
    EXPECT_TRUE(all.GetCount() == 6 && tiles.GetCount() == 5);
    EXPECT_FALSE(sender->GetAllTileSetInGroup(tiles, inner) || tiles.GetCount() > 0);
    EXPECT_TRUE(sender->GetTileSetInGroupRecursive(tiles, inner));
    EXPECT_TRUE(sender->GetAllTileSetInGroupPart(
        tiles, GroupsOf(second).GetDirectGroupByDirID(outer)->GetSubGroupSet()));
    EXPECT_EQ(tiles.GetCount(), 3 + 3);

    QList<QUuid> ids;
    EXPECT_TRUE(sender->GetAllGroupsFromTileSet(ids, all));
    EXPECT_EQ(ids, QList<QUuid>({first, inner, outer}));
    EXPECT_FALSE(sender->RemoveGroupWhenTileOut(ids, all));
    EXPECT_TRUE(sender->RemoveGroupWhenTileOut(ids, TilesOf(second)) && ids.isEmpty());
}

TEST(SenderTest, AskingForTheGroupsAgainDeletesOnlyStrangers)
{
    TestLookup lookup;
    const auto sender = MakeWall(2, 1, 2);
    const auto other = MakeWall(2, 1, 1);
    lookup.senders = {sender.get(), other.get()};

    using CountedGroup = Counted<CTileGroup>;
    CTileGroupSet out;
    auto* stranger = new CountedGroup;
    auto* twin = new CountedGroup;
    twin->SetID(stranger->GetID());
    for (CTileGroup* group : {stranger, twin, stranger})
        out.AddGroup(group, true);
    EXPECT_TRUE(sender->GetTileGroupSet(out));
    EXPECT_EQ(CountedGroup::alive, 0) << "also one with the id of another";
    EXPECT_EQ(out.GetDirectCount(), 2);
    EXPECT_TRUE(other->GetTileGroupSet(out));
    EXPECT_EQ(out.GetDirectCount(), 1);
    CTileGroupSet one;
    one.AddGroup(new CountedGroup, true);
    EXPECT_TRUE(other->GetTileGroupSet(one));
    EXPECT_EQ(CountedGroup::alive, 0);
    CSender unlisted; // its own groups are no strangers
    GroupsOf(*unlisted.GetPort(0)).AddGroup(new CountedGroup, true);
    EXPECT_TRUE(unlisted.GetTileGroupSet(one) && unlisted.GetTileGroupSet(one));
    EXPECT_EQ(CountedGroup::alive, 1);
    EXPECT_FALSE(sender->GetTileGroupSet(GroupsOf(*sender->GetPort(0))));
    EXPECT_EQ(GroupsOf(*sender->GetPort(0)).GetDirectCount(), 1);
}
