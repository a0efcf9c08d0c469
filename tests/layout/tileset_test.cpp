#include "common/interfacedlg.h"
#include "layout/layouthelpers.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr int kView = InterfaceDesign;

using Tiles = QList<CTile*>;

/// An owning set with tiles 0, 1, 2 side by side, each 100 x 100 pixels.
struct TileSetTest : testing::Test
{
    TileSetTest()
    {
        m_set.SetOwnerShip(true);
        for (int i = 0; i < 3; ++i)
            m_tiles.push_back(Add(m_set, QRect(100 * i, 0, 100, 100)));
    }

    CTileSet m_set;
    std::vector<CTile*> m_tiles;
    TestLookup m_lookup;
    CTileSet out;
};

} // namespace

TEST_F(TileSetTest, CopiesShareTilesUnlessTheSourceOwnsThem)
{
    CTileSet query;
    m_set.GetTileSetUngrouped(query);
    EXPECT_EQ(CTileSet(query).GetTiles(), m_set.GetTiles());
    EXPECT_NE(query, m_set) << "ownership counts";
    EXPECT_EQ(CountedTile::alive, 3);
    CTileSet copy;
    copy = CTileSet(m_set);
    EXPECT_TRUE(copy.IsOwner() && copy == m_set);
    copy.ExchangeTile(2, 0);
    EXPECT_NE(copy, m_set) << "order counts";
    EXPECT_EQ(copy, *&copy);
    for (int none : {-1, 3}) {
        copy.ExchangeTile(0, none);
        copy.ExchangeTile(none, 0);
        EXPECT_EQ(copy.GetTile(0)->GetX(), 200) << "nothing to exchange with";
    }
    m_set.DeleteAllTiles();
    EXPECT_TRUE(CountedTile::alive == 0 && copy.GetTile(0)->GetX() == 200);
}

TEST_F(TileSetTest, OwningSetFreesWhatItDropsOnce)
{
    m_set.AddTile(m_tiles[1]); // twice
    m_set.DeteleTile(1);
    EXPECT_EQ(CountedTile::alive, 3) << "still listed";
    m_set.DeteleTile(m_tiles[0]);
    EXPECT_EQ(CountedTile::alive, 2);
    m_set.AddTile(m_tiles[1]);
    EXPECT_EQ(m_set.GetTiles(), (Tiles{m_tiles[2], m_tiles[1], m_tiles[1]}));
    for (int index : {-1, 3})
        m_set.DeteleTile(index);
    m_set.AddTile(nullptr);
    EXPECT_EQ(m_set.GetCount(), 3);
    for (int count : {2, 1}) {
        m_set.Truncate(count);
        EXPECT_EQ(CountedTile::alive, count);
    }
    m_set.AddTile(m_tiles[2]);
    m_set = CTileSet();
    EXPECT_TRUE(CountedTile::alive == 0 && !m_set.IsOwner());
}

TEST_F(TileSetTest, SelectedTilesAreFreedOnceAndByTheirOwnerAlone)
{
    CTileSet selection;
    for (int i : {0, 1, 0})
        selection.AddTile(m_tiles[static_cast<size_t>(i)]);
    m_tiles[0]->SetSelected(true, InterfaceDesign, -1);
    selection.DeleteSelected(InterfaceDesign);
    EXPECT_EQ(selection.GetTiles(), Tiles{m_tiles[1]});
    EXPECT_EQ(CountedTile::alive, 3);
    m_set.AddTile(m_tiles[0]); // twice
    m_set.DeleteSelected(InterfaceDesign);
    EXPECT_EQ(m_set.GetTiles(), (Tiles{m_tiles[1], m_tiles[2]}));
    EXPECT_EQ(CountedTile::alive, 2);
    m_set = selection;
    EXPECT_EQ(CountedTile::alive, 1) << "assigned a part of what it owns";
    m_set.SetOwnerShip(true);
}

TEST_F(TileSetTest, SetMayBeReadAndFilledAtOnce)
{
    CTileSet found;
    found.AddFromOther(m_set);
    found.GetTileSetAtPosition(found, 150, 50);
    EXPECT_EQ(found.GetTiles(), Tiles{m_tiles[1]});
    EXPECT_TRUE(found.GetTileSetInGroup(found, QUuid(), true));
    EXPECT_EQ(found.GetTiles(), (Tiles{m_tiles[1], m_tiles[1]}));

    // What a query finds in the owning set that it fills lives on, what it does not find goes.
    m_tiles[2]->SetSelected(true, kView, -1);
    m_set.GetSelTileSet(m_set, kView);
    EXPECT_EQ(m_set.GetTiles(), Tiles{m_tiles[2]});
    EXPECT_EQ(CountedTile::alive, 1);
    m_set.SetOwnerShip(true);
    m_set.AddFromOther(m_set);
    EXPECT_TRUE(m_set.GetCount() == 2 && m_set.GetTile(0) != m_set.GetTile(1));
}

