#pragma once

#include "records/comparedrecord.h"

#include <QtGlobal>

#include <array>

constexpr int kColorPrimaries = 4; ///< red, green, blue, white

/// Exact colour management: target chromaticities, and the measured ones before and after calibration.
struct SExactColorParam : ComparedRecord<SExactColorParam>
{
    struct Chromaticity : ComparedRecord<Chromaticity>
    {
        float x = 0;
        float y = 0;

        auto Values() const { return std::tie(x, y); }
    };

    struct Measured : ComparedRecord<Measured>
    {
        float luminance = 0; ///< candela a square metre
        float x = 0;
        float y = 0;

        auto Values() const { return std::tie(luminance, x, y); }
    };

    using LedLuminance = std::array<float, 3>;

    bool enable = false;
    qint32 outputSpaceMode = 0;
    std::array<Chromaticity, kColorPrimaries> target;
    qint32 preMode = 0;
    std::array<Measured, kColorPrimaries> pre;
    qint32 afterMode = 0;
    qint32 afterColorSpace = 0;
    std::array<LedLuminance, kColorPrimaries> afterLedLuminance{};
    qint32 hdrIndex = 0;
    bool dynamicCalibration = false;

    auto Values() const
    {
        return std::tie(enable, outputSpaceMode, target, preMode, pre, afterMode, afterColorSpace,
                        afterLedLuminance, hdrIndex, dynamicCalibration);
    }
};
