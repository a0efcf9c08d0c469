#include "records/senderparams.h"

#include "support/text.h"

#include <gtest/gtest.h>

TEST(SenderParamsTest, DeviceClass4KeepsPictureValuesOfItsOwn)
{
    CSenderParams params;
    params.SetFadeTime(1.5F);
    params.SetBlackoutFadeTime(2.5F);
    params.SetVSyncFreq(60);
    EXPECT_EQ(params.GetBlackoutFadeTime(), 0.0F);
    params.SetDeviceClass(4);
    EXPECT_EQ(params.GetFadeTime(), 0.0F);
    EXPECT_EQ(params.GetBlackoutFadeTime(), 2.5F);
    EXPECT_EQ(params.GetVSyncFreq(), 0);
}

TEST(SenderParamsTest, NewOnesHaveThePictureOfTheDevice)
{
    const SPictureParam picture = CSenderParams().Params().picture;
    EXPECT_EQ(picture.Values(), std::make_tuple(100, 6500, 3000, 100, 30, 100, 0.F));
    EXPECT_EQ(CSenderParams().Params().curColorRgb, QColor(Qt::black));
}

TEST(SenderParamsTest, RecordsKnowWhatTheyCanHold)
{
    for (const auto& [count, valid] : {std::pair(-1, false), {0, true}, {32, true}, {33, false}}) {
        SCuttingLineParam lines;
        lines.horizontalCount = count;
        EXPECT_EQ(lines.IsValid(), valid) << count;
        std::swap(lines.horizontalCount, lines.verticalCount);
        EXPECT_EQ(lines.IsValid(), valid) << count;
    }
    for (const auto& [width, height, empty] : {std::tuple(0, 1, true), {1, 0, true}, {1, 1, false}}) {
        SLayerWndParam layer;
        layer.width = width;
        layer.height = height;
        EXPECT_EQ(layer.IsEmpty(), empty) << width << height;
    }
}

TEST(SenderParamsTest, WholeSenderEnableIsApartFromTheEntryOfItsInput)
{
    CSenderParams params;
    params.SetColorCubeEnable(true, 0, 0);
    params.SetColorCurveEnable(true, 0, 0);
    EXPECT_TRUE(params.GetColorCubeParams().isEmpty());
    EXPECT_TRUE(params.GetColorCurveParams().isEmpty());
    EXPECT_FALSE(params.GetColorCubeEnable(2, 1));

    params.SetColorCubeEnable(true, 2, 1);
    SInputVideoColorCubeParam cube;
    ASSERT_TRUE(params.GetColorCubeParam(cube, 2, 1));
    EXPECT_TRUE(cube.enable);
    cube.coefs[41] = 7;
    params.SetColorCubeParam(cube);
    EXPECT_EQ(params.GetColorCubeParams(), QList<SInputVideoColorCubeParam>{cube});

    params.Set3DLUTFileName("a.cube"_s, 2, 1);
    EXPECT_EQ(params.Get3DLUTData(2, 1).fileName, "a.cube"_s);
    EXPECT_EQ(params.Get3DLUTData(1, 2).fileName, QString());
}

