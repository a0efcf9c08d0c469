#pragma once

#include <QRect>

#include <limits>

/// The nearest `int`. A host or a file may set coordinates to anything; their sums stay defined.
inline int SaturatedInt(qint64 value)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(qBound<qint64>(Limits::min(), value, Limits::max()));
}

/// Truncated toward zero to the nearest `int`; 0 for what is not a number.
inline int TruncatedInt(double value)
{
    using Limits = std::numeric_limits<int>;
    if (!(value == value))
        return 0;
    return static_cast<int>(qBound<double>(Limits::min(), value, Limits::max()));
}

/// Saturates each edge, so that a negative width or height is safe too.
inline QRect SaturatedRect(qint64 left, qint64 top, qint64 width, qint64 height)
{
    return QRect(QPoint(SaturatedInt(left), SaturatedInt(top)),
                 QPoint(SaturatedInt(left + width - 1), SaturatedInt(top + height - 1)));
}
