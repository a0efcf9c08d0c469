#pragma once

#include "common/export.h"
#include "settings/configitems.h"
#include "settings/languagetype.h"

#include <QJsonValue>
#include <QSize>
#include <QStringList>
#include <QVariant>

#include <memory>

class CustomizeConfig;
class InterfaceSettings;
class SettingsFile;
class SpecifiedIpList;

/// The settings of the application that persist between runs. One object for all, used by the user-interface
/// thread only. Each file is written where it was loaded from. Before a file is loaded nothing is written,
/// but SetToDefault writes the print watermark. A file that cannot be understood is kept as ".bak", over an
/// older one. While that is not possible, saving leaves the file alone and returns false.
class ORVANDATA_EXPORT CConfigData
{
public:
    CConfigData();
    virtual ~CConfigData();
    CConfigData(const CConfigData&) = delete;
    CConfigData& operator=(const CConfigData&) = delete;

    // settings file
    bool SetToDefault(); ///< also writes the print watermark into the product folder; always true
    /// Reads the file and remembers its path. One that is missing, empty or no settings document gives the
    /// defaults, which are saved at once.
    bool Load(const QString& path);
    bool Save();                       ///< to the path remembered, the interface settings too
    bool XmlLoad(const QString& path); ///< what the file does not name keeps its value
    bool XmlSave(const QString& path) const;

    // language
    bool IsAutoSelectLanguage() const { return m_items.autoSelectLanguage; }
    void SetAutoSelectLanguage(bool automatic) { m_items.autoSelectLanguage = automatic; }
    ELanguageType GetLanguageType() const { return static_cast<ELanguageType>(m_items.language); }
    /// The first call after loading keeps the language loaded and only derives the language file's path.
    void SetLanguage(ELanguageType language);
    QString GetLanguageFilePath() const { return m_languageFilePath; } ///< empty before SetLanguage
    /// The file for a QTranslator: GetLanguageFilePath when it is there, else what lies in the folder that
    /// the build has set or beside the library; of a language without one that of English. Empty for Chinese,
    /// the language of the sources, and when there is none.
    QString GetTranslationPath() const;

    // canvas and design
    bool IsShowGrid() const { return m_items.showGrid; }
    void SetShowGrid(bool show) { m_items.showGrid = show; }
    bool IsShowTileSort() const { return m_items.showTileSort; }
    void SetShowTileSort(bool show) { m_items.showTileSort = show; }
    bool IsSoftEdgeSheet() const { return m_items.softEdgeSheet; }
    void SetSoftEdgeSheet(bool sheet) { m_items.softEdgeSheet = sheet; }
    bool IsSetEdgePixel() const { return m_items.setEdgePixel; }
    void SetSetEdgePixel(bool set) { m_items.setEdgePixel = set; }
    int GetDisTime() const { return m_items.disTime; }
    void SetDisTime(int time) { m_items.disTime = time; }
    bool IsEnableAttraction() const { return m_items.enableAttraction; }
    void SetEnableAttraction(bool enable) { m_items.enableAttraction = enable; }
    double GetAttractionDis() const { return m_items.attractionDis; } ///< canvas pixels
    /// Ignored unless finite. A file that is loaded gives 20 for anything but whole pixels from 8 to 30.
    void SetAttractionDis(double distance);
    QSize GetCustomerTileSize() const { return QSize(m_items.customerTileWidth, m_items.customerTileHeight); }
    void SetCustomerTileSize(const QSize& size); ///< each side clamped to 1 to 1024
    bool IsSupportMutiTileType() const { return m_items.supportMutiTileType; }
    void SetSupportMutiTileType(bool support) { m_items.supportMutiTileType = support; }

