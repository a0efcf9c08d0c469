#include "settings/interfacesettings.h"

#include "settings/inifile.h"

#include <QFileInfo>

namespace {

const QString kEnableRotate = QStringLiteral("Function/EnableRotate");
constexpr bool kEnableRotateDefault = false;

} // namespace

bool InterfaceSettings::Load(const QString& path)
{
    m_file.SetPath(path);
    m_values.clear();
    m_enableRotate = kEnableRotateDefault;
    const QFileInfo info(path);
    if (!info.isFile())
        return false;
    if (!ReadIniValues(path, &m_values)) {
        m_file.Hold();
        m_file.MakeWritable();
        return false;
    }
    m_enableRotate = Value(kEnableRotate, kEnableRotateDefault).toBool();
    return true;
}

bool InterfaceSettings::Save()
{
    return m_file.Path().isEmpty() || (m_file.MakeWritable() && WriteIniValues(m_file.Path(), m_values));
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
