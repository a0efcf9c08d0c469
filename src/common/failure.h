#pragma once

#include <QString>

/// Says why, where the caller wants to know, and gives the false to return.
inline bool Fail(QString* error, const QString& text)
{
    if (error)
        *error = text;
    return false;
}
