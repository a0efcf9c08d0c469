#include "params/records/senderparams.h"

#include "recordwalkers.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace {

/// One value with its getter and setter.
struct Accessor
{
    const char* name;
    const char* record;                         ///< accessors of one record change together
    std::function<bool(CSenderParams&)> change; ///< whether the getter then gives what was set
    std::function<bool(const CSenderParams&, const CSenderParams&)> same;
};

template <class T, class Argument>
Accessor Row(const char* name, T (CSenderParams::*get)() const, void (CSenderParams::*set)(Argument),
             const char* record = "")
{
    const auto change = [=](CSenderParams& params) {
        T value = (params.*get)();
        ChangeValues().Visit(value);
        (params.*set)(value);
        return (params.*get)() == value;
    };
    const auto same = [=](const CSenderParams& a, const CSenderParams& b) {
        return (a.*get)() == (b.*get)();
    };
    return {name, record, change, same};
}

std::vector<Accessor> Accessors()
{
    using P = CSenderParams;
    return {
        Row("ProcessorType", &P::GetProcessorType, &P::SetProcessorType),
        Row("ExportConfig", &P::IsExportConfig, &P::SetExportConfig),
        Row("Freezed", &P::IsFreezed, &P::SetFreezed),
        Row("ProcessorSupportInfo", &P::GetProcessorSupportInfo, &P::SetProcessorSupportInfo),
        Row("Brightness", &P::GetBrightness, &P::SetBrightness),
        Row("ColorTempValue", &P::GetColorTempValue, &P::SetColorTempValue),
        Row("HueValue", &P::GetHueValue, &P::SetHueValue),
        Row("SatuValue", &P::GetSatuValue, &P::SetSatuValue),
        Row("BrightCompValue", &P::GetBrightCompValue, &P::SetBrightCompValue),
        Row("ContrastValue", &P::GetContrastValue, &P::SetContrastValue),
        Row("FadeTime", &P::GetFadeTime, &P::SetFadeTime),
        Row("Blackout", &P::IsBlackout, &P::SetBlackout),
        Row("PicAdjEnable", &P::IsPicAdjEnable, &P::SetPicAdjEnable),
        Row("AdjByColorTemp", &P::IsAdjByColorTemp, &P::SetAdjByColorTemp),
        Row("BetterGray", &P::IsBetterGray, &P::SetBetterGray),
        Row("CurColorRGB", &P::GetCurColorRGB, &P::SetCurColorRGB),
        Row("CurTestModel", &P::GetCurTestModel, &P::SetCurTestModel),
        Row("PeakBrightnessCoef", &P::GetPeakBrightnessCoef, &P::SetPeakBrightnessCoef, "peak"),
        Row("PeakBrightnessCoefTable", &P::GetPeakBrightnessCoef, &P::SetPeakBrightnessCoefTable, "peak"),
        Row("DynamicBrightnessEnabled", &P::GetDynamicBrightnessEnabled, &P::SetDynamicBrightnessEnabled,
            "peak"),
        Row("DynamicBrightnessSharpen", &P::GetDynamicBrightnessSharpen, &P::SetDynamicBrightnessSharpen,
            "peak"),
        Row("VSyncInfo", &P::GetVSyncInfo, &P::SetVSyncInfo),
        Row("VSyncFreq", &P::GetVSyncFreq, &P::SetVSyncFreq),
        Row("VsyncDelay", &P::GetVsyncDelay, &P::SetVsyncDelay),
        Row("VSyncMultiFreq", &P::GetVSyncMultiFreq, &P::SetVSyncMultiFreq),
        Row("VSyncMultiWay", &P::GetVSyncMultiWay, &P::SetVSyncMultiWay),
        Row("VSyncMultiFlag", &P::GetVSyncMultiFlag, &P::SetVSyncMultiFlag),
        Row("SyncSource", &P::IsSyncSource, &P::SetSyncSource),
        Row("SyncLockSocue", &P::GetSyncLockSocue, &P::SetSyncLockSocue),
        Row("FrequencyFrameMultiParam", &P::GetFrequencyFrameMultiParam, &P::SetFrequencyFrameMultiParam,
            "multi"),
        Row("FrequencyFlag", &P::GetFrequencyFlag, &P::SetFrequencyFlag, "multi"),
        Row("FrequencySetting", &P::GetFrequencySetting, &P::SetFrequencySetting, "multi"),
        Row("FrequencyCount", &P::GetFrequencyCount, &P::SetFrequencyCount, "multi"),
        Row("FrameFlag", &P::GetFrameFlag, &P::SetFrameFlag, "multi"),
        Row("FrameCount", &P::GetFrameCount, &P::SetFrameCount, "multi"),
        Row("3D", &P::Get3D, &P::Set3D, "3D"),
        Row("3DEnable", &P::Get3DEnable, &P::Set3DEnable, "3D"),
        Row("InputVideoInfo", &P::GetInputVideoInfo, &P::SetInputVideoInfo),
        Row("SenderVideoInfo", &P::GetSenderVideoInfo, &P::SetSenderVideoInfo),
        Row("InputClipInfo", &P::GetInputClipInfo, &P::SetInputClipInfo),
        Row("InputEDIDInfo", &P::GetInputEDIDInfo, &P::SetInputEDIDInfo),
        Row("InputJointOffsetInfo", &P::GetInputJointOffsetInfo, &P::SetInputJointOffsetInfo),
        Row("SenderBalancedSetting", &P::GetSenderBalancedSetting, &P::SetSenderBalancedSetting),
        Row("HotBackupInfo", &P::GetHotBackupInfo, &P::SetHotBackupInfo),
        Row("InputAudio", &P::GetInputAudio, &P::SetInputAudio),
        Row("InputAudioV", &P::GetInputAudioV, &P::SetInputAudioV),
        Row("InputVolume", &P::GetInputVolume, &P::SetInputVolume),
        Row("InputRange", &P::GetInputRange, &P::SetInputRange),
        Row("VideoSetInfo", &P::GetVideoSetInfo, &P::SetVideoSetInfo),
        Row("SelVideoSourceIndex", &P::GetSelVideoSourceIndex, &P::SetSelVideoSourceIndex),
        Row("SelSubBoardIndex", &P::GetSelSubBoardIndex, &P::SetSelSubBoardIndex),
        Row("SelSubBoardType", &P::GetSelSubBoardType, &P::SetSelSubBoardType),
        Row("SignalAbnormal", &P::IsSignalAbnormal, &P::SetSignalAbnormal),
        Row("CuttingLineInfo", &P::GetCuttingLineInfo, &P::SetCuttingLineInfo),
        Row("PortGroupInfo", &P::GetPortGroupInfo, &P::SetPortGroupInfo),
        Row("MultiNetPortInfo", &P::GetMultiNetPortInfo, &P::SetMultiNetPortInfo),
        Row("NetPortConfig", &P::GetNetPortConfig, &P::SetNetPortConfig),
        Row("OriginalCanvaWidth", &P::GetOriginalCanvaWidth, &P::SetOriginalCanvaWidth),
        Row("OriginalCanvaHeight", &P::GetOriginalCanvaHeight, &P::SetOriginalCanvaHeight),
        Row("SignalFreq", &P::GetSignalFreq, &P::SetSignalFreq),
        Row("ColorDepth", &P::GetColorDepth, &P::SetColorDepth),
        Row("DeviceMode", &P::GetDeviceMode, &P::SetDeviceMode),
        Row("VideoOutputMode", &P::GetVideoOutputMode, &P::SetVideoOutputMode),
        Row("VirtualPixStatus", &P::GetVirtualPixStatus, &P::SetVirtualPixStatus),
        Row("VirtualPixRouting", &P::GetVirtualPixRouting, &P::SetVirtualPixRouting),
        Row("VirtualPixRowOffset", &P::GetVirtualPixRowOffset, &P::SetVirtualPixRowOffset),
        Row("VirtualPixColOffset", &P::GetVirtualPixColOffset, &P::SetVirtualPixColOffset),
        Row("LowLatency", &P::IsLowLatency, &P::SetLowLatency),
        Row("ZeroLatency", &P::IsZeroLatency, &P::SetZeroLatency),
        Row("LowLatencyBoard", &P::GetLowLatencyBoard, &P::SetLowLatencyBoard),
        Row("Fiberout", &P::IsFiberout, &P::SetFiberout),
        Row("FiberMode", &P::GetFiberMode, &P::SetFiberMode),
        Row("Uh5change", &P::IsUh5change, &P::SetUh5change),
        Row("DMX", &P::GetDMX, &P::SetDMX),
        Row("ExactColorInfo", &P::GetExactColorInfo, &P::SetExactColorInfo, "exact"),
        Row("ExactColor", &P::IsExactColorEnable, &P::SetExactColor, "exact"),
        Row("HDREnable", &P::IsHDREnable, &P::SetHDREnable),
        Row("HDRStatus", &P::GetHDRStatus, &P::SetHDRStatus),
        Row("HDRDynamicCali", &P::IsHDRDynamicCali, &P::SetHDRDynamicCali),
        Row("HDRSetInfo", &P::GetHDRSetInfo, &P::SetHDRSetInfo),
        Row("ColorSpaceTransMode", &P::GetColorSpaceTransMode, &P::SetColorSpaceTransMode),
        Row("ColorCubeParams", &P::GetColorCubeParams, &P::SetColorCubeParams),
        Row("ColorCubeIsAllSignal", &P::GetColorCubeIsAllSignal, &P::SetColorCubeIsAllSignal),
        Row("ColorCubeGamma", &P::GetColorCubeGamma, &P::SetColorCubeGamma),
        Row("ProcessorColorCubeInfo", &P::GetProcessorColorCubeInfo, &P::SetProcessorColorCubeInfo),
        Row("ColorCurveParams", &P::GetColorCurveParams, &P::SetColorCurveParams),
        Row("ColorCurveIsAllSignal", &P::GetColorCurveIsAllSignal, &P::SetColorCurveIsAllSignal),
        Row("ProcessorColorCurveInfo", &P::GetProcessorColorCurveInfo, &P::SetProcessorColorCurveInfo),
    };
}

} // namespace

