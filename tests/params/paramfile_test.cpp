#include "common/xmldom.h"
#include "layout/sender.h"
#include "params/paramcontents.h"
#include "params/paramfile.h"
#include "params/paramresult.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"

#include "support/messagerecorder.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QRandomGenerator>

#include <iterator>

using namespace params;

namespace {

const QString kImportFailedText = "导入失败。"_s;
const QString kTypeDiffersText = "导入失败，无法导入不同类型主控的参数。"_s;
const QString kIpModeText = "不可导入，无法匹配对应IP的主控参数。"_s;

using Transfer = quint32 (CProjectData::*)(const QString&, const QUuid&);

/// A project of senders of type 17, all chosen.
class TestProject : private ProjectLookup
{
public:
    explicit TestProject(int count)
    {
        for (int i = 0; i < count; ++i) {
            CSender& sender = *m_project.NewSender();
            sender.SetProcessorType(17);
            sender.SetSignalFreq(50 + i);
            sender.SetNetSenderIP(0x0A000001U + static_cast<unsigned>(i));
            prepared.senders.append(i);
        }
    }

    quint32 Do(Transfer transfer, const QString& path, const QUuid& id = QUuid())
    {
        SetProjectLookup(this);
        const quint32 result = (m_project.*transfer)(path, id);
        SetProjectLookup(nullptr);
        return result;
    }
    CSender& Sender(int index) { return *m_project.GetSender(index); }
    QString Error() const { return m_project.GetLastFileError(); }
    QList<int> SignalFreqs() const
    {
        QList<int> frequencies;
        for (const CSender* sender : m_project.GetSenders())
            frequencies.append(sender->GetSignalFreq());
        return frequencies;
    }

    SImpExpPrepareInfo prepared;

private:
    SImpExpPrepareInfo ImpExpPrepareInfo() const override { return prepared; }

    CProjectData m_project;
};

struct FileKind
{
    Transfer save;
    Transfer load;
};

const FileKind kSenders{&CProjectData::ExportMutiSenderParam, &CProjectData::ImportMutiSenderParam};
const FileKind kProcessors{&CProjectData::ExportMutiProcessorParam, &CProjectData::ImportMutiProcessorParam};

struct ParamFileTest : testing::Test
{
    QString Export(TestProject& project, const FileKind& kind)
    {
        const QString path = folder.Path("a.xml"_s);
        EXPECT_EQ(project.Do(kind.save, path), kDone);
        return path;
    }

    TestFolder folder;
    MessageRecorder messages;
};

void Replace(const QString& path, const QByteArray& before, const QByteArray& after)
{
    QByteArray content = ReadFile(path);
    ASSERT_TRUE(content.contains(before)) << before.constData();
    WriteFile(path, content.replace(before, after));
}

} // namespace

TEST_F(ParamFileTest, ElementsOfOneNameAreAList)
{
    const QString path =
        folder.Write("b.xml"_s, "<SenderParams a='1'><P><n>1</n><n>2</n></P></SenderParams>");
    QString error;
    const QJsonObject contents = ParamFileContents(path, &error);
    EXPECT_EQ(contents["P"_s].toObject()["n"_s].toArray(), (QJsonArray{"1"_s, "2"_s}));
    EXPECT_EQ(contents["a"_s], "1"_s);
    EXPECT_EQ(error, QString());
    EXPECT_TRUE(ParamFileContents(folder.Write("b.xml"_s, "<Other/>"), &error).isEmpty());
    EXPECT_EQ(error, "不是参数文件。"_s);
}

TEST_F(ParamFileTest, RootSaysWhatTheFileHolds)
{
    TestProject project(3);
    for (const FileKind& kind : {kSenders, kProcessors}) {
        project.prepared = {false, {2, 9, 0}};
        QString error;
        const QString path = Export(project, kind);
        QJsonObject contents = ParamFileContents(path, &error);
        EXPECT_EQ(contents["ProcessorCount"_s], "3"_s);
        EXPECT_TRUE(contents.contains("Processor_1"_s));
        EXPECT_FALSE(contents.contains("Processor_2"_s)) << "no such sender";
        EXPECT_TRUE(contents.contains("Processor_3"_s));

        project.prepared.matchByIp = true;
        ASSERT_EQ(project.Do(kind.save, path, project.Sender(1).GetId()), kDone);
        contents = ParamFileContents(path, &error);
        EXPECT_EQ(contents["bSpecifyIP"_s], "1"_s);
        EXPECT_EQ(contents["ProcessorCount"_s], "1"_s);
        EXPECT_EQ(contents["Processor_1"_s].toObject()["NetIP"_s], "167772162"_s);

        const QByteArray before = ReadFile(path);
        EXPECT_EQ(project.Do(kind.save, path, QUuid::createUuid()), kFailed);
        EXPECT_EQ(ReadFile(path), before);
        EXPECT_FALSE(project.Error().isEmpty());
    }
}

