#pragma once

#include <QString>

/// A literal in UTF-8 as a text.
inline QString operator""_s(const char* text, size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}