TEST(SenderParamsTest, ValuesOfAnInputAreApartFromThoseOfOthers)
{
    CSenderParams params;
    const std::pair<int, int> inputs[] = {{2, 1}, {2, 2}, {0, 1}, {1, 0}};
    for (const auto& [slot, source] : inputs) {
        EXPECT_FALSE(params.GetColorCubeEnable(slot, source) || params.GetColorCurveEnable(slot, source)
                     || params.GetColorCurveLock(slot, source) || params.Get3DLUTEnable(slot, source));
        params.SetColorCubeEnable(true, slot, source);
        params.SetColorCurveLock(true, slot, source);
        params.SetColorCurveEnable(true, slot, source);
        for (const int channel : {0, 3})
            params.SetColorCurveAdjPoint(channel, {QPointF(slot, source + channel)}, slot, source);
        params.Set3DLUTEnable(true, slot, source);
        params.Set3DLUTFileTitle(QString::number(slot), slot, source);
        params.Set3DLutStrength(slot + 0.5F, slot, source);
        EXPECT_TRUE(params.GetColorCubeEnable(slot, source) && params.GetColorCurveEnable(slot, source)
                    && params.GetColorCurveLock(slot, source) && params.Get3DLUTEnable(slot, source));
    }
    EXPECT_FALSE(params.GetColorCubeEnable(0, 0) || params.GetColorCurveEnable(0, 0));
    EXPECT_TRUE(params.GetColorCubeParams().size() == 4 && params.GetColorCurveParams().size() == 4);
    for (const auto& [slot, source] : inputs) {
        QList<QPointF> points;
        for (const int channel : {0, 3}) {
            EXPECT_TRUE(params.GetColorCurveAdjPoint(channel, points, slot, source));
            EXPECT_EQ(points, QList<QPointF>{QPointF(slot, source + channel)});
        }
        EXPECT_FALSE(params.GetColorCurveAdjPoint(4, points, slot, source));
        EXPECT_TRUE(points.isEmpty());
        EXPECT_EQ(params.Get3DLUTFileTitle(slot, source), QString::number(slot));
        EXPECT_EQ(params.Get3DLUTStrength(slot, source), slot + 0.5F);
    }

    SInputVideoColorCurveParam curve;
    ASSERT_TRUE(params.GetColorCurveParam(curve, 2, 1));
    curve.points[1] = {QPointF(7, 8)};
    params.SetColorCurveParam(curve);
    SInputVideo3DLUTParam lut = params.Get3DLUTData(2, 2);
    lut.table = {1, 2};
    params.Set3DLUTData(lut);
    EXPECT_EQ(params.GetColorCurveParams()[0], curve);
    EXPECT_EQ(params.Get3DLUTData(2, 2), lut);
    EXPECT_TRUE(params.Get3DLUTData(2, 1).table.isEmpty());
}

TEST(SenderParamsTest, TablesAreCopiedWholeAndEqualValuesAreEqual)
{
    CSenderParams params;
    CSenderParams other;
    std::array<SLayerWndParam, kMaxLayers> layers;
    for (size_t i = 0; i < layers.size(); ++i)
        layers[i].width = static_cast<int>(i) + 1;
    for (CSenderParams* set : {&params, &other}) {
        EXPECT_EQ(params == other, set == &params);
        set->SetLayerInfo(layers.data());
        for (const int index : {0, 9}) {
            SFrameRemapping frame;
            frame.rLabel = static_cast<quint16>(5 + index);
            set->SetFrameSetting(frame, index);
            frame = {};
            set->GetFrameSetting(&frame, index);
            EXPECT_EQ(frame.rLabel, 5 + index);
            set->GetFrameSetting(&frame, 10);
            EXPECT_EQ(frame.rLabel, 5 + index) << "no such frame";
        }
    }
    EXPECT_EQ(params, other);
    std::array<SLayerWndParam, kMaxLayers> read;
    params.GetLayerInfo(read.data());
    EXPECT_EQ(read, layers);
}

TEST(SenderParamsTest, ArgumentsOutOfRangeAndNullTablesChangeNothing)
{
    CSenderParams params;
    const CSenderParams before = params;
    params.SetLayerInfo(nullptr);
    params.GetLayerInfo(nullptr);
    SFrameRemapping frame;
    frame.frameNum = 3;
    params.SetFrameSetting(frame, kFrameRemappings);
    params.SetFrameSetting(frame, -1);
    params.GetFrameSetting(nullptr, 0);
    for (const int channel : {-1, kColorCurveChannels})
        params.SetColorCurveAdjPoint(channel, {QPointF(1, 2)}, 0, 0);
    EXPECT_EQ(params, before);
}
