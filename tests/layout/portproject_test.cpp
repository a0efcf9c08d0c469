#include "layout/portproject.h"

#include "layout/layouthelpers.h"
#include "layout/rotation.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>

namespace {

constexpr int kView = 3;

SAddTileInfo Block(int columns, int rows)
{
    SAddTileInfo info;
    info.columns = columns;
    info.rows = rows;
    info.width = 100;
    info.height = 50;
    return info;
}

} // namespace

struct PortProjectTest : testing::Test
{
    CPort port;
    CPortProject& layout = *port.GetPortProject();
    CTileSet& tiles = TilesOf(port);
    CTileGroupSet& groups = GroupsOf(port);

    CTile* Tile(int index) { return tiles.GetTile(index); }
    CTileSet Tiles(std::initializer_list<int> indices)
    {
        CTileSet set;
        for (const int index : indices)
            set.AddTile(tiles.GetTile(index));
        return set;
    }
};

TEST_F(PortProjectTest, AddTilePlacesABlockRowByRowAsASelectedGroup)
{
    ASSERT_TRUE(layout.AddTile(Block(1, 1)));
    EXPECT_TRUE(Tile(0)->GetGroupId().isNull() && Tile(0)->IsSelected(kView));
    SAddTileInfo info = Block(3, 2);
    info.left = 40;
    info.top = 10;
    info.portIndex = 2;
    info.senderId = QUuid::createUuid();
    EXPECT_EQ(info.GetBound(), QRect(40, 10, 300, 100));
    ASSERT_TRUE(layout.AddTile(info));
    ASSERT_EQ(tiles.GetCount(), 7);
    EXPECT_FALSE(Tile(0)->IsSelected(kView));
    EXPECT_EQ(Tile(4)->GetPosition(), QPoint(40, 60));
    EXPECT_EQ(Tile(6)->GetBound(), QRect(240, 60, 100, 50));
    EXPECT_TRUE(Tile(6)->GetPortIndex() == 2 && Tile(6)->GetTileShowColor().isValid());
    EXPECT_EQ(Tile(6)->GetSenderId(), info.senderId);
    const SRotateParam record = {false, false, 290, 85, -100, -100, 0, 100, 50};
    EXPECT_EQ(Tile(6)->GetRotateRecord(), record);

    ASSERT_EQ(groups.GetDirectCount(), 1);
    CTileGroup* group = groups.GetDirectGroupByDirIndex(0);
    EXPECT_EQ(Tile(6)->GetGroupId(), group->GetID());
    EXPECT_TRUE(group->IsSelected(kView));
    const SRotateParam block = {false, false, 190, 60, 40, 10, 0, 300, 100};
    EXPECT_EQ(*group->GetRotateParam(), block);
}

TEST_F(PortProjectTest, AddTileRefusesEnormousBlocksAndKeepsOthersOnTheCanvas)
{
    for (const QSize& size : {QSize(0, 5), QSize(5, 0), QSize(1024, 1025), QSize(65536, 65536)})
        EXPECT_FALSE(layout.AddTile(Block(size.width(), size.height())));
    EXPECT_EQ(tiles.GetCount() + groups.GetDirectCount(), 0);
    tiles.AddTile(new CTile);
    EXPECT_FALSE(layout.AddTile(Block(kMaxTilesOfPort / 64, 64))) << "one too many";
    layout.ClearAllTiles();

    SAddTileInfo info = Block(2, 2);
    info.left = std::numeric_limits<int>::max() - 50;
    info.top = -20;
    ASSERT_TRUE(layout.AddTile(info));
    EXPECT_EQ(Tile(3)->GetPosition(), QPoint(kMaxCanvasWidth - 100, 30));
    EXPECT_EQ(Tile(0)->GetRotateRecord().centerY, 25);
}

