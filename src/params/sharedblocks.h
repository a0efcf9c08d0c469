#pragma once

#include "layout/sender.h"
#include "params/elementfields.h"
#include "params/elementnames.h"
#include "params/paramresult.h"

/// What both families of parameter files hold in the same form.
namespace params {

/// Compares the processor type in the child `name` with the sender's: kDone, kTypeDiffers, or kImportFailed
/// without that child.
inline quint32 CheckTypeElement(const QDomElement& element, const char* name, const CSender& sender)
{
    const QDomElement type = element.firstChildElement(QLatin1String(name));
    if (type.isNull())
        return kImportFailed;
    int value = 0;
    paramtext::FromText(type.text(), value);
    return value == sender.GetProcessorType() ? kDone : kTypeDiffers;
}

/// Takes a canvas from a file; (-1, -1) stands for none.
inline void SetCanvas(CSender& sender, int width, int height)
{
    sender.SetCanvasSize(QSize(qBound(-1, width, kMaxCanvasWidth), qBound(-1, height, kMaxCanvasHeight)));
}

/// The split lines below `writer`; an empty element when the record is invalid.
inline void WriteCuttingLines(ElementWriter& writer, const SenderParamData& data)
{
    writer.Group(kCuttingLineRoot, [&] {
        if (data.cuttingLines.IsValid())
            SCuttingLineParam::Walk(writer, data.cuttingLines);
    });
}

/// An absent element, and one with more lines than the record holds, leaves the split lines as they are.
inline void ReadCuttingLines(ElementReader& reader, SenderParamData& data)
{
    reader.Group(kCuttingLineRoot, [&] {
        SCuttingLineParam lines;
        SCuttingLineParam::Walk(reader, lines);
        if (lines.IsValid())
            data.cuttingLines = lines;
    });
}

using Rgb = std::array<quint8, 3>;

inline Rgb RgbOf(const SenderParamData& data)
{
    const QColor& color = data.curColorRgb;
    return {static_cast<quint8>(color.red()), static_cast<quint8>(color.green()),
            static_cast<quint8>(color.blue())};
}

template <class Fields, class Data> void DescribeAudio(Fields& f, Data& data)
{
    f.Group("InputAudioParam", [&] {
        f.Field("InputAudio", data.inputAudio);
        f.Record("InputAudioParamV", data.inputAudioV);
        f.Group("AudioVolumeParam", [&] { f.Field("HeadphoneVolume", data.inputVolume); });
    });
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
