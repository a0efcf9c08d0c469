#pragma once

#include "settings/settingsfile.h"

#include <QMap>
#include <QString>
#include <QVariant>

/// What the windows remember of themselves, in an INI file. Keys that no window asks for are kept.
class InterfaceSettings
{
public:
    /// Takes the values of the file. False when there is none, or when it is broken and was set aside.
    bool Load(const QString& path);
    bool Save(); ///< to the file loaded from; true, and does nothing, before that

    QVariant Value(const QString& key, const QVariant& standard) const; ///< "Group/Name"
    void SetValue(const QString& key, const QVariant& value);

    bool IsEnableRotate() const { return m_enableRotate; }
    void SetEnableRotate(bool enable);

private:
    SettingsFile m_file;
    QMap<QString, QVariant> m_values;
    bool m_enableRotate = false; ///< also in the values; asked for every cabinet of a wall
};