TEST_F(PortProjectTest, AddTileLetsTheBlockOverruleTheProductAndRegistersIt)
{
    TestLookup lookup;
    lookup.productType = SMD5::FromString(QString(32, QLatin1Char('a')));
    lookup.product = {"cabinet"_s, false, false};

    SAddTileInfo info = Block(2, 1);
    info.type = lookup.productType;
    info.multi = true;
    info.fixedLine = true;
    info.ordered = false;
    info.multiSize = QSize(2, 2);
    const unsigned char line[] = {1, 0, 3, 2};
    std::copy(std::begin(line), std::end(line), info.line);
    ASSERT_TRUE(layout.AddTile(info));
    EXPECT_EQ(Tile(1)->GetType(), info.type);
    EXPECT_TRUE(Tile(1)->IsMultiRcvTile() && Tile(1)->IsMultiRcvsOrdered()) << "as every fixed line";
    EXPECT_TRUE(Tile(1)->GetMultiRcvsCount() == 4 && Tile(1)->GetMultiRcvsLineCode(2) == 3);
    EXPECT_EQ(lookup.parameterFiles, QList<QString>{"cabinet"_s});
}

TEST_F(PortProjectTest, CardsAreWiredAsAPatternNumbersCabinets)
{
    SAddTileInfo info;
    for (const QSize& cards : {QSize(3, 2), QSize(2, 5), QSize(1, 3)}) {
        for (int i = AutoNumberRowsTopLeft; i <= AutoNumberColumnsBottomLeft; ++i) {
            layout.ClearAllTiles();
            layout.AddTile(Block(cards.width(), cards.height()));
            const auto pattern = static_cast<EnAutoNumberType>(i);
            tiles.AutoConnection(pattern, 0);
            ASSERT_TRUE(info.SetCards(cards, pattern) && info.multi);
            const QVector<QPoint> way = info.GetCards();
            EXPECT_EQ(way.size(), tiles.GetCount());
            for (const CTile* tile : tiles)
                EXPECT_EQ(way.value(tile->GetConnectionIndex()),
                          QPoint(tile->GetX() / 100, tile->GetY() / 50))
                    << i;
        }
    }
    ASSERT_TRUE(info.SetCards(QSize(2, 3), AutoNumberRowsBottomRight, false));
    const auto line = [&info] { return QByteArray(reinterpret_cast<char*>(info.line), 7); };
    EXPECT_EQ(line(), QByteArray("\5\2\4\1\3\0\0", 7));
    for (const QSize& cards : {QSize(0, 2), QSize(-1, -1), QSize(4, 3), QSize(65536, 65536)})
        EXPECT_FALSE(info.SetCards(cards, AutoNumberRowsTopLeft));
    EXPECT_FALSE(info.SetCards(QSize(2, 2), static_cast<EnAutoNumberType>(8)));
    EXPECT_TRUE(info.multiSize == QSize(2, 3) && info.line[0] == 5) << "refused, so it stays";
    info.ordered = false;
    EXPECT_EQ(info.GetCards().first(), QPoint(0, 0)) << "the end of the line";
    info.fixedLine = true;
    EXPECT_TRUE(info.SetCards(QSize(1, 1), AutoNumberRowsTopLeft));
    EXPECT_TRUE(!info.multi && !info.fixedLine && info.ordered && line() == QByteArray(7, '\0'));
    EXPECT_EQ(info.GetCards(), QVector<QPoint>{QPoint()});
    info.multiSize = QSize(2, 2);
    EXPECT_EQ(info.GetCards().size(), 1) << "not a cabinet of several";
    EXPECT_TRUE(info.SetCards(QSize(1, 2), AutoNumberRowsTopLeft) && info.multi);
    for (const auto& [cards, count] : {std::pair(QSize(5, 2), 10), {QSize(4, 4), 10}, {QSize(0, 2), 1}}) {
        info.multiSize = cards; // as a host may set it
        EXPECT_EQ(info.GetCards().size(), count);
    }
}

TEST_F(PortProjectTest, CopiesAreEqualAndStandAlone)
{
    const QUuid group = MakeWall(port, 2, 1);
    const CPortProject copy(layout);
    CPortProject assigned;
    assigned.AddTile(Block(2, 2));
    assigned = copy;
    EXPECT_TRUE(assigned == layout && copy == layout);
    assigned.GetTileSet()->GetTile(0)->Offset(1, 0);
    EXPECT_NE(assigned, layout);
    groups.GetDirectGroupByDirID(group)->SetSelected(kView, false);
    EXPECT_NE(copy, layout);
}

