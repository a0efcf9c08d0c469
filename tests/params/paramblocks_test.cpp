#include "common/xmldom.h"
#include "layout/sender.h"
#include "params/paramresult.h"
#include "params/paramtext.h"
#include "project/projectdata.h"
#include "support/text.h"

#include <gtest/gtest.h>

using namespace params;
using Project = CProjectData;

namespace {

struct ParamBlocksTest : testing::Test
{
    ParamBlocksTest() { Parse(QByteArray()); }

    void Parse(const QByteArray& content)
    {
        EXPECT_TRUE(ParseXmlDom("<root>" + content + "</root>", document, nullptr));
        root = document.documentElement();
    }
    QDomElement At(const char* path) const
    {
        QDomElement element = root;
        for (const QString& name : QString::fromLatin1(path).split(QLatin1Char('/')))
            element = element.firstChildElement(name);
        return element;
    }

    QDomDocument document;
    QDomElement root;
    CSender sender;
};

} // namespace

TEST_F(ParamBlocksTest, NullArgumentFailsAndWritesNothing)
{
    sender.SetInputVideoInfo({SInputVideoParam()});
    const QByteArray before = document.toByteArray();
    // Of two arguments that must be there one is null in turn.
    for (CSender* s : {static_cast<CSender*>(nullptr), &sender}) {
        QDomElement* e = s ? nullptr : &root;
        QDomElement null = e ? *e : QDomElement();
        const quint32 results[] = {Project::SaveBasicInfoParam(document, s, e),
                                   Project::LoadBasicInfoParam(document, e, s),
                                   Project::LoadMultiParam(document, null, s),
                                   Project::LoadOneGroupParam(document, e, 0, s),
                                   Project::SaveColorCubeParam(document, e, s, true),
                                   Project::WriteSingleSenderParam(document, e, s),
                                   Project::WriteSingleProcessorParam(document, e, s)};
        for (const quint32& result : results)
            EXPECT_EQ(result, kFailed) << (&result - results) << (s ? " element" : " sender");
        EXPECT_EQ(Project::LoadInputParam(document, e, s), 1U);
        EXPECT_EQ(Project::ReadSingleSenderParam(document, e, s), kImportFailed);
        EXPECT_EQ(Project::ReadSingleProcessorParam(document, e, s), kImportFailed);
    }
    EXPECT_EQ(document.toByteArray(), before);
    sender.SetInputVideoInfo({});
    EXPECT_EQ(Project::SaveInputParam(document, &root, &sender), kFailed) << "no inputs";
    ASSERT_EQ(Project::WriteSingleProcessorParam(document, &root, &sender), kDone);
    EXPECT_TRUE(At("inputParamXmlRoot").firstChild().isNull());
    EXPECT_TRUE(At("OutputParamsXmlRoot/OutPortGroupAdjBrightParamXmlRoot").isNull()) << "no such feature";
}

TEST_F(ParamBlocksTest, BlocksOfTheDeviceReadBackAlone)
{
    SVSyncParam sync;
    sync.syncPhase = 3;
    sender.SetVSyncInfo(sync);
    sender.SetFrameCount(4);
    sender.Set3DEnable(true);
    sender.SetBrightness(5);
    Project::SaveDeviceSetParam(document, &root, &sender);
    Project::SaveMultiParam(document, &root, &sender);
    Project::Save3DParam(document, &root, &sender);
    Project::SaveOneGroupParam(document, &root, 0, &sender);
    CSender target;
    Project::LoadDeviceSetParam(document, &root, &target);
    Project::LoadMultiParam(document, root, &target);
    Project::Load3DParam(document, root, &target);
    Project::LoadOutputColorBrightParam(document, &root, 0, &target);
    EXPECT_EQ(static_cast<CSenderParams&>(target), sender);
}

