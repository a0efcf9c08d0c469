#include "layout/storedtile.h"

#include "common/interfacedlg.h"
#include "layout/layouthelpers.h"
#include "layout/tileaccess.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace {

SMD5 TypeOf(char digit)
{
    return SMD5::FromString(QString(SMD5::kDigits, QLatin1Char(digit)));
}

/// A cabinet of 2 x 2 receiving cards, 128 x 128 pixels at (100, 50), wired 1, 0, 3, 2.
CTile FourCards()
{
    CTile tile;
    Place(tile, QRect(100, 50, 128, 128));
    tile.SetBeMultiRcvsTile(true);
    tile.SetMultiRcvsOrdered(true);
    tile.SetMultiRcvsSize(QSize(2, 2));
    const unsigned char line[] = {1, 0, 3, 2};
    tile.SetMultiRcvsLine(line);
    return tile;
}

} // namespace

TEST(TileTest, PlaceIsClampedToTheCanvasByThePresentSize)
{
    CTile tile;
    Place(tile, QRect(0, 0, 200, 100));
    const int cases[][3] = {{-5, 0, 0},
                            {-1, 0, 0},
                            {0, 0, 0},
                            {16383, 16383, 16383},
                            {16384, 16384, 16284},
                            {32767, 32767, 16284},
                            {32768, 32568, 16284}};
    for (const auto& [wanted, x, y] : cases) {
        EXPECT_EQ(tile.SetX(wanted), x == wanted) << wanted;
        EXPECT_EQ(tile.SetY(wanted), y == wanted) << wanted;
        EXPECT_EQ(tile.GetPosition(), QPoint(x, y)) << wanted;
    }
    StoredTile stored;
    stored.x = -131072;
    stored.y = -131073;
    EXPECT_EQ(StoredTileMaker().Make(stored)->GetPosition(), QPoint(-131072, 0))
        << "a sender's offset makes some places legal";
    tile.SetWidth(2000);
    tile.SetHeight(-3);
    EXPECT_EQ(tile.GetSize(), QSize(1024, -3));
}

TEST(TileTest, EveryFieldCountsInComparisonAndWritingItLeavesCopiesAlone)
{
    const std::function<void(CTile&)> writes[] = {
        [](CTile& t) { t.SetSenderId(QUuid::createUuid()); },
        [](CTile& t) { t.SetPortIndex(7); },
        [](CTile& t) { t.SetGroupId(QUuid::createUuid()); },
        [](CTile& t) { t.SetType(TypeOf('b')); },
        [](CTile& t) { t.SetX(1); },
        [](CTile& t) { t.SetY(1); },
        [](CTile& t) { t.SetWidth(1); },
        [](CTile& t) { t.SetHeight(1); },
        [](CTile& t) { t.Offset(0, 1); },
        [](CTile& t) { t.SetTileVisible(false); },
        [](CTile& t) { t.SetSelected(true, InterfaceDesign, -1); },
        [](CTile& t) { t.SetBeMultiFixedLine(true); },
        [](CTile& t) { t.SetMultiRcvsOrdered(false); },
        [](CTile& t) { t.SetMultiRcvsSize(QSize(1, 4)); },
        [](CTile& t) { t.GetMultiRcvsLine()[9] = 1; },
        [](CTile& t) { t.SetMultiRcvDemarcateIndex(1); },
        [](CTile& t) { t.SetConnectionIndex(-2, nullptr); },
        [](CTile& t) { t.SetBeginRcvCnnt(4); },
        [](CTile& t) { t.GetTileRotateParam()->showCenter = true; },
        [](CTile& t) { t.GetTileRotateParam()->angle = 0.5; },
    };
    const CTile source = FourCards();
    for (size_t i = 0; i < std::size(writes); ++i) {
        CTile copy(source);
        const CTile before(copy);
        writes[i](copy);
        EXPECT_NE(copy, source) << i;
        EXPECT_EQ(before, source) << i;
        CTile target;
        target = copy;
        EXPECT_EQ(target, copy) << i;
    }

    CTile copy(source); // writes that change nothing leave it sharing
    copy.SetX(100);
    copy.SetSelected(false, InterfaceDesign, -1);
    const unsigned char line[] = {1, 0, 3, 2};
    copy.SetMultiRcvsLine(line);
    copy.SetConnectionIndex(-1, nullptr);
    copy.Offset(0, 0);
    EXPECT_EQ(TileAccess::Data(copy), TileAccess::Data(source));
}

TEST(TileTest, ViewStateIsNeitherCopiedNorCompared)
{
    CTile tile = FourCards();
    EXPECT_EQ(CTile().GetTileShowColor(), QColor(160, 163, 173, 200));
    tile.SetTileShowColor(Qt::red);
    tile.SetTileGamutStatus(3);
    tile.SetRcvSelected(2, true);
    const CTile copy(tile);
    EXPECT_FALSE(copy.GetTileShowColor().isValid() || copy.GetTileGamutStatus() || copy.IsRcvSelected(2));
    EXPECT_EQ(copy, tile);
    tile = copy;
    EXPECT_TRUE(tile.GetTileShowColor() == Qt::red && tile.GetTileGamutStatus() == 3);
    EXPECT_TRUE(tile.IsRcvSelected(2));
}