TEST_F(PortProjectTest, LayoutsFreeWhatTheyHoldAndHandItOverOnce)
{
    using CountedGroup = Counted<CTileGroup>;
    auto other = std::make_unique<CPortProject>();
    for (CPortProject* project : {&layout, other.get()}) {
        Add(*project->GetTileSet(), QRect(0, 0, 100, 100));
        project->GetTileGroupSet()->AddGroup(new CountedGroup, true);
    }
    const CTile* tile = other->GetTileSet()->GetTile(0);
    const CTileGroup* group = other->GetTileGroupSet()->GetDirectGroupByDirIndex(0);
    layout.TakeFrom(*other);
    EXPECT_TRUE(Tile(0) == tile && groups.GetDirectGroupByDirIndex(0) == group);
    EXPECT_TRUE(CountedTile::alive == 1 && CountedGroup::alive == 1) << "what was there before is gone";
    EXPECT_TRUE(*other == CPortProject() && other->GetTileGroupSet()->GetDirectCount() == 0);
    Add(*other->GetTileSet(), QRect(0, 0, 100, 100));
    other->GetTileGroupSet()->AddGroup(new CountedGroup, true);
    other.reset();
    EXPECT_TRUE(CountedTile::alive == 1 && CountedGroup::alive == 1);
    layout.ClearAllTiles();
    EXPECT_EQ(CountedTile::alive + CountedGroup::alive + groups.GetDirectCount(), 0);
}

TEST_F(PortProjectTest, DeletingTheSelectionTakesSelectedGroupsAtEveryDepth)
{
    QList<QUuid> ids;
    for (int i = 0; i < 4; ++i)
        ids.append(MakeWall(port, 2, 1));
    NestGroups(port, ids[2], {ids[0], ids[1]});
    layout.CancelAllSelected();
    EXPECT_FALSE(Tile(7)->IsSelected(kView) || groups.GetDirectGroupByDirID(ids[3])->IsSelected(kView));
    groups.GetSubGroupBySubID(ids[0])->SetSelected(kView, true);
    groups.GetDirectGroupByDirID(ids[3])->SetSelected(kView, true);
    const QList<CTile*> staying{Tile(2), Tile(3), Tile(5)};
    for (const int index : {0, 1, 4, 6, 7})
        Tile(index)->SetSelected(true, kView, -1);

    EXPECT_TRUE(layout.DeleteSelectedTileAndGroup());
    EXPECT_EQ(tiles.GetTiles(), staying);
    EXPECT_TRUE(tiles.IsOwner());
    EXPECT_FALSE(groups.GetSubGroupBySubID(ids[0]));
    EXPECT_TRUE(groups.GetSubGroupBySubID(ids[1]) && groups.GetDirectCount() == 1);

    auto* doomed = new Counted<CTileGroup>;
    doomed->SetSelected(kView, true);
    groups.AddGroup(doomed, true);
    groups.AddGroup(new CTileGroup(*groups.GetDirectGroupByDirIndex(0)), true); // as a damaged file may hold
    layout.DeleteSelectedTileAndGroup();
    EXPECT_TRUE(Counted<CTileGroup>::alive == 0 && groups.GetDirectCount() == 2) << "both of one id stay";
}

// Cabinets 0-1 lie in `left`, 2-3 in `right`, both below `above` with 4-5; 6-7 in `single`, 8 in none.
struct PortProjectGroupTest : PortProjectTest
{
    PortProjectGroupTest()
    {
        left = MakeWall(port, 2, 1);
        right = MakeWall(port, 2, 1);
        above = MakeWall(port, 2, 1);
        single = MakeWall(port, 2, 1);
        MakeWall(port, 1, 1);
        NestGroups(port, above, {right, left});
    }

    void ExpectTiles(const CTileSet& set, std::initializer_list<int> indices)
    {
        EXPECT_EQ(set.GetTiles(), Tiles(indices).GetTiles());
    }