TEST_F(ParamBlocksTest, InputsAreWrittenByCardAndReadBackWhereTheyAre)
{
    QList<SInputVideoParam> videos;
    for (const int slot : {5, 2, 5}) {
        SInputVideoParam video;
        video.cardSlot = slot;
        video.videoIndexOnCard = videos.size();
        video.cropX = -7;
        video.name = "摄像机 <%1>"_s.arg(slot);
        videos.append(video);
    }
    sender.SetInputVideoInfo(videos);
    ASSERT_EQ(Project::SaveInputParam(document, &root, &sender), kDone);
    CSender target;
    ASSERT_EQ(Project::LoadInputParam(document, &root, &target), kDone);
    EXPECT_EQ(target.GetInputVideoInfo(), (QList<SInputVideoParam>{videos[1], videos[0], videos[2]}));
}

TEST_F(ParamBlocksTest, InputsThatAreAbsentOrIncompleteAreReadAsFarAsTheyGo)
{
    Parse("<inputBoardCardCount>2000000000</inputBoardCardCount>"
          "<inputBoardOneCardParmXmlRootBase3><inputBoardVideoCountOnCard>2000000000"
          "</inputBoardVideoCountOnCard>"
          "<inputBoardOneVideoParmXmlRootBase9><inputVideoCropParamXmlRoot>"
          "<inputVideoCropX>65535</inputVideoCropX><inputVideoCropY>nine</inputVideoCropY>"
          "</inputVideoCropParamXmlRoot></inputBoardOneVideoParmXmlRootBase9>"
          "<inputBoardOneVideoParmXmlRootBase2><inputVideoSignalParamXmlRoot>"
          "<inputVideoSignalVideoCardSlot>4</inputVideoSignalVideoCardSlot>"
          "</inputVideoSignalParamXmlRoot></inputBoardOneVideoParmXmlRootBase2>"
          "<inputBoardOneVideoParmXmlRootBase02/>"
          "</inputBoardOneCardParmXmlRootBase3>");
    ASSERT_EQ(Project::LoadInputParam(document, &root, &sender), kDone);
    const QList<SInputVideoParam> videos = sender.GetInputVideoInfo();
    ASSERT_EQ(videos.size(), 2);
    EXPECT_EQ(videos[0].cardSlot, 4);
    EXPECT_EQ(videos[0].videoIndexOnCard, -1);
    EXPECT_EQ(videos[0].sourceType, 0) << "absent from its part, where no other part repeats it";
    SInputVideoParam expected;
    expected.cropX = -1;
    EXPECT_EQ(videos[1], expected);
}

TEST_F(ParamBlocksTest, LayersAreWrittenWithoutGapsAndReadIntoFreeEntries)
{
    std::array<SLayerWndParam, kMaxLayers> layers;
    for (const size_t i : {3, 5, 7}) {
        layers[i].width = 100;
        layers[i].height = i == 5 ? 0 : static_cast<int>(i);
    }
    sender.SetLayerInfo(layers.data());
    ASSERT_EQ(Project::SaveOneGroupParam(document, &root, 0, &sender), kDone);
    EXPECT_EQ(At("outputLayerParamRoot0/outputLayerCount").text(), "2"_s);
    EXPECT_EQ(At("outputLayerParamRoot0/outputLayerParamRootBase2/outputLayerHeight").text(), "7"_s);

    layers.fill(SLayerWndParam());
    layers[1].width = layers[1].height = 50;
    sender.SetLayerInfo(layers.data());
    const auto& read = sender.Params().layers;
    QDomElement group = At("outputLayerParamRoot0");
    group.setTagName("outputLayerParamRoot1"_s);
    ASSERT_EQ(Project::LoadOneGroupParam(document, &root, 1, &sender), kDone);
    EXPECT_TRUE(read[0].height == 3 && read[1].height == 50 && read[2].height == 7);
    group.setTagName("outputLayerParamRoot0"_s);
    ASSERT_EQ(Project::LoadOneGroupParam(document, &root, 0, &sender), kDone);
    EXPECT_TRUE(read[1].height == 7 && read[2].IsEmpty());

    At("outputLayerParamRoot0/outputLayerParamRootBase2/outputLayerHeight").firstChild().setNodeValue("0"_s);
    ASSERT_EQ(Project::LoadOneGroupParam(document, &root, 0, &sender), kDone);
    EXPECT_EQ(read[1], SLayerWndParam()) << "a layer without area is none";
}

