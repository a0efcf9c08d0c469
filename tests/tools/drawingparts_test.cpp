#include "tools/toolsproject.h"

#include <orvantools/edgelines.h>
#include <orvantools/groupoutlines.h>
#include <orvantools/labelplacer.h>
#include <orvantools/wallpicture.h>

#include <algorithm>
#include <random>

using namespace OrvanTools;

namespace {

/// "left,top-right,bottom inward" of every piece, sorted.
QStringList Texts(const std::vector<BorderLine>& border)
{
    QStringList texts;
    for (const BorderLine& piece : border)
        texts.append(QStringLiteral("%1,%2-%3,%4 %5,%6")
                         .arg(piece.line.x1())
                         .arg(piece.line.y1())
                         .arg(piece.line.x2())
                         .arg(piece.line.y2())
                         .arg(piece.inward.x())
                         .arg(piece.inward.y()));
    texts.sort();
    return texts;
}

} // namespace

TEST(EdgeLinesTest, TheBorderOfAnAngledAreaIsOneLineForEachOfItsSides)
{
    EdgeLines edges;
    for (const QRectF& rect : {QRectF(0, 0, 15, 10), QRectF(15, 0, 5, 10), QRectF(0, 10, 10, 10)})
        edges.Add(rect);
    EXPECT_EQ(Texts(edges.GetBorder()),
              (QStringList{QStringLiteral("0,0-0,20 1,0"), QStringLiteral("0,0-20,0 0,1"),
                           QStringLiteral("0,20-10,20 0,-1"), QStringLiteral("10,10-10,20 -1,0"),
                           QStringLiteral("10,10-20,10 0,-1"), QStringLiteral("20,0-20,10 -1,0")}));
}

TEST(LabelPlacerTest, NoTwoPlacesGivenOverlap)
{
    std::mt19937 random(3);
    LabelPlacer placer(40);
    std::vector<QRectF> given;
    int refused = 0;
    for (int i = 0; i < 2000; ++i) {
        const QRectF place(double(random() % 1000) - 500, double(random() % 1000) - 500, 5 + random() % 120,
                           5 + random() % 30);
        const bool isFree = std::none_of(given.begin(), given.end(),
                                         [&](const QRectF& other) { return other.intersects(place); });
        ASSERT_EQ(placer.Take(place), isFree);
        if (isFree)
            given.push_back(place);
        else
            ++refused;
    }
    EXPECT_GT(refused, 0);
}

class WallPictureTest : public ToolsTest
{};

TEST_F(WallPictureTest, ChainsFollowTheNumbersAndLeaveLooseCabinetsOut)
{
    Build(QSize(4, 1), 1, AutoNumberRowsTopRight);
    CTileSet none;
    Tile(0, 1).SetConnectionIndex(-1, &none);
    const WallPicture picture = MakeWallPicture(Project(), 0);
    ASSERT_EQ(picture.ports.size(), 1U);
    EXPECT_EQ(picture.ports[0].chain, (std::vector<int>{3, 2, 0}));
    EXPECT_EQ(picture.bound, QRectF(0, 0, 512, 128));
    EXPECT_EQ(picture.ports[0].pixels, 4 * 128 * 128);
}

TEST_F(WallPictureTest, BackupsAreNamedAtBothEnds)
{
    CSender& sender = Build(QSize(2, 1), 2);
    CSender& other = *Project().NewSender();
    other.SetSenderName(QStringLiteral("门厅"));
    sender.GetPort(1)->GetPortProject()->ClearAllTiles();
    sender.GetPort(1)->SetBeBackupDest(sender.GetId(), 0);
    other.GetPort(2)->SetBeBackupDest(sender.GetId(), 0);
    other.GetPort(3)->SetBeBackupDestIP(0x01020304UL, 1);
    const WallPicture picture = MakeWallPicture(Project(), 0);
    ASSERT_EQ(picture.ports.size(), 2U); // a backup is shown though it has no cabinets
    EXPECT_EQ(picture.ports[0].backups,
              (QStringList{QStringLiteral("port 2"), QStringLiteral("门厅 port 3")}));
    EXPECT_EQ(picture.ports[0].note, QStringLiteral("backup: port 2, 门厅 port 3"));
    EXPECT_EQ(picture.ports[1].note, QStringLiteral("backup of port 1"));
    const WallPicture second = MakeWallPicture(Project(), 1);
    ASSERT_EQ(second.ports.size(), 2U);
    EXPECT_EQ(second.ports[0].note, QStringLiteral("backup of Processor 1 port 1"));
    EXPECT_EQ(second.ports[0].cabinets.size(), 1U); // those of its source, since it has no others
    EXPECT_TRUE(second.ports[0].load.isEmpty());
    EXPECT_EQ(second.view, QStringLiteral("backup"));
    sender.SetSenderName(QString(25, QLatin1Char('n')));
    EXPECT_EQ(MakeWallPicture(Project(), 1).ports[0].note, QStringLiteral("backup of sender 1 port 1"));
    EXPECT_EQ(second.bound, picture.bound);
    EXPECT_TRUE(second.ports[1].note.contains(QStringLiteral("1.2.3.4")));
}

