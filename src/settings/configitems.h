#pragma once

#include "common/export.h"
#include "common/interfacedlg.h"
#include "settings/languagetype.h"

#include <QList>
#include <QMetaType>
#include <QString>

#include <array>

class QDebug;

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

using HotkeyTable = std::array<std::array<SHotkey, kHotkeysInMode>, kHotkeyModes>;

ORVANDATA_EXPORT HotkeyTable GetDefaultHotkeys();
ORVANDATA_EXPORT QList<SUiStyle> GetDefaultUiStyles();

/// What the settings file holds, and what stands there at a first start.
struct SConfigItems
{
    bool autoSelectLanguage = false;
    int language = GetSystemLanguage();
    bool showGrid = true;
    bool showTileSort = false;
    bool softEdgeSheet = false;
    bool setEdgePixel = false;
    int disTime = 10;
    bool enableAttraction = true;
    double attractionDis = 20; ///< canvas pixels
    bool enableFahrenheit = false;
    bool enableGamutRgb = true;
    bool enableGamutAutoCalculate = false;
    bool openBackupProject = true;
    bool sendAfterModify = false;
    bool supportMutiTileType = true;
    bool showPowerSupply = false;
    float deviceInformationLayoutSize = 40; ///< percent
    int beaconNoBorder = 1;                 ///< 1: without border, 2: with border
    int detectStrategy = 0;
    int customerTileWidth = 128; ///< canvas pixels
    int customerTileHeight = 128;
    std::array<bool, kInterfaceCount> readOnly = {}; ///< by the numbers of EInterfaceDlg
    std::array<SCurrentGain, kCurrentGains> currentGains = {{{1, 1, 1, QStringLiteral("1")},
                                                             {1, 1, 1, QStringLiteral("2")},
                                                             {1, 1, 1, QStringLiteral("3")},
                                                             {1, 1, 1, QStringLiteral("4")}}};
    std::array<QString, kProjectRecords> projectRecords; ///< newest first, the empty ones last
    SBrightTableInfo brightTable = {2.2, 50, 0, 100, 0, 100};
    bool visableAutoBrightAdjust = false;
    QList<SUiStyle> uiStyles = GetDefaultUiStyles();
    int currentUiStyle = 1;
    HotkeyTable hotkeys = GetDefaultHotkeys();
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SHotkey& hotkey);

Q_DECLARE_METATYPE(SHotkey)
Q_DECLARE_METATYPE(SUiStyle)
Q_DECLARE_METATYPE(SCurrentGain)
Q_DECLARE_METATYPE(SBrightTableInfo)
