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
