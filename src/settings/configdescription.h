#pragma once

#include "settings/configitems.h"

#include <string>

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

template <class Fields> void DescribeGains(Fields& f, SConfigItems& r)
{
    f.Begin("CurrenGain");
    for (int i = 0; i < kCurrentGains; ++i) {
        SCurrentGain& gain = r.currentGains[size_t(i)];
        f.Begin(Numbered("CurrenGain_", i + 1).c_str());
        f.Attribute("Red", gain.red);
        f.Attribute("Green", gain.green);
        f.Attribute("Blue", gain.blue);
        f.Attribute("Tip", gain.tip);
        f.End();
    }
    f.End();
}

template <class Fields> void DescribeBrightTable(Fields& f, SBrightTableInfo& r)
{
    f.Begin("BrightTableInfo");
    f.Attribute("Gamma", r.gamma);
    f.Attribute("Sensitivity", r.sensitivity);
    f.Attribute("Sensor_Min", r.sensorMin);
    f.Attribute("Sensor_Max", r.sensorMax);
    f.Attribute("YStart", r.yStart);
    f.Attribute("YEnd", r.yEnd);
    f.End();
}

template <class Fields> void DescribeUiStyles(Fields& f, SConfigItems& r)
{
    f.Begin("UiStyleEx");
    f.Count("UiCount", "UiStyle", r.uiStyles, kMaxUiStyles);
    f.Item("UiCurrent", r.currentUiStyle);
    for (int i = 0; i < r.uiStyles.size(); ++i) {
        f.Begin(Numbered("UiStyle", i + 1).c_str());
        f.Attribute("Path", r.uiStyles[i].key);
        f.End();
    }
    f.End();
}

template <class Fields> void DescribeHotkeys(Fields& f, SConfigItems& r)
{
    f.Begin("HotkeyQT");
    for (int i = 0; i < kHotkeyModes * kHotkeysInMode; ++i) {
        SHotkey& hotkey = r.hotkeys[size_t(i / kHotkeysInMode)][size_t(i % kHotkeysInMode)];
        QString enable = QLatin1String(hotkey.enable ? "TRUE" : "FALSE");
        f.Begin(Numbered("Item", i + 1).c_str());
        f.Attribute("Enable", enable);
        f.Attribute("Operation", hotkey.operation);
        f.Attribute("HotKeyValue", hotkey.hotkey);
        f.Attribute("Description", hotkey.description);
        f.End();
        hotkey.enable = enable.trimmed().compare(QLatin1String("TRUE"), Qt::CaseInsensitive) == 0;
    }
    f.End();
}

/// The settings file, in its order.
template <class Fields> void DescribeConfig(Fields& f, SConfigItems& r)
{
    f.Item("AutoSelectLanguage", r.autoSelectLanguage);
    f.Item("Language", r.language);
    f.Item("ShowGrid", r.showGrid);
    f.Item("ShowTileSort", r.showTileSort);
    f.Item("SoftEdgeSheet", r.softEdgeSheet);
    f.Item("SetEdgePixel", r.setEdgePixel);
    f.Item("DisTime", r.disTime);
    f.Item("EnableAttraction", r.enableAttraction);
    f.Whole("AttractionDis", r.attractionDis, 1);
    f.Item("EnableFahrenheit", r.enableFahrenheit);
    f.Item("EnableGamutRGB", r.enableGamutRgb);
    f.Item("EnableGamutAutoCalculate", r.enableGamutAutoCalculate);
    f.Item("OpenBackupProject", r.openBackupProject);
    f.Item("SendAfterModify", r.sendAfterModify);
    f.Item("SupportMutiTileType", r.supportMutiTileType);
    f.Item("ShowPowerSupply", r.showPowerSupply);
    f.Whole("DeviceInformationLayoutSize", r.deviceInformationLayoutSize, 100);
    f.Item("BeaconNoBorder", r.beaconNoBorder);
    f.Item("DetectStrategy", r.detectStrategy);
    f.Begin("CustomerTileSize");
    f.Item("Width", r.customerTileWidth);
    f.Item("Height", r.customerTileHeight);
    f.End();
    f.Begin("ReadOnlyModeState");
    for (const ReadOnlyName& state : kReadOnlyNames)
        f.Item(state.name, r.readOnly[size_t(state.interface)]);
    f.End();
    DescribeGains(f, r);
    for (int i = 0; i < kProjectRecords; ++i)
        f.Item(Numbered("ProjectRecord", i + 1).c_str(), r.projectRecords[size_t(i)]);
    DescribeBrightTable(f, r.brightTable);
    f.Item("VisableAutoBrightAdjust", r.visableAutoBrightAdjust);
    DescribeUiStyles(f, r);
    DescribeHotkeys(f, r);
}
