#pragma once

#include <QString>

/// Tells the reason if the caller wants it. Returns false, for the caller to return.
inline bool Fail(QString* error, const QString& text)
{
    if (error)
        *error = text;
    return false;
}