TEST_F(ParamBlocksTest, MoreLayersThanTheTableHoldsAreCut)
{
    const QString layer = "<outputLayerParamRootBase%1><outputLayerIndex>%1</outputLayerIndex>"
                          "<outputLayerWidth>1</outputLayerWidth><outputLayerHeight>1</outputLayerHeight>"
                          "</outputLayerParamRootBase%1>"_s;
    QByteArray content = "<outputLayerCount>70</outputLayerCount>";
    for (int i = 1; i <= 70; ++i)
        content += layer.arg(i).toUtf8();
    Parse("<outputLayerParamRoot0>" + content + "</outputLayerParamRoot0>");
    ASSERT_EQ(Project::LoadOneGroupParam(document, &root, 0, &sender), kDone);
    EXPECT_EQ(sender.Params().layers.back().layerIndex, 64);
}

TEST_F(ParamBlocksTest, SplitLinesBeyondTheRecordAreNeitherWrittenNorRead)
{
    SCuttingLineParam lines;
    lines.show = true;
    lines.horizontalCount = 33;
    sender.SetCuttingLineInfo(lines);
    ASSERT_EQ(Project::SaveOneGroupParam(document, &root, 0, &sender), kDone);
    EXPECT_TRUE(At("outputSpiltLineParamRoot").firstChild().isNull());

    lines.horizontalCount = 1;
    lines.horizontal[0] = 4000000000U;
    sender.SetCuttingLineInfo(lines);
    QDomElement own = document.createElement("own"_s);
    ASSERT_EQ(Project::SaveOneGroupParam(document, &own, 0, &sender), kDone);
    CSender target;
    ASSERT_EQ(Project::LoadOutputSpiltLineParam(document, &own, 0, &target), kDone);
    EXPECT_EQ(target.GetCuttingLineInfo(), lines);
    for (const char* count : {"33", "-1", "2147483647"}) {
        Parse("<outputSpiltLineParamRoot><outputSpiltLineVLineCount>" + QByteArray(count)
              + "</outputSpiltLineVLineCount></outputSpiltLineParamRoot>");
        EXPECT_EQ(Project::LoadOutputSpiltLineParam(document, &root, 0, &sender), kDone);
        EXPECT_EQ(sender.GetCuttingLineInfo(), lines) << count;
    }
}

TEST_F(ParamBlocksTest, AreasOfPortsAreTakenAsFarAsACanvasMayLie)
{
    Parse("<OutNetPortParamXmlRoot><OutNetPortAreaCount>1</OutNetPortAreaCount><OutNetPortAreaBase0>"
          "<OutNetPortAreaX>-2000000000</OutNetPortAreaX><OutNetPortAreaY>1048575</OutNetPortAreaY>"
          "<OutNetPortAreaWidth>2000000000</OutNetPortAreaWidth></OutNetPortAreaBase0></"
          "OutNetPortParamXmlRoot>");
    ASSERT_EQ(Project::LoadVideoOutParam(document, &root, &sender), kDone);
    EXPECT_EQ(sender.GetPort(0)->GetPortArea(), QRect(-1048576, 1048575, 1048576, 0));
}

