#pragma once

#include <QString>
#include <QVariant>

/// Writes values into an INI file as one step; other keys of the file stay. False when they did not get
/// there. Without a codec only ASCII stands unescaped.
bool WriteIniValues(const QString& path, const QVariantMap& values, const char* codec = nullptr);
