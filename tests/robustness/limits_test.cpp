#include "common/xmldom.h"
#include "common/xmlwriter.h"
#include "frame/runtimedata.h"
#include "project/layoutdescription.h"
#include "project/layoutwriter.h"
#include "settings/archive.h"
#include "settings/configdata.h"
#include "settings/constantdata.h"
#include "support/projecttest.h"
#include "support/wallbuilder.h"

#include <QDir>

#include <functional>

#include <fcntl.h>
#include <sys/stat.h>

using LimitsTest = ProjectTest;

TEST_F(LimitsTest, FilesBeyondTheirSizeAreRefused)
{
    const QString xml = folder.Write("a.xml"_s, "<?xml version='1.0'?><LedSetting/>");
    ASSERT_TRUE(QFile::resize(xml, kMaxXmlBytes + 1)); // sparse
    EXPECT_FALSE(Load(xml));
    EXPECT_EQ(Error(), "文件过大。"_s);

    CConfigData config;
    for (const int beyond : {0, 1}) {
        const QString ini = folder.Write("a.ini"_s, "a=1" + QByteArray((4 << 20) - 3 + beyond, '\n'));
        EXPECT_EQ(config.Load_UI(ini), beyond == 0);
        const QString json = folder.Write("a.json"_s, "{}" + QByteArray((16 << 20) - 2 + beyond, ' '));
        EXPECT_EQ(config.LoadCustomizeConfig(json), beyond == 0);
    }
}

TEST_F(LimitsTest, TreeIsNotBuiltOfTooManyNodes)
{
    for (const char* two : {"<b c=''/>", "<!----><!---->", "<?b?><?b?>", "<![CDATA[]]><b/>"}) {
        const QByteArray nodes = QByteArray(two).repeated(kMaxTreeNodes / 2);
        QDomDocument document;
        QString why;
        const auto parse = [&](const QByteArray& content) {
            return ParseXmlDom("<?xml version='1.0'?><a>" + content + "</a>", document, &why);
        };
        EXPECT_FALSE(parse(nodes)) << two;
        EXPECT_TRUE(parse(nodes.mid(int(qstrlen(two))))) << two << why.toStdString();
    }
}

TEST_F(LimitsTest, LongTextIsKeptOrRefusedByName)
{
    const QString longest = "a"_s + QString((kMaxXmlText - 1) / 3, QChar(0x5C4F));
    project.GetPrintSetData()->designer = {true, longest};
    const QString path = folder.Path("a.prj"_s);
    ASSERT_TRUE(Save(path));
    project.GetPrintSetData()->designer = {};
    ASSERT_TRUE(Load(path)) << Error().toStdString();
    EXPECT_EQ(project.GetPrintSetData()->designer.text, longest);

    const QByteArray before = ReadFile(path);
    const QString document = CConstantData::GetProjectParamFileTemp() + "project/new.prj"_s;
    const qint64 size = QFileInfo(document).size();
    project.NewSender()->SetSenderName(longest + "b"_s);
    const QString layout = folder.Path("a.xml"_s);
    EXPECT_FALSE(Save(path));
    EXPECT_TRUE(Error().contains("Sender_1/Name"_s));
    EXPECT_FALSE(project.ExportSender(layout, project.GetSender(0)->GetId()));
    EXPECT_TRUE(Error().contains("SenderLayout/Name"_s));
    EXPECT_EQ(ReadFile(path), before);
    EXPECT_EQ(QFileInfo(document).size(), size);
    EXPECT_FALSE(QFile::exists(layout));
    EXPECT_FALSE(QFile::exists(CConstantData::GetProjectParamFileTemp() + "new.prj.part"_s));
}