TEST_F(ParamFileTest, FileWithMoreElementsThanAReaderTakesIsNotWritten)
{
    constexpr int rootAttributes = 5; // of the family that has more
    TestProject project(1);
    const QString path = Export(project, kSenders);
    const int others = ReadFile(path).count("</");
    QVector<int> ports(kMaxTreeNodes - rootAttributes - others);
    project.Sender(0).SetMultiNetPortInfo(ports.toList());
    EXPECT_EQ(project.Do(kSenders.save, path), kDone);
    ports.append(0);
    project.Sender(0).SetMultiNetPortInfo(ports.toList());
    EXPECT_EQ(project.Do(kSenders.save, path), kFailed);
    EXPECT_EQ(project.Error(), "文件过大。"_s);
    EXPECT_EQ(ReadFile(path).count("</"), kMaxTreeNodes - rootAttributes);
}

TEST_F(ParamFileTest, SendersTakeProcessorsByPositionOfTheChoice)
{
    for (const FileKind& kind : {kSenders, kProcessors}) {
        TestProject source(2);
        const QString path = Export(source, kind);

        TestProject target(3);
        target.prepared.senders = {2, 0};
        EXPECT_EQ(target.Do(kind.load, path), kDone);
        EXPECT_EQ(target.SignalFreqs(), (QList<int>{51, 51, 50}));
        EXPECT_NE(target.Sender(2).GetId(), source.Sender(0).GetId());
        EXPECT_EQ(target.Sender(2).GetNetSenderIP(), 0x0A000003U) << "an address never comes from a file";
        EXPECT_EQ(target.Do(kind.load, path, target.Sender(1).GetId()), kDone);
        EXPECT_EQ(target.SignalFreqs(), (QList<int>{51, 50, 50}));
        EXPECT_TRUE(messages.Take().isEmpty());

        target.prepared.senders = {0, 1, 2};
        EXPECT_EQ(target.Do(kind.load, path), kImportFailed) << "no third processor";
        EXPECT_EQ(messages.Take(), QStringList{kImportFailedText});
        target.prepared.senders = {0, 3};
        EXPECT_EQ(target.Do(kind.load, path), kFailed) << "no such sender";
        EXPECT_EQ(target.Do(kind.load, path, QUuid::createUuid()), kFailed);
        EXPECT_TRUE(messages.Take().isEmpty());
    }
}

TEST_F(ParamFileTest, OtherOrMissingTypeChangesNothingAndIsToldOnce)
{
    for (const FileKind& kind : {kSenders, kProcessors}) {
        TestProject source(2);
        source.Sender(1).SetProcessorType(18);
        const QString path = Export(source, kind);
        TestProject target(2);
        target.Sender(1).SetSignalFreq(99);
        EXPECT_EQ(target.Do(kind.load, path), kTypeDiffers);
        EXPECT_EQ(target.SignalFreqs(), (QList<int>{50, 99}));
        EXPECT_EQ(messages.Take(), QStringList{kTypeDiffersText});

        Replace(path, "SenderType>", "AType>");
        if (ReadFile(path).contains("DeviceType"))
            Replace(path, "DeviceType>", "BType>");
        EXPECT_EQ(target.Do(kind.load, path), kImportFailed);
        EXPECT_EQ(messages.Take(), QStringList{kImportFailedText});
    }
}

TEST_F(ParamFileTest, ProcessorWithoutSenderTypeIsComparedByItsBasicBlock)
{
    TestProject project(1);
    const QString path = Export(project, kProcessors);
    Replace(path, "SenderType>", "AType>");
    Replace(path, "<DeviceType>17<", "<DeviceType> 17 <");
    EXPECT_EQ(project.Do(kProcessors.load, path), kDone);
    Replace(path, "<DeviceType> 17 <", "<DeviceType>18<");
    EXPECT_EQ(project.Do(kProcessors.load, path), kTypeDiffers);
    EXPECT_EQ(messages.Take(), QStringList{kTypeDiffersText});
}

