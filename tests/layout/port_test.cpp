#include "layout/port.h"

#include "layout/tile.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

TEST(PortTest, CopyTakesAllButLockVisibilityAndArea)
{
    CPort source;
    const QUuid owner = QUuid::createUuid();
    source.SetSenderIdAndPortIndex(owner, 7);
    source.SetBeBackupDestIP(0xC0A80001, 3);
    source.SetPortColor(QColor(1, 2, 3, 204));
    MakeWall(source, 3, 2);
    EXPECT_TRUE(source.SetFlagLock(true));
    EXPECT_FALSE(source.SetFlagLock(true));
    EXPECT_TRUE(source.SetVisible(false));
    source.SetPortArea(QRect(1, 1, 5, 5));

    CPort copy(source);
    EXPECT_TRUE(copy.BeSameAs(source));
    EXPECT_NE(TilesOf(copy).GetTile(0), TilesOf(source).GetTile(0));
    EXPECT_EQ(copy.GetPortColor(), source.GetPortColor());
    EXPECT_FALSE(copy.IsFlagLock());
    EXPECT_TRUE(copy.IsVisible());
    EXPECT_TRUE(copy.GetPortArea().isNull());

    CPort bare;
    bare.Copy(source, true);
    EXPECT_EQ(bare.GetBackupSrcIP(), 0xC0A80001);
    EXPECT_EQ(TilesOf(bare).GetCount(), 0);
    EXPECT_FALSE(bare.BeSameAs(source));
}

TEST(PortTest, NamingTheSourceOneWayForgetsTheOther)
{
    CPort port;
    EXPECT_FALSE(port.SetBeBackupDestIP(0, 1));
    EXPECT_FALSE(port.IsBackupDest());
    EXPECT_EQ(port.GetBackupSrcPortIndex(), -1);

    port.SetBeBackupDest(QUuid::createUuid(), 4);
    EXPECT_TRUE(port.SetBeBackupDestIP(5, 2));
    EXPECT_TRUE(port.GetBackupSrcSenderId().isNull());
    port.SetBeBackupDest(QUuid::createUuid(), 4);
    EXPECT_EQ(port.GetBackupSrcIP(), 0u);

    port.CancelBackupDest();
    EXPECT_TRUE(port.BeSameAs(CPort()));
}

TEST(PortTest, UndoBetweenBackupAndNormalPortClearsTheLayout)
{
    CPort normal;
    MakeWall(normal, 2, 2);
    CPort snapshot;
    snapshot.SetSenderIdAndPortIndex(QUuid::createUuid(), 5);
    MakeWall(snapshot, 1, 1);

    normal.UndoRedoCopy(snapshot);
    EXPECT_TRUE(normal.BeSameAs(snapshot));

    snapshot.SetBeBackupDest(QUuid::createUuid(), 0);
    snapshot.SetSenderIdAndPortIndex(QUuid(), 6);
    normal.UndoRedoCopy(snapshot);
    EXPECT_EQ(TilesOf(normal).GetCount(), 0);
    EXPECT_EQ(normal.GetPortIndex(), 5);
}

class PortBackupTest : public testing::Test
{
protected:
    PortBackupTest() { lookup.senders = {sender.get()}; }

    std::unique_ptr<CSender> sender = MakeWall(3, 1, 2);
    CPort& first = *sender->GetPort(0);
    CPort& second = *sender->GetPort(1);
    TestLookup lookup;
};

TEST_F(PortBackupTest, ShowsTheNormalisedSourceUntilItIsGone)
{
    TilesOf(second).GetTile(0)->SetConnectionIndex(9, nullptr);
    first.SetBeBackupDest(sender->GetId(), 1);
    EXPECT_EQ(first.GetPortTileSetOrBackupSrc(), &TilesOf(second));
    EXPECT_EQ(TilesOf(second).GetTile(0)->GetConnectionIndex(), 2);

    CTileSet shown;
    shown.SetOwnerShip(true);
    shown.AddTile(new CTile);
    first.GetPortTileSetOrBackupSrc(shown);
    EXPECT_FALSE(shown.IsOwner());
    EXPECT_EQ(shown.GetCount(), 3);
    EXPECT_EQ(shown.GetTile(2), TilesOf(second).GetTile(2));

    first.SetBeBackupDest(sender->GetId(), kMaxPorts);
    EXPECT_EQ(first.GetPortTileSetOrBackupSrc(), nullptr);
    first.SetBeBackupDestIP(1, 1);
    EXPECT_EQ(first.GetPortTileSetOrBackupSrc(), nullptr);
    first.SetBeBackupDest(sender->GetId(), 1);
    lookup.senders.clear();
    EXPECT_EQ(first.GetPortTileSetOrBackupSrc(), nullptr);
    first.GetPortTileSetOrBackupSrc(shown);
    EXPECT_EQ(shown.GetCount(), 0);
}

TEST_F(PortBackupTest, BackupsOfEachOtherOrOfThemselvesEnd)
{
    first.SetBeBackupDest(sender->GetId(), 1);
    second.SetBeBackupDest(sender->GetId(), 0);
    EXPECT_EQ(first.GetPortTileSetOrBackupSrc(), &TilesOf(second));
    EXPECT_EQ(second.GetPortTileSetOrBackupSrc(), &TilesOf(first));
    first.SetBeBackupDest(sender->GetId(), 0);
    EXPECT_EQ(first.GetPortTileSetOrBackupSrc(), &TilesOf(first));
}
