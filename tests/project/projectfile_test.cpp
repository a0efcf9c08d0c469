#include "common/fileproblem.h"
#include "common/xmldom.h"
#include "frame/runtimedata.h"
#include "layout/projectundoredo.h"
#include "monitor/monitordata.h"
#include "products/productdirectoryset.h"
#include "project/parameterwork.h"
#include "settings/archive.h"
#include "settings/constantdata.h"
#include "support/projecttest.h"
#include "support/wallbuilder.h"

#include "customprogressbar.h"

#include <QDir>
#include <QRandomGenerator>

using ProjectFileTest = ProjectTest;

TEST_F(ProjectFileTest, TreesHoldWhatTheFileHolds)
{
    ASSERT_TRUE(Load(SamplePath("full/project.xml")));
    const QByteArray streamed = Document();
    QDomDocument tree;
    QDomElement root = tree.createElement("LedSetting"_s);
    project.WriteVersionSupport(tree, &root);
    project.WriteDemoModeInfo(tree, &root);
    project.WriteSenderGroup(tree, &root);
    project.WriteTileGamma(tree, &root);
    project.WritePrintData(tree, &root);
    project.WriteSender(tree, &root, nullptr);
    project.WriteMonitorSet(tree, &root);
    project.WriteParameterFileInfo(tree, &root);
    project.SetToDefault();
    QDomElement found;
    const auto child = [&](const char* name) {
        found = root.firstChildElement(QLatin1String(name));
        return &found;
    };
    EXPECT_TRUE(project.ReadVersionSupport(tree, child("VersionSupport"), version));
    EXPECT_EQ(found.attribute("MinimumVersion"_s), project.GetMinVersionSupport());
    project.ReadDemoModeInfo(tree, child("DemoModeInfo"));
    project.ReadSenderGroup(tree, child("SenderTreeGroup"));
    project.ReadTileGamma(tree, child("TileTypeGamma"));
    project.ReadPrintData(tree, child("PrintFormData"));
    project.ReadSender(tree, child("SenderLayout"), version, nullptr);
    project.SetCurrentSender(1);
    child("SenderLayout")->appendChild(tree.createElement("Odd"_s));
    project.ReadSender(tree, &found, version, nullptr);
    EXPECT_TRUE(project.GetCurSenderIndex() == 1 && Error() == "跳过元素“Odd”"_s) << qPrintable(Error());
    project.ReadMonitorSet(tree, child("Monitor"));
    project.ReadParameterFileInfo(tree, child("ParameterFile"));
    EXPECT_EQ(Document(), streamed);
}

TEST_F(ProjectFileTest, ParameterFilesTravelWithTheProjectIntoTheLibrary)
{
    ASSERT_TRUE(Load(SamplePath("small-wall.prj")));
    EXPECT_EQ(Error(), QString());
    const QByteArray first = ReadFile(parameterwork::PathOf("箱体A128"_s));
    EXPECT_EQ(first.size(), 1504);
    EXPECT_EQ(ReadFile(parameterwork::ProjectFolder() + "1.rcvbp"_s).size(), 1104);
    EXPECT_EQ(ReadFile(CProductDirectorySet::GetRootDir() + "箱体A128.rcvbp"_s), first);
    EXPECT_EQ(GetRuntimeData()->GetProductDirectorySet()->GetProductCount(), 2);

    QFile::remove(parameterwork::PathOf("箱体A128"_s)); // the library's copy takes its place
    const auto saved = [this] {
        const QString path = folder.Path("b.prj"_s);
        EXPECT_TRUE(Save(path) && project.IsArchiveWritten());
        EXPECT_TRUE(UnpackArchive(path, folder.Path("unpacked"_s)));
        return ReadFile(folder.Path("unpacked/project/0.rcvbp"_s));
    };
    EXPECT_EQ(saved(), first);

    WriteFile(parameterwork::PathOf("箱体A128"_s), "own, edited");
    EXPECT_EQ(saved(), first) << "the library's is of the row's type";
    const QString known = CProductDirectorySet::GetRootDir() + "箱体A128.rcvbp"_s;
    ASSERT_TRUE(QFile::remove(known) && QDir().mkpath(known)); // cannot be read
    EXPECT_EQ(saved(), "own, edited");
}

