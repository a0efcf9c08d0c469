#include "tools/runorvan.h"
#include "tools/toolsproject.h"

#include "support/testfolder.h"

#include <orvantools/layoutcheck.h>
#include <orvantools/storedreceivers.h>

#include <QFile>

#include <limits>

using OrvanTools::CheckOptions;
using OrvanTools::Fault;

class LayoutCheckTest : public ToolsTest
{
protected:
    /// Kind, sender, port and cabinet of every fault.
    QStringList Faults(const CheckOptions& options = LargePorts())
    {
        QStringList list;
        for (const Fault& fault : OrvanTools::CheckProject(Project(), options))
            list.append(QStringLiteral("%1 %2 %3 %4")
                            .arg(OrvanTools::FaultKindName(fault.kind))
                            .arg(fault.sender)
                            .arg(fault.port)
                            .arg(fault.cabinet));
        return list;
    }
    static CheckOptions LargePorts()
    {
        CheckOptions options;
        options.capacity.pixels = 1LL << 40;
        return options;
    }
    static SMD5 Type(char digit) { return SMD5::FromString(QString(32, QLatin1Char(digit))); }
};

TEST_F(LayoutCheckTest, OverlapsAreFoundAcrossPortsAndToldOnceForEachCabinet)
{
    Build(QSize(4, 2), 2);
    Tile(1, 0).SetX(128 * 2 - 1); // one pixel of port 1's second column
    EXPECT_EQ(Faults(), Args({"overlap 1 1 2", "overlap 1 2 1"}));
    Tile(1, 1).SetX(128 * 2 - 1); // and both now lie on each other too
    EXPECT_EQ(Faults(), Args({"overlap 1 1 2", "overlap 1 2 1", "overlap 1 2 2"}));
}

TEST_F(LayoutCheckTest, ATurnedBlockDoesNotOverlapItself)
{
    for (const double angle : {30.0, 45.0, 90.0, -77.3, 179.0}) {
        Build(QSize(6, 5), 1);
        Turn(0, angle);
        EXPECT_EQ(Faults().filter(Arg("overlap")), QStringList()) << angle;
    }
}

TEST_F(LayoutCheckTest, TheCanvasIsWhereTheOffsetPutsTheLayout)
{
    CSender& sender = Build(QSize(4, 1), 1);
    sender.SetCanvasSize(QSize(512, 128));
    EXPECT_EQ(Faults(), QStringList());
    sender.SetOffset(QSize(0, 1));
    EXPECT_EQ(Faults().size(), 4);
    sender.SetOffset(QSize(-1, 0));
    EXPECT_EQ(Faults(), Args({"off-canvas 1 1 1"}));
    sender.SetOffset(QSize(-1, -1)); // a sender that was never placed
    EXPECT_EQ(Faults(), QStringList());
    sender.SetOffset(QSize(0, 0));
    sender.SetCanvasSize(QSize(511, 128));
    EXPECT_EQ(Faults(), Args({"off-canvas 1 1 4"}));
    sender.SetCanvasSize(QSize(-1, -1)); // without one only the limits count
    EXPECT_EQ(Faults(), QStringList());
    Tiles(0).SetOffset(-1, 0);
    EXPECT_EQ(Faults(), Args({"off-canvas 1 1 1"}));
    Tiles(0).SetOffset(1 + kMaxCanvasWidth - 511, 0);
    EXPECT_EQ(Faults(), Args({"off-canvas 1 1 4"}));
}

TEST_F(LayoutCheckTest, ChainsWithGapsDoublesAndLooseCabinets)
{
    Build(QSize(6, 1), 1);
    CTileSet none;
    Tile(0, 2).SetConnectionIndex(-1, &none);
    EXPECT_EQ(Faults(), Args({"unnumbered 1 1 3", "index-gap 1 1 4"}));
    Tile(0, 2).SetConnectionIndex(5, &none);
    EXPECT_EQ(Faults(), Args({"duplicate-index 1 1 3", "duplicate-index 1 1 6", "index-gap 1 1 4"}));
    Tile(0, 2).SetConnectionIndex(2, &none);
    Tile(0, 0).SetConnectionIndex(6, &none);
    EXPECT_EQ(Faults(), Args({"index-gap 1 1 2"}));
    Tiles(0).ClearConnectIndex();
    EXPECT_EQ(Faults().size(), 6);
}

