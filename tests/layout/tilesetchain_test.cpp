#include "layout/layouthelpers.h"

#include <gtest/gtest.h>

#include <QMutexLocker>
#include <QRandomGenerator>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace {

struct OwningWall : CTileSet
{
    OwningWall() { SetOwnerShip(true); }

    OwningWall(int columns, int rows) : OwningWall()
    {
        for (int i = 0; i < columns * rows; ++i)
            Add(*this, QRect(i % columns * 100, i / columns * 50, 100, 50));
    }
};

/// Mixed sizes, empty ones too, holes, overlaps, multi-receiver cabinets, a bound that is no whole number of
/// cells.
void AddScattered(CTileSet& set, int count, unsigned seed)
{
    QRandomGenerator random(seed);
    const auto below = [&](int n) { return random.bounded(n); };
    for (int i = 0; i < count; ++i) {
        const QSize size(below(9) == 0 ? -below(200) : 30 + below(90), below(9) == 0 ? 0 : 20 + below(70));
        Add(set, QRect(QPoint(37 + below(700), 13 + below(500)), size), QSize(1 + below(3), 1 + below(3)));
    }
}

std::vector<int> Indices(const CTileSet& set, int (CTile::*index)() const = &CTile::GetConnectionIndex)
{
    std::vector<int> indices;
    for (const CTile* tile : set.GetTiles())
        indices.push_back((tile->*index)());
    return indices;
}

std::vector<int> Begins(const CTileSet& set)
{
    return Indices(set, &CTile::GetBeginRcvCnnt);
}

/// The begin of every cabinet in the chain is the sum of the receivers before it.
void ExpectBeginsAlongChain(const CTileSet& set)
{
    int receivers = 0;
    for (int index = 0; const CTile* tile = set.GetTileByConnection(index); ++index) {
        ASSERT_EQ(tile->GetBeginRcvCnnt(), receivers);
        receivers += tile->GetMultiRcvsCount();
    }
    ASSERT_EQ(set.GetRcvCount(), receivers);
}

/// Numbers cell after cell as the patterns are described: the slow way, kept apart from the code under test.
void NumberCellByCell(CTileSet& set, int type)
{
    const int codes[8][2] = {{0, 2}, {2, 0}, {3, 1}, {1, 3}, {4, 6}, {5, 7}, {7, 5}, {6, 4}};
    const bool right = type == 1 || type == 2 || type == 5 || type == 6;
    const bool bottom = type == 2 || type == 3 || type == 6 || type == 7;
    set.ClearConnectIndex();
    QSize cell;
    ASSERT_TRUE(set.AutoConnectGetSize(cell));
    const QRect bound = set.GetBound();
    const int columns = (bound.width() + cell.width() - 1) / cell.width();
    const int rows = (bound.height() + cell.height() - 1) / cell.height();
    const int left = right ? bound.right() + 1 - columns * cell.width() : bound.left();
    const int top = bottom ? bound.bottom() + 1 - rows * cell.height() : bound.top();
    int next = 0;
    for (int strip = 0; strip < (type < 4 ? rows : columns); ++strip) {
        const int code = codes[type][strip % 2];
        const int length = type < 4 ? columns : rows;
        for (int i = 0; i < length; ++i) {
            const bool backwards = code == 2 || code == 3 || code == 6 || code == 7;
            const int along = backwards ? length - 1 - i : i;
            const int across = (type < 4 ? bottom : right) ? (type < 4 ? rows : columns) - 1 - strip : strip;
            const QPoint at = type < 4 ? QPoint(along, across) : QPoint(across, along);
            const QRect rect(QPoint(left + at.x() * cell.width(), top + at.y() * cell.height()), cell);
            set.NumberSetRect(next, rect, cell, code);
        }
    }
}

/// Whichever of the two is listed first. They have several cards, but count as wholes.
void ExpectTaken(const QRect& from, Qt::Key key, const QRect& nearer, const QRect& other)
{
    for (const bool first : {true, false}) {
        OwningWall wall;
        for (const QRect& rect : {first ? nearer : other, first ? other : nearer})
            Add(wall, QRect(QPoint(), rect.size()), QSize(2, 2))->Offset(rect.x(), rect.y());
        EXPECT_EQ(wall.GetDirectionTile(from, key, false, false), wall.GetTile(first ? 0 : 1))
            << key << ": " << nearer.x() << ' ' << nearer.y() << ", " << other.x() << ' ' << other.y();
    }
}

} // namespace

