#pragma once

#include "layout/sender.h"
#include "params/elementnames.h"
#include "params/elementreader.h"
#include "params/elementwriter.h"
#include "params/paramresult.h"

/// The blocks about the device as a whole.
namespace params {

constexpr const char* kDeviceType = "DeviceType";
constexpr const char* kBasicRoot = "basicInfoParamsXmlRoot";
constexpr const char* kMultiRoot = "DeviceSetParamsMultiRoot";

template <class F> void Describe(F& f, Ref<F, SVSyncParam> r)
{
    f.Field("DeviceSetParamsVSyncSource", r.syncSource);
    f.Field("DeviceSetParamsVSyncPhase", r.syncPhase);
    f.Field("DeviceSetParamsTimeInterval", r.timeInterval);
    f.Field("DeviceSetParamsBoardType", r.boardType);
    f.Field("DeviceSetParamsBoardIndex", r.boardIndex);
    f.Field("DeviceSetParamsSourceType", r.sourceType);
    f.Field("DeviceSetParamsSlotNum", r.slotNum);
    f.Field("DeviceSetParamsSourceIndex", r.sourceIndex);
    f.Field("DeviceSetParamsCurBoardType", r.curBoardType);
    f.Field("DeviceSetParamsCurBoardIndex", r.curBoardIndex);
    f.Field("DeviceSetParamsCurSourceType", r.curSourceType);
    f.Field("DeviceSetParamsCurSlotNum", r.curSlotNum);
    f.Field("DeviceSetParamsCurSourceIndex", r.curSourceIndex);
    f.Field("DeviceSetParamsCurVSyncFreq", r.curVSyncFreq);
    f.Field("DeviceSetParamsCurGenlockState", r.curGenlockState);
    f.Field("DeviceSetParamsCurGenlockFreq", r.curGenlockFreq);
}

template <class F> void Describe(F& f, Ref<F, SFrameRemapping> r)
{
    f.Field("DeviceSetParamsFrameNum", r.frameNum);
    f.Field("DeviceSetParamsFrameSetting", r.frameSetting);
    f.Field("DeviceSetParamsFrameRlabel", r.rLabel);
    f.Field("DeviceSetParamsFrameGlabel", r.gLabel);
    f.Field("DeviceSetParamsFrameBlabel", r.bLabel);
    f.Field("DeviceSetParamsFrameXlabel", r.xLabel);
    f.Field("DeviceSetParamsFrameYlabel", r.yLabel);
}

template <class F> void Describe(F& f, Ref<F, SFrequencyFrameMultiParam> r)
{
    f.Field("DeviceSetParamsFrequencyFlag", r.frequencyFlag);
    f.Field("DeviceSetParamsFrequencySetting", r.frequencySetting);
    f.Field("DeviceSetParamsFrequencyCount", r.frequencyCount);
    f.Field("DeviceSetParamsFrameFlag", r.frameFlag);
    f.Field("DeviceSetParamsFrameCount", r.frameCount);
    DescribeArray(f, "DeviceSetParamsFrameData", 0, r.frames);
}

template <class F> void Describe(F& f, Ref<F, Sender3D::signal> r)
{
    f.Field("slotNum", r.slotNum);
    f.Field("boardType", r.boardType);
    f.Field("boardIndex", r.boardIndex);
    f.Field("sourceIndex", r.sourceIndex);
    f.Field("sourceType", r.sourceType);
    f.Field("sourecTypeIndex", r.sourceTypeIndex);
}

template <class F> void Describe(F& f, Ref<F, Sender3D> r)
{
    f.Field("Set3DEnable", r.enable);
    f.Negated("Set3DbRightFirt", r.leftEyeFirst);
    f.Field("Set3DDelayTime", r.delayTime);
    f.Field("Set3DMode", r.mode);
    f.Group("Set3DRightEyeOffset", [&] {
        f.Field("OffsetHX", r.offsetX);
        f.Field("OffsetVY", r.offsetY);
        DescribeArray(f, "RightNumber", 1, r.rightNumbers);
    });
    for (int i = 0; i < kLayerSignalPairs; ++i) {
        const auto pair = static_cast<size_t>(i);
        f.Record(FieldName("layerLeftSignal") + i, r.leftSignals[pair]);
        f.Record(FieldName("layerRightSignal") + i, r.rightSignals[pair]);
    }
}

inline void WriteBasicInfo(ElementWriter& writer, const CSender& sender)
{
    writer.Field(kDeviceClass, sender.GetDeviceClass()); // for others; never read back
    writer.Field(kDeviceType, sender.GetProcessorType());
}

/// Compares the processor type in the element `name` with the sender's: kDone, kTypeDiffers, or kImportFailed
/// without that element.
inline quint32 CheckType(ElementReader& reader, const char* name, const CSender& sender)
{
    if (!reader.Has(name))
        return kImportFailed;
    return reader.Value<int>(name) == sender.GetProcessorType() ? kDone : kTypeDiffers;
}

template <class F> void DescribeDeviceSet(F& f, Ref<F, CSender> sender)
{
    Describe(f, sender.Params().vSync);
}

/// The common rows of "AdvancedParam". Those from "VSyncMutiFreq" on depend on features of the processor, so
/// a file may lack them.
template <class Fields, class Data> void DescribeAdvanced(Fields& f, Data& data)
{
    f.Field("VideoSelect", data.videoSelect);
    f.Field("bLowLatency", data.lowLatency);
    f.Field("bFiberOutput", data.fiberOut);
    f.Field("curTestModel", data.curTestModel);
    f.Field("SignalFreq", data.signalFreq);
    f.Field("ColorDepth", data.colorDepth);
    f.Field("FadeTime", data.Picture().fadeTime);
    f.Field("SyncSource", data.syncLockSource);
    f.Field("VSyncFreq", data.vSyncFreq);
    f.Field("LowDelayBoardEnable", data.lowLatencyBoard);
    f.Field("VSyncMutiFreq", data.vSyncMultiFreq, FieldUse::IfPresent);
    f.Field("VSyncMutiWay", data.vSyncMultiWay, FieldUse::IfPresent);
    f.Field("VSyncMutiFlag", data.vSyncMultiFlag, FieldUse::IfPresent);
    f.Field("BetterGray", data.betterGray, FieldUse::IfPresent);
    f.Field("Vsync", data.vSyncDelay, FieldUse::IfPresent);
    f.Field("VirtualPixStatus", data.virtualPixStatus, FieldUse::IfPresent);
    f.Field("VirtualPixRouting", data.virtualPixRouting, FieldUse::IfPresent);
    f.Field("VirtualPixRowOffset", data.virtualPixRowOffset, FieldUse::IfPresent);
    f.Field("VirtualPixColOffset", data.virtualPixColOffset, FieldUse::IfPresent);
    f.Field("PeakBrightnessEnable", data.peakBrightness.enable, FieldUse::IfPresent);
    f.Field("PeakBrightnessSharpen", data.peakBrightness.sharpen, FieldUse::IfPresent);
}

/// What processor files hold behind those, likewise.
template <class Fields, class Data> void DescribeProcessorAdvanced(Fields& f, Data& data)
{
    f.Field("outputOtherParamBlackFade", data.blackoutFadeTime, FieldUse::IfPresent);
    f.Field("outputOtherParamWorkMode", data.deviceMode, FieldUse::IfPresent);
    f.Field("outputOtherParamFiberWorkMode", data.fiberMode, FieldUse::IfPresent);
    f.Field("outputOtherParamHDMIOutput", data.videoOutputMode, FieldUse::IfPresent);
}

} // namespace params
