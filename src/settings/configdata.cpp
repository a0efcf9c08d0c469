#include "settings/configdata.h"

#include "common/canvaslimits.h"
#include "settings/configfile.h"
#include "settings/customizeconfig.h"
#include "settings/folders.h"
#include "settings/hotkeys.h"
#include "settings/inifile.h"
#include "settings/interfacesettings.h"
#include "settings/settingsfile.h"
#include "settings/settingslookup.h"
#include "settings/specifiediplist.h"
#include "settings/translationfile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace {

void WritePrintWatermark()
{
    WriteIniValues(ProductFolder() + QStringLiteral("ProductList.ini"),
                   {{QStringLiteral("Setup/PrintWatermark"), QStringLiteral("Vantrel")}});
}

bool IsInterface(int interface)
{
    return interface >= 0 && interface < kInterfaceCount;
}

bool IsHotkey(int mode, int index)
{
    return mode >= 1 && mode <= kHotkeyModes && index >= 0 && index < kHotkeysInMode;
}

} // namespace

CConfigData::CConfigData()
    : m_file(std::make_unique<SettingsFile>()), m_specifiedIps(std::make_unique<SpecifiedIpList>()),
      m_interface(std::make_unique<InterfaceSettings>()), m_customize(std::make_unique<CustomizeConfig>())
{}

CConfigData::~CConfigData() = default;

bool CConfigData::SetToDefault()
{
    m_items = SConfigItems();
    WritePrintWatermark();
    return true;
}

bool CConfigData::Load(const QString& path)
{
    m_file->SetPath(path);
    m_languageFilePath.clear();
    const bool loaded = XmlLoad(path);
    if (!loaded) {
        SetToDefault();
        m_file->Hold();
        Save();
    }
    if (m_items.autoSelectLanguage)
        m_items.language = GetSystemLanguage();
    return loaded;
}

bool CConfigData::Save()
{
    const bool saved = XmlSave(m_file->Path());
    return Save_UI() && saved;
}

bool CConfigData::XmlLoad(const QString& path)
{
    return ReadConfigFile(path, &m_items);
}

bool CConfigData::XmlSave(const QString& path) const
{
    SConfigItems items = m_items;
    const SettingsLookup& lookup = *GetSettingsLookup();
    if (lookup.IsMonitoring()) {
        // Monitoring sets these locks while it runs; they are not the choice of the user.
        for (int i = 0; i < kInterfaceCount; ++i)
            items.readOnly[size_t(i)] = lookup.StoredReadOnly(i);
    }
    return !path.isEmpty() && (path != m_file->Path() || m_file->MakeWritable())
           && WriteConfigFile(path, items);
}

void CConfigData::SetLanguage(ELanguageType language)
{
    if (!m_languageFilePath.isEmpty())
        m_items.language = language;
    m_languageFilePath = QCoreApplication::applicationDirPath() + QStringLiteral("/Language/")
                         + GetTranslationFileName(GetLanguageType());
}

/// Whoever has chosen neither reads English rather than the Chinese of the sources.
QString CConfigData::GetTranslationPath() const
{
    const QString own = FindTranslation(m_languageFilePath);
    if (!own.isEmpty() || m_languageFilePath.isEmpty() || GetLanguageType() == LanguageChinese)
        return own;
    const QFileInfo described(m_languageFilePath);
    return FindTranslation(described.path() + QLatin1Char('/') + GetTranslationFileName(LanguageEnglish));
}

void CConfigData::SetAttractionDis(double distance)
{
    if (std::isfinite(distance))
        m_items.attractionDis = distance;
}

void CConfigData::SetCustomerTileSize(const QSize& size)
{
    m_items.customerTileWidth = qBound(1, size.width(), kMaxCabinetSize);
    m_items.customerTileHeight = qBound(1, size.height(), kMaxCabinetSize);
}

void CConfigData::SetDeviceInformationLayoutSize(float size)
{
    if (std::isfinite(size))
        m_items.deviceInformationLayoutSize =
            std::round(qBound(kMinLayoutSize, size, kMaxLayoutSize) * 100) / 100;
}

SCurrentGain CConfigData::GetCurrentGain(int index) const
{
    return index >= 0 && index < kCurrentGains ? m_items.currentGains[size_t(index)] : SCurrentGain();
}

void CConfigData::SetCurrentGain(int index, const SCurrentGain& gain)
{
    const bool finite = std::isfinite(gain.red) && std::isfinite(gain.green) && std::isfinite(gain.blue);
    if (finite && index >= 0 && index < kCurrentGains)
        m_items.currentGains[size_t(index)] = gain;
}

bool CConfigData::GetReadOnlyState(int interface) const
{
    return IsInterface(interface) && m_items.readOnly[size_t(interface)];
}