TEST_F(ParamBlocksTest, CanvasIsTakenAsFarAsItGoes)
{
    const QString canvas = "<outputSpliceInfoParamRoot><outputSpliceInfoCanvasWidth>%1"
                           "</outputSpliceInfoCanvasWidth><outputSpliceInfoCanvasHeight>%2"
                           "</outputSpliceInfoCanvasHeight></outputSpliceInfoParamRoot>"_s;
    const QSize sizes[][2] = {{{-2, -1}, {-1, -1}},
                              {{32768, 16384}, {32768, 16384}},
                              {{32769, 7}, {32768, 7}},
                              {{7, 16385}, {7, 16384}},
                              {{7, -2}, {7, -1}}};
    for (const auto& [given, taken] : sizes) {
        Parse(canvas.arg(given.width()).arg(given.height()).toUtf8());
        ASSERT_EQ(Project::LoadOneGroupParam(document, &root, 0, &sender), kDone);
        EXPECT_EQ(sender.GetCanvasSize(), taken);
    }
}

TEST_F(ParamBlocksTest, PortGroupsTakeNamesAndFlagsOfAnyLength)
{
    SSupportOptionsInfo support;
    support.portGroupBrightness = true;
    sender.SetProcessorSupportInfo(support);
    SPortGroupParam groups;
    groups.groupCount = 2;
    sender.SetPortGroupInfo(groups);
    ASSERT_EQ(Project::SaveOutputParam(document, &sender, &root), kDone);
    const QString base = "OutPortGroupAdjBrightParamXmlRoot/OutPortGroupAdjBrightGroupIndex"_s;
    EXPECT_EQ(At(qPrintable(base + "0/OutPortGroupAdjBrightGroupName"_s)).text(), "Group 1"_s);

    const QByteArray longName = QString(22, QChar(0x5C4F)).toUtf8(); // 66 bytes
    Parse("<OutPortGroupAdjBrightParamXmlRoot>"
          "<OutPortGroupAdjBrightGroupCount>2000000000</OutPortGroupAdjBrightGroupCount>"
          "<OutPortGroupAdjBrightGroupIndex7><OutPortGroupAdjBrightGroupName>"
          + longName
          + "</OutPortGroupAdjBrightGroupName>"
            "<OutPortGroupAdjBrightGroupPortFlag> 1 zz  ff "
          + QByteArray(" 02").repeated(40)
          + "</OutPortGroupAdjBrightGroupPortFlag></OutPortGroupAdjBrightGroupIndex7>"
            "</OutPortGroupAdjBrightParamXmlRoot>");
    ASSERT_EQ(Project::LoadOutputParam(document, &root, &sender), kDone);
    groups = sender.GetPortGroupInfo();
    EXPECT_EQ(groups.groupCount, 8);
    EXPECT_EQ(QByteArray(groups.groups[7].name.data()), longName.left(63));
    EXPECT_EQ(groups.groups[7].portFlags[0], 1);
    EXPECT_EQ(groups.groups[7].portFlags[1], 0);
    EXPECT_EQ(groups.groups[7].portFlags[2], 0xFF);
    EXPECT_EQ(groups.groups[7].portFlags[31], 2);
    paramtext::FromText("a"_s + QString(21, QChar(0x5C4F)), groups.groups[0].name);
    EXPECT_EQ(qstrlen(groups.groups[0].name.data()), 61U) << "no half character";
}

TEST_F(ParamBlocksTest, HotBackupIsReadFromEitherPlaceAlsoWithoutACountOrAnId)
{
    const QByteArray enable = "<outputOtherParamHotBackup>1</outputOtherParamHotBackup>";
    const QByteArray pairs = "<hotbackupCount>9</hotbackupCount><hotbackupId4>7</hotbackupId4>"
                             "<hotbackupMaincutID4>3</hotbackupMaincutID4>"
                             "<hotbackupBackupslotNum8>5</hotbackupBackupslotNum8><hotbackupId9/>";
    for (const QByteArray& values : {enable, enable + pairs}) {
        for (const QByteArray& content :
             {values, "<OtherParam><AdvancedParam>" + values + "</AdvancedParam></OtherParam>"}) {
            sender.SetHotBackupInfo(SInputVideoHotBackup());
            Parse("<SenderType>0</SenderType>" + content);
            ASSERT_EQ(Project::ReadSingleProcessorParam(document, &root, &sender), kDone);
            const SInputVideoHotBackup backup = sender.GetHotBackupInfo();
            EXPECT_TRUE(backup.enable) << content.constData();
            ASSERT_EQ(backup.pairs.size(), values == enable ? 0 : 2) << content.constData();
            if (!backup.pairs.isEmpty()) {
                EXPECT_EQ(backup.pairs[0].main.cutId, 3);
                EXPECT_EQ(backup.pairs[1].id, 0) << "no id element";
                EXPECT_EQ(backup.pairs[1].backup.slotNum, 5);
            }
        }
    }
}

