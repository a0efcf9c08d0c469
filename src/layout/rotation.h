#pragma once

#include "common/export.h"
#include "common/rotateparam.h"

/// The point (x, y) turned by the record's angle, clockwise on the screen, about the record's centre; (x, y)
/// itself for a null record. Multiples of 90 degrees are exact, so that truncation keeps whole pixels.
ORVANDATA_EXPORT CPointEx<double> GetRotatePoint(const SRotateParam* param, double x, double y);
