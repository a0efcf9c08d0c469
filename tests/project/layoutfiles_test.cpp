#include "support/projecttest.h"
#include "support/wallbuilder.h"

namespace {

struct LayoutFilesTest : ProjectTest
{
    LayoutFilesTest()
    {
        project.NewSender();
        target = project.NewSender();
        target->SetNetSenderIP(9);
        project.SetCurrentSender(1);
    }

    CSender* target = nullptr;
};

} // namespace

TEST_F(LayoutFilesTest, SenderFileReplacesTheLayoutAndKeepsTheIdentity)
{
    const QUuid id = target->GetId();
    MakeWall(*target->GetPort(100), 2, 2);
    ASSERT_TRUE(project.ImportSender(SamplePath("sender-layout.xml"), id, false, true));
    EXPECT_EQ(target->GetId(), id);
    EXPECT_EQ(target->GetNetSenderIP(), 9u);
    EXPECT_EQ(TilesOf(*target->GetPort(100)).GetCount(), 0);
    EXPECT_EQ(target->GetSenderName(), "Hall left"_s);
    EXPECT_EQ(TilesOf(*target->GetPort(0)).GetTile(0)->GetSenderId(), id);
    EXPECT_TRUE(TilesOf(*target->GetPort(0)).GetTile(0)->GetTileShowColor().isValid()) << "as of any new one";
}

TEST_F(LayoutFilesTest, LockedPortsAreKeptWhenWanted)
{
    MakeWall(*target->GetPort(1), 1, 1);
    target->GetPort(1)->SetFlagLock(true);
    MakeWall(*target->GetPort(2), 7, 1);
    ASSERT_TRUE(project.ImportSender(SamplePath("sender-layout.xml"), target->GetId(), true, false));
    EXPECT_EQ(TilesOf(*target->GetPort(0)).GetCount(), 12);
    EXPECT_EQ(TilesOf(*target->GetPort(1)).GetCount(), 1);
    EXPECT_TRUE(target->GetPort(1)->IsFlagLock());
    EXPECT_EQ(TilesOf(*target->GetPort(2)).GetCount(), 4);
    EXPECT_EQ(target->GetSenderName(), QString()) << "only the layout was asked for";
}

TEST_F(LayoutFilesTest, GroupIdsUsedElsewhereAreRenewedOverTheWholeSender)
{
    const QUuid inner = MakeWall(*target->GetPort(0), 2, 1);
    const QUuid outer = MakeWall(*target->GetPort(0), 2, 1);
    NestGroups(*target->GetPort(0), outer, {inner});
    MakeWall(*target->GetPort(1), 1, 1);
    TilesOf(*target->GetPort(1)).GetTile(0)->SetGroupId(inner); // the group itself lies on the first port
    const QString path = folder.Path("a.xml"_s);
    target->SetRecentPortIndex(1);
    ASSERT_TRUE(project.ExportPort(path));
    target->SetRecentPortIndex(2);
    ASSERT_TRUE(project.ImportPort(path));
    EXPECT_EQ(TilesOf(*target->GetPort(2)).GetTile(0)->GetPortIndex(), 2);
    ASSERT_TRUE(project.ExportSender(path, target->GetId()));
    CSender* other = project.GetSender(0);
    ASSERT_TRUE(project.ImportSender(path, other->GetId(), false, false));

    const CTileGroup* renewed = GroupsOf(*other->GetPort(0)).GetDirectGroupByDirIndex(0);
    const CTileGroup* below = renewed->GetSubGroupSet()->GetDirectGroupByDirIndex(0);
    EXPECT_TRUE(renewed->GetID() != outer && below->GetID() != inner);
    EXPECT_EQ(below->GetParentGroupID(), renewed->GetID());
    CTileSet tiles;
    EXPECT_TRUE(other->GetAllTileSetInGroup(tiles, renewed->GetID()));
    EXPECT_EQ(tiles.GetCount(), 5);
}

