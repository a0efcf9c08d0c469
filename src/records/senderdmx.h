#pragma once

#include "records/recordwalk.h"

/// Remote control over Art-Net: the address, and the DMX channel and range of each value that it drives.
struct SenderDMX : WalkedRecord<SenderDMX>
{
    struct Channel : WalkedRecord<Channel>
    {
        qint32 channel = 0;
        qint32 max = 0;
        qint32 min = 0;

        template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
        {
            f.Unnamed(r.channel...);
            f.Unnamed(r.max...);
            f.Unnamed(r.min...);
        }
    };

    struct Switch : WalkedRecord<Switch>
    {
        bool enable = false;
        qint32 channel = 0;

        template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
        {
            f.Unnamed(r.enable...);
            f.Unnamed(r.channel...);
        }
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

    template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
    {
        f.Field("ArtNetAddress", r.artNetAddress...);
        f.Field("NetAddress", r.netAddress...);
        f.Field("SubNetAddress", r.subNetAddress...);
        f.Field("Universe", r.universe...);
        f.Group("Bright", [&] {
            f.Field("BrightEnable", r.brightEnable...);
            WalkChannel(f, "BrightChannel", "BrightMax", "BrightMin", r.bright...);
        });
        f.Group("QColor", [&] {
            f.Field("RGBEnable", r.rgbEnable...);
            WalkChannel(f, "RChannel", "RMax", "RMin", r.red...);
            WalkChannel(f, "GChannel", "GMax", "GMin", r.green...);
            WalkChannel(f, "BChannel", "BMax", "BMin", r.blue...);
        });
        f.Group("ColorTemperature", [&] {
            f.Field("ColorTempEnable", r.colorTempEnable...);
            WalkChannel(f, "ColorTempChannel", "ColorTempMax", "ColorTempMin", r.colorTemp...);
        });
        WalkSwitch(f, "TestMode", "TestModeEnable", "TestModeChannel", r.testMode...);
        WalkSwitch(f, "Hue", "HueEnable", "HueChannel", r.hue...);
        // The last name is what files in the field have.
        WalkSwitch(f, "Saturation", "SaturationEnable", "HueChanSaturationChannelnel", r.saturation...);
        WalkSwitch(f, "Contrast", "ContrastEnable", "ContrastChannel", r.contrast...);
    }

private:
    template <class Fields, class... Channels>
    static void WalkChannel(Fields& f, const char* channel, const char* max, const char* min, Channels&... c)
    {
        f.Field(channel, c.channel...);
        f.Field(max, c.max...);
        f.Field(min, c.min...);
    }

    template <class Fields, class... Switches>
    static void WalkSwitch(Fields& f, const char* group, const char* enable, const char* channel,
                           Switches&... s)
    {
        f.Group(group, [&] {
            f.Field(enable, s.enable...);
            f.Field(channel, s.channel...);
        });
    }
};
