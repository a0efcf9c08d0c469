#pragma once

#include "records/recordwalk.h"

/// One video input of an input card. Ranges are the device's; the values pass through unchanged.
struct SInputVideoParam : WalkedRecord<SInputVideoParam>
{
    qint32 cardSlot = -1;         ///< -1: unset
    qint32 videoIndexOnCard = -1; ///< -1: unset
    qint32 sourceType = -1;       ///< signal type code, -1: unset
    QString name;                 ///< given by the user
    bool grayExpand = false;
    bool noDelay = false;

    bool cropEnable = false;
    qint16 cropX = 0; ///< input pixels
    qint16 cropY = 0;
    qint16 cropWidth = 0;
    qint16 cropHeight = 0;

    qint16 edidRate = 0; ///< timing offered to the source
    qint16 edidWidth = 0;
    qint16 edidHeight = 0;
    qint32 edidLength = 0;
    qint32 colorDepth = 0;
    qint32 standard = 0;
    bool extendedMode = false;
    qint32 edidType = 0;
    quint16 hFrontPorch = 0;
    quint16 vFrontPorch = 0;
    quint16 hSyncWidth = 0;
    quint16 vSyncWidth = 0;
    qint32 hSyncPolarity = 0;
    qint32 vSyncPolarity = 0;
    quint16 hBackPorch = 0;
    quint16 vBackPorch = 0;
    quint16 hTotal = 0;
    quint16 vTotal = 0;
    quint32 pixelFrequency = 0;

    qint16 brightness = 0;
    bool brightColorEnable = false;
    qint16 colorTemperature = 0;
    qint32 red = 0; ///< colour gains
    qint32 green = 0;
    qint32 blue = 0;
    qint16 hue = 0;
    qint32 saturation = 0;
    qint32 brightnessCompensation = 0;
    qint32 contrast = 0;

    qint32 balanceBst = 0; ///< cable equalisation
    qint32 balanceDe = 0;
    qint32 balanceVod = 0;

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        WalkSignal(f, r...);
        WalkBrightColor(f, r...);
        WalkEdid(f, r...);
        f.Group("BalanceParam", [&] {
            f.Field("balance_bst", r.balanceBst...);
            f.Field("balance_de", r.balanceDe...);
            f.Field("balance_vod", r.balanceVod...);
        });
    }

private:
    // Each part of an input repeats the slot and the index, so that it can be read alone.
    template <class Fields, class... Records> static void WalkSignal(Fields& f, Records&... r)
    {
        f.Group("inputVideoSignalParamXmlRoot", [&] {
            f.Key("inputVideoSignalVideoCardSlot", r.cardSlot...);
            f.Key("inputVideoSignalVideoIndexOnCard", r.videoIndexOnCard...);
            f.Field("inputVideoSignalSourceType", r.sourceType...);
            f.Field("inputVideoSignalbNoDelay", r.noDelay...);
            f.Field("inputVideoSignalbGrayExpand", r.grayExpand...);
        });
        f.Group("inputVideoCropParamXmlRoot", [&] {
            f.Key("inputVideoCropVideoCardSlot", r.cardSlot...);
            f.Key("inputVideoCropVideoIndexOnCard", r.videoIndexOnCard...);
            f.Field("inputVideoCropEnableFlag", r.cropEnable...);
            f.Field("inputVideoCropX", r.cropX...);
            f.Field("inputVideoCropY", r.cropY...);
            f.Field("inputVideoCropWidth", r.cropWidth...);
            f.Field("inputVideoCropHeigth", r.cropHeight...);
        });
        f.Group("inputVideoRenameParamXmlRoot", [&] {
            f.Key("inputVideoRenameVideoCardSlot", r.cardSlot...);
            f.Key("inputVideoRenameVideoIndexOnCard", r.videoIndexOnCard...);
            f.Field("inputVideoRenameName", r.name...);
        });
    }

    template <class Fields, class... Records> static void WalkBrightColor(Fields& f, Records&... r)
    {
        f.Group("inputVideoBrightColorParamXmlRoot", [&] {
            f.Key("inputVideoBrightColorVideoCardSlot", r.cardSlot...);
            f.Key("inputVideoBrightColorVideoIndexOnCard", r.videoIndexOnCard...);
            f.Field("inputVideoBrightColorBrightness", r.brightness...);
            f.Field("inputVideoBrightColorContrast", r.contrast...);
            f.Field("inputVideoBrightColorBrightnessCompensation", r.brightnessCompensation...);
            f.Field("inputVideoBrightColorHue", r.hue...);
            f.Field("inputVideoBrightColorSaturation", r.saturation...);
            f.Field("inputVideoBrightColorEnable", r.brightColorEnable...);
            f.Field("inputVideoBrightColorColorTemperature", r.colorTemperature...);
            f.Field("inputVideoBrightColorRed", r.red...);
            f.Field("inputVideoBrightColorGreen", r.green...);
            f.Field("inputVideoBrightColorBlue", r.blue...);
        });
    }

    template <class Fields, class... Records> static void WalkEdid(Fields& f, Records&... r)
    {
        f.Group("inputVideoEdidParamXmlRoot", [&] {
            f.Key("inputVideoEdidParamVideoCardSlot", r.cardSlot...);
            f.Key("inputVideoEdidParamVideoIndexOnCard", r.videoIndexOnCard...);
            f.Field("inputVideoEdidWidth", r.edidWidth...);
            f.Field("inputVideoEdidHeight", r.edidHeight...);
            f.Field("inputVideoEdidRate", r.edidRate...);
            f.Field("inputVideoEdidColorDepth", r.colorDepth...);
            f.Field("inputVideoEdidStandard", r.standard...);
            f.Field("inputVideoEdidEdidLen", r.edidLength...);
            f.Field("inputVideoEdidBExtenMode", r.extendedMode...);
            f.Field("inputVideoEdidEdidType", r.edidType...);
            f.Field("inputVideoEdidHFrontPorch", r.hFrontPorch...);
            f.Field("inputVideoEdidVFrontPorch", r.vFrontPorch...);
            f.Field("inputVideoEdidHSyncWidth", r.hSyncWidth...);
            f.Field("inputVideoEdidVSyncWidth", r.vSyncWidth...);
            f.Field("inputVideoEdidHsyncPol", r.hSyncPolarity...);
            f.Field("inputVideoEdidVsyncPol", r.vSyncPolarity...);
            f.Field("inputVideoEdidHBackPorch", r.hBackPorch...);
            f.Field("inputVideoEdidVBackPorch", r.vBackPorch...);
            f.Field("inputVideoEdidHTotal", r.hTotal...);
            f.Field("inputVideoEdidVTotal", r.vTotal...);
            f.Field("inputVideoEdidPixelFreq", r.pixelFrequency...);
        });
    }
};
