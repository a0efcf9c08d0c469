#pragma once

#include "records/recordwalk.h"

#include <array>

constexpr int kColorPrimaries = 4; ///< red, green, blue, white

namespace params {

/// How files name a primary: 0 "ColorRed" (values below it too), 1 "ColorGreen", 2 "ColorBlue", 3
/// "ColorWrite", which is the spelling that readers expect; empty beyond.
inline QString GetColorStr(int primary)
{
    switch (primary) {
    case 1:
        return QStringLiteral("ColorGreen");
    case 2:
        return QStringLiteral("ColorBlue");
    case 3:
        return QStringLiteral("ColorWrite");
    default:
        return primary <= 0 ? QStringLiteral("ColorRed") : QString();
    }
}

} // namespace params

/// Exact colour management: target chromaticities, and the measured ones before and after calibration.
struct SExactColorParam : WalkedRecord<SExactColorParam>
{
    struct Chromaticity : WalkedRecord<Chromaticity>
    {
        float x = 0;
        float y = 0;

        template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
        {
            f.Unnamed(r.x...);
            f.Unnamed(r.y...);
        }
    };

    struct Measured : WalkedRecord<Measured>
    {
        float luminance = 0; ///< candela a square metre
        float x = 0;
        float y = 0;

        template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
        {
            f.Unnamed(r.luminance...);
            f.Unnamed(r.x...);
            f.Unnamed(r.y...);
        }
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

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("outputEnableExactColorManage", r.enable...);
        f.Field("outputExactColoroutClrSpaceMode", r.outputSpaceMode...);
        for (size_t c = 0; c < kColorPrimaries; ++c) {
            f.Field(Name(c, "outputExactColoroutClrSpace_X"), r.target[c].x...);
            f.Field(Name(c, "outputExactColoroutClrSpace_Y"), r.target[c].y...);
        }
        f.Field("outputExactColorLedcaliPre_mode", r.preMode...);
        for (size_t c = 0; c < kColorPrimaries; ++c) {
            f.Field(Name(c, "outputExactColorLedcaliPre_Lumi"), r.pre[c].luminance...);
            f.Field(Name(c, "outputExactColorLedcaliPre_X"), r.pre[c].x...);
            f.Field(Name(c, "outputExactColorLedcaliPre_Y"), r.pre[c].y...);
        }
        f.Field("outputExactColorLedcaliAfter_mode", r.afterMode...);
        f.Field("outputExactColorLedcaliAfter_colorSpace", r.afterColorSpace...);
        for (size_t c = 0; c < kColorPrimaries; ++c)
            for (size_t k = 0; k < LedLuminance().size(); ++k)
                f.Repeated(Name(c, "outputExactColorLedcaliAfter_ledLimu"), static_cast<int>(k),
                           r.afterLedLuminance[c][k]...);
        f.Field("outputExactColoroutHdrIndex", r.hdrIndex...);
        f.Field("outputExactColoroutDynamicCalibration", r.dynamicCalibration...);
    }

    /// The primaries as the "HDRSet" element of sender parameter files holds them.
    template <class Fields, class Record> static void WalkHdrPrimaries(Fields& f, Record& r)
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
            const QString name = QStringLiteral("CaliPreScreen") + QLatin1String(kColors[c]);
            f.Field(name + QStringLiteral("_L"), r.pre[c].luminance);
            f.Field(name + QStringLiteral("_X"), r.pre[c].x);
            f.Field(name + QStringLiteral("_Y"), r.pre[c].y);
        }
    }

private:
    static FieldName Name(size_t primary, const char* suffix)
    {
        return params::GetColorStr(static_cast<int>(primary)) + QLatin1String(suffix);
    }
};