TEST(TileSetChainTest, OnlyAWholeNumberingIsAPattern)
{
    OwningWall wall(3, 3);
    wall.AutoConnection(AutoNumberColumnsBottomLeft, 7);
    EXPECT_EQ(Indices(wall), (std::vector<int>{2, 3, 8, 1, 4, 7, 0, 5, 6}));
    wall.GetTile(4)->SetConnectionIndex(0, &wall);
    EXPECT_EQ(wall.GetConnectionType(), -1) << "two cabinets are first";
    wall.AutoConnection(AutoNumberRowsTopLeft, 0);
    wall.GetTile(8)->SetConnectionIndex(-1, &wall);
    EXPECT_EQ(wall.GetConnectionType(), -1) << "the last one is not in the chain";
    wall.AutoConnection(AutoNumberRowsTopLeft, 0);
    Add(wall, QRect(300, 150, 0, 0));
    EXPECT_EQ(wall.GetConnectionType(), AutoNumberRowsTopLeft) << "no pattern goes there";
    wall.GetTile(9)->SetConnectionIndex(9, &wall);
    EXPECT_EQ(wall.GetConnectionType(), -1) << "but this chain does";

    OwningWall flat;
    Add(flat, QRect(0, 0, 0, 50))->SetConnectionIndex(0, nullptr);
    EXPECT_EQ(flat.GetConnectionType(), -1) << "there is no cell to go through";
}

TEST(TileSetChainTest, AnySetIsNumberedLikeCellByCell)
{
    int leftOut = 0;
    for (unsigned seed = 1; seed <= 6; ++seed) {
        OwningWall wall;
        AddScattered(wall, 120, seed);
        Add(wall, QRect(wall.GetBound().bottomRight() + QPoint(1, 1), QSize(0, 0))); // mostly in no cell
        CTileSet listedTwice;
        for (int i = 0; i < 200; ++i)
            listedTwice.AddTile(wall.GetTile(i % wall.GetCount()));
        for (int type = 0; type < 8; ++type) {
            NumberCellByCell(listedTwice, type);
            const std::vector<int> expected = Indices(wall);
            leftOut += static_cast<int>(std::count(expected.begin(), expected.end(), -1));
            wall.ClearConnectIndex();
            wall.GetTile(wall.GetCount() - 1)->SetConnectionIndex(7, nullptr);
            ASSERT_TRUE(listedTwice.AutoConnection(static_cast<EnAutoNumberType>(type), 0));
            EXPECT_EQ(Indices(wall), expected) << "pattern " << type << ", seed " << seed;
            EXPECT_EQ(listedTwice.GetConnectionType(), type);
            ExpectBeginsAlongChain(wall);
        }
    }
    EXPECT_GT(leftOut, 10);
}

TEST(TileSetChainTest, TheCellIsTheLeastWidthByTheLeastHeight)
{
    const std::pair<std::vector<QSize>, QSize> cases[] = {
        {{{60, 90}, {80, 20}}, {60, 20}}, {{{80, 20}, {60, 90}}, {60, 20}}, {{{1, 0}, {7, 1}}, {1, 1}},
        {{{-4, 9}, {8, -2}}, {8, 9}},     {{{0, 50}, {-1, 40}}, {}},        {{{50, 0}, {40, -1}}, {}}};
    for (const auto& [sizes, expected] : cases) {
        OwningWall wall;
        for (const QSize& size : sizes)
            Add(wall, QRect(QPoint(0, 0), size));
        QSize cell;
        EXPECT_EQ(wall.AutoConnectGetSize(cell), expected.isValid());
        EXPECT_EQ(cell, expected);
    }
}

