#pragma once

#include "orvantools/wallpicture.h"

#include <algorithm>

namespace OrvanTools {

inline double Limited(double value, double least, double most)
{
    return std::max(least, std::min(value, most));
}

/// Black or white, whichever is readable.
inline QColor TextOn(const QColor& ground)
{
    const double light = 0.299 * ground.red() + 0.587 * ground.green() + 0.114 * ground.blue();
    return light > 130 ? QColor(Qt::black) : QColor(Qt::white);
}

/// Pale for a hidden port.
inline QColor FillOf(const PicturePort& port)
{
    const auto mix = [](int channel) { return (channel + 3 * 255) / 4; };
    const QColor lighter(mix(port.color.red()), mix(port.color.green()), mix(port.color.blue()));
    return port.hidden ? lighter : port.color;
}

/// Shows a number that counts from 0. A file may hold any number.
inline QString FromOne(qint64 number)
{
    return QString::number(number + 1);
}

inline int NumberOf(const PicturePort& port, int place)
{
    return port.cabinets[static_cast<size_t>(place)].number;
}

} // namespace OrvanTools
