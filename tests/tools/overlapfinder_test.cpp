#include "tools/toolsproject.h"

#include <orvantools/overlapfinder.h>

#include <QPolygonF>
#include <QTransform>

#include <random>

using OrvanTools::OverlapFinder;
using OrvanTools::TileShape;

namespace {

TileShape Rect(double left, double top, double width, double height)
{
    TileShape shape;
    const QPolygonF corners(QRectF(left, top, width, height));
    shape.corners = {corners[0], corners[1], corners[2], corners[3]};
    return shape;
}

TileShape Turned(TileShape shape, double degrees)
{
    const QPointF center = shape.Center();
    QTransform turn;
    turn.translate(center.x(), center.y()).rotate(degrees).translate(-center.x(), -center.y());
    shape.angle = degrees;
    for (QPointF& corner : shape.corners)
        corner = turn.map(corner);
    return shape;
}

bool Overlaps(const TileShape& a, const TileShape& b)
{
    const bool found = OverlapFinder({a, b}).GetPartner(0) == 1;
    EXPECT_EQ(found, OverlapFinder({b, a}).GetPartner(0) == 1);
    return found;
}

} // namespace

TEST(OverlapFinderTest, TouchingIsNotOverlapping)
{
    const TileShape shape = Rect(100, 100, 50, 50);
    EXPECT_FALSE(Overlaps(shape, Rect(150, 100, 50, 50)));
    EXPECT_FALSE(Overlaps(shape, Rect(150, 150, 50, 50)));
    EXPECT_FALSE(Overlaps(shape, Rect(120, 120, 0, 10))); // covers no pixel
    EXPECT_TRUE(Overlaps(shape, Rect(149, 149, 50, 50)));
    EXPECT_TRUE(Overlaps(shape, Rect(110, 110, 10, 10)));
    EXPECT_FALSE(Overlaps(shape, Rect(-1e6, -1e6, 2e6, 2e6))); // no cabinet
    EXPECT_TRUE(Overlaps(Rect(-60, -60, 50, 50), Rect(-11, -11, 5, 5)));
}

TEST(OverlapFinderTest, TurnedShapesOverlapWhereTheyAreNotWhereTheirBoundsAre)
{
    const TileShape diamond = Turned(Rect(0, 0, 100, 100), 45); // reaches from -20.7 to 120.7
    EXPECT_FALSE(Overlaps(diamond, Rect(100, 100, 20, 20)));
    EXPECT_FALSE(Overlaps(diamond, Rect(-20, -20, 20, 20)));
    EXPECT_TRUE(Overlaps(diamond, Rect(100, 40, 20, 20)));
    EXPECT_FALSE(Overlaps(diamond, Rect(120, 40, 20, 20))); // less than rounding makes
    EXPECT_TRUE(Rect(0, 0, 1, 50).CanOverlap() && Turned(Rect(0, 0, 2, 50), 45).CanOverlap());
    EXPECT_FALSE(Turned(Rect(0, 0, 1, 50), 45).CanOverlap() || Turned(Rect(0, 0, 50, 1), 45).CanOverlap());
}

TEST(OverlapFinderTest, FindsWhatComparingEveryPairFinds)
{
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round) {
        std::vector<TileShape> shapes;
        for (int i = 0; i < 150; ++i) {
            const int size = i % 3 == 0 ? 2 : i % 3 == 1 ? 40 : 1000; // each in cells of its own
            const auto place = [&random] { return double(random() % 3000) - 500; };
            const TileShape rect =
                Rect(place(), place(), 1 + random() % static_cast<unsigned>(size), 1 + random() % 60);
            shapes.push_back(round % 2 == 0 && i % 5 == 0 ? Turned(rect, random() % 180) : rect);
        }
        const OverlapFinder finder(shapes);
        for (size_t a = 0; a < shapes.size(); ++a) {
            bool overlaps = false;
            for (size_t b = 0; b < shapes.size(); ++b)
                overlaps = overlaps || (a != b && IsOverlap(shapes[a], shapes[b]));
            const int partner = finder.GetPartner(a);
            ASSERT_EQ(partner != OverlapFinder::kNone, overlaps) << round << " " << a;
            EXPECT_TRUE(!overlaps || IsOverlap(shapes[a], shapes[static_cast<size_t>(partner)]));
        }
    }
}

class TileShapeTest : public ToolsTest
{};

TEST_F(TileShapeTest, RecordsCountWhateverTheRotationSetting)
{
    Build(QSize(1, 1), 1);
    Tile(0, 0).SetWidth(100);
    Tile(0, 0).SetHeight(50);
    SRotateParam record;
    record.angle = 90;
    record.centerX = 50;
    record.centerY = 25;
    Tile(0, 0).SetTileRotateParam(&record);
    GetConfigData()->SetEnableRotate(false);
    EXPECT_EQ(OrvanTools::ShapeOf(Tile(0, 0)).Bound(), QRectF(25, -25, 50, 100));
    EXPECT_EQ(OrvanTools::ShapeOf(Tile(0, 0)).corners[0], QPointF(75, -25));
    EXPECT_EQ(OrvanTools::ShapeOf(Tile(0, 0)).At(1, 0), QPointF(75, 75));
}
