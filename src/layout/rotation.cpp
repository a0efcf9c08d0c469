#include "layout/rotation.h"

#include "layout/corners.h"

#include "common/saturated.h"

#include <algorithm>
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

void GetRotatedCorners(const SRotateParam& param, int left, int top, int right, int bottom,
                       CPointEx<double> corners[4])
{
    corners[0] = GetRotatePoint(&param, left, top);
    corners[1] = GetRotatePoint(&param, right, top);
    corners[2] = GetRotatePoint(&param, right, bottom);
    corners[3] = GetRotatePoint(&param, left, bottom);
}

QRect GetCornerBound(const CPointEx<double> corners[4])
{
    const auto [minX, maxX] = std::minmax({corners[0].x, corners[1].x, corners[2].x, corners[3].x});
    const auto [minY, maxY] = std::minmax({corners[0].y, corners[1].y, corners[2].y, corners[3].y});
    return SaturatedRect(TruncatedInt(minX), TruncatedInt(minY), TruncatedInt(maxX - minX),
                         TruncatedInt(maxY - minY));
}

bool IsInQuadrilateral(const CPointEx<double> corners[4], double x, double y)
{
    bool left = false;
    bool right = false;
    for (int i = 0; i < 4; ++i) {
        const CPointEx<double>& from = corners[i];
        const CPointEx<double>& to = corners[(i + 1) % 4];
        const double side = (to.x - from.x) * (y - from.y) - (to.y - from.y) * (x - from.x);
        left = left || side < 0;
        right = right || side > 0;
    }
    return !(left && right);
}

double NormalizedAngle(double degrees)
{
    const double angle = std::fmod(degrees, 360);
    if (angle > 180)
        return angle - 360;
    return angle <= -180 ? angle + 360 : angle;
}
