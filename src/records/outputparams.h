#pragma once

#include "records/recordwalk.h"

#include <array>

constexpr int kMaxLayers = 64;
constexpr int kMaxCuttingLines = 32; ///< on an axis
constexpr int kMaxPortGroups = 8;

/// One layer: an area of the output canvas that shows an input. Without width or height the entry is empty
/// and not written.
struct SLayerWndParam : WalkedRecord<SLayerWndParam>
{
    qint32 groupIndex = 0;
    qint32 layerIndex = 0;
    qint32 cardSlot = 0;
    qint32 videoIndexOnCard = 0;
    qint32 sourceType = 0;
    qint32 x = 0; ///< canvas pixels
    qint32 y = 0;
    qint32 width = 0;
    qint32 height = 0;
    qint32 originalX = 0; ///< the area of the input before scaling, input pixels
    qint32 originalY = 0;
    qint32 originalWidth = 0;
    qint32 originalHeight = 0;
    bool posLock = false;

    // In sender parameter files only.
    bool showTitle = false;
    qint32 wndSizeState = 0;
    qint32 alpha = 0;
    qint32 scaler = 0;

    bool IsEmpty() const { return width == 0 || height == 0; }

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("outputLayerGroupIndex", r.groupIndex...);
        f.Field("outputLayerIndex", r.layerIndex...);
        f.Field("outputLayerCardSolt", r.cardSlot...);
        f.Field("outputLayerVideoIndexOnCard", r.videoIndexOnCard...);
        f.Field("layerSourceType", r.sourceType...);
        f.Field("outputLayerX", r.x...);
        f.Field("outputLayerY", r.y...);
        f.Field("outputLayerWidth", r.width...);
        f.Field("outputLayerHeight", r.height...);
        f.Field("originalX", r.originalX...);
        f.Field("originalY", r.originalY...);
        f.Field("originalWidth", r.originalWidth...);
        f.Field("originalHeight", r.originalHeight...);
        f.Field("layerPosLock", r.posLock...);
        f.Unnamed(r.showTitle...);
        f.Unnamed(r.wndSizeState...);
        f.Unnamed(r.alpha...);
        f.Unnamed(r.scaler...);
    }

    /// The fields as sender parameter files name them.
    template <class Fields, class Record> static void WalkSenderFile(Fields& f, Record& r)
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
};

/// The lines that split the output canvas. Counts outside 0 to 32 make the record invalid.
struct SCuttingLineParam : WalkedRecord<SCuttingLineParam>
{
    bool show = false;
    qint32 horizontalCount = 0;
    qint32 verticalCount = 0;
    std::array<quint32, kMaxCuttingLines> horizontal{}; ///< canvas pixels
    std::array<quint32, kMaxCuttingLines> vertical{};

    bool IsValid() const
    {
        return horizontalCount >= 0 && horizontalCount <= kMaxCuttingLines && verticalCount >= 0
               && verticalCount <= kMaxCuttingLines;
    }

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("outputSpiltLineShow", r.show...);
        f.Field("outputSpiltLineHLineCount", r.horizontalCount...);
        f.Field("outputSpiltLineVLineCount", r.verticalCount...);
        f.Limit(r.horizontalCount...);
        f.Numbered("outputSpiltLineHParamRootBase", 1, r.horizontal...);
        f.Limit(r.verticalCount...);
        f.Numbered("outputSpiltLineVParamRootBase", 1, r.vertical...);
    }
};

using PortGroupName = std::array<char, 64>;    ///< UTF-8, closed by a zero byte
using PortGroupFlags = std::array<quint8, 32>; ///< one byte an output port

/// Brightness of a group of output ports.
struct SPortGroup : WalkedRecord<SPortGroup>
{
    PortGroupName name{};
    qint16 bright = 0;
    PortGroupFlags portFlags{};

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("OutPortGroupAdjBrightGroupName", r.name...);
        f.Field("OutPortGroupAdjBrightGroupBright", r.bright...);
        f.Field("OutPortGroupAdjBrightGroupPortFlag", r.portFlags...);
    }

    /// Sender parameter files hold the groups one behind the other; `k` counts them from 0.
    template <class Fields, class Record> static void WalkSenderFile(Fields& f, int k, Record& r)
    {
        f.Repeated("GroupName", k, r.name);
        f.Repeated("Bright", k, r.bright);
        f.Repeated("GroupFlag", k, r.portFlags);
    }
};

/// The port groups of a sender, of which the first groupCount are in use.
struct SPortGroupParam : WalkedRecord<SPortGroupParam>
{
    bool enable = false;
    qint32 groupCount = 0;
    std::array<SPortGroup, kMaxPortGroups> groups;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("OutPortGroupAdjBrightGroupEnable", r.enable...);
        f.Field("OutPortGroupAdjBrightGroupCount", r.groupCount...);
        f.Limit(r.groupCount...);
        f.Numbered("OutPortGroupAdjBrightGroupIndex", 0, r.groups...);
    }
};