TEST(TileSetChainTest, NothingToNumberLeavesTheSetUnnumbered)
{
    CTileSet empty;
    EXPECT_FALSE(empty.AutoConnection(AutoNumberRowsTopLeft, 0) || empty.CanDrawCnntLine(1));
    EXPECT_EQ(empty.GetConnectionType(), -1);

    OwningWall wall(3, 2);
    for (int type : {8, -1}) {
        wall.AutoConnection(AutoNumberRowsTopLeft, 0);
        EXPECT_FALSE(wall.AutoConnection(static_cast<EnAutoNumberType>(type), 0) || wall.HasNumberedTiles());
    }
    wall.GetTile(2)->SetWidth(0);
    wall.GetTile(2)->SetHeight(-7);
    QSize cell;
    EXPECT_TRUE(wall.AutoConnectGetSize(cell));
    EXPECT_EQ(cell, QSize(100, 50)) << "sizes below one pixel give no cell";
    for (const QSize& size : {QSize(60, 200), QSize(200, 60)}) { // a line needs room both ways
        Place(*wall.GetTile(2), QRect(QPoint(0, 0), size));
        for (int pixels : {-1, 0, 1, 59, 60, 99})
            EXPECT_EQ(wall.CanDrawCnntLine(pixels), pixels == 1 || pixels == 59) << pixels;
    }
}

TEST(TileSetChainTest, NumberSetRectContinuesTheChainAtNext)
{
    OwningWall wall(3, 1);
    wall.GetTile(1)->SetMultiRcvsSize(QSize(2, 2));
    wall.GetTile(0)->SetConnectionIndex(0, &wall);
    int next = 1;
    EXPECT_TRUE(wall.NumberSetRect(next, QRect(0, 0, 300, 50), QSize(100, 50), 2));
    EXPECT_EQ(Indices(wall), (std::vector<int>{0, 2, 1}));
    EXPECT_EQ(Begins(wall), (std::vector<int>{0, 2, 1}));
    EXPECT_FALSE(wall.NumberSetRect(next, QRect(0, 0, 300, 50), QSize(100, 50), 0));
    EXPECT_EQ(next, 3);

    for (int i : {1, 2})
        wall.GetTile(i)->SetConnectionIndex(-1, nullptr);
    next = 0;
    for (int direction : {-1, 8}) // there are eight
        EXPECT_FALSE(wall.NumberSetRect(next, QRect(0, 0, 300, 50), QSize(100, 50), direction));
    EXPECT_EQ(Indices(wall), (std::vector<int>{0, -1, -1}));
    wall.GetTile(0)->SetMultiRcvsSize(QSize(3, 1));
    EXPECT_TRUE(wall.NumberSetRect(next, QRect(0, 0, 300, 50), QSize(100, 50), 0));
    EXPECT_EQ(Begins(wall), (std::vector<int>{0, 0, 4})) << "after the one that was numbered before it here";
}

TEST(TileSetChainTest, NormalisationClosesGapsAndResolvesEqualIndices)
{
    OwningWall wall(6, 1);
    const std::vector<int> stored = {7, 2, -1, 7, 1000000, 2};
    for (int i = 0; i < 6; ++i) {
        wall.GetTile(i)->SetMultiRcvsSize(QSize(i + 1, 1));
        wall.GetTile(i)->SetConnectionIndex(stored[static_cast<size_t>(i)], nullptr);
        wall.GetTile(i)->SetBeginRcvCnnt(99);
    }
    CTileSet listedTwice;
    for (int i : {3, 0, 1, 2, 4, 5, 3, 2})
        listedTwice.AddTile(wall.GetTile(i));
    listedTwice.TileSetNormalization();
    EXPECT_EQ(Indices(wall), (std::vector<int>{3, 0, -1, 2, 4, 1})) << "its order decides between equals";
    EXPECT_EQ(Begins(wall), (std::vector<int>{12, 0, -1, 8, 13, 2}));

    for (int i = 0; i < 6; ++i)
        wall.GetTile(i)->SetConnectionIndex(stored[static_cast<size_t>(i)], nullptr);
    CTileSet chain;
    const QMutexLocker lock(&CTileSet::m_mutex); // would hang if it took it
    wall.GetTileSetNumberedNormalization(chain);
    EXPECT_EQ(Begins(wall), (std::vector<int>{8, 0, -1, 9, 13, 2}));
    EXPECT_TRUE(Indices(chain) == (std::vector<int>{0, 1, 2, 3, 4}) && !chain.IsOwner());
}