TEST_F(ParamFileTest, SendersTakeProcessorsOfTheirAddress)
{
    for (const FileKind& kind : {kSenders, kProcessors}) {
        TestProject source(4);
        source.prepared.matchByIp = true;
        source.Sender(2).SetNetSenderIP(0x0A000002);
        source.Sender(3).SetNetSenderIP(0);
        const QString path = Export(source, kind);
        Replace(path, "<NetIP>167772161<", "<NetIP> 10.000.00.1 <");

        TestProject target(3);
        EXPECT_EQ(target.Do(kind.load, path), kFailed);
        EXPECT_EQ(messages.Take(), QStringList{kIpModeText});

        target.prepared.matchByIp = true;
        target.Sender(0).SetNetSenderIP(0x0A000002);
        target.Sender(1).SetNetSenderIP(0x0A000001);
        target.Sender(2).SetNetSenderIP(0);
        target.Sender(2).SetSignalFreq(99);
        EXPECT_EQ(target.Do(kind.load, path), kDone);
        EXPECT_EQ(target.SignalFreqs(), (QList<int>{51, 50, 99}));
        EXPECT_EQ(messages.Take(), QStringList{"主控3未找到对应IP的主控参数。"_s});

        target.Sender(0).SetSignalFreq(99);
        target.Sender(1).SetProcessorType(18);
        EXPECT_EQ(target.Do(kind.load, path), kTypeDiffers);
        EXPECT_EQ(target.SignalFreqs(), (QList<int>{51, 50, 99})) << "one that fits is taken before";
        EXPECT_EQ(messages.Take(), QStringList{kTypeDiffersText});
    }
}

TEST_F(ParamFileTest, FourSendersWithoutTheirAddressAreNamedAtMost)
{
    TestProject source(1);
    source.prepared.matchByIp = true;
    const QString path = Export(source, kSenders);
    const char* expected[] = {"", "2", "2,3", "2,3,4", "2,3,4,5...", "2,3,4,5..."};
    for (int unmatched = 1; unmatched <= 5; ++unmatched) {
        TestProject target(unmatched + 1);
        target.prepared.matchByIp = true;
        EXPECT_EQ(target.Do(kSenders.load, path), kDone);
        EXPECT_EQ(messages.Take(),
                  QStringList{"主控%1未找到对应IP的主控参数。"_s.arg(QLatin1String(expected[unmatched]))});
    }
}

TEST_F(ParamFileTest, FileWithoutMarkIsOneOfASingleSender)
{
    TestProject project(2);
    CSender& second = project.Sender(1);
    const QString path =
        folder.Write("a.xml"_s, "<SenderParams><SenderType>17</SenderType><OtherParam><AdvancedParam>"
                                "<SignalFreq>144</SignalFreq></AdvancedParam></OtherParam></SenderParams>");
    EXPECT_EQ(project.Do(kSenders.load, path, second.GetId()), kDone);
    EXPECT_EQ(project.SignalFreqs(), (QList<int>{50, 144}));
    second.SetProcessorType(18);
    EXPECT_EQ(project.Do(kSenders.load, path, second.GetId()), kTypeDiffers);
    EXPECT_EQ(messages.Take(), QStringList{kTypeDiffersText});
    EXPECT_EQ(project.Do(kSenders.load, path), kFailed);

    // Of a single processor only the blocks in front of one that does not fit are taken.
    const QString processor = folder.Write(
        "b.xml"_s,
        "<DeviceParams><DeviceOtherParamsXmlRoot><DeviceOtherParamVideoAbnormalColseOut>2"
        "</DeviceOtherParamVideoAbnormalColseOut></DeviceOtherParamsXmlRoot><basicInfoParamsXmlRoot/>"
        "<DeviceSetParamsXmlRoot><DeviceSetParamsVSyncSource>3</DeviceSetParamsVSyncSource>"
        "</DeviceSetParamsXmlRoot></DeviceParams>");
    EXPECT_EQ(project.Do(kProcessors.load, processor, second.GetId()), kFailed);
    EXPECT_EQ(messages.Take(), QStringList{kImportFailedText});
    EXPECT_TRUE(second.IsSignalAbnormal());
    EXPECT_EQ(second.GetVSyncInfo().syncSource, 0);
    Replace(processor, "<basicInfoParamsXmlRoot/>",
            "<basicInfoParamsXmlRoot><DeviceType>17</DeviceType></basicInfoParamsXmlRoot>");
    EXPECT_EQ(project.Do(kProcessors.load, processor, second.GetId()), kFailed);
    EXPECT_EQ(messages.Take(), QStringList{kTypeDiffersText});
    EXPECT_EQ(project.Error(), kTypeDiffersText);
}