TEST_F(ProjectFileTest, FilesInTheWorkAndProductFoldersCountAsTheyAre)
{
    ASSERT_TRUE(UnpackArchive(SamplePath("small-wall.prj"), folder.Path()));
    const QString root = CProductDirectorySet::GetRootDir();
    const QString deep = root + "mine/cabinet.rcvbp"_s;
    const QString taken = root + "箱体A128.rcvbp"_s;
    WriteFile(parameterwork::PathOf("箱体A128"_s), "of another project");
    WriteFile(deep, ReadFile(folder.Path("project/0.rcvbp"_s)));
    WriteFile(root + "0.rcvbp"_s, "another product");
    WriteFile(root + "箱体Z.rcvbp"_s, ReadFile(folder.Path("project/1.rcvbp"_s)));
    ASSERT_TRUE(Load(SamplePath("small-wall.prj"))) << "nothing was scanned before";
    EXPECT_EQ(Error(), QString());
    EXPECT_EQ(ReadFile(parameterwork::PathOf("箱体A128"_s)).size(), 1504);
    EXPECT_TRUE(QFile::exists(deep) && !QFile::exists(taken)) << "no second copy";
    EXPECT_TRUE(QFile::exists(root + "箱体Z.rcvbp"_s)) << "under the name that the user gave it";

    ASSERT_TRUE(QFile::remove(deep));
    WriteFile(taken, "another product of the name");
    ASSERT_TRUE(Load(SamplePath("small-wall.prj")));
    EXPECT_TRUE(Error().contains("箱体A128"_s));
    EXPECT_EQ(ReadFile(taken), "another product of the name");

    const QString own = parameterwork::PathOf("箱体A128"_s);
    ASSERT_TRUE(QFile::remove(taken) && QFile::remove(own) && QDir().mkpath(own));
    ASSERT_TRUE(Load(SamplePath("small-wall.prj")));
    EXPECT_TRUE(Error().startsWith("参数文件“箱体A128”无法保存"_s)) << qPrintable(Error());
}

TEST_F(ProjectFileTest, ParameterFileThatIsDamagedOrTooLargeCostsItselfAlone)
{
    QByteArray archive = ReadFile(SamplePath("small-wall.prj"));
    const int content = archive.indexOf("project/0.rcvbp") + 40;
    archive[content] = static_cast<char>(~archive[content]);
    ASSERT_TRUE(Load(folder.Write("damaged.prj"_s, archive)));
    EXPECT_TRUE(Error().contains("无法读取"_s) && !Error().contains("; "_s)) << qPrintable(Error());
    EXPECT_FALSE(QFile::exists(parameterwork::PathOf(project.GetParameterFiles()[0].name)));
    EXPECT_EQ(ReadFile(parameterwork::PathOf(project.GetParameterFiles()[1].name)).size(), 1104);

    project.SetToDefault();
    for (const char* name : {"small", "large"}) {
        project.AddParameterFileInfo(QLatin1String(name), SMD5::FromString(QString(32, QLatin1Char(*name))));
        WriteFile(parameterwork::PathOf(QLatin1String(name)), "x");
    }
    QFile::resize(parameterwork::PathOf("large"_s), qint64(256) << 20); // sparse
    project.AddParameterFileInfo("gone"_s, SMD5::FromString(QString(32, QLatin1Char('a'))));
    const QString path = folder.Path("a.prj"_s);
    ASSERT_TRUE(Save(path));
    EXPECT_TRUE(Error().contains("large"_s));
    EXPECT_TRUE(Error().contains("缺少参数文件“gone”"_s)) << qPrintable(Error());
    EXPECT_FALSE(Error().contains("small"_s));
    ASSERT_TRUE(UnpackArchive(path, folder.Path("out"_s)));
    EXPECT_EQ(QDir(folder.Path("out/project"_s)).entryList(QDir::Files),
              QStringList({"0.rcvbp"_s, "new.prj"_s}));
    ASSERT_TRUE(Load(path));
    EXPECT_EQ(Error(), "缺少参数文件“large”; 缺少参数文件“gone”"_s) << "each is told once";
}

