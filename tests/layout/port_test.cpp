#include "layout/port.h"

#include "support/wallbuilder.h"

#include <gtest/gtest.h>

TEST(PortTest, CopyTakesAllButLockVisibilityAndArea)
{
    CPort source;
    source.SetSenderIdAndPortIndex(QUuid::createUuid(), 7);
    source.SetBeBackupDestIP(0xC0A80001, 3);
    source.SetPortColor(QColor(1, 2, 3, 204));
    MakeWall(source, 3, 2);
    source.SetFlagLock(true);
    source.SetVisible(false);
    source.SetPortArea(QRect(1, 1, 5, 5));

    CPort copy(source);
    EXPECT_TRUE(copy.BeSameAs(source));
    EXPECT_NE(TilesOf(copy).GetTile(0), TilesOf(source).GetTile(0));
    EXPECT_EQ(copy.GetPortColor(), source.GetPortColor());
    EXPECT_TRUE(!copy.IsFlagLock() && copy.IsVisible() && copy.GetPortArea().isNull());

    CPort assigned;
    assigned = source;
    EXPECT_TRUE(assigned.BeSameAs(source) && assigned.GetPortColor() == source.GetPortColor());
    assigned = *&assigned;
    EXPECT_TRUE(assigned.BeSameAs(source));

    CPort bare;
    EXPECT_TRUE(bare.Copy(source, true));
    EXPECT_FALSE(bare.BeSameAs(source)) << "the same wiring is not enough";
    EXPECT_TRUE(CPort().LayoutCopy(source));
    EXPECT_TRUE(bare.SetVisible(false) && !bare.SetVisible(false) && bare.SetVisible(true));
    EXPECT_TRUE(bare.SetFlagLock(true) && !bare.SetFlagLock(true) && bare.SetFlagLock(false));
    EXPECT_EQ(bare.GetBackupSrcIP(), 0xC0A80001);
    EXPECT_EQ(TilesOf(bare).GetCount(), 0);
}

TEST(PortTest, NamingTheSourceOneWayForgetsTheOther)
{
    CPort port;
    EXPECT_FALSE(port.SetBeBackupDestIP(0, 1) || port.IsBackupDest());
    EXPECT_TRUE(port.SetBeBackupDest(QUuid::createUuid(), 4));
    EXPECT_TRUE(port.SetBeBackupDestIP(5, 2) && port.GetBackupSrcSenderId().isNull());
    port.SetBeBackupDest(QUuid::createUuid(), 4);
    EXPECT_EQ(port.GetBackupSrcIP(), 0u);
    port.CancelBackupDest();
    EXPECT_TRUE(port.BeSameAs(CPort()));
}

TEST(PortTest, StoredFieldsKeepTheAreaAndNameOneSourceAtMost)
{
    for (const bool dest : {false, true}) {
        for (const quint32 ip : {0U, 1U}) {
            PortFields stored;
            stored.backup = {dest, QUuid::createUuid(), 2, ip};
            stored.view.area = QRect(0, 0, 9, 9);
            CPort port;
            port.SetPortArea(QRect(1, 1, 5, 5));
            port.TakeStored(stored);
            EXPECT_EQ(port.GetPortArea(), QRect(1, 1, 5, 5));
            EXPECT_TRUE(port.IsBackupDest() == dest && port.GetBackupSrcIP() == (dest ? ip : 0));
            EXPECT_EQ(port.GetBackupSrcSenderId(), dest && ip == 0 ? stored.backup.senderId : QUuid());
        }
    }
}

TEST(PortTest, UndoBetweenBackupAndNormalPortClearsTheLayout)
{
    CPort normal;
    CPort snapshot;
    MakeWall(normal, 2, 2);
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

TEST(PortTest, BackupShowsTheNormalisedSourceUntilItIsGone)
{
    TestLookup lookup;
    const auto sender = MakeWall(3, 1, 2);
    lookup.senders = {sender.get()};
    CPort& first = *sender->GetPort(0);
    CPort& second = *sender->GetPort(1);
    TilesOf(second).GetTile(0)->SetConnectionIndex(9, nullptr);
    first.SetBeBackupDest(sender->GetId(), 1);
    EXPECT_EQ(first.GetPortTileSetOrBackupSrc(), &TilesOf(second));
    EXPECT_EQ(TilesOf(second).GetTile(0)->GetConnectionIndex(), 2);

    CTileSet shown;
    first.GetPortTileSetOrBackupSrc(shown);
    EXPECT_EQ(shown.GetTiles(), TilesOf(second).GetTiles());

    second.SetBeBackupDest(sender->GetId(), 0); // each other: one step and no further
    EXPECT_EQ(second.GetPortTileSetOrBackupSrc(), &TilesOf(first));

    first.SetBeBackupDest(sender->GetId(), kMaxPorts);
    EXPECT_EQ(first.GetPortTileSetOrBackupSrc(), nullptr);
    first.SetBeBackupDest(sender->GetId(), 1);
    lookup.senders.clear();
    first.GetPortTileSetOrBackupSrc(shown);
    EXPECT_EQ(shown.GetCount(), 0);
}