    QUuid left, right, above, single;
    const QUuid unknown = QUuid::createUuid();
};

TEST_F(PortProjectGroupTest, TilesOfAGroupComeGroupByGroupFromTheTop)
{
    CTileSet out = Tiles({8});
    EXPECT_TRUE(layout.GetTileSetInGroupRecursive(out, above));
    ExpectTiles(out, {8, 4, 5, 2, 3, 0, 1});
    EXPECT_TRUE(layout.GetAllTileSetInFirstGroup(out, above));
    ExpectTiles(out, {4, 5, 2, 3, 0, 1});

    EXPECT_FALSE(layout.GetAllTileSetInFirstGroup(out, left)); // not at the top
    ExpectTiles(out, {});
    out = Tiles({8});
    const CTileGroup* group = groups.GetDirectGroupByDirID(above);
    EXPECT_TRUE(layout.GetAllTileSetInFirstGroupPart(out, group->GetSubGroupSet()));
    ExpectTiles(out, {8, 2, 3, 0, 1});
    const CTileGroupSet none;
    EXPECT_FALSE(layout.GetAllTileSetInFirstGroupPart(out, nullptr));
    EXPECT_FALSE(layout.GetAllTileSetInFirstGroupPart(out, &none));

    Tile(8)->SetGroupId(unknown);
    CTileSet stray;
    EXPECT_FALSE(layout.GetTileSetInGroupRecursive(stray, unknown));
    ExpectTiles(stray, {8});
}

TEST_F(PortProjectGroupTest, GroupsOfTilesAreListedOnceInOrder)
{
    Tile(8)->SetGroupId(unknown);
    const CTileSet some = Tiles({7, 8, 0, 1, 4});
    QList<QUuid> ids{unknown};
    EXPECT_TRUE(layout.GetDirectGroupsInTileSet(ids, some));
    EXPECT_EQ(ids, QList<QUuid>({above, single}));
    EXPECT_TRUE(layout.GetAllGroupsFromTileSet(ids, some));
    EXPECT_EQ(ids, QList<QUuid>({single, left, above}));
    EXPECT_TRUE(layout.GetAllTileGroupIDInTileSet(&some, ids));
    EXPECT_EQ(ids, QList<QUuid>({single, unknown, left, above}));

    EXPECT_TRUE(layout.GetAllGroupsFromTileSet(ids, Tiles({0})));
    EXPECT_EQ(ids, QList<QUuid>({left, above})) << "those around it too";
    EXPECT_FALSE(layout.GetDirectGroupsInTileSet(ids, Tiles({8})));
    EXPECT_FALSE(layout.GetAllGroupsFromTileSet(ids, Tiles({8})));
    EXPECT_TRUE(ids.isEmpty());
}

TEST_F(PortProjectGroupTest, OnlyGroupsThatAreWhollyInTheSetStay)
{
    QList<QUuid> ids{left, unknown, single, above};
    EXPECT_TRUE(layout.RemoveGroupWhenTileOut(ids, Tiles({0, 1, 6, 7, 8})));
    EXPECT_EQ(ids, QList<QUuid>{single}); // left itself is whole, the group at its top is not

    ids = {right, single};
    EXPECT_FALSE(layout.RemoveGroupWhenTileOut(ids, tiles));
    EXPECT_EQ(ids.size(), 2);
}

TEST_F(PortProjectTest, TheRotationCentreGoesToTheOneTileOrTheOneGroup)
{
    MakeWall(port, 2, 1);
    layout.ChangeRotateCenter(QPointF(7, 8), Tiles({1}));
    EXPECT_EQ(Tile(1)->GetRotateRecord().centerX, 7);
    EXPECT_EQ(groups.GetDirectGroupByDirIndex(0)->GetRotateParam()->centerX, 128);
    layout.ChangeRotateCenter(QPointF(5, 6), tiles);
    EXPECT_EQ(groups.GetDirectGroupByDirIndex(0)->GetRotateParam()->centerX, 5);
    EXPECT_EQ(groups.GetDirectGroupByDirIndex(0)->GetRotateParam()->centerY, 6);
    EXPECT_EQ(Tile(0)->GetRotateRecord().centerX, 64);
    MakeWall(port, 2, 1);
    layout.ChangeRotateCenter(QPointF(9, 9), tiles);
    EXPECT_EQ(groups.GetDirectGroupByDirIndex(0)->GetRotateParam()->centerX, 5);
}