TEST_F(LimitsTest, FileThatHoldsTooMuchIsRefusedWhole)
{
    const auto numbered = [](const char* name, int count) {
        QByteArray elements;
        for (int i = 1; i <= count; ++i)
            elements += '<' + QByteArray(name) + QByteArray::number(i) + "/>";
        return elements;
    };
    const QByteArray layout =
        "<TitleLayout TileCount='999999'>" + numbered("Tile_", kMaxTilesOfPort + 1) + "</TitleLayout>";
    const QByteArray ports = " PortCount='2' Name='b'><Port_1/><Port_2>" + layout + "</Port_2>";
    CSender* sender = project.NewSender();
    sender->SetSenderName("a"_s);
    MakeWall(*sender->GetPort(0), 2, 1);
    sender->SetRecentPortIndex(0);
    const QByteArray projects[] = {
        "<SenderLayout SenderCount='1'><Sender_1" + ports + "</Sender_1></SenderLayout>",
        "<SenderLayout SenderCount='9999'>" + numbered("Sender_", layoutnames::kMaxSenders + 1)
            + "</SenderLayout>",
        "<TileTypeGamma ItemCount='99999'>" + numbered("Gamma_", 65537) + "</TileTypeGamma>",
    };
    for (const QByteArray& elements : projects)
        EXPECT_FALSE(LoadText(elements) || Error().isEmpty()) << elements.left(40).constData();
    const QString senderFile =
        folder.Write("s.xml"_s, "<SenderLayout><SenderLayout" + ports + "</SenderLayout></SenderLayout>");
    const QString portFile = folder.Write("p.xml"_s, "<PortLayout Lock='1'>" + layout + "</PortLayout>");
    EXPECT_FALSE(project.ImportSender(senderFile, sender->GetId(), false, true));
    EXPECT_FALSE(project.ImportPort(portFile));
    EXPECT_TRUE(Error().contains(QString::number(kMaxTilesOfPort)));
    QDomDocument document;
    ASSERT_TRUE(ParseXmlDom("<root>" + ReadFile(portFile) + "</root>", document, nullptr));
    QDomElement root = document.documentElement();
    EXPECT_FALSE(
        project.ReadPort(document, "PortLayout"_s, sender->GetPort(0), &root, sender->GetId(), 0, false));
    ASSERT_EQ(project.GetSender(0), sender);
    EXPECT_EQ(sender->GetSenderName(), "a"_s);
    EXPECT_EQ(TilesOf(*sender->GetPort(0)).GetCount(), 2);
    EXPECT_FALSE(sender->GetPort(0)->IsFlagLock());
}

TEST_F(LimitsTest, WhatOnePortCanHoldIsSavedAndReadAndMoreIsRefused)
{
    const QString saved = folder.Path("a.prj"_s);
    CPort* port = project.NewSender()->GetPort(0);
    MakeWall(*port, 1024, kMaxTilesOfPort / 1024);
    EXPECT_FALSE(port->GetPortProject()->AddTile(SAddTileInfo()));
    ASSERT_EQ(TilesOf(*port).GetCount(), kMaxTilesOfPort);
    ASSERT_TRUE(TilesOf(*port).GetTile(0)->IsSelected(InterfaceDesign));
    ASSERT_TRUE(Save(saved));
    ASSERT_EQ(Error(), QString());
    const QByteArray before = ReadFile(saved);

    TilesOf(*port).AddTile(new CTile);
    const QString other = folder.Path("other"_s);
    const std::function<bool()> saves[] = {
        [&] { return Save(saved); },
        [&] { return project.ExportSender(other, project.GetSender(0)->GetId()); },
        [&] { return project.ExportPort(other); },
    };
    for (const auto& save : saves) {
        EXPECT_FALSE(save());
        EXPECT_TRUE(Error().contains(QString::number(kMaxTilesOfPort)));
    }
    EXPECT_EQ(ReadFile(saved), before);
    EXPECT_FALSE(QFile::exists(other));

    ASSERT_TRUE(Load(saved));
    EXPECT_EQ(Error(), QString());
    port = project.GetSender(0)->GetPort(0);
    ASSERT_EQ(TilesOf(*port).GetCount(), kMaxTilesOfPort);
    EXPECT_EQ(WhyTooLarge(QList<const CPort*>{port}), QString());
    EXPECT_EQ(WhyTooLarge(QList<const CPort*>{port, port}), DocumentTooLarge());
    const QVector<const CSender*> senders(layoutnames::kMaxSenders + 1, project.GetSender(0));
    EXPECT_TRUE(WhyTooLarge(senders.toList()).contains(QString::number(layoutnames::kMaxSenders)));
}