TEST_F(TileSetTest, SubsetsAreByIdentityAndKeepListOrder)
{
    CTileSet part;
    const CTileSet copies(m_set);
    part.AddTile(m_tiles[2]);
    part.AddTile(m_tiles[0]);
    EXPECT_TRUE(m_set.IsSubset(nullptr) && m_set.IsSubset(&part));
    EXPECT_FALSE(part.IsSubset(&m_set) || m_set.IsSubset(&copies));

    const QUuid group = QUuid::createUuid();
    m_tiles[0]->SetGroupId(group);
    m_tiles[2]->SetGroupId(group);
    m_tiles[1]->SetConnectionIndex(0, nullptr);
    m_set.GetTileSetUnnumbered(out);
    EXPECT_EQ(out.GetTiles(), (Tiles{m_tiles[0], m_tiles[2]}));
    m_set.GetTileSetUngrouped(out);
    EXPECT_TRUE(m_set.GetTileSetInGroup(out, group, true));
    EXPECT_EQ(out.GetTiles(), (Tiles{m_tiles[1], m_tiles[0], m_tiles[2]}));
    m_set.GetTileSetGrouped(out);
    EXPECT_EQ(out.GetTiles(), (Tiles{m_tiles[0], m_tiles[2]}));
    EXPECT_TRUE(m_set.GetTileSetInGroup(out, QUuid(), false));
    EXPECT_EQ(out.GetTiles(), Tiles{m_tiles[1]}) << "instead of what it held";
    m_tiles[1]->SetSelected(true, kView, -1);
    m_set.GetUnselectedTileSet(out);
    EXPECT_EQ(out.GetTiles(), (Tiles{m_tiles[0], m_tiles[2]}));
    m_set.SetAllNotGroup();
    EXPECT_EQ(m_set.GetCountInGroup(QUuid()), 3);
}

TEST_F(TileSetTest, UnselectingResetsCardsAndMarksOfOneView)
{
    m_tiles[0]->SetMultiRcvsSize(QSize(2, 2));
    m_set.SelectAll(kView);
    m_set.SelectAll(InterfaceSoftEdge);
    EXPECT_TRUE(m_tiles[0]->IsRcvSelected(0) && m_tiles[0]->IsRcvSelected(3));
    m_tiles[0]->SetMultiRcvDemarcateIndex(3);
    m_set.UnSelectAll(kView);
    EXPECT_FALSE(m_tiles[0]->IsSelected(kView) || m_tiles[0]->IsRcvSelected(3));
    EXPECT_TRUE(m_tiles[0]->IsSelected(InterfaceSoftEdge) && m_tiles[0]->GetMultiRcvDemarcateIndex() == -1);
}

TEST_F(TileSetTest, EachTypeIsListedOnceInListOrder)
{
    const SMD5 a = SMD5::FromString(QString(32, QLatin1Char('a')));
    QList<SMD5> types;
    m_tiles[1]->SetType(a);
    EXPECT_TRUE(m_set.GetProductTypeArray(&types));
    EXPECT_EQ(types, (QList<SMD5>{SMD5(), a}));
    m_set.GetProductTypeArray(&types);
    EXPECT_EQ(types.size(), 2) << "what was in the list is gone";
    EXPECT_FALSE(m_set.GetProductTypeArray(nullptr) || out.GetProductTypeArray(&types));
}

TEST_F(TileSetTest, LockIsThatOfThePortOfTheCurrentSender)
{
    CSender sender;
    m_lookup.senders.append(&sender);
    sender.GetPort(0)->SetFlagLock(true);
    EXPECT_FALSE(m_set.ExistTileIsLock()) << "no tile is on a port";
    m_tiles[2]->SetPortIndex(0);
    EXPECT_TRUE(m_set.ExistTileIsLock());
}

TEST_F(TileSetTest, HitTestsListTheTopmostTileFirst)
{
    CTile* top = Add(m_set, QRect(50, 50, 100, 100));
    EXPECT_TRUE(m_set.GetTileSetAtPosition(out, 99, 99));
    EXPECT_EQ(out.GetTiles(), (Tiles{top, m_tiles[0]}));
    EXPECT_FALSE(m_set.GetTileSetAtPosition(out, 300, 0) || out.GetCount() > 0);
    m_set.DeteleTile(3);
    m_set.GetTileSetAtRect(out, QRect(0, 0, 200, 100), true);
    EXPECT_EQ(out.GetTiles(), (Tiles{m_tiles[1], m_tiles[0]}));
    m_set.GetTileSetAtRect(out, QRect(99, 99, 2, 1), false);
    EXPECT_EQ(out.GetTiles(), (Tiles{m_tiles[1], m_tiles[0]}));
    EXPECT_FALSE(m_set.GetTileSetAtRect(out, QRect(0, 100, 300, 5), false));
    EXPECT_TRUE(m_set.GetTileSetAtRectWithCenter(out, QRect(150, 50, 1, 1)));
    EXPECT_EQ(out.GetTiles(), Tiles{m_tiles[1]});
    EXPECT_FALSE(m_set.GetTileSetAtRectWithCenter(out, QRect(151, 50, 1, 1)));
}