TEST_F(ParamFileTest, DamagedFilesFailWithTheirReason)
{
    TestProject project(1);
    const QByteArray sample = ReadFile(SamplePath("device-params.xml"));
    const QString paths[] = {
        folder.Path("absent.xml"_s),
        folder.Write("cut.xml"_s, sample.left(sample.size() / 2)),
        folder.Write("empty.xml"_s, QByteArray()),
        folder.Write("other.xml"_s, "<SystemConfig CheckValue='1' ProcessorCount='1'/>"),
    };
    const CSenderParams before = project.Sender(0);
    for (const QString& path : paths) {
        EXPECT_EQ(project.Do(kProcessors.load, path), kFailed) << qPrintable(path);
        EXPECT_FALSE(project.Error().isEmpty()) << qPrintable(path);
        for (const auto load : {&CProjectData::ImportSenderParam, &CProjectData::ImportProcessorParam})
            EXPECT_EQ(project.Do(load, path, project.Sender(0).GetId()), kFailed);
    }
    const QString none =
        folder.Write("none.xml"_s, "<DeviceParams CheckValue='1' bSpecifyIP='0' ProcessorCount='0'/>");
    EXPECT_EQ(project.Do(kProcessors.load, none), kFailed);
    EXPECT_TRUE(messages.Take().isEmpty());
    EXPECT_TRUE(project.Sender(0) == before);
}

TEST_F(ParamFileTest, DamagedValuesNeverLeaveARecordThatCannotBeWrittenAndRead)
{
    const char* const kTexts[] = {"",           "-1",   "33",  "4096", "2147483647", "-2147483648",
                                  "4294967296", "1e39", "nan", "x"};
    QRandomGenerator random(20240607);
    int imported = 0;
    for (int round = 0; round < 40; ++round) {
        QDomDocument document;
        ASSERT_TRUE(LoadXmlDom(SamplePath("device-params.xml"), document, nullptr));
        QVector<QDomElement> all{document.documentElement()};
        for (int i = 0; i < all.size(); ++i)
            for (auto child = all[i].firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
                all.append(child);
        for (int damage = 0; damage < 60; ++damage) {
            QDomElement element = all[1 + random.bounded(all.size() - 1)];
            if (element.firstChildElement().isNull() && !element.firstChild().isNull())
                element.firstChild().setNodeValue(
                    QLatin1String(kTexts[random.bounded(int(std::size(kTexts)))]));
            else if (element.tagName() != "Processor_1"_s)
                element.parentNode().removeChild(element);
        }
        TestProject project(1);
        const QString damaged = folder.Write("damaged.xml"_s, document.toByteArray());
        const quint32 result = project.Do(kProcessors.load, damaged);
        EXPECT_TRUE(result == kDone || result == kTypeDiffers || result == kImportFailed) << result;
        imported += result == kDone;

        TestProject again(1);
        for (const FileKind& kind : {kSenders, kProcessors}) {
            const QString path = Export(project, kind);
            const QByteArray first = ReadFile(path);
            ASSERT_EQ(again.Do(kind.load, path), kDone);
            again.Sender(0).SetId(project.Sender(0).GetId());
            EXPECT_EQ(ReadFile(Export(again, kind)), first) << "round " << round;
        }
    }
    EXPECT_GT(imported, 20);
}

TEST_F(ParamFileTest, AddressIsFourDecimalOctetsOrOneNumber)
{
    EXPECT_EQ(GetIntFromOctString("192.168.1.10"_s), 0xC0A8010AU);
    EXPECT_EQ(GetIntFromOctString(" 010.0.0.09\n"_s), 0x0A000009U);
    EXPECT_EQ(GetIntFromOctString("4294967295"_s), 0xFFFFFFFFU);
    for (const char* text :
         {"4294967296", "-1", "+1", "1.2.3", "1.2.3.256", "1.2..4", "1.2.3.4.5", "0x10", ""})
        EXPECT_EQ(GetIntFromOctString(QString::fromLatin1(text)), 0U) << text;
}
