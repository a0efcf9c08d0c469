#pragma once

#include "common/rotateparam.h"

#include <QRect>

#include <cmath>

// The geometry behind turned cabinets and groups.

constexpr double kNoAngle = 0.0001; ///< degrees; up to it nothing counts as turned
constexpr int kFar = 1 << 29;       ///< beyond every canvas; below it sizes can be added without overflow

inline bool IsRotationAngle(double degrees)
{
    return std::abs(degrees) > kNoAngle;
}

/// Turns the corners left-top, right-top, right-bottom, left-bottom of a rectangle given by its edges (right
/// and bottom one past the last pixel).
void GetRotatedCorners(const SRotateParam& param, int left, int top, int right, int bottom,
                       CPointEx<double> corners[4]);

/// Bounding box of four corners: left, top, width and height each truncated toward zero.
QRect GetCornerBound(const CPointEx<double> corners[4]);

/// Whether a point lies inside the convex quadrilateral or on its edge.
bool IsInQuadrilateral(const CPointEx<double> corners[4], double x, double y);

/// The angle in degrees brought into (-180, 180].
double NormalizedAngle(double degrees);