TEST_F(PortProjectTest, AQuarterTurnMovesTilesAboutTheGivenCentre)
{
    ASSERT_TRUE(layout.AddTile(Block(2, 1)));
    const SRotateParam record = Rotation(90, 100, 25);
    layout.SetTileGroupRotateParam(&record, tiles, 90);
    EXPECT_EQ(Tile(0)->GetPosition(), QPoint(50, -50)); // what shows begins at (75, -75)
    EXPECT_EQ(Tile(1)->GetPosition(), QPoint(50, 50));
    EXPECT_EQ(Tile(1)->GetRotateRecord().centerY, 75);
    EXPECT_TRUE(Tile(1)->GetRotateRecord().rotated);
    EXPECT_EQ(*groups.GetDirectGroupByDirIndex(0)->GetRotateParam(), record);

    const CPortProject before = layout;
    const double none = std::numeric_limits<double>::quiet_NaN();
    const SRotateParam noX = Rotation(90, none, 25);
    const SRotateParam noY = Rotation(90, 100, none);
    layout.SetTileGroupRotateParam(nullptr, tiles, 90);
    layout.SetTileGroupRotateParam(&record, tiles, none);
    layout.SetTileGroupRotateParam(&noX, tiles, 90);
    layout.SetTileGroupRotateParam(&noY, tiles, 90);
    EXPECT_EQ(layout, before) << "no angle or no centre";

    layout.SetTileGroupRotateParam(&record, tiles, 180);
    EXPECT_EQ(Tile(1)->GetRotateRecord().angle, -90);
    layout.SetTileGroupRotateParam(&record, tiles, 90);
    EXPECT_FALSE(Tile(1)->GetRotateRecord().rotated);
    EXPECT_TRUE(Tile(1)->GetPosition() == QPoint(100, 0) && Tile(0)->GetPosition().isNull());
}

TEST_F(PortProjectTest, TurnedBackByTheSameAngleEverythingIsWhereItWas)
{
    MakeWall(port, {7, 5, QSize(129, 65), QPoint(3000, 2000)}); // middles at half pixels
    const CPortProject before(layout);
    SRotateParam record = *groups.GetDirectGroupByDirIndex(0)->GetRotateParam();

    for (int i = 0; i < 9; ++i) // all round, without rounding adding up; no turn undoes another
        layout.SetTileGroupRotateParam(&record, tiles, 40);
    for (double angle = -720; angle <= 720; angle += 13.7) {
        layout.SetTileGroupRotateParam(&record, tiles, angle);
        layout.SetTileGroupRotateParam(&record, tiles, -angle);
    }
    for (int i = 0; i < tiles.GetCount(); ++i) {
        const CTile* old = before.GetTileSet()->GetTile(i);
        EXPECT_EQ(Tile(i)->GetPosition(), old->GetPosition());
        EXPECT_NEAR(Tile(i)->GetRotateRecord().centerX, old->GetRotateRecord().centerX, 0.01);
        EXPECT_NEAR(Tile(i)->GetRotateRecord().angle, 0, 0.01);
    }
}

