#pragma once

#include "layout/sender.h"
#include "params/elementnames.h"
#include "params/elementreader.h"
#include "params/elementwriter.h"

/// The output side of a sender: its ports, and an output group with canvas, layers, split lines and colour. A
/// section that is absent leaves the sender as it is.
namespace params {

constexpr int kFarAway = 1 << 20; ///< beyond any canvas; keeps edges of areas from files inside an int

template <class F> void DescribePorts(F& f, Ref<F, CSender> sender)
{
    f.Group("OutNetPortParamXmlRoot", [&] {
        int count = sender.GetPortCount();
        f.Field("OutNetPortAreaCount", count);
        f.EachNumbered("OutNetPortAreaBase", 0, std::min(count, kMaxPorts), [&](int number) {
            auto& port = *sender.GetPort(number);
            const QRect bound = F::kReads ? QRect() : port.GetBound(); // without cabinets all zero
            std::array<int, 4> area{bound.left(), bound.top(), bound.width(), bound.height()};
            f.Field("OutNetPortAreaX", area[0]);
            f.Field("OutNetPortAreaY", area[1]);
            f.Field("OutNetPortAreaWidth", area[2]);
            f.Field("OutNetPortAreaHeight", area[3]);
            if constexpr (F::kReads) {
                for (int& value : area)
                    value = qBound(-kFarAway, value, kFarAway);
                port.SetPortArea(QRect(area[0], area[1], area[2], area[3]));
            }
        });
    });
}

template <class F> void Describe(F& f, Ref<F, SPortGroup> r)
{
    f.Field("OutPortGroupAdjBrightGroupName", r.name);
    f.Field("OutPortGroupAdjBrightGroupBright", r.bright);
    f.Field("OutPortGroupAdjBrightGroupPortFlag", r.portFlags);
}

template <class F> void Describe(F& f, Ref<F, SPortGroupParam> r)
{
    f.Field("OutPortGroupAdjBrightGroupEnable", r.enable);
    f.Field("OutPortGroupAdjBrightGroupCount", r.groupCount);
    DescribeArray(f, "OutPortGroupAdjBrightGroupIndex", 0, r.groups, r.groupCount);
    if constexpr (F::kReads)
        r.groupCount = qBound(0, r.groupCount, kMaxPortGroups);
}

/// As files show the groups: no more than there are, and each with a name.
inline SPortGroupParam NamedGroups(SPortGroupParam groups)
{
    groups.groupCount = qBound(0, groups.groupCount, kMaxPortGroups);
    for (int g = 0; g < groups.groupCount; ++g) {
        PortGroupName& name = groups.groups[static_cast<size_t>(g)].name;
        if (name[0] == '\0')
            paramtext::FromText(QStringLiteral("Group ") + QString::number(g + 1), name);
    }
    return groups;
}

template <class F> void DescribeOutput(F& f, Ref<F, CSender> sender)
{
    constexpr const char* portGroups = "OutPortGroupAdjBrightParamXmlRoot";
    DescribePorts(f, sender);
    if constexpr (F::kReads)
        f.Record(portGroups, sender.Params().portGroups);
    else if (sender.Params().support.portGroupBrightness)
        f.Record(portGroups, NamedGroups(sender.Params().portGroups));
}

/// A canvas from a file; (-1, -1) stands for none.
template <class F>
void DescribeCanvas(F& f, const char* widthName, const char* heightName, Ref<F, CSender> sender)
{
    int width = sender.GetCanvasSize().width();
    int height = sender.GetCanvasSize().height();
    f.Field(widthName, width);
    f.Field(heightName, height);
    if constexpr (F::kReads)
        sender.SetCanvasSize(QSize(qBound(-1, width, kMaxCanvasWidth), qBound(-1, height, kMaxCanvasHeight)));
}

template <class F> void Describe(F& f, Ref<F, SLayerWndParam> r)
{
    f.Field("outputLayerGroupIndex", r.groupIndex);
    f.Field("outputLayerIndex", r.layerIndex);
    f.Field("outputLayerCardSolt", r.cardSlot);
    f.Field("outputLayerVideoIndexOnCard", r.videoIndexOnCard);
    f.Field("layerSourceType", r.sourceType);
    f.Field("outputLayerX", r.x);
    f.Field("outputLayerY", r.y);
    f.Field("outputLayerWidth", r.width);
    f.Field("outputLayerHeight", r.height);
    f.Field("originalX", r.originalX);
    f.Field("originalY", r.originalY);
    f.Field("originalWidth", r.originalWidth);
    f.Field("originalHeight", r.originalHeight);
    f.Field("layerPosLock", r.posLock);
}

inline QList<SLayerWndParam> UsedLayers(const SenderParamData& data)
{
    QList<SLayerWndParam> used;
    std::copy_if(data.layers.begin(), data.layers.end(), std::back_inserter(used),
                 [](const SLayerWndParam& layer) { return !layer.IsEmpty(); });
    return used;
}

/// Puts layers into the entries that are empty, as far as there are any; `afresh`: all are.
inline void TakeLayers(const QList<SLayerWndParam>& layers, bool afresh, SenderParamData& data)
{
    if (afresh)
        data.layers.fill(SLayerWndParam());
    auto free = data.layers.begin();
    for (const SLayerWndParam& layer : layers) {
        if (layer.IsEmpty())
            continue;
        free = std::find_if(free, data.layers.end(), [](const auto& entry) { return entry.IsEmpty(); });
        if (free == data.layers.end())
            return;
        *free = layer;
    }
}

/// The first output group replaces the layers, later ones fill the empty entries.
template <class F> void DescribeLayers(F& f, int group, Ref<F, CSender> sender)
{
    f.Group(FieldName("outputLayerParamRoot") + group, [&] {
        auto& data = sender.Params();
        QList<SLayerWndParam> layers = UsedLayers(data);
        f.CountedBehind("outputLayerCount", "outputLayerParamRootBase", 1, layers);
        if constexpr (F::kReads)
            TakeLayers(layers, group == 0, data);
    });
}

template <class F> void Describe(F& f, Ref<F, SCuttingLineParam> r)
{
    f.Field("outputSpiltLineShow", r.show);
    f.Field("outputSpiltLineHLineCount", r.horizontalCount);
    f.Field("outputSpiltLineVLineCount", r.verticalCount);
    DescribeArray(f, "outputSpiltLineHParamRootBase", 1, r.horizontal, r.horizontalCount);
    DescribeArray(f, "outputSpiltLineVParamRootBase", 1, r.vertical, r.verticalCount);
}

/// Split lines that are too many are neither written, but for an empty element, nor taken.
template <class F> void DescribeCuttingLines(F& f, Ref<F, CSender> sender)
{
    f.Group("outputSpiltLineParamRoot", [&] {
        SCuttingLineParam lines = sender.Params().cuttingLines;
        if (F::kReads || lines.IsValid())
            f.Whole(lines);
        if constexpr (F::kReads)
            if (lines.IsValid())
                sender.Params().cuttingLines = lines;
    });
}

template <class F>
void DescribeRgb(F& f, const char* redName, const char* greenName, const char* blueName, Ref<F, QColor> color)
{
    auto red = static_cast<quint8>(color.red());
    auto green = static_cast<quint8>(color.green());
    auto blue = static_cast<quint8>(color.blue());
    f.Field(redName, red);
    f.Field(greenName, green);
    f.Field(blueName, blue);
    if constexpr (F::kReads)
        color = QColor(red, green, blue);
}

template <class F> void DescribeColorBright(F& f, Ref<F, CSender> sender)
{
    f.Group("outputBrightColorParmXmlRoot", [&] {
        auto& data = sender.Params();
        auto& picture = data.Picture();
        f.Field("outputBrightColorBright", picture.brightness);
        f.Field("outputBrightColorContrast", picture.contrast);
        f.Field("outputBrightColorBrightnessCompensation", picture.brightComp);
        f.Field("outputBrightColorHue", picture.hue);
        f.Field("outputBrightColorSaturation", picture.saturation);
        f.Field("outputBrightColorColorTemperature", picture.colorTemp);
        f.Field("outputBrightColorColorTemperatureEnable", data.adjByColorTemp);
        DescribeRgb(f, "outputBrightColorRed", "outputBrightColorGreen", "outputBrightColorBlue",
                    data.curColorRgb);
        f.Field("outputBrightLowBrigh", data.betterGray);
    });
}

template <class F> void Describe(F& f, Ref<F, SExactColorParam> r)
{
    const auto name = [](size_t primary, const char* field) {
        return std::string(kPrimaryNames[primary]) + field;
    };
    f.Field("outputEnableExactColorManage", r.enable);
    f.Field("outputExactColoroutClrSpaceMode", r.outputSpaceMode);
    for (size_t c = 0; c < kColorPrimaries; ++c) {
        f.Field(name(c, "outputExactColoroutClrSpace_X"), r.target[c].x);
        f.Field(name(c, "outputExactColoroutClrSpace_Y"), r.target[c].y);
    }
    f.Field("outputExactColorLedcaliPre_mode", r.preMode);
    for (size_t c = 0; c < kColorPrimaries; ++c) {
        f.Field(name(c, "outputExactColorLedcaliPre_Lumi"), r.pre[c].luminance);
        f.Field(name(c, "outputExactColorLedcaliPre_X"), r.pre[c].x);
        f.Field(name(c, "outputExactColorLedcaliPre_Y"), r.pre[c].y);
    }
    f.Field("outputExactColorLedcaliAfter_mode", r.afterMode);
    f.Field("outputExactColorLedcaliAfter_colorSpace", r.afterColorSpace);
    for (size_t c = 0; c < kColorPrimaries; ++c)
        for (size_t k = 0; k < r.afterLedLuminance[c].size(); ++k)
            f.Repeated(name(c, "outputExactColorLedcaliAfter_ledLimu"), static_cast<int>(k),
                       r.afterLedLuminance[c][k]);
    f.Field("outputExactColoroutHdrIndex", r.hdrIndex);
    f.Field("outputExactColoroutDynamicCalibration", r.dynamicCalibration);
}

template <class F> void DescribeExactColor(F& f, Ref<F, CSender> sender)
{
    f.Record("outputExactColorParmXmlRoot", sender.Params().exactColor);
}

/// Output groups count from 0.
template <class F> void DescribeOutputGroup(F& f, int group, Ref<F, CSender> sender)
{
    f.Group("outputSpliceInfoParamRoot", [&] {
        DescribeCanvas(f, "outputSpliceInfoCanvasWidth", "outputSpliceInfoCanvasHeight", sender);
    });
    DescribeLayers(f, group, sender);
    DescribeCuttingLines(f, sender);
    DescribeColorBright(f, sender);
    DescribeExactColor(f, sender);
    f.Group("outputOtherParamXmlRoot", [&] {
        auto& data = sender.Params();
        f.Field("outputOtherParamFadeTime", data.Picture().fadeTime);
        f.Field("outputOtherParamLowLatency", data.lowLatency);
    });
}

} // namespace params
