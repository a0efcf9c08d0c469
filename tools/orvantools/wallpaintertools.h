#pragma once

#include "orvantools/wallpicture.h"

#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

constexpr double kDigitWidth = 0.64; ///< of a text's height, the widest of usual fonts

inline double Limited(double value, double least, double most)
{
    return std::max(least, std::min(value, most));
}

/// Black or white, whichever has the more contrast; it is never below 4.5 : 1.
inline QColor TextOn(const QColor& ground)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    const double light =
        0.2126 * linear(ground.redF()) + 0.7152 * linear(ground.greenF()) + 0.0722 * linear(ground.blueF());
    return (light + 0.05) * (light + 0.05) > 1.05 * 0.05 ? QColor(Qt::black) : QColor(Qt::white);
}

/// Pale for a hidden port.
inline QColor FillOf(const PicturePort& port)
{
    const auto mix = [](int channel) { return (channel + 3 * 255) / 4; };
    const QColor lighter(mix(port.color.red()), mix(port.color.green()), mix(port.color.blue()));
    return port.hidden ? lighter : port.color;
}

/// Of the mark where a chain starts, with the port's number in it.
inline QSizeF StartSize(const QString& text, double textHeight)
{
    return QSizeF(std::max(1.5, text.size() * kDigitWidth + 0.75) * textHeight, 1.5 * textHeight);
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

/// Text that would stand on its head is turned round.
inline double Upright(double angle)
{
    const double turned = std::remainder(angle, 360);
    return std::abs(turned) > 90 ? std::remainder(turned + 180, 360) : turned;
}

} // namespace OrvanTools
