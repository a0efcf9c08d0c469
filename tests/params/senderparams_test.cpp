#include "records/senderparams.h"

#include "recordwalkers.h"

#include <gtest/gtest.h>

namespace {

template <class... R> int Uncovered(R... records)
{
    return (CoverBytes::Uncovered(records) + ...);
}

} // namespace

// Files and comparisons go by the walks.
TEST(SenderParamsTest, WalksReachEveryFieldOfEveryRecord)
{
    SenderParamData data;
    EXPECT_EQ(CoverBytes::Uncovered(data, sizeof(QSharedData)), 0);
    EXPECT_EQ(Uncovered(SInputVideoParam(), SenderVideoInfo(), SenderVideoInputClip(), SenderEDID(),
                        SenderJointOffset(), SenderBalanced(), SHotBackupPair(), SInputVideoColorCubeParam(),
                        SInputVideoColorCurveParam(), SInputVideo3DLUTParam()),
              0);
}

TEST(SenderParamsTest, DeviceClass4KeepsPictureValuesOfItsOwn)
{
    CSenderParams params;
    EXPECT_EQ(params.GetColorTempValue(), 6500);
    params.SetFadeTime(1.5F);
    params.SetBlackoutFadeTime(2.5F);
    params.SetVSyncFreq(60);
    EXPECT_EQ(params.GetBlackoutFadeTime(), 0.0F);
    EXPECT_EQ(params.GetVSyncFreq(), 60);

    params.SetDeviceClass(4);
    EXPECT_EQ(params.GetColorTempValue(), 0);
    EXPECT_EQ(params.GetFadeTime(), 0.0F);
    EXPECT_EQ(params.GetBlackoutFadeTime(), 2.5F);
    EXPECT_EQ(params.GetVSyncFreq(), 0);
    params.SetBrightness(50);

    params.SetDeviceClass(2);
    EXPECT_EQ(params.GetBrightness(), 100);
    EXPECT_EQ(params.GetFadeTime(), 1.5F);
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
    params.SetColorCurveAdjPoint(kColorCurveChannels, {QPointF(1, 2)}, 0, 0);
    EXPECT_EQ(params, before);
}