TEST_F(ProjectFileTest, RefusedFilesLeaveTheProjectAsItWas)
{
    ASSERT_TRUE(Load(SamplePath("full/project.xml")));
    const QByteArray before = Document();
    EXPECT_FALSE(Load(SamplePath("too-new.prj")));
    EXPECT_EQ(version, "7.0"_s);
    const QString files[] = {
        SamplePath("truncated.prj"),
        SamplePath("climbing.prj"),
        folder.Path("missing.prj"_s),
        folder.Write("empty.prj"_s, ""),
        folder.Write("cut.xml"_s, ReadFile(SamplePath("small-wall.xml")).left(20000)),
        folder.Write("other.xml"_s, "<?xml version='1.0'?><LedControlConfig/>"),
        folder.Write("deep.xml"_s, "<?xml version='1.0'?>" + QByteArray("<a>").repeated(20000)),
    };
    for (const QString& path : files) {
        EXPECT_FALSE(Load(path)) << path.toStdString();
        EXPECT_NE(Error(), QString()) << path.toStdString();
        EXPECT_EQ(version, "untouched"_s);
    }
    EXPECT_EQ(Document(), before);
}

TEST_F(ProjectFileTest, VersionsUpTo61AreRead)
{
    EXPECT_TRUE(LoadText("<VersionSupport MinimumVersion='6.1'/>"));
    EXPECT_TRUE(LoadText("<SenderLayout SenderCount='0'/>")) << "no version asks for nothing";
    EXPECT_FALSE(LoadText("<VersionSupport MinimumVersion='6.2'/>"));
    EXPECT_EQ(version, "6.2"_s);
    QDomDocument tree;
    ASSERT_TRUE(tree.setContent("<VersionSupport MinimumVersion='7.5'/>"_s));
    QDomElement root = tree.documentElement();
    EXPECT_FALSE(project.ReadVersionSupport(tree, &root, version));
    EXPECT_EQ(version, "7.5"_s);
}

TEST_F(ProjectFileTest, CountsThatLieAreToldAndWhatIsThereIsRead)
{
    ASSERT_TRUE(LoadText("<Strange/><SenderLayout SenderCount='9'><Sender_2 PortCount='2' ID='x'><Port_1>"
                         "<TitleLayout TileCount='2000000000'><Tile_7 X='5'/><Tile_3 Width='32' Height='32'/>"
                         "<Tile_3/><Tile_0/><Tile_02/><Tile_2x/><Tile_/><Tile_99999999999/></TitleLayout>"
                         "</Port_1></Sender_2></SenderLayout>"));
    for (const char* told : {"Strange”; ", "主控：文件声明9个，实有1个",
                             "箱体：文件声明2000000000个，实有2个", "输出口：文件声明2个，实有1个"})
        EXPECT_TRUE(Error().contains(QString::fromUtf8(told))) << told;
    ASSERT_EQ(project.GetSenderCount(), 1);
    EXPECT_FALSE(project.GetSender(0)->GetId().isNull());
    EXPECT_EQ(project.GetSender(0)->GetPortCount(), 2);
    const CTileSet& tiles = TilesOf(*project.GetSender(0)->GetPort(0));
    ASSERT_EQ(tiles.GetCount(), 2);
    EXPECT_EQ(tiles.GetTile(0)->GetWidth(), 32) << "by number, and the first of equal ones";
    EXPECT_EQ(tiles.GetTile(1)->GetX(), 5);
    ASSERT_TRUE(LoadText("<SenderLayout SenderCount='1'><Other/><Sender_1/><Sender_2/></SenderLayout>"));
    EXPECT_TRUE(Error().contains("Other"_s) && Error().contains("Sender_2"_s)) << qPrintable(Error());

    const QByteArray longName(70, 'a');
    for (const int count : {10, 11, 13}) {
        ASSERT_TRUE(LoadText(("<" + longName + "/>").repeated(count)));
        EXPECT_EQ(Error().split("; "_s).size(), qMin(count, 11));
        EXPECT_TRUE(Error().startsWith("跳过元素“"_s + QLatin1String(longName.left(64)) + "”"_s));
        EXPECT_TRUE(Error().endsWith(count > 10 ? "; 另有%1处"_s.arg(count - 10) : "”"_s))
            << qPrintable(Error());
    }
}

