#pragma once

#include "common/interfacedlg.h"

#include <QList>
#include <QString>

#include <array>

constexpr int kHotkeyModes = 2;
constexpr int kHotkeysInMode = 20;
constexpr int kCurrentGains = 4;
constexpr int kProjectRecords = 5;
constexpr int kMaxUiStyles = 16;

/// A keyboard shortcut of one of the host's operations.
struct SHotkey
{
    bool enable = true;
    QString operation;   ///< the host's name of what is done
    QString hotkey;      ///< as QKeySequence writes it, "Ctrl+S"; empty: no key
    QString description; ///< shown to the user
};

struct SUiStyle
{
    QString key;
    QString name; ///< shown to the user; follows the key, and is not in the file
};

/// Share of full current of each primary.
struct SCurrentGain
{
    float red = 1;
    float green = 1;
    float blue = 1;
    QString tip;
};

/// The curve of the automatic brightness: sensor readings from minimum to maximum give YStart to YEnd
/// percent.
struct SBrightTableInfo
{
    double gamma = 0;
    double sensitivity = 0;
    double sensorMin = 0;
    double sensorMax = 0;
    double yStart = 0;
    double yEnd = 0;
};

/// What the settings file holds. Names, defaults and limits stand in the description of the file.
struct SConfigItems
{
    bool autoSelectLanguage = false;
    int language = 0;
    bool showGrid = false;
    bool showTileSort = false;
    bool softEdgeSheet = false;
    bool setEdgePixel = false;
    int disTime = 0;
    bool enableAttraction = false;
    double attractionDis = 0; ///< canvas pixels
    bool enableFahrenheit = false;
    bool enableGamutRgb = false;
    bool enableGamutAutoCalculate = false;
    bool openBackupProject = false;
    bool sendAfterModify = false;
    bool supportMutiTileType = false;
    bool showPowerSupply = false;
    float deviceInformationLayoutSize = 0; ///< percent
    int beaconNoBorder = 0;                ///< 1: without border, 2: with border
    int detectStrategy = 0;
    int customerTileWidth = 0; ///< canvas pixels
    int customerTileHeight = 0;
    std::array<bool, kInterfaceCount> readOnly = {}; ///< by the numbers of EInterfaceDlg
    std::array<SCurrentGain, kCurrentGains> currentGains;
    std::array<QString, kProjectRecords> projectRecords; ///< newest first, the empty ones last
    SBrightTableInfo brightTable;
    bool visableAutoBrightAdjust = false;
    QList<SUiStyle> uiStyles;
    int currentUiStyle = 0;
    std::array<std::array<SHotkey, kHotkeysInMode>, kHotkeyModes> hotkeys;
};
