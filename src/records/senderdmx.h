#pragma once

#include "records/comparedrecord.h"

#include <QtGlobal>

/// Remote control over Art-Net: the address, and the DMX channel and range of each value that it drives.
struct SenderDMX : ComparedRecord<SenderDMX>
{
    struct Channel : ComparedRecord<Channel>
    {
        qint32 channel = 0;
        qint32 max = 0;
        qint32 min = 0;

        auto Values() const { return std::tie(channel, max, min); }
    };

    struct Switch : ComparedRecord<Switch>
    {
        bool enable = false;
        qint32 channel = 0;

        auto Values() const { return std::tie(enable, channel); }
    };

    qint32 artNetAddress = 0;
    qint32 netAddress = 0;
    qint32 subNetAddress = 0;
    qint32 universe = 0;
    bool brightEnable = false;
    Channel bright;
    bool rgbEnable = false;
    Channel red;
    Channel green;
    Channel blue;
    bool colorTempEnable = false;
    Channel colorTemp;
    Switch testMode;
    Switch hue;
    Switch saturation;
    Switch contrast;

    auto Values() const
    {
        return std::tie(artNetAddress, netAddress, subNetAddress, universe, brightEnable, bright, rgbEnable,
                        red, green, blue, colorTempEnable, colorTemp, testMode, hue, saturation, contrast);
    }
};