TEST_F(LayoutCheckTest, WhatNoCabinetCanBeIsNeitherFollowedNorCounted)
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    Build(QSize(6, 1), 1);
    const QSize sizes[] = {{least, least}, {-3, least}, {-3, -5}, {0, 128}};
    for (int i = 0; i < 4; ++i) {
        Tile(0, i).SetWidth(sizes[i].width());
        Tile(0, i).SetHeight(sizes[i].height());
    }
    EXPECT_EQ(Faults(), QStringList());
    SRotateParam record;
    record.angle = 30;
    record.centerX = 1e308;
    record.centerY = -1e308;
    Tile(0, 4).SetTileRotateParam(&record);
    EXPECT_EQ(Faults(), Args({"off-canvas 1 1 5"}));
    CTileSet none;
    Tile(0, 0).SetConnectionIndex(most, &none);
    Tile(0, 1).SetConnectionIndex(most, &none);
    Tiles(0).GetTile(5)->SetMultiRcvsSize(QSize(most, 1));
    EXPECT_EQ(Faults(), Args({"off-canvas 1 1 5", "duplicate-index 1 1 1", "duplicate-index 1 1 2",
                              "index-gap 1 1 1", "index-gap 1 1 3"}));
    const QString gap = OrvanTools::CheckProject(Project(), LargePorts())[3].text;
    EXPECT_TRUE(gap.contains(QStringLiteral("number 2147483648 follows 6"))) << qPrintable(gap);
}

TEST_F(LayoutCheckTest, TypesNeedAParameterFileAndParameterFilesTheFileItself)
{
    TestFolder folder;
    Build(QSize(4, 1), 1);
    Tile(0, 1).SetType(Type('a'));
    EXPECT_EQ(Faults(), Args({"unknown-type 1 1 2"}));
    Project().AddParameterFileInfo(QStringLiteral("some"), Type('a'));
    EXPECT_EQ(Faults(), Args({"missing-parameter-file 0 0 0"}));

    const QString work = CConstantData::GetProjectParamFileTemp() + QStringLiteral("some.rcvbp");
    const QString source = folder.Write(QStringLiteral("x"), "content");
    ASSERT_TRUE(QFile::copy(source, work));
    EXPECT_EQ(Faults(), Args({"missing-parameter-file 0 0 0"})); // a file of that name, of another type
    Project().DeleteParameterFileInfo(Type('a'));
    ASSERT_TRUE(QFile::copy(source, work));
    const SMD5 type = CConstantData::GetMD5FromFile(work);
    Project().AddParameterFileInfo(QStringLiteral("some"), type);
    Tile(0, 1).SetType(type);
    EXPECT_EQ(Faults(), QStringList());
    QFile::remove(work);
}

TEST_F(LayoutCheckTest, AGroupOfAnotherPortIsAnOrphansGroup)
{
    Build(QSize(4, 2), 2);
    Tile(0, 1).SetGroupId(Tile(1, 0).GetGroupId());
    EXPECT_EQ(Faults(), Args({"orphan-group 1 1 2"}));
    Tile(0, 1).SetGroupId(QUuid());
    EXPECT_EQ(Faults(), QStringList());
}

TEST_F(LayoutCheckTest, BackupPortsAreJudgedByTheirSourceAndNotByWhatTheyStore)
{
    CSender& sender = Build(QSize(4, 1), 4);
    Tile(3, 0).SetX(0); // on top of port 1's
    EXPECT_EQ(Faults().size(), 2);
    sender.GetPort(3)->SetBeBackupDest(sender.GetId(), 0);
    EXPECT_EQ(Faults(), QStringList());
    sender.GetPort(3)->SetBeBackupDest(sender.GetId(), 4);
    EXPECT_EQ(Faults(), Args({"backup-of-nothing 1 4 0"}));
    sender.SetNetSenderIP(0xC0A8010AU);
    sender.GetPort(3)->SetBeBackupDestIP(0xC0A8010AU, 0);
    EXPECT_EQ(Faults(), QStringList());
    sender.GetPort(3)->SetBeBackupDestIP(0xC0A8010BU, 0);
    EXPECT_EQ(Faults(), Args({"backup-of-nothing 1 4 0"}));
    sender.GetPort(3)->SetBeBackupDest(sender.GetId(), 2);
    sender.GetPort(2)->SetBeBackupDest(sender.GetId(), 3);
    sender.GetPort(1)->SetBeBackupDest(sender.GetId(), 2); // leads into the loop
    EXPECT_EQ(Faults(), Args({"backup-loop 1 3 0", "backup-loop 1 4 0"}));
}

