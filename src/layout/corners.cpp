#include "layout/corners.h"

#include "common/saturated.h"
#include "layout/rotation.h"

#include <algorithm>

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
