#pragma once

#include "records/recordwalk.h"

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
struct SPictureParam : WalkedRecord<SPictureParam>
{
    int brightness = 0;
    int colorTemp = 0;
    int hue = 0;
    int saturation = 0;
    int brightComp = 0;
    int contrast = 0;
    float fadeTime = 0; ///< seconds

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Unnamed(r.brightness...);
        f.Unnamed(r.colorTemp...);
        f.Unnamed(r.hue...);
        f.Unnamed(r.saturation...);
        f.Unnamed(r.brightComp...);
        f.Unnamed(r.contrast...);
        f.Unnamed(r.fadeTime...);
    }
};

/// Dynamic (peak) brightness.
struct SSenderPeakBrightness : WalkedRecord<SSenderPeakBrightness>
{
    bool enable = false;
    qint32 sharpen = 0;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Unnamed(r.enable...);
        f.Unnamed(r.sharpen...);
    }
};

/// What sender parameter files hold of HDR beside the state, the colour space and the exact colours.
struct SHDRSetInfo : WalkedRecord<SHDRSetInfo>
{
    qint32 known = 0;
    qint32 ledBrightness = 0;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Unnamed(r.known...);
        f.Unnamed(r.ledBrightness...);
    }
};

/// Which optional features a processor has.
struct SSupportOptionsInfo : WalkedRecord<SSupportOptionsInfo>
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

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Unnamed(r.portGroupBrightness...);
        f.Unnamed(r.videoAbnormalCloseOut...);
        f.Unnamed(r.inputAudio...);
        f.Unnamed(r.colorCube...);
        f.Unnamed(r.colorCurve...);
        f.Unnamed(r.multiFrequency...);
        f.Unnamed(r.output3D...);
        f.Unnamed(r.vSyncMulti...);
        f.Unnamed(r.betterGray...);
        f.Unnamed(r.vSyncDelay...);
        f.Unnamed(r.virtualPixel...);
        f.Unnamed(r.peakBrightness...);
        f.Unnamed(r.blackoutFade...);
        f.Unnamed(r.deviceMode...);
        f.Unnamed(r.fiberMode...);
        f.Unnamed(r.videoOutputMode...);
        f.Unnamed(r.hotBackup...);
    }
};
