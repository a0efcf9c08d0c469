#include "layout/sender.h"
#include "params/deviceblocks.h"
#include "params/inputblocks.h"
#include "params/outputblocks.h"
#include "params/paramfile.h"

namespace params {

template <class F> void Describe(F& f, Ref<F, SenderVideoInfo> r)
{
    f.Field("InputNum", r.inputNum);
    f.Field("Flags", r.flags);
}

template <class F> void Describe(F& f, Ref<F, SenderVideoInputClip> r)
{
    f.Field("InputNum", r.inputNum);
    f.Field("bClip", r.clip);
    f.Field("bEdgeBlack", r.edgeBlack);
    f.Field("X", r.x);
    f.Field("Y", r.y);
    f.Field("Width", r.width);
    f.Field("Height", r.height);
}

template <class F> void Describe(F& f, Ref<F, SenderJointOffset::Dvi> r)
{
    f.Field("DVIInputNum", r.inputNum);
    f.Field("CropFlags", r.cropFlags);
    f.Field("DVIXSrc", r.xSource);
    f.Field("DVIYSrc", r.ySource);
    f.Field("DVIXDes", r.xTarget);
    f.Field("DVIYDes", r.yTarget);
    f.Field("Width", r.width);
    f.Field("Height", r.height);
}

template <class F> void Describe(F& f, Ref<F, SenderJointOffset> r)
{
    f.Field("JointInputNum", r.inputNum);
    f.Field("JointDesWidth", r.targetWidth);
    f.Field("JointDesHeight", r.targetHeight);
    f.Field("VideoCnt", r.videoCount);
    DescribeArray(f, "DVI", 1, r.inputs);
}

template <class F> void Describe(F& f, Ref<F, SenderEDID> r)
{
    f.Field("InputNum", r.inputNum);
    f.Field("Width", r.width);
    f.Field("Height", r.height);
    f.Field("Rate", r.rate);
    f.Field("RateConversion", r.rateConversion);
    f.Field("Standard", r.standard);
    f.Field("PCLink", r.pcLink);
    f.Field("NoteByCal", r.noteByCal);
}

template <class F>
void DescribeChannel(F& f, const char* channel, const char* max, const char* min,
                     Ref<F, SenderDMX::Channel> r)
{
    f.Field(channel, r.channel);
    f.Field(max, r.max);
    f.Field(min, r.min);
}

template <class F>
void DescribeSwitch(F& f, const char* group, const char* enable, const char* channel,
                    Ref<F, SenderDMX::Switch> r)
{
    f.Group(group, [&] {
        f.Field(enable, r.enable);
        f.Field(channel, r.channel);
    });
}

template <class F> void Describe(F& f, Ref<F, SenderDMX> r)
{
    f.Field("ArtNetAddress", r.artNetAddress);
    f.Field("NetAddress", r.netAddress);
    f.Field("SubNetAddress", r.subNetAddress);
    f.Field("Universe", r.universe);
    f.Group("Bright", [&] {
        f.Field("BrightEnable", r.brightEnable);
        DescribeChannel(f, "BrightChannel", "BrightMax", "BrightMin", r.bright);
    });
    f.Group("QColor", [&] {
        f.Field("RGBEnable", r.rgbEnable);
        DescribeChannel(f, "RChannel", "RMax", "RMin", r.red);
        DescribeChannel(f, "GChannel", "GMax", "GMin", r.green);
        DescribeChannel(f, "BChannel", "BMax", "BMin", r.blue);
    });
    f.Group("ColorTemperature", [&] {
        f.Field("ColorTempEnable", r.colorTempEnable);
        DescribeChannel(f, "ColorTempChannel", "ColorTempMax", "ColorTempMin", r.colorTemp);
    });
    DescribeSwitch(f, "TestMode", "TestModeEnable", "TestModeChannel", r.testMode);
    DescribeSwitch(f, "Hue", "HueEnable", "HueChannel", r.hue);
    // The last name is what files in the field have.
    DescribeSwitch(f, "Saturation", "SaturationEnable", "HueChanSaturationChannelnel", r.saturation);
    DescribeSwitch(f, "Contrast", "ContrastEnable", "ContrastChannel", r.contrast);
}

namespace {

/// A layer under names of this family's own.
template <class F> void DescribeLayer(F& f, Ref<F, SLayerWndParam> r)
{
    f.Field("sourceType", r.sourceType);
    f.Field("slotNum", r.cardSlot);
    f.Field("sourceIndex", r.videoIndexOnCard);
    f.Field("bShowTitle", r.showTitle);
    f.Field("wndSizeState", r.wndSizeState);
    f.Field("Alpha", r.alpha);
    f.Field("Scaler", r.scaler);
    f.Field("X", r.x);
    f.Field("Y", r.y);
    f.Field("Width", r.width);
    f.Field("Height", r.height);
    f.Field("originalX", r.originalX);
    f.Field("originalY", r.originalY);
    f.Field("originalWidth", r.originalWidth);
    f.Field("originalHeight", r.originalHeight);
}

template <class F> void DescribeOutputPart(F& f, Ref<F, CSender> sender)
{
    f.Group("OutputParam", [&] {
        QList<SLayerWndParam> layers = UsedLayers(sender.Params());
        f.Each("Layer", layers, [&f](auto& layer) { DescribeLayer(f, layer); });
        if constexpr (F::kReads)
            TakeLayers(layers, true, sender.Params());
        DescribeCanvas(f, "CanvasSizeW", "CanvasSizeH", sender);
        DescribeCuttingLines(f, sender);
    });
}

/// The exact colours as this family names them.
template <class F> void DescribeHdrPrimaries(F& f, Ref<F, SExactColorParam> r)
{
    static const char* const kNames[kColorPrimaries] = {"HDRRed", "HDRGreen", "HDRBlue", "HDRWrite"};
    for (size_t c = 0; c < kColorPrimaries; ++c) {
        f.Group(kNames[c], [&] {
            f.Field("HDRClrAndLumin", r.afterLedLuminance[c][0]);
            f.Field("HDRClrAndLuminX", r.afterLedLuminance[c][1]);
            f.Field("HDRClrAndLuminY", r.afterLedLuminance[c][2]);
            f.Field("HDRClrSpaceX", r.target[c].x);
            f.Field("HDRClrSpaceY", r.target[c].y);
        });
    }
    f.Field("CaliPreScreenMode", r.preMode);
    static const char* const kColors[kColorPrimaries] = {"Red", "Green", "Blue", "White"};
    for (size_t c = 0; c < kColorPrimaries; ++c) {
        const std::string name = std::string("CaliPreScreen") + kColors[c];
        f.Field(name + "_L", r.pre[c].luminance);
        f.Field(name + "_X", r.pre[c].x);
        f.Field(name + "_Y", r.pre[c].y);
    }
}

template <class F, class Data> void DescribeHdr(F& f, Data& data)
{
    f.Group("HDRSet", [&] {
        f.Field("HDROnOff", data.hdrEnable);
        f.Field("NewHdrState", data.hdrStatus);
        f.Field("HDRClrTrans", data.colorSpaceTransMode);
        f.Field("bHDRDynamicCali", data.hdrDynamicCali);
        f.Field("HDRClrMode", data.exactColor.outputSpaceMode);
        f.Field("HDRKnown", data.hdrSet.known);
        f.Field("HDREnableExactColorManage", data.exactColor.enable);
        f.Field("HDRLedBrightness", data.hdrSet.ledBrightness);
        DescribeHdrPrimaries(f, data.exactColor);
    });
}

template <class F, class Data> void DescribePicture(F& f, Data& data)
{
    f.Group("PictureParam", [&] {
        f.Group("Brightness", [&] {
            f.Group("BrightParam", [&] {
                f.Field("SCBright", data.Picture().brightness);
                f.Field("SCColorTemp", data.Picture().colorTemp);
                f.Field("bAdjByColorTemp", data.adjByColorTemp);
                const QColor before = data.curColorRgb;
                DescribeRgb(f, "curColorRGB_R", "curColorRGB_G", "curColorRGB_B", data.curColorRgb);
                if constexpr (F::kReads)
                    if (data.curColorRgb.rgb() == before.rgb())
                        data.curColorRgb = before; // of which the file has a part alone
            });
            f.Group("PortBright", [&] { f.List("Port", data.netPorts); });
        });
    });
}

/// The groups one behind the other, without elements around them.
template <class F, class Data> void DescribePortGroups(F& f, Data& data)
{
    f.Group("PortGroupParam", [&] {
        SPortGroupParam groups = F::kReads ? SPortGroupParam() : data.portGroups;
        groups.groupCount = qBound(0, groups.groupCount, kMaxPortGroups);
        f.Field("bEnablePortGroup", groups.enable);
        f.Field("ValidPortCount", groups.groupCount);
        groups.groupCount = qBound(0, groups.groupCount, kMaxPortGroups);
        for (int g = 0; g < groups.groupCount; ++g) {
            SPortGroup& group = groups.groups[static_cast<size_t>(g)];
            f.Repeated("GroupName", g, group.name);
            f.Repeated("Bright", g, group.bright);
            f.Repeated("GroupFlag", g, group.portFlags);
        }
        if constexpr (F::kReads)
            data.portGroups = groups;
    });
}

/// `data` is the sender's, or what is to be written in its place.
template <class F, class Data> void DescribeValues(F& f, Ref<F, CSender> sender, Data& data)
{
    f.Group("InputParam", [&] { f.List("Vedio", data.videoInfos); });
    DescribeOutputPart(f, sender);
    f.Group("CropParam", [&] {
        f.List("CropHDMI", data.inputClips);
        f.List("Joint0", data.inputJoints);
    });
    f.Group("EdidParam", [&] { f.List("EDID", data.inputEdids); });
    f.Record("ArtNetParam", data.dmx);
    f.Record(k3DRoot, data.stereo);
    DescribeAudio(f, data);
    f.Group(kOtherRoot, [&] {
        f.Group(kAdvancedRoot, [&] { DescribeAdvanced(f, data); });
        DescribeHdr(f, data);
    });
    DescribePicture(f, data);
    DescribePortGroups(f, data);
}

void Write(ElementWriter& writer, const CSender& sender)
{
    SenderParamData shown = sender.Params();
    shown.vSyncFreq = sender.GetVSyncFreq();
    writer.Field(kSenderType, sender.GetProcessorType());
    writer.Field(kDeviceClass, sender.GetDeviceClass());
    writer.Field(kNetIp, static_cast<quint32>(sender.GetNetSenderIP()));
    DescribeValues(writer, sender, shown);
}

quint32 Read(ElementReader& reader, CSender& sender)
{
    const quint32 result = CheckType(reader, kSenderType, sender);
    if (result == kDone)
        DescribeValues(reader, sender, sender.Params());
    return result;
}

Outcome ReadAlone(ElementReader& reader, CSender& sender)
{
    return Told(Read(reader, sender));
}

} // namespace

const Family kSenderFamily{"SenderParams", "utf-8", {}, Write, Read, ReadAlone};

} // namespace params