TEST(SenderParamsTest, SettersChangeWhatTheirGettersGiveAndNothingElse)
{
    const std::vector<Accessor> accessors = Accessors();
    const CSenderParams fresh;
    for (const Accessor& accessor : accessors) {
        CSenderParams params;
        EXPECT_TRUE(accessor.change(params)) << accessor.name;
        EXPECT_FALSE(accessor.same(params, fresh)) << accessor.name;
        const bool alone = *accessor.record == '\0';
        for (const Accessor& other : accessors) {
            if (&other != &accessor && (alone || qstrcmp(other.record, accessor.record) != 0)) {
                EXPECT_TRUE(other.same(params, fresh)) << accessor.name << " changes " << other.name;
            }
        }
    }
}

TEST(SenderParamsTest, CopyEqualsItsSourceUntilAnyValueDiffers)
{
    CSenderParams source;
    ChangeValues fill;
    fill.Visit(source.Params());
    ASSERT_GT(fill.Count(), 1000);

    for (int value = 0; value < fill.Count(); ++value) {
        CSenderParams copy = source;
        ASSERT_EQ(copy, source);
        ChangeValues(value).Visit(copy.Params());
        EXPECT_NE(copy, source) << "value " << value;
        EXPECT_NE(CSenderParams(copy), source);
    }
}

TEST(SenderParamsTest, WalksReachEveryFieldOfEveryRecord)
{
    SenderParamData data;
    ChangeValues().Visit(data);
    EXPECT_EQ(CoverBytes::Uncovered(data, sizeof(QSharedData)), 0);
    EXPECT_EQ(CoverBytes::Uncovered(data.inputVideos[0]), 0);
    EXPECT_EQ(CoverBytes::Uncovered(data.videoInfos[0]), 0);
    EXPECT_EQ(CoverBytes::Uncovered(data.inputClips[0]), 0);
    EXPECT_EQ(CoverBytes::Uncovered(data.inputEdids[0]), 0);
    EXPECT_EQ(CoverBytes::Uncovered(data.inputJoints[0]), 0);
    EXPECT_EQ(CoverBytes::Uncovered(data.balanced[0]), 0);
    EXPECT_EQ(CoverBytes::Uncovered(data.hotBackup.pairs[0]), 0);
    EXPECT_EQ(CoverBytes::Uncovered(data.cubes[0]), 0);
    EXPECT_EQ(CoverBytes::Uncovered(data.curves[0]), 0);
    EXPECT_EQ(CoverBytes::Uncovered(data.luts[0]), 0);
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
