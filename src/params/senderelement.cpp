#include "params/senderelement.h"

#include "layout/sender.h"
#include "params/sharedblocks.h"

namespace params {

namespace {

constexpr const char* kOutput = "OutputParam";
constexpr const char* kLayer = "Layer";
constexpr const char* kPortGroups = "PortGroupParam";

template <class Fields, class Data> void DescribeCrop(Fields& f, Data& data)
{
    f.Group("CropParam", [&] {
        f.List("CropHDMI", data.inputClips);
        f.List("Joint0", data.inputJoints);
    });
}

template <class Fields, class Data> void DescribeHdr(Fields& f, Data& data)
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
        SExactColorParam::WalkHdrPrimaries(f, data.exactColor);
    });
}

template <class Fields, class Data> void DescribePicture(Fields& f, Data& data, Rgb& rgb)
{
    auto& picture = data.Picture();
    f.Group("PictureParam", [&] {
        f.Group("Brightness", [&] {
            f.Group("BrightParam", [&] {
                f.Field("SCBright", picture.brightness);
                f.Field("SCColorTemp", picture.colorTemp);
                f.Field("bAdjByColorTemp", data.adjByColorTemp);
                f.Field("curColorRGB_R", rgb[0]);
                f.Field("curColorRGB_G", rgb[1]);
                f.Field("curColorRGB_B", rgb[2]);
            });
            f.Group("PortBright", [&] { f.List("Port", data.netPorts); });
        });
    });
}

template <class Fields> void DescribeCanvas(Fields& f, int& width, int& height)
{
    f.Field("CanvasSizeW", width);
    f.Field("CanvasSizeH", height);
}

template <class Fields, class Groups> void DescribePortGroups(Fields& f, Groups& groups, int& count)
{
    f.Field("bEnablePortGroup", groups.enable);
    f.Field("ValidPortCount", count);
    count = qBound(0, count, kMaxPortGroups);
    for (int g = 0; g < count; ++g)
        SPortGroup::WalkSenderFile(f, g, groups.groups[static_cast<size_t>(g)]);
}

// What stands in front of and behind the output part, which needs the sender's canvas.
template <class Fields, class Data> void DescribeInputs(Fields& f, Data& data)
{
    f.Group("InputParam", [&] { f.List("Vedio", data.videoInfos); });
}

template <class Fields, class Data> void DescribeRest(Fields& f, Data& data, Rgb& rgb)
{
    DescribeCrop(f, data);
    f.Group("EdidParam", [&] { f.List("EDID", data.inputEdids); });
    f.Record("ArtNetParam", data.dmx);
    f.Record(k3DRoot, data.stereo);
    DescribeAudio(f, data);
    f.Group(kOtherRoot, [&] {
        f.Group(kAdvancedRoot, [&] { DescribeAdvanced(f, data); });
        DescribeHdr(f, data);
    });
    DescribePicture(f, data, rgb);
}

void WriteOutput(ElementWriter& writer, const CSender& sender, const SenderParamData& data)
{
    writer.Group(kOutput, [&] {
        for (const SLayerWndParam& layer : data.layers)
            if (!layer.IsEmpty())
                writer.Group(kLayer, [&] { SLayerWndParam::WalkSenderFile(writer, layer); });
        int width = sender.GetCanvasSize().width();
        int height = sender.GetCanvasSize().height();
        DescribeCanvas(writer, width, height);
        WriteCuttingLines(writer, data);
    });
}

void ReadLayers(const QVector<QDomElement>& elements, SenderParamData& data)
{
    data.layers.fill(SLayerWndParam());
    auto free = data.layers.begin();
    for (const QDomElement& element : elements) {
        if (free == data.layers.end())
            return;
        SLayerWndParam layer;
        ElementReader reader(element);
        SLayerWndParam::WalkSenderFile(reader, layer);
        if (!layer.IsEmpty())
            *free++ = layer;
    }
}

void ReadOutput(ElementReader& reader, CSender& sender)
{
    reader.Group(kOutput, [&] {
        ReadLayers(reader.Children(QLatin1String(kLayer)), sender.Params());
        int width = 0;
        int height = 0;
        DescribeCanvas(reader, width, height);
        SetCanvas(sender, width, height);
        ReadCuttingLines(reader, sender.Params());
    });
}

} // namespace

quint32 WriteSingleSenderParam(QDomDocument& document, QDomElement* element, const CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    SenderParamData data = sender->Params();
    data.vSyncFreq = sender->GetVSyncFreq();
    Rgb rgb = RgbOf(data);

    ElementWriter writer(document, *element);
    writer.Field(kSenderType, sender->GetProcessorType());
    writer.Field(kDeviceClass, sender->GetDeviceClass());
    writer.Field(kNetIp, static_cast<quint32>(sender->GetNetSenderIP()));
    DescribeInputs(writer, data);
    WriteOutput(writer, *sender, data);
    DescribeRest(writer, data, rgb);
    writer.Group(kPortGroups, [&] {
        int count = qBound(0, data.portGroups.groupCount, kMaxPortGroups);
        DescribePortGroups(writer, data.portGroups, count);
    });
    return kDone;
}

quint32 ReadSingleSenderParam(QDomDocument&, const QDomElement* element, CSender* sender)
{
    if (!sender || !element || element->isNull())
        return kImportFailed;
    const quint32 result = CheckTypeElement(*element, kSenderType, *sender);
    if (result != kDone)
        return result;
    SenderParamData& data = sender->Params();
    ElementReader reader(*element);
    DescribeInputs(reader, data);
    ReadOutput(reader, *sender);
    Rgb rgb = RgbOf(data);
    DescribeRest(reader, data, rgb);
    if (rgb != RgbOf(data))
        data.curColorRgb = QColor(rgb[0], rgb[1], rgb[2]);
    reader.Group(kPortGroups, [&] {
        SPortGroupParam groups;
        DescribePortGroups(reader, groups, groups.groupCount);
        data.portGroups = groups;
    });
    return kDone;
}

} // namespace params