TEST_F(LimitsTest, DocumentThatNoReaderTakesIsNotKept)
{
    QFile nowhere("/dev/null"_s);
    ASSERT_TRUE(nowhere.open(QIODevice::WriteOnly));
    StreamXmlWriter writer(nowhere);
    writer.BeginElement("a");
    const std::string text(kMaxXmlText, 'x');
    for (qint64 size = 0; size < kMaxXmlBytes; size += kMaxXmlText) {
        EXPECT_EQ(writer.GetRefusal(), QString());
        writer.BeginElement("b");
        writer.Attribute("c", "d");
        writer.Text(text);
        writer.EndElement();
    }
    EXPECT_FALSE(writer.Flush());
    EXPECT_EQ(writer.GetRefusal(), DocumentTooLarge());

    StreamXmlWriter longText(nowhere);
    longText.BeginElement("Name");
    longText.Text(text + 'x');
    EXPECT_TRUE(longText.GetRefusal().contains("“Name”"_s));
    StreamXmlWriter longTag(nowhere);
    longTag.BeginElement("Sender_7");
    for (const char* name : {"a", "b", "c", "d", "e", "f"}) {
        EXPECT_EQ(longTag.GetRefusal(), QString());
        longTag.Attribute(name, text);
    }
    EXPECT_TRUE(longTag.GetRefusal().contains("Sender_7"_s));

    CSender* sender = project.NewSender();
    SInputVideoColorCurveParam curve;
    for (QList<QPointF>& points : curve.points)
        points = QVector<QPointF>(kMaxCurvePoints).toList();
    sender->SetColorCurveParams(QVector<SInputVideoColorCurveParam>(20, curve).toList());
    const QString other = folder.Path("other"_s);
    EXPECT_NE(project.ExportMutiProcessorParam(other, sender->GetId()), 0U);
    EXPECT_NE(Error(), QString());
    EXPECT_FALSE(QFile::exists(other));
}

TEST_F(LimitsTest, ArchiveIsHeldToItsLimitsWhenPackedAndWhenUnpacked)
{
    const QString packed = folder.Path("a.zip"_s);
    folder.Write("in/large"_s, QByteArray(3000, 'x'));
    folder.Write("in/small"_s, QByteArray(1000, 'x'));
    const auto limits = [](qint64 total) { return ArchiveLimits{total, "in/large"_s}; };
    const QString in = folder.Path("in"_s);
    const QString out = folder.Path("out"_s);
    QString error;
    EXPECT_FALSE(PackFolder(in, packed, nullptr, limits(999)));
    ASSERT_TRUE(PackFolder(in, packed, nullptr, limits(1000)));
    EXPECT_FALSE(UnpackArchive(packed, out, {}, &error, limits(999)));
    EXPECT_EQ(error, "压缩包内容过大: in/small"_s);
    EXPECT_TRUE(UnpackArchive(packed, out, {}, nullptr, limits(1000)));

    const QString deepest = "in/"_s + "d/"_s.repeated(100);
    ASSERT_TRUE(QDir(folder.Path()).mkpath(deepest));
    EXPECT_TRUE(PackFolder(in, packed));
    EXPECT_TRUE(UnpackArchive(packed, out));
    EXPECT_TRUE(QDir(out).exists(deepest));
}

TEST_F(LimitsTest, PipesAndDevicesAreRefusedAtEveryEntrance)
{
    const QString pipe = folder.Path("pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QUuid sender = project.NewSender()->GetId();
    GetRuntimeData()->GetImpExpPrepareInfo()->senders = {0};
    const QString device = folder.Path("device"_s);
    ASSERT_TRUE(QFile::link("/dev/zero"_s, device));
    for (const QString& path : {pipe, device}) {
        const std::function<bool()> entrances[] = {
            [&] { return Load(path); },
            [&] { return project.ImportSender(path, sender, false, true); },
            [&] { return project.ImportPort(path); },
            [&] { return project.ImportMutiSenderParam(path, QUuid()) == 0; },
            [&] { return project.ImportProcessorParam(path, sender) == 0; },
        };
        for (const auto& entrance : entrances) {
            ASSERT_TRUE(Save(folder.Path("a.prj"_s)));
            ASSERT_EQ(Error(), QString());
            EXPECT_FALSE(entrance());
            EXPECT_NE(Error(), QString());
        }
        CConfigData config;
        EXPECT_FALSE(config.Load(path));
        EXPECT_FALSE(config.XmlLoad(path));
        EXPECT_FALSE(config.Load_UI(path));
        EXPECT_FALSE(config.LoadCustomizeConfig(path));
        EXPECT_FALSE(config.LoadSpecifiedIP(path));
        EXPECT_TRUE(CConstantData::GetMD5FromFile(path).IsNull());
        EXPECT_FALSE(UnpackArchive(path, folder.Path("out"_s)));
        EXPECT_FALSE(config.Save() || config.SaveCustomizeConfig() || config.SaveSpecifiedIP());
        EXPECT_TRUE(QFileInfo::exists(path)) << "set aside";
    }
}
