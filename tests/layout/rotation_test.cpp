#include "layout/corners.h"
#include "layout/rotation.h"

#include <QPointF>

#include <gtest/gtest.h>

namespace {

SRotateParam About(double x, double y, double angle)
{
    SRotateParam record;
    record.centerX = x;
    record.centerY = y;
    record.angle = angle;
    return record;
}

} // namespace

TEST(RotationTest, QuarterTurnsAreExactAndClockwise)
{
    const double cases[][3] = {{0, 10, 3},     {90, -3, 10},     {180, -10, -3},  {270, 3, -10},
                               {360, 10, 3},   {-90, 3, -10},    {-180, -10, -3}, {450, -3, 10},
                               {-270, -3, 10}, {36000000, 10, 3}};
    for (const auto& [angle, x, y] : cases) {
        const SRotateParam record = About(7, 5, angle);
        const CPointEx<double> point = GetRotatePoint(&record, 17, 8);
        EXPECT_EQ(QPointF(point.x, point.y), QPointF(7 + x, 5 + y)) << angle;
        EXPECT_EQ(point.x, 7 + x) << angle << ": to the last bit";
    }
    EXPECT_EQ(GetRotatePoint(nullptr, 3, 4).y, 4);
}

TEST(RotationTest, EdgesAndCornersAreInsideWhicheverWayTheCornersRun)
{
    const CPointEx<double> clockwise[] = {{0, -10}, {10, 0}, {0, 10}, {-10, 0}};
    const CPointEx<double> reversed[] = {{0, -10}, {-10, 0}, {0, 10}, {10, 0}};
    for (const auto* corners : {clockwise, reversed}) {
        EXPECT_TRUE(IsInQuadrilateral(corners, 0, 0));
        EXPECT_TRUE(IsInQuadrilateral(corners, 5, 5));
        EXPECT_TRUE(IsInQuadrilateral(corners, 10, 0));
        EXPECT_FALSE(IsInQuadrilateral(corners, 5.1, 5));
        EXPECT_FALSE(IsInQuadrilateral(corners, 20, -10));
    }
}
