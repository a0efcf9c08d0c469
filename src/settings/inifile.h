#pragma once

#include "settings/inivalue.h"

constexpr qint64 kMaxIniBytes = 1 << 22; ///< keys cost a hundred times their size

/// Reads all values. Keys with an empty part are left out. A file that is not there has no values. False when
/// the file cannot be read, is too large or is no INI file.
bool ReadIniValues(const QString& path, QVariantMap* values);

/// Writes values into an INI file as one step. Only the lines whose values change are touched. False, with
/// the file as it was, when writing failed or when a value could not be read again.
bool WriteIniValues(const QString& path, const QVariantMap& values);
