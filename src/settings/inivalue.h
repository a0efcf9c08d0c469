#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

// Keys and values as QSettings writes them into INI files. Older programs read the files with it.

enum class IniCodec
{
    Latin1, ///< only ASCII is written unescaped
    Utf8,
};

QString KeyFromIni(const QByteArray& text);
QByteArray KeyToIni(const QString& key);

/// A text, bytes, a rectangle, a size, a point, a list, or one of a few plain types that QSettings streams.
/// Invalid for any other type.
QVariant ValueFromIni(const QByteArray& text, IniCodec codec);

/// Nothing for a type that would not be read again.
std::optional<QByteArray> ValueToIni(const QVariant& value, IniCodec codec);
