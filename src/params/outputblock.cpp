#include "params/outputblock.h"

#include "layout/sender.h"
#include "params/elementfields.h"
#include "params/elementnames.h"
#include "params/paramresult.h"
#include "params/sharedblocks.h"

namespace params {

namespace {

constexpr const char* kPortRoot = "OutNetPortParamXmlRoot";
constexpr const char* kPortCount = "OutNetPortAreaCount";
constexpr const char* kPortArea = "OutNetPortAreaBase";
constexpr const char* kPortGroupRoot = "OutPortGroupAdjBrightParamXmlRoot";
constexpr const char* kSpliceRoot = "outputSpliceInfoParamRoot";
constexpr const char* kLayerRoot = "outputLayerParamRoot";
constexpr const char* kLayer = "outputLayerParamRootBase";
constexpr const char* kLayerCount = "outputLayerCount";
constexpr const char* kColorBrightRoot = "outputBrightColorParmXmlRoot";
constexpr const char* kExactColorRoot = "outputExactColorParmXmlRoot";
constexpr const char* kOtherOutputRoot = "outputOtherParamXmlRoot";

constexpr int kFarAway = 1 << 20; ///< beyond any canvas; keeps edges of areas from files inside an int

struct Area
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

template <class Fields> void DescribeArea(Fields& f, Area& area)
{
    f.Field("OutNetPortAreaX", area.x);
    f.Field("OutNetPortAreaY", area.y);
    f.Field("OutNetPortAreaWidth", area.width);
    f.Field("OutNetPortAreaHeight", area.height);
}

template <class Fields> void DescribeSplice(Fields& f, int& width, int& height)
{
    f.Field("outputSpliceInfoCanvasWidth", width);
    f.Field("outputSpliceInfoCanvasHeight", height);
}

template <class Fields, class Data> void DescribeColorBright(Fields& f, Data& data, Rgb& rgb)
{
    auto& picture = data.Picture();
    f.Field("outputBrightColorBright", picture.brightness);
    f.Field("outputBrightColorContrast", picture.contrast);
    f.Field("outputBrightColorBrightnessCompensation", picture.brightComp);
    f.Field("outputBrightColorHue", picture.hue);
    f.Field("outputBrightColorSaturation", picture.saturation);
    f.Field("outputBrightColorColorTemperature", picture.colorTemp);
    f.Field("outputBrightColorColorTemperatureEnable", data.adjByColorTemp);
    f.Field("outputBrightColorRed", rgb[0]);
    f.Field("outputBrightColorGreen", rgb[1]);
    f.Field("outputBrightColorBlue", rgb[2]);
    f.Field("outputBrightLowBrigh", data.betterGray);
}

template <class Fields, class Data> void DescribeOther(Fields& f, Data& data)
{
    f.Field("outputOtherParamFadeTime", data.Picture().fadeTime);
    f.Field("outputOtherParamLowLatency", data.lowLatency);
}

void WritePortAreas(ElementWriter& writer, const CSender& sender)
{
    writer.Field(kPortCount, sender.GetPortCount());
    for (int i = 0; i < sender.GetPortCount(); ++i) {
        const QRect rect = sender.GetPort(i)->GetBound(); // without cabinets all zero
        Area area{rect.left(), rect.top(), rect.width(), rect.height()};
        writer.Group(FieldName(kPortArea) + i, [&] { DescribeArea(writer, area); });
    }
}

void WritePortGroups(ElementWriter& writer, SPortGroupParam groups)
{
    groups.groupCount = qBound(0, groups.groupCount, kMaxPortGroups);
    for (int g = 0; g < groups.groupCount; ++g) {
        PortGroupName& name = groups.groups[static_cast<size_t>(g)].name;
        if (name[0] == '\0')
            paramtext::FromText(QStringLiteral("Group ") + QString::number(g + 1), name);
    }
    writer.Record(kPortGroupRoot, groups);
}

void WriteLayers(ElementWriter& writer, const SenderParamData& data)
{
    int written = 0;
    for (const SLayerWndParam& layer : data.layers)
        if (!layer.IsEmpty())
            writer.Record(FieldName(kLayer) + ++written, layer);
    writer.Field(kLayerCount, written);
}

void ReadLayers(const QDomElement& element, int group, SenderParamData& data)
{
    ElementReader reader(element);
    if (group == 0)
        data.layers.fill(SLayerWndParam());
    auto free = data.layers.begin();
    const auto elements = reader.NumberedChildren(QLatin1String(kLayer), 1, reader.Value<int>(kLayerCount));
    for (const auto& numbered : elements) {
        free = std::find_if(free, data.layers.end(), [](const auto& layer) { return layer.IsEmpty(); });
        if (free == data.layers.end())
            return;
        SLayerWndParam layer;
        ElementReader fields(numbered.second);
        SLayerWndParam::Walk(fields, layer);
        if (!layer.IsEmpty())
            *free++ = layer;
    }
}

} // namespace

quint32 SaveOutputParam(QDomDocument& document, const CSender* sender, QDomElement* element)
{
    if (!sender || !element)
        return kFailed;
    ElementWriter writer(document, *element);
    writer.Group(kPortRoot, [&] { WritePortAreas(writer, *sender); });
    if (sender->Params().support.portGroupBrightness)
        WritePortGroups(writer, sender->Params().portGroups);
    return kDone;
}

quint32 LoadOutputParam(QDomDocument& document, const QDomElement* element, CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    LoadVideoOutParam(document, element, sender);
    const QDomElement groups = element->firstChildElement(QLatin1String(kPortGroupRoot));
    if (groups.isNull())
        return kDone;
    SPortGroupParam portGroups;
    ElementReader reader(groups);
    SPortGroupParam::Walk(reader, portGroups);
    portGroups.groupCount = qBound(0, portGroups.groupCount, kMaxPortGroups);
    sender->SetPortGroupInfo(portGroups);
    return kDone;
}

quint32 LoadVideoOutParam(QDomDocument&, const QDomElement* element, CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    ElementReader ports(element->firstChildElement(QLatin1String(kPortRoot)));
    const int count = std::min(ports.Value<int>(kPortCount), kMaxPorts);
    const auto elements = ports.NumberedChildren(QLatin1String(kPortArea), 0, count);
    for (const auto& numbered : elements) {
        Area area;
        ElementReader reader(numbered.second);
        DescribeArea(reader, area);
        const auto near = [](int value) { return qBound(-kFarAway, value, kFarAway); };
        sender->GetPort(numbered.first)
            ->SetPortArea(QRect(near(area.x), near(area.y), near(area.width), near(area.height)));
    }
    return kDone;
}

quint32 SaveOneGroupParam(QDomDocument& document, QDomElement* element, int group, const CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    const SenderParamData& data = sender->Params();
    ElementWriter writer(document, *element);
    writer.Group(kSpliceRoot, [&] {
        int width = sender->GetCanvasSize().width();
        int height = sender->GetCanvasSize().height();
        DescribeSplice(writer, width, height);
    });
    writer.Group(FieldName(kLayerRoot) + group, [&] { WriteLayers(writer, data); });
    WriteCuttingLines(writer, data);
    writer.Group(kColorBrightRoot, [&] {
        Rgb rgb = RgbOf(data);
        DescribeColorBright(writer, data, rgb);
    });
    writer.Record(kExactColorRoot, data.exactColor);
    writer.Group(kOtherOutputRoot, [&] { DescribeOther(writer, data); });
    return kDone;
}

quint32 LoadOneGroupParam(QDomDocument& document, const QDomElement* element, int group, CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    ElementReader reader(*element);
    reader.Group(kSpliceRoot, [&] {
        int width = 0;
        int height = 0;
        DescribeSplice(reader, width, height);
        SetCanvas(*sender, width, height);
    });
    const QDomElement layers = reader.Child((FieldName(kLayerRoot) + group).Text());
    if (!layers.isNull())
        ReadLayers(layers, group, sender->Params());
    LoadOutputSpiltLineParam(document, element, group, sender);
    LoadOutputColorBrightParam(document, element, group, sender);
    LoadOutputExactColorParam(document, element, group, sender);
    reader.Group(kOtherOutputRoot, [&] { DescribeOther(reader, sender->Params()); });
    return kDone;
}

quint32 LoadOutputSpiltLineParam(QDomDocument&, const QDomElement* element, int, CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    ElementReader reader(*element);
    ReadCuttingLines(reader, sender->Params());
    return kDone;
}

quint32 LoadOutputColorBrightParam(QDomDocument&, const QDomElement* element, int, CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    ElementReader reader(*element);
    reader.Group(kColorBrightRoot, [&] {
        SenderParamData& data = sender->Params();
        Rgb rgb{};
        DescribeColorBright(reader, data, rgb);
        data.curColorRgb = QColor(rgb[0], rgb[1], rgb[2]);
    });
    return kDone;
}

quint32 LoadOutputExactColorParam(QDomDocument&, const QDomElement* element, int, CSender* sender)
{
    if (!sender || !element)
        return kFailed;
    ElementReader(*element).Record(kExactColorRoot, sender->Params().exactColor);
    return kDone;
}

} // namespace params
