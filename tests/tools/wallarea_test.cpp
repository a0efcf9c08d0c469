#include "tools/toolsproject.h"

#include <orvantools/wallarea.h>

using namespace OrvanTools;

using WallAreaTest = ToolsTest;

TEST_F(WallAreaTest, TheCanvasLiesByTheOffset)
{
    CSender& sender = Build({2, 1}, 1);
    sender.SetOffset({-1, -1});
    sender.SetCanvasSize({640, 480});
    EXPECT_EQ(CanvasOf(sender), QRect(0, 0, 640, 480));
    sender.SetOffset({100, -50});
    EXPECT_EQ(CanvasOf(sender), QRect(-100, 50, 640, 480));
    EXPECT_EQ(LargestCanvasOf(sender).topLeft(), QPoint(-100, 50));
    EXPECT_EQ(LargestCanvasOf(sender).right(), kMaxCanvasWidth - 101);
    EXPECT_EQ(LargestCanvasOf(sender).bottom(), kMaxCanvasHeight - 1);
    sender.SetOffset({2000000000, 0});
    EXPECT_EQ(CanvasOf(sender).left(), -1000000);
    sender.SetCanvasSize({640, 0});
    EXPECT_TRUE(CanvasOf(sender).isNull());
}

/// Cabinets of 128 × 128 pixels, four in a square.
TEST_F(WallAreaTest, RoomIsFoundBesideWhatIsThere)
{
    CSender& sender = Build({2, 2}, 1);
    const QRect all = sender.GetBound();
    ASSERT_EQ(all.topLeft(), QPoint(0, 0));
    sender.SetOffset({0, 0});
    sender.SetCanvasSize(all.size() * 2);
    EXPECT_EQ(FreePlace(sender, QRect(all.width(), 0, 10, 10)), QPoint(all.width(), 0)) << "where it is";
    EXPECT_EQ(FreePlace(sender, all), QPoint(all.width(), 0));
    EXPECT_EQ(FreePlace(sender, QRect(1, 1, 10, 10)), QPoint(all.width(), 1)) << "beside all cabinets";
    sender.SetCanvasSize({all.width(), all.height() * 2});
    EXPECT_EQ(FreePlace(sender, all), QPoint(0, all.height()));
    EXPECT_EQ(FreePlace(sender, all.translated(5 * all.width(), 0)), QPoint(0, all.height()));
    sender.SetCanvasSize(all.size());
    EXPECT_EQ(FreePlace(sender, all), QPoint(all.width(), 0)) << "beyond the canvas";
    sender.GetPort(0)->SetBeBackupDest(sender.GetId(), 1);
    EXPECT_EQ(FreePlace(sender, QRect(3, 4, 5, 6)), QPoint(3, 4)) << "a backup takes no room";
}