TEST_F(ProjectFileTest, OfRepeatedElementsTheLastOfTheRootAndTheFirstOfAPortCounts)
{
    const QByteArray id = "{c95ad16b-6333-4764-bb20-9ee65602cbb4}";
    const QByteArray tiles = "<TitleLayout TileCount='1'><Tile_1/></TitleLayout>";
    const QByteArray senders = "<SenderLayout SenderCount='1'><Sender_1 ID='" + id + "'><Port_1>" + tiles
                               + "<TitleLayout TileCount='2'/><Odd/></Port_1></Sender_1></SenderLayout>";
    const QByteArray file = " Md5='" + QByteArray(32, 'a') + "'/>";
    const QByteArray files = "<ParameterFile Count='3'><File1 Name='../../x/..'" + file + "<File2 Name='b'"
                             + file + "<File3 Name='c'/></ParameterFile>";
    ASSERT_TRUE(LoadText("<Monitor RefreshDisTime='30'/><Monitor/>" + senders + senders + files + files));
    ASSERT_EQ(project.GetParameterFiles().size(), 2) << "one of each type";
    EXPECT_EQ(project.GetParameterFiles()[0].name, "_.._x_"_s);
    EXPECT_EQ(project.GetParameterFiles()[1].name, "c"_s);
    EXPECT_TRUE(Error().contains("“TitleLayout”; 跳过元素“Odd”"_s)) << qPrintable(Error());
    EXPECT_EQ(project.GetSender(0)->GetId().toByteArray(), id);
    EXPECT_EQ(TilesOf(*project.GetSender(0)->GetPort(0)).GetCount(), 1);
    EXPECT_EQ(GetMonitorData()->GetInterfaceData().GetIntervalTime(), 10);
}

TEST_F(ProjectFileTest, RepeatedSenderIdsAreRenewedBeforeTheirPortsAreRead)
{
    const QByteArray sender = " ID='{c95ad16b-6333-4764-bb20-9ee65602cbb4}'><Port_1>"
                              "<TitleLayout TileCount='1'><Tile_1/></TitleLayout></Port_1>";
    ASSERT_TRUE(LoadText("<SenderLayout SenderCount='2'><Sender_1" + sender + "</Sender_1><Sender_2" + sender
                         + "</Sender_2></SenderLayout>"));
    CSender* second = project.GetSender(1);
    EXPECT_NE(second->GetId(), project.GetSender(0)->GetId());
    EXPECT_EQ(TilesOf(*second->GetPort(0)).GetTile(0)->GetSenderId(), second->GetId());
}

TEST_F(ProjectFileTest, LoadingKeepsTheCurrentSenderAndStartsAnUnmodifiedHistory)
{
    project.NewSender();
    project.NewSender();
    project.SetCurrentSender(1);
    EXPECT_TRUE(GetRuntimeData()->GetProjectUndoRedo()->IsModidfied());
    ASSERT_TRUE(Load(SamplePath("small-wall.xml")));
    EXPECT_EQ(project.GetCurSenderIndex(), 1);
    EXPECT_FALSE(GetRuntimeData()->GetProjectUndoRedo()->IsModidfied());
    ASSERT_TRUE(LoadText("<SenderLayout SenderCount='1'><Sender_1/></SenderLayout>"));
    EXPECT_EQ(project.GetCurSenderIndex(), 0);
}

