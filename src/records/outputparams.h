#pragma once

#include "records/comparedrecord.h"

#include <QtGlobal>

#include <array>

constexpr int kMaxLayers = 64;
constexpr int kMaxCuttingLines = 32; ///< on an axis
constexpr int kMaxPortGroups = 8;

/// One layer: an area of the output canvas that shows an input. Without width or height the entry is empty
/// and not written.
struct SLayerWndParam : ComparedRecord<SLayerWndParam>
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

    auto Values() const
    {
        return std::tie(groupIndex, layerIndex, cardSlot, videoIndexOnCard, sourceType, x, y, width, height,
                        originalX, originalY, originalWidth, originalHeight, posLock, showTitle, wndSizeState,
                        alpha, scaler);
    }
};

/// The lines that split the output canvas. Counts outside 0 to 32 make the record invalid.
struct SCuttingLineParam : ComparedRecord<SCuttingLineParam>
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

    auto Values() const { return std::tie(show, horizontalCount, verticalCount, horizontal, vertical); }
};

using PortGroupName = std::array<char, 64>;    ///< UTF-8, closed by a zero byte
using PortGroupFlags = std::array<quint8, 32>; ///< one byte an output port

/// Brightness of a group of output ports.
struct SPortGroup : ComparedRecord<SPortGroup>
{
    PortGroupName name{};
    qint16 bright = 0;
    PortGroupFlags portFlags{};

    auto Values() const { return std::tie(name, bright, portFlags); }
};

/// The port groups of a sender, of which the first groupCount are in use.
struct SPortGroupParam : ComparedRecord<SPortGroupParam>
{
    bool enable = false;
    qint32 groupCount = 0;
    std::array<SPortGroup, kMaxPortGroups> groups;

    auto Values() const { return std::tie(enable, groupCount, groups); }
};
