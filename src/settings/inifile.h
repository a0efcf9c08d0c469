#pragma once

#include "settings/inivalue.h"

constexpr qint64 kMaxIniBytes = 1 << 22; ///< keys cost a hundred times their size

/// Reads all values whose keys have no empty part. A file that is not there has none. False when the file
/// cannot be read, is too large or is no INI file.
bool ReadIniValues(const QString& path, QVariantMap* values, IniCodec codec);

/// Writes values into an INI file as one step. All lines stay as they are but those whose value changes.
/// False, with the file unchanged, when they did not get there or could not be read again.
bool WriteIniValues(const QString& path, const QVariantMap& values, IniCodec codec);
