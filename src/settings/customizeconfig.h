#pragma once

#include "settings/settingsfile.h"

#include <QJsonObject>
#include <QString>

constexpr qint64 kMaxJsonBytes = 1 << 24;

/// What a vendor's edition of the host changes, in a JSON file. Members that nobody asks for are kept.
class CustomizeConfig
{
public:
    /// Takes the values of the file. False when there is none, or when it is broken and was set aside.
    bool Load(const QString& path);
    bool Save(); ///< to the file loaded from; false before that

    QJsonValue Value(const QString& key, const QJsonValue& standard) const;
    void SetValue(const QString& key, const QJsonValue& value) { m_values.insert(key, value); }

private:
    SettingsFile m_file;
    QJsonObject m_values;
};