TEST(TileTest, PointerHandedOutStaysTheTilesOwn)
{
    CTile tile = FourCards();
    const CTile before(tile);
    SRotateParam* record = tile.GetTileRotateParam();
    unsigned char* line = tile.GetMultiRcvsLine();
    CTile copy(tile);
    CTile target;
    target = tile;
    record->angle = 45;
    line[3] = 9;
    EXPECT_TRUE(copy == before && target == before && tile.GetRotateRecord().angle == 45);

    const CTile other;
    tile = other;
    EXPECT_TRUE(tile == other && &tile.GetRotateRecord() == record);
    record->angle = 30;
    line[0] = 7;
    EXPECT_TRUE(tile.GetRotateRecord().angle == 30 && tile.GetMultiRcvsLineCode(0) == 7);
    EXPECT_EQ(other.GetRotateRecord().angle, 0);

    CTile wired = FourCards(); // without a pointer to its rotation
    line = wired.GetMultiRcvsLine();
    const CTile apart(wired);
    line[0] = 7;
    EXPECT_EQ(apart, before);
}

TEST(TileTest, FlagsFollowTheProductAndEachOther)
{
    TestLookup lookup;
    lookup.productType = TypeOf('a');
    lookup.product.multi = true;
    lookup.product.multiSet = true;
    CTile tile;
    tile.SetType(TypeOf('a'));
    EXPECT_TRUE(tile.IsMultiRcvTile() && tile.IsMultiRcvsOrdered());
    tile.SetType(TypeOf('b'));
    EXPECT_FALSE(tile.IsMultiRcvTile() || tile.IsMultiRcvsOrdered());
    EXPECT_EQ(tile.GetType(), TypeOf('b'));
    lookup.product = {};
    tile.SetType(TypeOf('a'));
    EXPECT_FALSE(tile.IsMultiRcvTile() || tile.IsMultiRcvsOrdered());
    EXPECT_EQ(tile.GetType(), TypeOf('a'));

    tile = FourCards();
    tile.SetBeMultiFixedLine(true);
    tile.SetMultiRcvsOrdered(false);
    EXPECT_TRUE(tile.IsMultiRcvsOrdered() && tile.IsMultiFixedLine()) << "as every fixed line";
    tile.SetBeMultiRcvsTile(false);
    tile.SetBeMultiFixedLine(true);
    EXPECT_FALSE(tile.IsMultiRcvsOrdered() || tile.IsMultiFixedLine()) << "that needs several cards";
}

TEST(TileTest, CardsAreCountedWhereTheirGridIsOne)
{
    constexpr int most = std::numeric_limits<int>::max();
    CTile tile;
    for (const auto& [grid, count] : {std::pair(QSize(0, 5), 0),
                                      {QSize(-1, -1), 0},
                                      {QSize(2, -3), 0},
                                      {QSize(65536, 65536), 0},
                                      {QSize(most, 1), most}}) {
        tile.SetMultiRcvsSize(grid);
        EXPECT_EQ(tile.GetMultiRcvsCount(), count) << grid.width() << ' ' << grid.height();
    }
    EXPECT_TRUE(tile.IsTileVisible());
    tile.SetTileVisible(false);
    EXPECT_FALSE(tile.IsTileVisible());
}

TEST(TileTest, ViewsKeepSelectionsOfTheirOwn)
{
    for (int iface = -1; iface <= kInterfaceCount; ++iface) {
        CTile tile;
        tile.SetSelected(true, iface, -1);
        EXPECT_EQ(tile.IsRcvSelected(0), iface >= 3 && iface <= 6) << iface;
        for (int other = -1; other <= kInterfaceCount; ++other)
            EXPECT_EQ(tile.IsSelected(other), other == iface && iface >= 3 && iface <= 6) << iface << other;
        tile.SetSelected(false, iface, 65535);
        EXPECT_EQ(tile, CTile());
    }
}

TEST(TileTest, CabinetIsSelectedWhileOneOfItsCardsIs)
{
    constexpr int kView = InterfaceCalibration;
    CTile tile = FourCards();
    tile.SetSelected(true, kView, 2);
    tile.SetSelected(true, kView, 3);
    tile.SetMultiRcvDemarcateIndex(2);
    tile.SetSelected(false, kView, 2);
    EXPECT_TRUE(!tile.IsRcvSelected(2) && tile.IsRcvSelected(3) && tile.IsSelected(kView));
    EXPECT_EQ(tile.GetMultiRcvDemarcateIndex(), -1);
    tile.SetSelected(false, kView, 3);
    EXPECT_FALSE(tile.IsSelected(kView));

    for (int index : {-2, 4, 64}) { // cards that it does not have
        tile.SetSelected(true, kView, index);
        EXPECT_FALSE(tile.IsSelected(kView)) << index;
    }
}

