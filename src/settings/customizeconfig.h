#pragma once

#include "settings/settingsfile.h"

#include <QJsonObject>
#include <QString>

constexpr qint64 kMaxJsonBytes = 1 << 24;

/// What a vendor's edition of the host changes, in a JSON file. Members that nobody asks for are kept.
class CustomizeConfig
{
public:
    /// Starts from the file's values; false when there is none or it is broken and was set aside.
    bool Load(const QString& path);
    bool Save(); ///< to the file loaded from; false before

    QJsonValue Value(const QString& key, const QJsonValue& standard) const;
    void SetValue(const QString& key, const QJsonValue& value);

private:
    SettingsFile m_file;
    QJsonObject m_values;
};
