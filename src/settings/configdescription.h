#pragma once

#include "common/canvaslimits.h"
#include "settings/configitems.h"
#include "settings/hotkeys.h"
#include "settings/languagetype.h"

#include <string>

constexpr float kMinLayoutSize = 30;
constexpr float kMaxLayoutSize = 70;

inline std::string Numbered(const char* stem, int number)
{
    return stem + std::to_string(number);
}

struct ReadOnlyName
{
    const char* name;
    EInterfaceDlg interface;
};

constexpr ReadOnlyName kReadOnlyNames[kInterfaceCount] = {
    {"DeviceInfomation", InterfaceDeviceInformation},
    {"Design", InterfaceDesign},
    {"Control", InterfaceControl},
    {"SoftEdge", InterfaceSoftEdge},
    {"Calibration", InterfaceCalibration},
    {"GamutAdjustment", InterfaceGamutAdjustment},
    {"VideoDesign", InterfaceVideoDesign},
    {"Monitoring", InterfaceMonitoring},
};

constexpr const char* kDefaultUiStyles[][2] = {{"StyleLight", "Style Light"}, {"StyleDark", "Style Dark"}};
constexpr int kDefaultUiStyleCount = 2;

template <class Fields> void DescribeGains(Fields& f, SConfigItems& r)
{
    f.Begin("CurrenGain");
    for (int i = 0; i < kCurrentGains; ++i) {
        SCurrentGain& gain = r.currentGains[size_t(i)];
        f.Begin(Numbered("CurrenGain_", i + 1).c_str());
        f.Attribute("Red", gain.red, 1.0f);
        f.Attribute("Green", gain.green, 1.0f);
        f.Attribute("Blue", gain.blue, 1.0f);
        f.Attribute("Tip", gain.tip, QString::number(i + 1));
        f.End();
    }
    f.End();
}

template <class Fields> void DescribeBrightTable(Fields& f, SBrightTableInfo& r)
{
    f.Begin("BrightTableInfo");
    f.Attribute("Gamma", r.gamma, 2.2);
    f.Attribute("Sensitivity", r.sensitivity, 50.0);
    f.Attribute("Sensor_Min", r.sensorMin, 0.0);
    f.Attribute("Sensor_Max", r.sensorMax, 100.0);
    f.Attribute("YStart", r.yStart, 0.0);
    f.Attribute("YEnd", r.yEnd, 100.0);
    f.End();
}

template <class Fields> void DescribeUiStyles(Fields& f, SConfigItems& r)
{
    f.Begin("UiStyleEx");
    f.Count("UiCount", "UiStyle", r.uiStyles, kDefaultUiStyleCount, kMaxUiStyles);
    f.Item("UiCurrent", r.currentUiStyle, 1);
    for (int i = 0; i < r.uiStyles.size(); ++i) {
        f.Begin(Numbered("UiStyle", i + 1).c_str());
        f.Attribute("Path", r.uiStyles[i].key,
                    QLatin1String(i < kDefaultUiStyleCount ? kDefaultUiStyles[i][0] : ""));
        f.End();
    }
    f.End();
}

template <class Fields> void DescribeHotkeys(Fields& f, SConfigItems& r)
{
    f.Begin("HotkeyQT");
    for (int i = 0; i < kHotkeyModes * kHotkeysInMode; ++i) {
        const int mode = i / kHotkeysInMode;
        const int index = i % kHotkeysInMode;
        const SHotkey standard = GetDefaultHotkey(mode, index);
        SHotkey& hotkey = r.hotkeys[size_t(mode)][size_t(index)];
        f.Begin(Numbered("Item", i + 1).c_str());
        f.Word("Enable", hotkey.enable, standard.enable);
        f.Attribute("Operation", hotkey.operation, standard.operation);
        f.Attribute("HotKeyValue", hotkey.hotkey, standard.hotkey);
        f.Attribute("Description", hotkey.description, standard.description);
        f.End();
    }
    f.End();
}

/// The settings file, in its order: each item's name, value, default and limits.
template <class Fields> void DescribeConfig(Fields& f, SConfigItems& r)
{
    f.Item("AutoSelectLanguage", r.autoSelectLanguage, false);
    f.Item("Language", r.language, int(GetSystemLanguage()));
    f.Item("ShowGrid", r.showGrid, true);
    f.Item("ShowTileSort", r.showTileSort, false);
    f.Item("SoftEdgeSheet", r.softEdgeSheet, false);
    f.Item("SetEdgePixel", r.setEdgePixel, false);
    f.Item("DisTime", r.disTime, 10);
    f.Item("EnableAttraction", r.enableAttraction, true);
    f.DefaultOutside("AttractionDis", r.attractionDis, 20, 8, 30);
    f.Item("EnableFahrenheit", r.enableFahrenheit, false);
    f.Item("EnableGamutRGB", r.enableGamutRgb, true);
    f.Item("EnableGamutAutoCalculate", r.enableGamutAutoCalculate, false);
    f.Item("OpenBackupProject", r.openBackupProject, true);
    f.Item("SendAfterModify", r.sendAfterModify, false);
    f.Item("SupportMutiTileType", r.supportMutiTileType, true);
    f.Item("ShowPowerSupply", r.showPowerSupply, false);
    f.Hundredths("DeviceInformationLayoutSize", r.deviceInformationLayoutSize, 40, kMinLayoutSize,
                 kMaxLayoutSize);
    f.OneOrTwo("BeaconNoBorder", r.beaconNoBorder, 1);
    f.Item("DetectStrategy", r.detectStrategy, 0);
    f.Begin("CustomerTileSize");
    f.Clamped("Width", r.customerTileWidth, 128, 1, kMaxCabinetSize);
    f.Clamped("Height", r.customerTileHeight, 128, 1, kMaxCabinetSize);
    f.End();
    f.Begin("ReadOnlyModeState");
    for (const ReadOnlyName& state : kReadOnlyNames)
        f.Item(state.name, r.readOnly[size_t(state.interface)], false);
    f.End();
    DescribeGains(f, r);
    for (int i = 0; i < kProjectRecords; ++i)
        f.Item(Numbered("ProjectRecord", i + 1).c_str(), r.projectRecords[size_t(i)], QString());
    DescribeBrightTable(f, r.brightTable);
    f.Item("VisableAutoBrightAdjust", r.visableAutoBrightAdjust, false);
    DescribeUiStyles(f, r);
    DescribeHotkeys(f, r);
}