TEST(TileTest, CardsLieColumnByColumnInWiringOrder)
{
    CTile tile = FourCards();
    EXPECT_EQ(tile.GetMultiRcvRect(0), QRect(100, 114, 64, 64));
    EXPECT_EQ(tile.GetMultiRcvRelativeRect(3), QRect(64, 0, 64, 64));
    tile.SetMultiRcvsOrdered(false);
    EXPECT_EQ(tile.GetMultiRcvRect(0), QRect(164, 50, 64, 64));
    for (int index : {-1, 4})
        EXPECT_EQ(tile.GetMultiRcvRect(index), QRect()) << index;

    tile.SetMultiRcvsOrdered(true);
    for (const QSize& size : {QSize(-2, -2), QSize(65536, 65536), QSize(0, 3)}) { // odd grids are harmless
        tile.SetMultiRcvsSize(size);
        EXPECT_EQ(tile.GetMultiRcvRect(0), QRect());
    }
    EXPECT_EQ(tile.GetMultiRcvRelativeRect(0), QRect());
    EXPECT_EQ(tile.GetMultiRcvsSize(), QSize(0, 3)) << "none is asked for";
    EXPECT_EQ(tile.GetMultiRcvRelativeRect(-1), QRect(0, 0, 1, 1));
    EXPECT_EQ(tile.GetMultiRcvsSize(), QSize(128, 128)) << "an empty grid is repaired";

    tile.SetMultiRcvsSize(QSize(4, 4)); // more cards than codes are kept
    const unsigned char codes[16] = {9, 8, 7, 6, 5, 4, 3, 2, 1, 6, 77, 77, 77, 77, 77, 77};
    tile.SetMultiRcvsLine(codes);
    EXPECT_EQ(tile.GetMultiRcvRect(9), QRect(132, 114, 32, 32));
    EXPECT_EQ(tile.GetMultiRcvRect(15), QRect(100, 50, 32, 32));

    tile.SetMultiRcvsSize(QSize(1, 1));
    tile.SetMultiRcvsLine(codes + 4);
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(qAsConst(tile).GetMultiRcvsLine()), 2), "\5\x8");
    tile.SetMultiRcvsSize(QSize(0, 3));
    tile.SetHeight(0);
    EXPECT_EQ(tile.GetMultiRcvRelativeRect(-1), QRect(0, 0, 1, 1)) << "not even a pixel high";
}

TEST(TileTest, ChainCountsTheCardsOfThePredecessor)
{
    CTile before;
    before.SetMultiRcvsSize(QSize(2, 1));
    before.SetConnectionIndex(2, nullptr);
    before.SetBeginRcvCnnt(5);
    CTileSet set;
    set.AddTile(&before);

    CTile tile;
    tile.SetConnectionIndex(3, &set);
    EXPECT_EQ(tile.GetBeginRcvCnnt(), 7);
    for (int index : {9, -1, 0}) { // without a predecessor it stays
        tile.SetConnectionIndex(index, &set);
        EXPECT_EQ(tile.GetBeginRcvCnnt(), index == 0 ? 0 : 7) << index;
    }

    const auto sender = MakeWall(3, 1, 2);
    TestLookup lookup;
    lookup.senders.append(sender.get());
    tile.SetSenderId(sender->GetId());
    for (int port : {kMaxPorts, 1}) { // without a set its own port is asked
        tile.SetPortIndex(port);
        tile.SetConnectionIndex(3, nullptr);
        EXPECT_EQ(tile.GetBeginRcvCnnt(), port == 1 ? 3 : 0) << port;
    }
}

TEST(TileTest, TurnedTileIsBoundedByItsCornersWhileRotationIsEnabled)
{
    TestLookup lookup;
    CTile tile;
    Place(tile, QRect(0, 0, 100, 50));
    Turn(tile, 90, 50, 25);
    EXPECT_EQ(tile.GetBound(), QRect(0, 0, 100, 50));
    lookup.rotateEnabled = true;
    EXPECT_EQ(tile.GetBound(), QRect(25, -25, 50, 100));
    EXPECT_EQ(tile.GetCenter(), QPoint(50, 25));
    Turn(tile, 30, 50, 25);
    EXPECT_LE((tile.GetCenter() - QPoint(50, 25)).manhattanLength(), 2);
    Turn(tile, 90, 0, 0); // about its own left-top corner
    EXPECT_EQ(tile.GetBound(), QRect(-50, 0, 50, 100));
    EXPECT_EQ(tile.GetCenter(), QPoint(-25, 50));
    tile.Offset(10, -20);
    EXPECT_EQ(tile.GetBound(), QRect(-40, -20, 50, 100)) << "its rotation moves along";
    for (double angle : {-30.0, 0.0001, 0.001}) {
        SRotateParam record;
        record.angle = angle;
        tile.SetTileRotateParam(&record);
        EXPECT_EQ(tile.IsTileRotated(), angle == 0.001) << angle;
    }
}
