#include "layout/rotation.h"

#include "layout/corners.h"

#include <cmath>

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180;

struct Turn
{
    double sine;
    double cosine;
};

Turn TurnBy(double degrees)
{
    const double angle = NormalizedAngle(degrees);
    if (angle == 90)
        return {1, 0};
    if (angle == -90)
        return {-1, 0};
    if (angle == 180)
        return {0, -1};
    return {std::sin(angle * kDegree), std::cos(angle * kDegree)};
}

} // namespace

CPointEx<double> GetRotatePoint(const SRotateParam* param, double x, double y)
{
    if (!param || !std::isfinite(param->angle))
        return {x, y};
    const Turn turn = TurnBy(param->angle);
    const double dx = x - param->centerX;
    const double dy = y - param->centerY;
    return {param->centerX + dx * turn.cosine - dy * turn.sine,
            param->centerY + dx * turn.sine + dy * turn.cosine};
}
