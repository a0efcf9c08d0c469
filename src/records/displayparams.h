#pragma once

#include "records/comparedrecord.h"

#include <QtGlobal>

// Codes of the device; any value passes through unchanged.
enum EHDRStatus : int
{
    HDRStatusOff = 0,
};

enum EVideoSelect : int
{
    VideoSelectDefault = 0,
};

enum ETrasSpaceMode : int
{
    TrasSpaceModeDefault = 0,
};

/// Picture adjustment.
struct SPictureParam : ComparedRecord<SPictureParam>
{
    int brightness = 0;
    int colorTemp = 0;
    int hue = 0;
    int saturation = 0;
    int brightComp = 0;
    int contrast = 0;
    float fadeTime = 0; ///< seconds

    auto Values() const
    {
        return std::tie(brightness, colorTemp, hue, saturation, brightComp, contrast, fadeTime);
    }
};

/// Dynamic (peak) brightness.
struct SSenderPeakBrightness : ComparedRecord<SSenderPeakBrightness>
{
    bool enable = false;
    qint32 sharpen = 0;

    auto Values() const { return std::tie(enable, sharpen); }
};

/// What sender parameter files hold of HDR beside the state, the colour space and the exact colours.
struct SHDRSetInfo : ComparedRecord<SHDRSetInfo>
{
    qint32 known = 0;
    qint32 ledBrightness = 0;

    auto Values() const { return std::tie(known, ledBrightness); }
};

/// Which optional features a processor has.
struct SSupportOptionsInfo : ComparedRecord<SSupportOptionsInfo>
{
    bool portGroupBrightness = false; ///< the only one that a file depends on
    bool videoAbnormalCloseOut = false;
    bool inputAudio = false;
    bool colorCube = false;
    bool colorCurve = false;
    bool multiFrequency = false;
    bool output3D = false;
    bool vSyncMulti = false;
    bool betterGray = false;
    bool vSyncDelay = false;
    bool virtualPixel = false;
    bool peakBrightness = false;
    bool blackoutFade = false;
    bool deviceMode = false;
    bool fiberMode = false;
    bool videoOutputMode = false;
    bool hotBackup = false;

    auto Values() const
    {
        return std::tie(portGroupBrightness, videoAbnormalCloseOut, inputAudio, colorCube, colorCurve,
                        multiFrequency, output3D, vSyncMulti, betterGray, vSyncDelay, virtualPixel,
                        peakBrightness, blackoutFade, deviceMode, fiberMode, videoOutputMode, hotBackup);
    }
};
