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

TEST(SenderParamsTest, LinesAreValidUpTo32OnAnAxis)
{
    for (const auto& [count, valid] : {std::pair(-1, false), {0, true}, {32, true}, {33, false}}) {
        SCuttingLineParam lines;
        lines.horizontalCount = count;
        EXPECT_EQ(lines.IsValid(), valid) << count;
        std::swap(lines.horizontalCount, lines.verticalCount);
        EXPECT_EQ(lines.IsValid(), valid) << count;
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
        EXPECT_FALSE(params.GetColorCurveLock(slot, source) || params.Get3DLUTEnable(slot, source));
        params.SetColorCurveLock(true, slot, source);
        params.SetColorCurveEnable(true, slot, source);
        params.SetColorCurveAdjPoint(3, {QPointF(slot, source)}, slot, source);
        params.Set3DLUTEnable(true, slot, source);
        params.Set3DLutStrength(float(slot) + 0.5F, slot, source);
    }
    EXPECT_FALSE(params.GetColorCurveEnable(0, 0));
    EXPECT_EQ(params.GetColorCurveParams().size(), 4);
    for (const auto& [slot, source] : inputs) {
        QList<QPointF> points;
        EXPECT_TRUE(params.GetColorCurveAdjPoint(3, points, slot, source));
        EXPECT_EQ(points, QList<QPointF>{QPointF(slot, source)});
        EXPECT_FALSE(params.GetColorCurveAdjPoint(4, points, slot, source) || !points.isEmpty());
        EXPECT_TRUE(params.GetColorCurveLock(slot, source) && params.Get3DLUTEnable(slot, source));
        EXPECT_EQ(params.Get3DLUTStrength(slot, source), float(slot) + 0.5F);
    }
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