TEST(TileSetChainTest, ReceiversAreFoundByTheirPlaceInTheChain)
{
    OwningWall wall;
    Add(wall, QRect(0, 0, 100, 100));
    Add(wall, QRect(100, 0, 100, 100), QSize(2, 2));
    Add(wall, QRect(200, 0, 100, 100));
    EXPECT_EQ(wall.GetTileByRcvCnnt(0), nullptr);
    wall.AutoConnection(AutoNumberRowsTopLeft, 0);
    EXPECT_EQ(wall.GetTileByRcvCnnt(4), wall.GetTile(1));
    EXPECT_EQ(wall.GetTileByRcvCnntIndex(5), wall.GetTile(2));
    EXPECT_EQ(wall.GetTileByRcvCnnt(6), nullptr);
    EXPECT_EQ(wall.GetRectByRcvCnntIndex(3), QRect(150, 0, 50, 50));
    EXPECT_EQ(wall.GetRectByRcvCnntIndex(0), QRect(0, 0, 100, 100));
    EXPECT_EQ(wall.GetRectByRcvCnntIndex(6), QRect());
    CTileSet multi;
    EXPECT_FALSE(wall.CanSnapToRcvsMulti() || multi.CanSnapToRcvsMulti());
    multi.AddTile(wall.GetTile(1));
    EXPECT_TRUE(multi.CanSnapToRcvsMulti());
}

TEST(TileSetChainTest, ArrowKeysNumberTheNearestCabinetThatOverlaps)
{
    OwningWall wall;
    CTile* first = Add(wall, QRect(0, 0, 100, 100));
    CTile* far = Add(wall, QRect(260, 0, 100, 100));
    CTile* shifted = Add(wall, QRect(120, 60, 100, 100));
    CTile* straight = Add(wall, QRect(120, 10, 100, 100)); // as near as the one above, but straighter
    CTile* below = Add(wall, QRect(110, 120, 100, 1));     // no column in common with the first
    const std::pair<int, CTile*> presses[] = {
        {Qt::Key_Space, nullptr}, {Qt::Key_Left, first}, // the first arrow takes the one at the origin
        {Qt::Key_Down, nullptr},  {Qt::Key_Right, straight},
        {Qt::Key_Right, far},     {Qt::Key_Left, shifted}, // numbered cabinets are passed over
        {Qt::Key_Down, below},    {Qt::Key_Up, nullptr}};
    int index = -1;
    for (const auto& [key, numbered] : presses) {
        EXPECT_EQ(wall.DirectionKeyConnection(static_cast<unsigned long>(key)), numbered != nullptr) << key;
        EXPECT_TRUE(!numbered || numbered->GetConnectionIndex() == ++index) << key;
    }
    EXPECT_EQ(wall.GetDirectionTile(below->GetBound(), Qt::Key_Up, false, false), straight);
    for (const CTile* tile : wall)
        EXPECT_EQ(tile->GetMultiRcvDemarcateIndex(), -1) << "numbering marks no card";
    first->SetConnectionIndex(std::numeric_limits<int>::max(), nullptr);
    below->SetConnectionIndex(-1, nullptr);
    EXPECT_FALSE(wall.DirectionKeyConnection(Qt::Key_Right)) << "no number comes after that";
}

TEST(TileSetChainTest, AnArrowTakesTheLeastGapAndThenTheNearestMiddle)
{
    // Seen from the middle of a cabinet from -50 to 50 both ways, for an arrow to the right.
    const std::pair<QRect, QRect> cases[] = {
        {{60, 40, 100, 101}, {61, -50, 100, 101}},  {{60, -50, 99, 101}, {60, -50, 100, 101}},
        {{60, -50, 100, 101}, {60, -49, 100, 101}}, {{60, -10, 100, 101}, {60, -91, 100, 101}},
        {{60, -91, 100, 101}, {60, -8, 100, 101}},  {{60, 50, 100, 101}, {51, 51, 1, 1}},
        {{60, -150, 100, 101}, {51, -51, 1, 1}},    {{1, 0, 10, 10}, {0, 0, 10, 10}}};
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        const auto towards = [key](const QRect& rect) {
            const bool upright = key == Qt::Key_Up || key == Qt::Key_Down;
            const QPoint least = upright ? rect.topLeft().transposed() : rect.topLeft();
            const QPoint most = upright ? rect.bottomRight().transposed() : rect.bottomRight();
            const bool back = key == Qt::Key_Left || key == Qt::Key_Up;
            return QRect(back ? -most : least, back ? -least : most).translated(1050, 1050);
        };
        for (const auto& [nearer, other] : cases)
            ExpectTaken(towards(QRect(-50, -50, 101, 101)), key, towards(nearer), towards(other));
    }
    const std::pair<QRect, QRect> fromOrigin[] = {
        {{30, 0, 9, 9}, {31, 0, 9, 9}},      {{0, 30, 9, 9}, {0, 31, 9, 9}},
        {{-38, 0, 9, 9}, {-39, 0, 9, 9}},    {{0, -38, 9, 9}, {0, -39, 9, 9}},
        {{0, 0, 99, 100}, {0, 0, 100, 100}}, {{0, 0, 100, 99}, {0, 0, 100, 100}},
        {{0, 0, 100, 100}, {1, 0, 9, 9}},    {{0, 0, 100, 100}, {0, 1, 9, 9}},
        {{30, 40, 9, 9}, {51, 0, 9, 9}},     {{0, 49, 9, 9}, {40, 30, 9, 9}}};
    for (const auto& [nearer, other] : fromOrigin)
        ExpectTaken(QRect(), Qt::Key_Up, nearer, other);
}

