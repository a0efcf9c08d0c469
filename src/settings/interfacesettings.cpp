#include "settings/interfacesettings.h"

#include "settings/brokenfile.h"
#include "settings/inifile.h"

#include <QFileInfo>

namespace {

const QString kEnableRotate = QStringLiteral("Function/EnableRotate");
constexpr bool kEnableRotateDefault = false;
constexpr const char* kCodec = "UTF-8";

} // namespace

bool InterfaceSettings::Load(const QString& path)
{
    m_path = path;
    m_values.clear();
    m_enableRotate = kEnableRotateDefault;
    const QFileInfo info(path);
    if (!info.isFile())
        return false;
    const IniCheck check = CheckIni(path, kCodec);
    if (check == IniCheck::Unreadable)
        return false;
    if (check == IniCheck::Harmful || !ReadIniValues(path, &m_values, kCodec)) {
        SetBrokenFileAside(path);
        return false;
    }
    m_enableRotate = Value(kEnableRotate, kEnableRotateDefault).toBool();
    return true;
}

bool InterfaceSettings::Save() const
{
    return m_path.isEmpty() || WriteIniValues(m_path, m_values, kCodec);
}

QVariant InterfaceSettings::Value(const QString& key, const QVariant& standard) const
{
    return m_values.value(key, standard);
}

void InterfaceSettings::SetValue(const QString& key, const QVariant& value)
{
    m_values.insert(key, value);
    if (key == kEnableRotate)
        m_enableRotate = value.toBool();
}

void InterfaceSettings::SetEnableRotate(bool enable)
{
    SetValue(kEnableRotate, int(enable));
}