TEST_F(ProjectFileTest, ProgressGoesByThePortsOfEachSender)
{
    project.NewSender()->SetPortCount(4);
    project.NewSender()->SetPortCount(4);
    const QString path = folder.Path(QStringLiteral("a.prj"));
    for (const bool saves : {true, false}) {
        QList<int> told;
        CCustomProgressbar progress([&told](int percent) { told.append(percent); });
        EXPECT_TRUE(saves ? project.SaveProjectToFile(path, &progress)
                          : project.LoadProjectFromFile(QFile::encodeName(path), version, &progress));
        EXPECT_EQ(told, QList<int>({12, 25, 37, 50, 62, 75, 87, 100}));
    }
    const auto toldOf = [&](const QByteArray& elements) {
        const QString file =
            folder.Write("a.xml"_s, "<?xml version='1.0'?><LedSetting>" + elements + "</LedSetting>");
        QList<int> told;
        CCustomProgressbar progress([&told](int percent) { told.append(percent); });
        EXPECT_TRUE(project.LoadProjectFromFile(QFile::encodeName(file), version, &progress));
        return told;
    };
    const QByteArray twoSenders = "<SenderLayout SenderCount='2'><Sender_1 PortCount='4'><Port_1/><Port_2/>"
                                  "</Sender_1><Sender_2/></SenderLayout>";
    EXPECT_EQ(toldOf(twoSenders + twoSenders), QList<int>({12, 50, 100, 12, 50, 100})) << "begins anew";
}

TEST_F(ProjectFileTest, SaveThatCannotReachItsTargetSaysSo)
{
    project.NewSender();
    const QString inTheWay = folder.Write("file"_s, "x");
    const auto saveWell = [&] { return Save(folder.Path("well.prj"_s)) && project.IsArchiveWritten(); };
    for (const QString& path : {inTheWay + "/a.prj"_s, QString()}) {
        EXPECT_TRUE(saveWell() && Error().isEmpty());
        EXPECT_TRUE(Save(path) && !project.IsArchiveWritten());
        EXPECT_GT(Error().size(), "项目文件没有保存："_s.size()) << "with the reason";
    }
    EXPECT_TRUE(saveWell());

    const QString lockFolder = QFileInfo(parameterwork::LockPath()).path();
    ASSERT_TRUE(QDir().rename(lockFolder, folder.Path("aside"_s)));
    WriteFile(lockFolder, "x");
    EXPECT_FALSE(Save(folder.Path("a.prj"_s)) || project.IsArchiveWritten());
    EXPECT_EQ(Error(), WhyNotWritable(lockFolder));
    ASSERT_TRUE(QFile::remove(lockFolder) && QDir().rename(folder.Path("aside"_s), lockFolder));

    const QByteArray archive = ReadFile(SamplePath("small-wall.prj"));
    const QString next = CConstantData::GetProjectParamFileTemp() + "new.prj.part"_s;
    for (const QString& own : {parameterwork::DocumentPath(), next})
        EXPECT_FALSE(Save(own)) << qPrintable(own);
    for (const QString& other : {folder.Path("new.prj"_s), parameterwork::ProjectFolder() + "other.prj"_s})
        EXPECT_TRUE(Save(other) && project.IsArchiveWritten()) << qPrintable(other);
    EXPECT_FALSE(Load(WriteFile(parameterwork::DocumentPath(), archive)));
    EXPECT_EQ(ReadFile(parameterwork::DocumentPath()), archive);
}

