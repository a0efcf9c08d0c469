#pragma once

#include "common/export.h"

#include <QMetaType>

class QDebug;

/// A point whose coordinates have the type T.
template <class T> struct CPointEx
{
    T x = T();
    T y = T();
};

/// Rotation of a cabinet or of a group: canvas pixels and degrees, clockwise on the screen (y grows down).
struct SRotateParam
{
    bool rotated = false;
    bool showCenter = false;
    double centerX = -100;
    double centerY = -100;
    double leftTopX = -100;
    double leftTopY = -100;
    double angle = 0;
    double width = 0;
    double height = 0;
};

/// Numbers that differ by less than 0.49 pixel or degree are equal, so that a rounded copy equals its source.
inline bool operator==(const SRotateParam& a, const SRotateParam& b)
{
    const auto near = [](double p, double q) { return p - q < 0.49 && q - p < 0.49; };
    return a.rotated == b.rotated && a.showCenter == b.showCenter && near(a.centerX, b.centerX)
           && near(a.centerY, b.centerY) && near(a.leftTopX, b.leftTopX) && near(a.leftTopY, b.leftTopY)
           && near(a.angle, b.angle) && near(a.width, b.width) && near(a.height, b.height);
}

inline bool operator!=(const SRotateParam& a, const SRotateParam& b)
{
    return !(a == b);
}

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const CPointEx<double>& point);
ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const CPointEx<int>& point);
ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SRotateParam& param);

Q_DECLARE_METATYPE(CPointEx<double>)
Q_DECLARE_METATYPE(CPointEx<int>)
Q_DECLARE_METATYPE(SRotateParam)