TEST_F(WallPictureTest, TheRearIsMirrored)
{
    Build(QSize(4, 2), 2).SetCanvasSize(QSize(600, 300));
    Tile(0, 0).SetBeMultiRcvsTile(true);
    Tile(0, 0).SetMultiRcvsSize(QSize(4, 1));
    Turn(1, 30);
    const WallPicture front = MakeWallPicture(Project(), 0);
    PictureOptions options;
    options.rear = true;
    options.capacity.framesPerSecond = 120;
    const WallPicture rear = MakeWallPicture(Project(), 0, options);
    EXPECT_EQ(rear.canvas, QRectF(-600, 0, 600, 300));
    for (size_t p = 0; p < 2; ++p) {
        for (size_t i = 0; i < 4; ++i) {
            const TileShape& seen = front.ports[p].shapes[i];
            const TileShape& behind = rear.ports[p].shapes[i];
            EXPECT_EQ(behind.angle, -seen.angle);
            EXPECT_EQ(behind.corners[0], QPointF(-seen.corners[1].x(), seen.corners[1].y()));
            EXPECT_EQ(behind.corners[2], QPointF(-seen.corners[3].x(), seen.corners[3].y()));
        }
    }
    EXPECT_DOUBLE_EQ(rear.ports[0].cabinets[0].receivers[0].right(), 1); // the first card is at the right now
    EXPECT_EQ(rear.ports[0].groups[0].lines.front().line.x1(),
              -front.ports[0].groups[0].lines.front().line.x1());
    EXPECT_EQ(rear.ports[0].load, QStringLiteral("20 %")); // of 655360 pixels at 60 frames
}

TEST_F(WallPictureTest, ReceivingCardsLieInTheirCabinet)
{
    Build(QSize(1, 1), 1);
    CTile& tile = Tile(0, 0);
    tile.SetBeMultiRcvsTile(true);
    tile.SetMultiRcvsSize(QSize(3, 2));
    const unsigned char line[] = {5, 4, 3, 2, 1, 0};
    tile.SetMultiRcvsLine(line);
    const WallPicture picture = MakeWallPicture(Project(), 0);
    const std::vector<QRectF>& parts = picture.ports[0].cabinets[0].receivers;
    ASSERT_EQ(parts.size(), 6U);
    double area = 0;
    for (const QRectF& part : parts) {
        EXPECT_TRUE(QRectF(0, 0, 1, 1).contains(part));
        area += part.width() * part.height();
    }
    EXPECT_NEAR(area, 1, 0.03); // 128 pixels do not part in three
    EXPECT_NE(parts.front(), parts.back());
}

TEST_F(WallPictureTest, AGroupIsOutlinedWithTheGroupsInsideIt)
{
    Build(QSize(4, 2), 1);
    CTileGroupSet& groups = Project().GetSender(0)->GetPort(0)->GetTileGroupSet();
    CTileGroup* outer = groups.GetDirectGroupByDirIndex(0);
    CTileGroup* inner = outer;
    for (int depth = 0; depth < 20; ++depth) { // deeper than is drawn
        auto* below = new CTileGroup;
        below->SetParentGroupID(inner->GetID());
        inner->GetSubGroupSet()->AddGroup(below, true);
        inner = below;
    }
    Tile(0, 0).SetGroupId(inner->GetID());
    const std::vector<GroupOutline> outlines = MakeWallPicture(Project(), 0).ports[0].groups;
    ASSERT_EQ(outlines.size(), 5U);
    for (const GroupOutline& outline : outlines) {
        QRectF bound;
        for (const BorderLine& piece : outline.lines)
            bound = bound.united(QRectF(piece.line.p1(), piece.line.p2()).adjusted(0, 0, 1, 1));
        EXPECT_EQ(bound.width(), outline.depth == 0 ? 513 : 129) << outline.depth;
        EXPECT_EQ(outline.lines.size(), 4U);
    }
}