TEST_F(ProjectFileTest, LeftoversInTheWorkFolderStopNeitherSavingNorLoading)
{
    project.NewSender();
    const QString precious = folder.Write("linked/0.rcvbp"_s, "precious");
    const QString path = folder.Path("a.prj"_s);
    WriteFile(CConstantData::GetProjectParamFileTemp() + "new.prj.part"_s, "of a killed program");
    const QString work = parameterwork::ProjectFolder().chopped(1);
    QDir(work).removeRecursively();
    ASSERT_TRUE(QFile::link(folder.Path("linked"_s), work));
    EXPECT_TRUE(Save(path));
    EXPECT_EQ(ReadFile(precious), "precious") << "a link is replaced, what it leads to is not ours";

    const QString odd = folder.Path("project"_s);
    folder.Write("project/new.prj/a"_s, "folder");
    folder.Write("project/0.rcvbp/a"_s, "folder");
    ASSERT_TRUE(PackFolder(odd, folder.Path("odd.prj"_s)));
    EXPECT_FALSE(Load(folder.Path("odd.prj"_s)));
    ASSERT_TRUE(QDir().mkpath(parameterwork::DocumentPath() + "/a"_s));
    EXPECT_TRUE(Save(path));
    EXPECT_FALSE(Load(folder.Path("odd.prj"_s)));
    EXPECT_TRUE(Load(SamplePath("small-wall.prj")));
    EXPECT_EQ(Error(), QString());

    const QString own = parameterwork::PathOf(project.GetParameterFiles()[0].name);
    const QString equal = folder.Write("equal"_s, ReadFile(own));
    ASSERT_TRUE(QFile::remove(own) && QFile::link(equal, own));
    EXPECT_TRUE(Load(SamplePath("small-wall.prj")));
    EXPECT_FALSE(QFileInfo(own).isSymLink()) << "what it leads to may change";
}

TEST_F(ProjectFileTest, OtherFilesInAnArchiveDoNotComeIntoTheNextOne)
{
    const QString path = folder.Path("a.prj"_s);
    ASSERT_TRUE(Load(SamplePath("small-wall.prj")));
    ASSERT_TRUE(Save(path));
    const QByteArray saved = ReadFile(path);
    const QString odd = folder.Path("odd.prj"_s);
    ASSERT_TRUE(UnpackArchive(path, folder.Path()));
    for (const char* name : {"project/note", "project/sub/0.rcvbp", "project/0.rcvbp.old"})
        folder.Write(QLatin1String(name), "of others");
    ASSERT_TRUE(PackFolder(folder.Path("project"_s), odd));
    ASSERT_TRUE(Load(odd));
    EXPECT_EQ(Error(), QString());
    WriteFile(parameterwork::ProjectFolder() + "qt_temp.AbCdEf"_s, "of a killed program");
    ASSERT_TRUE(Save(path));
    EXPECT_EQ(ReadFile(path), saved);
}

TEST_F(ProjectFileTest, DamagedFilesAreReadOrRefusedWhole)
{
    ASSERT_TRUE(Load(SamplePath("full/project.xml")));
    const QString original = folder.Path("original.prj"_s);
    ASSERT_TRUE(Save(original));
    const QByteArray before = Document();
    const QByteArray sample = ReadFile(SamplePath("small-wall.xml"));
    QRandomGenerator random(4711);
    for (int round = 0; round < 150; ++round) {
        QByteArray damaged = sample;
        for (int hits = 1 + random.bounded(4); hits > 0; --hits)
            damaged[2 + random.bounded(damaged.size() - 2)] = static_cast<char>(random.generate());
        if (random.bounded(4) == 0)
            damaged.remove(2 + random.bounded(damaged.size() - 2), random.bounded(200));
        if (!Load(folder.Write("damaged.xml"_s, damaged))) {
            ASSERT_EQ(Document(), before) << "round " << round;
        }
        Document(); // whatever was read can be written and read again
        ASSERT_TRUE(Load(folder.Path("document.prj"_s))) << "round " << round;
        ASSERT_TRUE(Load(original));
    }
}