TEST_F(PortProjectTest, TilesTurnAsTheyShowWhateverTheirOwnCentreIs)
{
    TestLookup lookup;
    lookup.rotateEnabled = true;
    const Wall wall{1, 1, QSize(100, 50), QPoint(1000, 1000)};
    MakeWall(port, wall); // turned about a corner before
    MakeWall(port, wall); // resized after it was placed
    layout.ChangeRotateCenter(QPointF(1100, 1050), Tiles({0}));
    Tile(0)->GetTileRotateParam()->angle = 30;
    Tile(0)->GetTileRotateParam()->rotated = true;
    Tile(1)->SetWidth(300);
    Tile(1)->SetHeight(90);

    const SRotateParam turn = Rotation(60, 1200, 1100);
    for (const int index : {0, 1}) {
        CPointEx<double> old[4];
        CPointEx<double> now[4];
        Tile(index)->GetRotateArea(old);
        layout.SetTileGroupRotateParam(&turn, Tiles({index}), 60);
        Tile(index)->GetRotateArea(now);
        for (int i = 0; i < 4; ++i) {
            const CPointEx<double> expected = GetRotatePoint(&turn, old[i].x, old[i].y);
            EXPECT_NEAR(now[i].x, expected.x, 1) << index << ' ' << i;
            EXPECT_NEAR(now[i].y, expected.y, 1) << index << ' ' << i;
        }
    }
}

TEST_F(PortProjectTest, OnlyAWholeRegularBlockMayBeChanged)
{
    EXPECT_FALSE(layout.SelTileCountModifyEnable());
    MakeWall(port, 1, 1);
    EXPECT_TRUE(layout.SelTileCountModifyEnable());
    EXPECT_FALSE(layout.SelTileShapeModifyEnable());

    auto* alone = new CTileGroup; // a group of one, which has no size
    groups.AddGroup(alone, true);
    Tile(0)->SetGroupId(alone->GetID());
    Tile(0)->SetWidth(0);
    Tile(0)->SetHeight(0);
    EXPECT_TRUE(layout.SelTileCountModifyEnable() && !layout.SelTileShapeModifyEnable());
    EXPECT_EQ(Tile(0)->GetSize(), QSize(1, 1));
    layout.ClearAllTiles();
    MakeWall(port, {2, 1, QSize(1, 1)});
    EXPECT_TRUE(layout.SelTileCountModifyEnable() && layout.SelTileShapeModifyEnable());
    layout.ClearAllTiles();
    MakeWall(port, 1, 1);

    const QUuid group = MakeWall(port, {3, 2, QSize(128, 64), QPoint(300, 200)});
    const CPortProject before(layout);
    const std::function<void()> changes[] = {
        [&] { Tile(1)->SetSelected(false, kView, -1); }, // not the whole group
        [&] { Tile(0)->SetSelected(true, kView, -1); },  // not only the group
        [&] { Tile(2)->Offset(1, 0); },                  // off the grid
        [&] { Tile(2)->Offset(-128, 0); },               // two in one cell
        [&] { Tile(2)->SetWidth(64); },                  // another size
        [&] {                                            // a narrower column at the end
            Tile(2)->SetWidth(64);
            Tile(5)->SetWidth(64);
        },
        [&] { tiles.DeteleTile(5); }, // a hole
        [&] {                         // no room in a cell
            for (CTile* tile : Tiles({1, 2, 3, 4, 5, 6}))
                tile->SetHeight(-64);
        },
        [&] { // in one row, and all but the first of no height
            for (int i = 1; i <= 6; ++i)
                Place(*Tile(i), QRect(128 * i, 0, 128, 0));
        },
        [&] { // so far apart that the cells are more than can be counted
            for (CTile* tile : Tiles({1, 2, 3, 4, 5, 6})) {
                tile->SetWidth(1);
                tile->SetHeight(1);
            }
            Tile(1)->Offset(std::numeric_limits<int>::min(), std::numeric_limits<int>::min());
            Tile(2)->Offset(std::numeric_limits<int>::max(), std::numeric_limits<int>::max());
        },
        [&] { // a group below
            groups.GetDirectGroupByDirID(group)->GetSubGroupSet()->AddGroup(new CTileGroup, true);
        },
    };
    for (size_t i = 0; i < std::size(changes); ++i) {
        layout = before;
        EXPECT_TRUE(layout.SelTileCountModifyEnable() && layout.SelTileShapeModifyEnable());
        changes[i]();
        EXPECT_FALSE(layout.SelTileCountModifyEnable() || layout.SelTileShapeModifyEnable()) << i;
    }
}