TEST_F(ParamBlocksTest, LedLuminancesAreReadUnderOneNameOrNumbered)
{
    const QByteArray red = "ColorRedoutputExactColorLedcaliAfter_ledLimu";
    const QByteArray blue = "ColorBlueoutputExactColorLedcaliAfter_ledLimu";
    QByteArray content;
    for (const char* value : {"1", "2", "3"})
        content += "<" + red + ">" + value + "</" + red + ">";
    for (const QByteArray& name : {blue + '0', blue + '1', blue + '2'})
        content += "<" + name + ">" + name.right(1) + "</" + name + ">";
    Parse("<outputExactColorParmXmlRoot>" + content + "</outputExactColorParmXmlRoot>");
    ASSERT_EQ(Project::LoadOutputExactColorParam(document, &root, 0, &sender), kDone);
    const auto read = sender.GetExactColorInfo().afterLedLuminance;
    EXPECT_EQ(read[0], (SExactColorParam::LedLuminance{1, 2, 3}));
    EXPECT_EQ(read[2], (SExactColorParam::LedLuminance{0, 1, 2}));
}

TEST_F(ParamBlocksTest, ColorEntriesWithoutSourceStandForTheirSlot)
{
    sender.SetColorCubeEnable(true, 2, 5);
    sender.SetColorCurveEnable(true, 2, 5);
    Project::SaveColorCubeParam(document, &root, &sender, false);
    Project::SaveColorCurveParam(document, &root, &sender, false);
    EXPECT_TRUE(At("ColorCubeParamRoot/ColorCubeBoard0/SourceIndex").isNull());
    CSender target;
    ASSERT_EQ(Project::LoadColorCubeParam(document, root, &target, true), kDone);
    ASSERT_EQ(Project::LoadColorCurveParam(document, root, &target, true), kDone);
    ASSERT_EQ(target.GetColorCubeParams().size(), 1);
    EXPECT_EQ(target.GetColorCubeParams()[0].sourceIndex, 0);
    EXPECT_FALSE(target.GetColorCubeParams()[0].enable);
    EXPECT_EQ(target.GetColorCurveParams()[0].slotNum, 2);
    target.SetProcessorColorCurveInfo(target.GetColorCurveParams()[0]);
    EXPECT_EQ(target.GetProcessorColorCurveInfo().slotNum, 2);
}

TEST_F(ParamBlocksTest, CurvePointsAreBelievedAsFarAsTheFileHoldsThem)
{
    Parse("<ColorCurveParamRoot><boardCount>2000000000</boardCount>"
          "<ColorCurveBoard0><SlotNum>1</SlotNum><Red><AdjPointCount>2000000000</AdjPointCount>"
          "<PointX0>0.5</PointX0><PointY1>inf</PointY1><PointX1>1</PointX1><PointY7>3</PointY7></Red>"
          "</ColorCurveBoard0>"
          "</ColorCurveParamRoot>");
    ASSERT_EQ(Project::LoadColorCurveParam(document, root, &sender, true), kDone);
    QList<QPointF> points;
    ASSERT_TRUE(sender.GetColorCurveAdjPoint(ColorCurveRed, points, 1, 0));
    EXPECT_EQ(points, (QList<QPointF>{QPointF(0.5, 0), QPointF(1, 0), QPointF(0, 3)}))
        << "one behind a gap stays, none is made up for it";
}
