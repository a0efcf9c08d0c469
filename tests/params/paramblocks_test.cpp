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

struct Block
{
    explicit Block(const QByteArray& content = QByteArray())
    {
        EXPECT_TRUE(ParseXmlDom("<root>" + content + "</root>", document, nullptr));
        root = document.documentElement();
    }
    QByteArray Text() const { return document.toByteArray(-1); }
    QDomElement At(const char* path) const
    {
        QDomElement element = root;
        for (const QString& name : QString::fromLatin1(path).split(QLatin1Char('/')))
            element = element.firstChildElement(name);
        return element;
    }

    QDomDocument document;
    QDomElement root;
};

} // namespace

TEST(ParamBlocksTest, NullArgumentFailsAndWritesNothing)
{
    CSender sender;
    sender.SetInputVideoInfo({SInputVideoParam()});
    Block block;
    QDomDocument& document = block.document;
    const QByteArray before = block.Text();
    // Of two arguments that must be there one is null in turn.
    for (CSender* s : {static_cast<CSender*>(nullptr), &sender}) {
        QDomElement* e = s ? nullptr : &block.root;
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
    EXPECT_EQ(block.Text(), before);
    sender.SetInputVideoInfo({});
    EXPECT_EQ(Project::SaveInputParam(document, &block.root, &sender), kFailed) << "no inputs";
    ASSERT_EQ(Project::WriteSingleProcessorParam(document, &block.root, &sender), kDone);
    EXPECT_TRUE(block.root.firstChildElement("inputParamXmlRoot"_s).firstChild().isNull());
    EXPECT_TRUE(block.At("OutputParamsXmlRoot/OutPortGroupAdjBrightParamXmlRoot").isNull())
        << "no such feature";
}

TEST(ParamBlocksTest, InputsAreWrittenByCardAndReadBackWhereTheyAre)
{
    CSender sender;
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
    Block block;
    ASSERT_EQ(Project::SaveInputParam(block.document, &block.root, &sender), kDone);
    CSender target;
    ASSERT_EQ(Project::LoadInputParam(block.document, &block.root, &target), kDone);
    EXPECT_EQ(target.GetInputVideoInfo(), (QList<SInputVideoParam>{videos[1], videos[0], videos[2]}));
}

TEST(ParamBlocksTest, InputsThatAreAbsentOrIncompleteAreReadAsFarAsTheyGo)
{
    CSender sender;
    Block block("<inputBoardCardCount>2000000000</inputBoardCardCount>"
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
    ASSERT_EQ(Project::LoadInputParam(block.document, &block.root, &sender), kDone);
    const QList<SInputVideoParam> videos = sender.GetInputVideoInfo();
    ASSERT_EQ(videos.size(), 2);
    EXPECT_EQ(videos[0].cardSlot, 4);
    EXPECT_EQ(videos[0].videoIndexOnCard, -1);
    EXPECT_EQ(videos[0].sourceType, 0) << "absent from its part, where no other part repeats it";
    SInputVideoParam expected;
    expected.cropX = -1;
    EXPECT_EQ(videos[1], expected);
}

TEST(ParamBlocksTest, LayersAreWrittenWithoutGapsAndReadIntoFreeEntries)
{
    CSender sender;
    std::array<SLayerWndParam, kMaxLayers> layers;
    for (const size_t i : {3, 7}) {
        layers[i].width = 100;
        layers[i].height = static_cast<int>(i);
    }
    layers[5].width = 100;
    sender.SetLayerInfo(layers.data());
    Block block;
    ASSERT_EQ(Project::SaveOneGroupParam(block.document, &block.root, 0, &sender), kDone);
    EXPECT_EQ(block.At("outputLayerParamRoot0/outputLayerCount").text(), "2"_s);
    EXPECT_EQ(block.At("outputLayerParamRoot0/outputLayerParamRootBase2/outputLayerHeight").text(), "7"_s);

    layers.fill(SLayerWndParam());
    layers[1].width = layers[1].height = 50;
    sender.SetLayerInfo(layers.data());
    QDomElement root = block.root.firstChildElement("outputLayerParamRoot0"_s);
    root.setTagName("outputLayerParamRoot1"_s);
    ASSERT_EQ(Project::LoadOneGroupParam(block.document, &block.root, 1, &sender), kDone);
    sender.GetLayerInfo(layers.data());
    EXPECT_EQ(layers[0].height, 3);
    EXPECT_EQ(layers[1].height, 50);
    EXPECT_EQ(layers[2].height, 7);
    root.setTagName("outputLayerParamRoot0"_s);
    ASSERT_EQ(Project::LoadOneGroupParam(block.document, &block.root, 0, &sender), kDone);
    sender.GetLayerInfo(layers.data());
    EXPECT_EQ(layers[1].height, 7);
    EXPECT_TRUE(layers[2].IsEmpty());

    block.At("outputLayerParamRoot0/outputLayerParamRootBase2/outputLayerHeight")
        .firstChild()
        .setNodeValue("0"_s);
    ASSERT_EQ(Project::LoadOneGroupParam(block.document, &block.root, 0, &sender), kDone);
    sender.GetLayerInfo(layers.data());
    EXPECT_EQ(layers[1], SLayerWndParam()) << "a layer without area is none";
}

TEST(ParamBlocksTest, MoreLayersThanTheTableHoldsAreCut)
{
    QByteArray content = "<outputLayerParamRoot0><outputLayerCount>70</outputLayerCount>";
    for (int i = 1; i <= 70; ++i) {
        const QByteArray name = "outputLayerParamRootBase" + QByteArray::number(i);
        content += "<" + name + "><outputLayerIndex>" + QByteArray::number(i)
                   + "</outputLayerIndex><outputLayerWidth>1</outputLayerWidth>"
                     "<outputLayerHeight>1</outputLayerHeight></"
                   + name + ">";
    }
    Block block(content + "</outputLayerParamRoot0>");
    CSender sender;
    ASSERT_EQ(Project::LoadOneGroupParam(block.document, &block.root, 0, &sender), kDone);
    EXPECT_EQ(sender.Params().layers.back().layerIndex, 64);
}

TEST(ParamBlocksTest, SplitLinesBeyondTheRecordAreNeitherWrittenNorRead)
{
    CSender sender;
    SCuttingLineParam lines;
    lines.show = true;
    lines.horizontalCount = 33;
    sender.SetCuttingLineInfo(lines);
    Block block;
    ASSERT_EQ(Project::SaveOneGroupParam(block.document, &block.root, 0, &sender), kDone);
    EXPECT_TRUE(block.At("outputSpiltLineParamRoot").firstChild().isNull());

    lines.horizontalCount = 1;
    lines.horizontal[0] = 4000000000U;
    sender.SetCuttingLineInfo(lines);
    for (const char* count : {"33", "-1", "2147483647"}) {
        Block hostile("<outputSpiltLineParamRoot><outputSpiltLineVLineCount>" + QByteArray(count)
                      + "</outputSpiltLineVLineCount></outputSpiltLineParamRoot>");
        EXPECT_EQ(Project::LoadOutputSpiltLineParam(hostile.document, &hostile.root, 0, &sender), kDone);
        EXPECT_EQ(sender.GetCuttingLineInfo(), lines) << count;
    }
}

TEST(ParamBlocksTest, PortGroupsTakeNamesAndFlagsOfAnyLength)
{
    CSender sender;
    SSupportOptionsInfo support;
    support.portGroupBrightness = true;
    sender.SetProcessorSupportInfo(support);
    SPortGroupParam groups;
    groups.groupCount = 2;
    sender.SetPortGroupInfo(groups);
    Block block;
    ASSERT_EQ(Project::SaveOutputParam(block.document, &sender, &block.root), kDone);
    const QString base = "OutPortGroupAdjBrightParamXmlRoot/OutPortGroupAdjBrightGroupIndex"_s;
    EXPECT_EQ(block.At(qPrintable(base + "0/OutPortGroupAdjBrightGroupName"_s)).text(), "Group 1"_s);

    const QByteArray longName = QString(22, QChar(0x5C4F)).toUtf8(); // 66 bytes
    Block read("<OutPortGroupAdjBrightParamXmlRoot>"
               "<OutPortGroupAdjBrightGroupCount>2000000000</OutPortGroupAdjBrightGroupCount>"
               "<OutPortGroupAdjBrightGroupIndex7><OutPortGroupAdjBrightGroupName>"
               + longName
               + "</OutPortGroupAdjBrightGroupName>"
                 "<OutPortGroupAdjBrightGroupPortFlag> 1 zz  ff "
               + QByteArray(" 02").repeated(40)
               + "</OutPortGroupAdjBrightGroupPortFlag></OutPortGroupAdjBrightGroupIndex7>"
                 "</OutPortGroupAdjBrightParamXmlRoot>");
    ASSERT_EQ(Project::LoadOutputParam(read.document, &read.root, &sender), kDone);
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

TEST(ParamBlocksTest, HotBackupIsReadFromEitherPlaceAlsoWithoutACountOrAnId)
{
    CSender sender;
    const QByteArray enable = "<outputOtherParamHotBackup>1</outputOtherParamHotBackup>";
    const QByteArray pairs = "<hotbackupCount>9</hotbackupCount><hotbackupId4>7</hotbackupId4>"
                             "<hotbackupMaincutID4>3</hotbackupMaincutID4>"
                             "<hotbackupBackupslotNum8>5</hotbackupBackupslotNum8><hotbackupId9/>";
    for (const QByteArray& values : {enable, enable + pairs}) {
        for (const QByteArray& content :
             {values, "<OtherParam><AdvancedParam>" + values + "</AdvancedParam></OtherParam>"}) {
            sender.SetHotBackupInfo(SInputVideoHotBackup());
            Block block("<SenderType>0</SenderType>" + content);
            ASSERT_EQ(Project::ReadSingleProcessorParam(block.document, &block.root, &sender), kDone);
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

TEST(ParamBlocksTest, LedLuminancesAreReadUnderOneNameOrNumbered)
{
    const QByteArray red = "ColorRedoutputExactColorLedcaliAfter_ledLimu";
    const QByteArray blue = "ColorBlueoutputExactColorLedcaliAfter_ledLimu";
    QByteArray content;
    for (const char* value : {"1", "2", "3"})
        content += "<" + red + ">" + value + "</" + red + ">";
    for (const QByteArray& name : {blue + '0', blue + '1', blue + '2'})
        content += "<" + name + ">" + name.right(1) + "</" + name + ">";
    Block block("<outputExactColorParmXmlRoot>" + content + "</outputExactColorParmXmlRoot>");
    CSender sender;
    ASSERT_EQ(Project::LoadOutputExactColorParam(block.document, &block.root, 0, &sender), kDone);
    const auto read = sender.GetExactColorInfo().afterLedLuminance;
    EXPECT_EQ(read[0], (SExactColorParam::LedLuminance{1, 2, 3}));
    EXPECT_EQ(read[2], (SExactColorParam::LedLuminance{0, 1, 2}));
}

TEST(ParamBlocksTest, ColorEntriesWithoutSourceStandForTheirSlot)
{
    CSender sender;
    sender.SetColorCubeEnable(true, 2, 5);
    sender.SetColorCurveEnable(true, 2, 5);
    Block block;
    Project::SaveColorCubeParam(block.document, &block.root, &sender, false);
    Project::SaveColorCurveParam(block.document, &block.root, &sender, false);
    EXPECT_TRUE(block.At("ColorCubeParamRoot/ColorCubeBoard0/SourceIndex").isNull());
    CSender target;
    ASSERT_EQ(Project::LoadColorCubeParam(block.document, block.root, &target, true), kDone);
    ASSERT_EQ(Project::LoadColorCurveParam(block.document, block.root, &target, true), kDone);
    ASSERT_EQ(target.GetColorCubeParams().size(), 1);
    EXPECT_EQ(target.GetColorCubeParams()[0].sourceIndex, 0);
    EXPECT_FALSE(target.GetColorCubeParams()[0].enable);
    EXPECT_EQ(target.GetColorCurveParams()[0].slotNum, 2);
}

TEST(ParamBlocksTest, CurvePointsAreBelievedAsFarAsTheFileHoldsThem)
{
    Block block("<ColorCurveParamRoot><boardCount>2000000000</boardCount>"
                "<ColorCurveBoard0><SlotNum>1</SlotNum><Red><AdjPointCount>2000000000</AdjPointCount>"
                "<PointX0>0.5</PointX0><PointY1>inf</PointY1><PointX1>1</PointX1><PointY7>3</PointY7></Red>"
                "</ColorCurveBoard0>"
                "</ColorCurveParamRoot>");
    CSender sender;
    ASSERT_EQ(Project::LoadColorCurveParam(block.document, block.root, &sender, true), kDone);
    QList<QPointF> points;
    ASSERT_TRUE(sender.GetColorCurveAdjPoint(ColorCurveRed, points, 1, 0));
    EXPECT_EQ(points, (QList<QPointF>{QPointF(0.5, 0), QPointF(1, 0), QPointF(0, 3)}))
        << "one behind a gap stays, none is made up for it";
}