TEST_F(LayoutFilesTest, GroupIdIsKeptUnlessAGroupOrACabinetElsewhereHasIt)
{
    CPort& port = *target->GetPort(0);
    const QUuid ids[] = {MakeWall(port, 2, 1), MakeWall(port, 2, 1), MakeWall(port, 2, 1)};
    target->SetRecentPortIndex(0);
    const QString path = folder.Path("a.xml"_s);
    ASSERT_TRUE(project.ExportPort(path));
    auto* group = new CTileGroup;
    group->SetID(ids[0]);
    GroupsOf(*target->GetPort(1)).AddGroup(group, true);
    MakeWall(*project.GetSender(0)->GetPort(9), 1, 1);
    TilesOf(*project.GetSender(0)->GetPort(9)).GetTile(0)->SetGroupId(ids[1]);
    ASSERT_TRUE(project.ImportPort(path));
    for (int i = 0; i < 3; ++i) {
        const QUuid id = GroupsOf(port).GetDirectGroupByDirIndex(i)->GetID();
        EXPECT_EQ(id == ids[i], i == 2) << i;
        EXPECT_EQ(TilesOf(port).GetTile(2 * i)->GetGroupId(), id);
    }
}

TEST_F(LayoutFilesTest, WhatAFileDoesNotSayOfThePortsStays)
{
    target->SetPortCount(8);
    target->GetPort(7)->SetVisible(false);
    MakeWall(*target->GetPort(7), 1, 1);
    const QString path =
        folder.Write("a.xml"_s, "<SenderLayout><SenderLayout PortCount='3'/></SenderLayout>");
    ASSERT_TRUE(project.ImportSender(path, target->GetId(), false, false));
    EXPECT_EQ(Error(), "输出口：文件声明8个，实有0个"_s);
    EXPECT_EQ(target->GetPortCount(), 8) << "no sender has three";
    EXPECT_FALSE(target->GetPort(7)->IsVisible());
    EXPECT_EQ(TilesOf(*target->GetPort(7)).GetCount(), 0);
}

TEST_F(LayoutFilesTest, FilesOfAnotherKindLeaveTheTargetUntouched)
{
    MakeWall(*target->GetPort(0), 2, 2);
    const QString port = SamplePath("port-layout.xml");
    const QString sender = SamplePath("sender-layout.xml");
    const QString cut = folder.Write("cut.xml"_s, ReadFile(sender).left(9000));
    const QString hollow = folder.Write("hollow.xml"_s, "<SenderLayout SenderCount='1'/>");
    for (const QString& path : {port, cut, hollow}) {
        EXPECT_FALSE(project.ImportSender(path, target->GetId(), false, true));
        EXPECT_NE(Error(), QString());
    }
    EXPECT_FALSE(project.ImportSender(sender, QUuid::createUuid(), false, true));
    EXPECT_FALSE(project.ImportPort(sender));
    EXPECT_FALSE(project.ExportSender(hollow, QUuid()));
    EXPECT_FALSE(project.ExportPort(folder.Path("missing/a.xml"_s)));
    EXPECT_NE(Error(), QString());
    EXPECT_TRUE(project.ExportSender(cut, target->GetId()));
    EXPECT_EQ(Error(), QString());
    EXPECT_FALSE(project.ImportPort(hollow));
    EXPECT_TRUE(project.ExportPort(cut));
    EXPECT_EQ(Error(), QString());
    EXPECT_EQ(TilesOf(*target->GetPort(0)).GetCount(), 4);
    EXPECT_TRUE(project.ImportPort(port));
    EXPECT_EQ(Error(), QString());
    const QByteArray id = "{c95ad16b-6333-4764-bb20-9ee65602cbb4}";
    EXPECT_TRUE(project.ImportPort(folder.Write(
        "odd.xml"_s, "<PortLayout><Odd/><TitleGroupLayout GroupCount='2'><TileGroup_1 GroupId='" + id
                         + "'/><TileGroup_2 GroupId='" + id + "'/></TitleGroupLayout></PortLayout>")));
    EXPECT_EQ(Error(), "跳过元素“Odd”; 跳过重复的分组"_s + QLatin1String(id));
}