void CConfigData::SetReadOnlyState(int interface, bool readOnly)
{
    if (IsInterface(interface))
        m_items.readOnly[size_t(interface)] = readOnly;
}

void CConfigData::AddProjectRecord(const QString& path)
{
    if (path.isEmpty())
        return;
    // A path listed already leaves its place, a new one pushes the oldest out. The others move down.
    auto& records = m_items.projectRecords;
    auto gap = std::find(records.begin(), records.end(), path);
    if (gap == records.end())
        --gap;
    std::move_backward(records.begin(), gap, gap + 1);
    records.front() = path;
}

int CConfigData::GetProjectRecordCount() const
{
    const auto& records = m_items.projectRecords;
    return static_cast<int>(std::find(records.begin(), records.end(), QString()) - records.begin());
}

QString CConfigData::GetProjectRecordPath(int index) const
{
    return index >= 0 && index < kProjectRecords ? m_items.projectRecords[size_t(index)] : QString();
}

void CConfigData::SetUiStyles(const QList<SUiStyle>& styles)
{
    SetStyles(styles, &m_items);
}

void CConfigData::SetCurrentUiStyle(int index)
{
    if (index >= 0 && index < m_items.uiStyles.size())
        m_items.currentUiStyle = index;
}

SHotkey CConfigData::GetHotkey(int mode, int index) const
{
    return IsHotkey(mode, index) ? m_items.hotkeys[size_t(mode - 1)][size_t(index)] : SHotkey();
}

bool CConfigData::SetHotkey(int mode, int index, const SHotkey& hotkey)
{
    SHotkey changed = hotkey;
    if (!IsHotkey(mode, index) || !NormalizeHotkey(&changed.hotkey))
        return false;
    const int holder = changed.enable ? FindHotkey(mode, changed.hotkey) : -1;
    if (holder >= 0 && holder != index)
        return false;
    m_items.hotkeys[size_t(mode - 1)][size_t(index)] = changed;
    return true;
}

void CConfigData::SetHotkeysToDefault()
{
    m_items.hotkeys = GetDefaultHotkeys();
}

int CConfigData::FindHotkey(int mode, const QString& hotkey) const
{
    QString keys = hotkey;
    if (!IsHotkey(mode, 0) || !NormalizeHotkey(&keys) || keys.isEmpty())
        return -1;
    const auto& hotkeys = m_items.hotkeys[size_t(mode - 1)];
    const auto found = std::find_if(hotkeys.begin(), hotkeys.end(), [&keys](const SHotkey& candidate) {
        return candidate.enable && candidate.hotkey == keys;
    });
    return found == hotkeys.end() ? -1 : static_cast<int>(found - hotkeys.begin());
}

bool CConfigData::LoadSpecifiedIP(const QString& path)
{
    const bool loaded = m_specifiedIps->Load(path);
    UpdateErrorIPList();
    return loaded;
}

bool CConfigData::SaveSpecifiedIP() const
{
    return m_specifiedIps->Save();
}

QStringList CConfigData::GetSpecifiedIPList() const
{
    return m_specifiedIps->Addresses();
}

bool CConfigData::AddSpecifiedIP(const QString& address)
{
    const bool added = m_specifiedIps->Add(address);
    UpdateErrorIPList();
    return added;
}

bool CConfigData::DeleteSpecifiedIP(const QString& address)
{
    const bool removed = m_specifiedIps->Remove(address);
    UpdateErrorIPList();
    return removed;
}

void CConfigData::ClearSpecifiedIP()
{
    m_specifiedIps->Clear();
    m_errorIps.clear();
}

void CConfigData::UpdateErrorIPList()
{
    m_errorIps = m_specifiedIps->Outside(GetLocalNetworks());
}

bool CConfigData::Load_UI(const QString& path)
{
    return m_interface->Load(path);
}

bool CConfigData::Save_UI() const
{
    return m_interface->Save();
}

bool CConfigData::IsEnableRotate() const
{
    return m_interface->IsEnableRotate();
}

void CConfigData::SetEnableRotate(bool enable)
{
    m_interface->SetEnableRotate(enable);
}

QVariant CConfigData::GetUIValue(const QString& key, const QVariant& standard) const
{
    return m_interface->Value(key, standard);
}

void CConfigData::SetUIValue(const QString& key, const QVariant& value)
{
    m_interface->SetValue(key, value);
}

bool CConfigData::LoadCustomizeConfig(const QString& path)
{
    return m_customize->Load(path);
}

bool CConfigData::SaveCustomizeConfig() const
{
    return m_customize->Save();
}

QJsonValue CConfigData::GetCustomizeValue(const QString& key, const QJsonValue& standard) const
{
    return m_customize->Value(key, standard);
}

void CConfigData::SetCustomizeValue(const QString& key, const QJsonValue& value)
{
    m_customize->SetValue(key, value);
}
