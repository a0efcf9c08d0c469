#include "layout/corners.h"
#include "layout/layouthelpers.h"
#include "layout/rotation.h"

#include <gtest/gtest.h>

#include <algorithm>

TEST(RotationTest, QuarterTurnsAreExactAndClockwise)
{
    const double cases[][3] = {{0, 10, 3},     {90, -3, 10},     {180, -10, -3},  {270, 3, -10},
                               {360, 10, 3},   {-90, 3, -10},    {-180, -10, -3}, {450, -3, 10},
                               {-270, -3, 10}, {36000000, 10, 3}};
    for (const auto& [angle, x, y] : cases) {
        const SRotateParam record = Rotation(angle, 7, 5);
        const CPointEx<double> point = GetRotatePoint(&record, 17, 8);
        EXPECT_TRUE(point.x == 7 + x && point.y == 5 + y) << angle << ": to the last bit";
    }
    EXPECT_EQ(GetRotatePoint(nullptr, 3, 4).y, 4);
    for (const double angle : {90.0, -90.0}) {
        const SRotateParam record = Rotation(angle, 0, 0);
        EXPECT_EQ(GetRotatePoint(&record, 1000, 0).x, 0) << angle;
    }
}

TEST(RotationTest, TheBoundHoldsEveryCornerWhicheverIsOutermost)
{
    CPointEx<double> corners[] = {{-7, 2}, {3, -9}, {11, 4}, {1, 13}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(GetCornerBound(corners), QRect(-7, -9, 18, 22)) << i;
        std::rotate(corners, corners + 1, corners + 4);
    }
}

TEST(RotationTest, EdgesAndCornersAreInsideWhicheverWayTheCornersRun)
{
    const CPointEx<double> clockwise[] = {{0, -10}, {10, 0}, {0, 10}, {-10, 0}};
    const CPointEx<double> reversed[] = {{0, -10}, {-10, 0}, {0, 10}, {10, 0}};
    for (const auto* corners : {clockwise, reversed}) {
        for (const auto& [x, y] : {std::pair(0.0, 0.0), {5.0, 5.0}, {10.0, 0.0}, {5.1, 5.0}, {20.0, -10.0}})
            EXPECT_EQ(IsInQuadrilateral(corners, x, y), x + y <= 10 && x <= 10) << x << ' ' << y;
    }
}