TEST_F(LayoutCheckTest, APortIsFullAtTheRateOfItsSenderWhenThatIsWanted)
{
    Build(QSize(6, 6), 1); // 90 % at 60 Hz and 8 bit
    for (const auto& [frames, bits] : {std::pair(60, 8), std::pair(0, 10), std::pair(120, 0)}) {
        CSender* sender = Project().NewSender();
        sender->LayoutCopy(*Project().GetSender(0));
        sender->SetSignalFreq(frames);
        sender->SetColorDepth(bits);
    }
    CheckOptions options;
    EXPECT_EQ(Faults(options).filter(Arg("overload")), QStringList());
    options.atOwnRate = true;
    EXPECT_EQ(Faults(options).filter(Arg("overload")), Args({"port-overload 3 1 0", "port-overload 4 1 0"}));
    options.capacity.framesPerSecond = 30; // of senders that tell none
    EXPECT_EQ(Faults(options).filter(Arg("overload")), Args({"port-overload 4 1 0"}));
}

TEST_F(LayoutCheckTest, FaultsAreListedByKindAndThenByPlace)
{
    Build(QSize(4, 1), 2);
    Project().NewSender();
    Project().GetSender(1)->GetPort(0)->SetBeBackupDest(QUuid::createUuid(), 0);
    Tiles(1).ClearConnectIndex();
    Tile(1, 1).SetX(0);
    const QList<Fault> faults = OrvanTools::CheckProject(Project(), LargePorts());
    EXPECT_EQ(Faults(), Args({"overlap 1 1 1", "overlap 1 2 2", "unnumbered 1 2 1", "unnumbered 1 2 2",
                              "backup-of-nothing 2 1 0"}));
    EXPECT_TRUE(faults[0].Line().startsWith(QStringLiteral("sender 1 port 1 cabinet 1: ")));
    EXPECT_TRUE(faults[4].Line().startsWith(QStringLiteral("sender 2 port 1: ")));
}

TEST_F(LayoutCheckTest, StoredReceiversAreComparedWithTheWiringInTheOrderOfTheCabinets)
{
    TestFolder folder;
    QByteArray text = ReadFile(SamplePath("small-wall.xml"));
    const auto check = [&](const QByteArray& content) {
        const QString path = folder.Write(QStringLiteral("wall.xml"), content);
        OrvanTools::StoredReceivers stored;
        EXPECT_TRUE(stored.Read(path));
        QString version;
        EXPECT_TRUE(Project().LoadProjectFromFile(QFile::encodeName(path).constData(), version, nullptr));
        CheckOptions options = LargePorts();
        options.stored = &stored;
        return Faults(options).filter(QStringLiteral("receiver-mismatch"));
    };
    EXPECT_EQ(check(text), QStringList());
    EXPECT_EQ(check(QByteArray(text).replace('\0', "&#x00;")), QStringList());
    const QByteArray aside = "<!-- <Tile_1 FirstRcvIndex='9'> \" -" + QByteArray(600000, 'x') + "-->";
    EXPECT_EQ(check(QByteArray(text).replace("<Port_2 ", aside + "<Port_2 ")), QStringList());
    // Sender 1, port 2: the second cabinet, behind one of two receiving cards.
    const int tile = text.indexOf("<Tile_2 ", text.indexOf("<Port_2 "));
    const int value = text.indexOf("FirstRcvIndex=\"2\"", tile);
    ASSERT_LT(value, text.indexOf("<Tile_3 ", tile));
    EXPECT_EQ(check(QByteArray(text).replace(value, 17, "FirstRcvIndex=\"1\"")),
              Args({"receiver-mismatch 1 2 2"}));
    // The same cabinet stored before the first one: its number counts, not where it stands.
    const int end = text.indexOf("/>", tile) + 2;
    const QByteArray element = text.mid(tile, end - tile);
    QByteArray moved = QByteArray(text).remove(tile, end - tile);
    moved.insert(moved.indexOf("<Tile_1 ", moved.indexOf("<Port_2 ")), element);
    EXPECT_EQ(check(moved), QStringList());
}

TEST_F(LayoutCheckTest, StoredReceiversOfBrokenFilesAreNotBelieved)
{
    TestFolder folder;
    const QByteArray text = ReadFile(SamplePath("small-wall.xml"));
    OrvanTools::StoredReceivers stored;
    EXPECT_FALSE(stored.Read(folder.Path(QStringLiteral("absent"))));
    EXPECT_FALSE(stored.Read(folder.Write(QStringLiteral("b"), text.left(text.size() / 2))));
    EXPECT_FALSE(stored.Read(SamplePath("truncated.prj")));
    EXPECT_TRUE(stored.Read(SamplePath("small-wall.prj")));
    EXPECT_EQ(stored.OfPort(0, 1), (std::vector<int>{0, 2, 6, 10, 20}));
}