    // devices
    bool IsEnableFahrenheit() const { return m_items.enableFahrenheit; }
    void SetEnableFahrenheit(bool enable) { m_items.enableFahrenheit = enable; }
    bool IsEnableGamutRGB() const { return m_items.enableGamutRgb; }
    void SetEnableGamutRGB(bool enable) { m_items.enableGamutRgb = enable; }
    bool IsEnableGamutAutoCalculate() const { return m_items.enableGamutAutoCalculate; }
    void SetEnableGamutAutoCalculate(bool enable) { m_items.enableGamutAutoCalculate = enable; }
    bool IsOpenBackupProject() const { return m_items.openBackupProject; }
    void SetOpenBackupProject(bool open) { m_items.openBackupProject = open; }
    bool IsSendAfterModify() const { return m_items.sendAfterModify; }
    void SetSendAfterModify(bool send) { m_items.sendAfterModify = send; }
    bool IsShowPowerSupply() const { return m_items.showPowerSupply; }
    void SetShowPowerSupply(bool show) { m_items.showPowerSupply = show; }
    float GetDeviceInformationLayoutSize() const { return m_items.deviceInformationLayoutSize; }
    void SetDeviceInformationLayoutSize(float size);                 ///< rounded to 0.01, clamped to 30 to 70
    int GetBeaconNoBorder() const { return m_items.beaconNoBorder; } ///< 1: without border, 2: with border
    void SetBeaconNoBorder(int border) { m_items.beaconNoBorder = border == 1 ? 1 : 2; }
    int GetDetectStrategy() const { return m_items.detectStrategy; }
    void SetDetectStrategy(int strategy) { m_items.detectStrategy = strategy; }
    SCurrentGain GetCurrentGain(int index) const;             ///< from 0; the neutral gain when out of range
    void SetCurrentGain(int index, const SCurrentGain& gain); ///< ignored unless finite
    SBrightTableInfo GetBrightTableInfo() const { return m_items.brightTable; }
    void SetBrightTableInfo(const SBrightTableInfo& info) { m_items.brightTable = info; }
    bool IsVisableAutoBrightAdjust() const { return m_items.visableAutoBrightAdjust; }
    void SetVisableAutoBrightAdjust(bool visible) { m_items.visableAutoBrightAdjust = visible; }

    // read-only state, by the numbers of EInterfaceDlg
    bool GetReadOnlyState(int interface) const;
    void SetReadOnlyState(int interface, bool readOnly);

    // recent projects, newest first
    void AddProjectRecord(const QString& path); ///< moves a path listed already to the front
    int GetProjectRecordCount() const;
    QString GetProjectRecordPath(int index) const; ///< from 0; empty when out of range

    // styles of the windows
    QList<SUiStyle> GetUiStyles() const { return m_items.uiStyles; }
    void SetUiStyles(const QList<SUiStyle>& styles); ///< those with a key, 16 at most; files hold no names
    int GetCurrentUiStyle() const { return m_items.currentUiStyle; }
    void SetCurrentUiStyle(int index); ///< from 0; ignored when out of range

    // hotkeys, by setting mode (1 or 2) and index (from 0); out of range: an empty one, or false
    SHotkey GetHotkey(int mode, int index) const;
    /// Refused when the text names no key, or one that another enabled hotkey of the mode has.
    bool SetHotkey(int mode, int index, const SHotkey& hotkey);
    void SetHotkeysToDefault();
    int FindHotkey(int mode, const QString& hotkey) const; ///< index of the enabled one; -1: none

    // addresses of processors beyond the local networks
    bool LoadSpecifiedIP(const QString& path); ///< lines that are no dotted address are left out
    bool SaveSpecifiedIP() const;
    QStringList GetSpecifiedIPList() const;
    bool AddSpecifiedIP(const QString& address); ///< false when it is no address, known, or one too many
    bool DeleteSpecifiedIP(const QString& address);
    void ClearSpecifiedIP();
    void UpdateErrorIPList(); ///< against this machine's networks as they are now
    QStringList GetErrorIPList() const { return m_errorIps; } ///< those outside every local network

    // interface settings
    bool Load_UI(const QString& path);
    bool Save_UI() const; ///< true, and does nothing, before Load_UI
    bool IsEnableRotate() const;
    void SetEnableRotate(bool enable);
    QVariant GetUIValue(const QString& key, const QVariant& standard = QVariant()) const; ///< "Group/Name"
    void SetUIValue(const QString& key, const QVariant& value);

    // customisation
    bool LoadCustomizeConfig(const QString& path);
    bool SaveCustomizeConfig() const;
    QJsonValue GetCustomizeValue(const QString& key, const QJsonValue& standard = QJsonValue()) const;
    void SetCustomizeValue(const QString& key, const QJsonValue& value);

private:
    SConfigItems m_items;
    std::unique_ptr<SettingsFile> m_file;
    QString m_languageFilePath;
    QStringList m_errorIps;
    std::unique_ptr<SpecifiedIpList> m_specifiedIps;
    std::unique_ptr<InterfaceSettings> m_interface;
    std::unique_ptr<CustomizeConfig> m_customize;
};
