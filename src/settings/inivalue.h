#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

// Keys and values as QSettings writes them into INI files, with or without a codec. Older programs read the
// files with it. UTF-8 is read, only ASCII is written: other characters become escapes.

QString KeyFromIni(const QByteArray& text);
QByteArray KeyToIni(const QString& key);

/// A text, bytes, a rectangle, a size, a point, a list, or one of a few plain types that QSettings streams.
/// Invalid for any other type.
QVariant ValueFromIni(const QByteArray& text);

/// Nothing for a type that would not be read again.
std::optional<QByteArray> ValueToIni(const QVariant& value);
