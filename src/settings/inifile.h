#pragma once

#include <QString>
#include <QVariant>

constexpr qint64 kMaxIniBytes = 1 << 22; ///< keys cost a hundred times their size

enum class IniCheck
{
    Harmless, ///< or there is no file
    Harmful,
    Unreadable,
};

/// Whether QSettings may read a file: it rebuilds values of any type that a file names, and some of them end
/// the program. Only plain values, geometry, URLs, colours, key sequences, dates and times are let through,
/// and kMaxIniBytes. `codec`: as QSettings is given it, "UTF-8" or none.
IniCheck CheckIni(const QString& path, const char* codec = nullptr);

/// Reads all values that have a name, once CheckIni let the file through; a file that is not there has none.
/// False when it is no INI file.
bool ReadIniValues(const QString& path, QVariantMap* values, const char* codec = nullptr);

/// Writes values into an INI file as one step; other keys of the file that have a name stay. False when they
/// did not get there, or would not be let through when they are read. Without a codec only ASCII stands
/// unescaped.
bool WriteIniValues(const QString& path, const QVariantMap& values, const char* codec = nullptr);
