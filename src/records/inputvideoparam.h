#pragma once

#include "records/comparedrecord.h"

#include <QString>

/// One video input of an input card. Ranges are the device's; the values pass through unchanged.
struct SInputVideoParam : ComparedRecord<SInputVideoParam>
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

    auto Values() const
    {
        return std::tie(cardSlot, videoIndexOnCard, sourceType, name, grayExpand, noDelay, cropEnable, cropX,
                        cropY, cropWidth, cropHeight, edidRate, edidWidth, edidHeight, edidLength, colorDepth,
                        standard, extendedMode, edidType, hFrontPorch, vFrontPorch, hSyncWidth, vSyncWidth,
                        hSyncPolarity, vSyncPolarity, hBackPorch, vBackPorch, hTotal, vTotal, pixelFrequency,
                        brightness, brightColorEnable, colorTemperature, red, green, blue, hue, saturation,
                        brightnessCompensation, contrast, balanceBst, balanceDe, balanceVod);
    }
};