TEST(TileSetChainTest, ArrowKeysMoveTheMarkFromCardToCard)
{
    OwningWall wall;
    CTile* multi = Add(wall, QRect(0, 0, 100, 100), QSize(2, 2)); // cards run down each column
    CTile* plain = Add(wall, QRect(100, 0, 100, 100));
    wall.AutoConnection(AutoNumberRowsTopRight, 0);
    // The first arrow takes the card at the origin; the plain cabinet comes first in the chain.
    const int presses[][4] = {{Qt::Key_Up, 1, 0, -1},
                              {Qt::Key_Down, 2, 1, -1},
                              {Qt::Key_Right, 4, 3, -1},
                              {Qt::Key_Right, 0, -1, 0}};
    int receiver = -5;
    OwningWall unnumbered(1, 1);
    EXPECT_TRUE(unnumbered.DirectionKeyDemarcateTile(Qt::Key_Up, receiver) && receiver == -1);
    for (const auto& [key, found, inMulti, inPlain] : presses) {
        EXPECT_TRUE(wall.DirectionKeyDemarcateTile(static_cast<unsigned long>(key), receiver));
        EXPECT_EQ(receiver, found);
        EXPECT_EQ(multi->GetMultiRcvDemarcateIndex(), inMulti) << found;
        EXPECT_EQ(plain->GetMultiRcvDemarcateIndex(), inPlain) << found;
    }
    EXPECT_FALSE(wall.DirectionKeyDemarcateTile(Qt::Key_Right, receiver));
    EXPECT_TRUE(receiver == 0 && plain->GetMultiRcvDemarcateIndex() == 0);
}

TEST(TileSetChainTest, CabinetsAreAppendedAndInserted)
{
    OwningWall wall(5, 1);
    const auto tile = [&](int i) { return wall.GetTile(i); };
    EXPECT_TRUE(wall.AppendToChain({tile(4), tile(0), tile(4)}));
    EXPECT_FALSE(wall.AppendToChain({tile(0)})) << "has its number";
    EXPECT_TRUE(wall.AppendToChain({tile(0), tile(2)}));
    EXPECT_EQ(Indices(wall), (std::vector<int>{1, -1, 2, -1, 0}));
    EXPECT_EQ(Begins(wall), (std::vector<int>{1, -1, 2, -1, 0}));

    CTile stranger;
    EXPECT_FALSE(wall.InsertIntoChain(tile(0), tile(4)));
    EXPECT_FALSE(wall.InsertIntoChain(tile(1), tile(3))) << "has none";
    EXPECT_FALSE(wall.InsertIntoChain(&stranger, tile(4)));
    EXPECT_FALSE(wall.InsertIntoChain(tile(1), &stranger));
    EXPECT_TRUE(wall.InsertIntoChain(tile(1), tile(4)));
    EXPECT_TRUE(wall.InsertIntoChain(tile(3), nullptr));
    EXPECT_EQ(Indices(wall), (std::vector<int>{3, 2, 4, 0, 1}));
    EXPECT_EQ(Begins(wall), Indices(wall));

    for (int i : {0, 1, 2})
        tile(i)->SetConnectionIndex(i == 2 ? -1 : 7, nullptr);
    EXPECT_TRUE(wall.InsertIntoChain(tile(2), tile(0)));
    EXPECT_EQ(Indices(wall), (std::vector<int>{2, 4, 3, 0, 1})) << "between two that had one number";
}