TEST_F(TileSetTest, TurnedTilesAreHitByTheirCorners)
{
    Turn(*m_tiles[0], 45, 50, 50); // a diamond about (50, 50), half diagonal 70.7
    Turn(*m_tiles[2], 90, 250, 50);
    m_lookup.rotateEnabled = true;
    m_set.GetTileSetAtPosition(out, 110, 50);
    EXPECT_EQ(out.GetTiles(), (Tiles{m_tiles[1], m_tiles[0]}));
    EXPECT_FALSE(m_set.GetTileSetAtPosition(out, 10, 10)) << "inside the bound, outside the diamond";
    m_set.GetTileSetAtRect(out, QRect(115, -10, 20, 100), false);
    EXPECT_EQ(out.GetTiles(), (Tiles{m_tiles[1], m_tiles[0]}));
    m_set.GetTileSetAtRect(out, QRect(0, -30, 200, 160), true);
    EXPECT_EQ(out.GetTiles(), Tiles{m_tiles[1]}) << "one corner of the diamond is out";
    m_set.GetTileSetAtRect(out, m_tiles[2]->GetBound(), true);
    EXPECT_EQ(out.GetTiles(), Tiles{m_tiles[2]}) << "a tile lies in its own bound";
    EXPECT_EQ(m_set.GetBound(), QRect(-20, -20, 320, 141));
    const QRect room(-21, -21, 142, 142); // the least that has the whole diamond
    EXPECT_TRUE(m_set.GetTileSetAtRect(out, room, true));
    for (const QRect& less : {room.adjusted(1, 0, 0, 0), room.adjusted(0, 1, 0, 0),
                              room.adjusted(0, 0, -1, 0), room.adjusted(0, 0, 0, -1)})
        EXPECT_FALSE(m_set.GetTileSetAtRect(out, less, true)) << less.x() << ' ' << less.y();
    // The diamond's corners beside, above and below everything else, to the pixel that they lie in.
    for (const QRect& reached : {QRect(-21, 45, 5, 10), QRect(45, -21, 10, 5), QRect(45, 116, 10, 5)})
        EXPECT_TRUE(m_set.GetTileSetAtRect(out, reached, false)) << reached.x() << ' ' << reached.y();
    for (const QRect& missed : {QRect(-20, 45, 5, 10), QRect(45, -20, 10, 5), QRect(45, 115, 10, 5)})
        EXPECT_FALSE(m_set.GetTileSetAtRect(out, missed, false)) << missed.x() << ' ' << missed.y();

    Turn(*m_tiles[2], 90, 200, 500);
    EXPECT_FALSE(m_set.GetTileSetAtPosition(out, 250, 50)) << "it is far away";
    m_lookup.rotateEnabled = false;
    EXPECT_TRUE(m_set.GetTileSetAtPosition(out, 250, 50));
}

TEST_F(TileSetTest, OverlapIsStrictOnOneAxis)
{
    const QRect a(0, 0, 10, 10);
    for (int shift : {-10, -9, -8, 8, 9, 10}) { // one shared column or row is none
        const bool expected = qAbs(shift) == 8;
        EXPECT_EQ(CTileSet::IsRectIntersect(a, QRect(shift, 90, 10, 10), false), expected) << shift;
        EXPECT_EQ(CTileSet::IsRectIntersect(a, QRect(90, shift, 10, 10), true), expected) << shift;
    }
}

TEST_F(TileSetTest, BoundFollowsTheDraggedSelection)
{
    EXPECT_TRUE(CTileSet().GetBound() == QRect() && CTileSet().GetBound(true, QSize(5, 5)) == QRect());
    m_tiles[2]->SetSelected(true, kView, -1);
    EXPECT_EQ(m_set.GetBound(true, QSize(10, -20)), QRect(0, -20, 310, 120));
    EXPECT_EQ(m_set.GetBound(false, QSize(10, -20)), QRect(0, 0, 300, 100));
    m_lookup.rotateEnabled = true;
    Turn(*m_tiles[0], 45, 0, 0);
    EXPECT_EQ(m_set.GetBound(false, QSize()), QRect(0, 0, 300, 100)) << "of the tiles before turning";
}

TEST_F(TileSetTest, NewSizeKeepsTilesOnTheGridEdgeToEdge)
{
    m_tiles[2]->SetX(250);
    Add(m_set, QRect(300, 200, 0, 0)); // without a size it is off the grid
    for (int i = 0; i < 3; ++i)
        m_tiles[i]->SetY(7 + 100 * i); // the grid starts at the set's own top
    m_set.SetWidthAuto(64, true);
    m_set.SetHeightAuto(2000, true); // no taller than a cabinet gets
    const QPoint places[] = {{0, 7}, {64, 2007}, {250, 4007}, {300, 200}};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(m_set.GetTile(i)->GetBound(), QRect(places[i], QSize(64, 1024))) << i;
    m_set.SetWidthAuto(0, true);
    m_set.SetWidthAuto(10, false);
    EXPECT_EQ(m_tiles[1]->GetBound(), QRect(64, 2007, 10, 1024));
    m_set.SetWidthAuto(1, false);
    m_set.SetHeightAuto(1, false);
    EXPECT_EQ(m_tiles[1]->GetBound(), QRect(64, 2007, 1, 1));
}
