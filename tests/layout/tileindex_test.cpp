#include "layout/layouthelpers.h"
#include "layout/tileaccess.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <random>
#include <utility>
#include <vector>

namespace {

/// A wall under random edits, queried through two sets that live as long as it: the owning one and one that
/// refers to cabinets of it and of a second wall.
class EditedWall
{
public:
    explicit EditedWall(unsigned seed) : m_random(seed)
    {
        for (CTileSet* wall : {&m_wall, &m_other}) {
            wall->SetOwnerShip(true);
            for (int i = 0; i < kCabinets; ++i)
                Add(*wall, QRect(i % 40 * 64, i / 40 * 64, 64, 64));
            m_all.AddFromOther(*wall);
        }
        CTileSet found;
        m_all.GetTileSetAtRect(found, m_all.GetBound(), true);
        EXPECT_EQ(found.GetCount(), m_all.GetCount());
        for (int i = 0; i < kCabinets; i += 3)
            m_all.AddTile(m_wall.GetTile(i)); // twice
    }

    void Edit()
    {
        CTile* tile = m_edited = Any(m_all);
        const std::function<void()> edits[] = {
            [&] { tile->SetX(Number(-10, 3000)); },
            [&] { tile->SetY(Number(-10, 3000)); },
            [&] { tile->SetWidth(Number(0, 3) == 0 ? Number(-5, 0) : Number(1, 300)); },
            [&] { tile->SetHeight(Number(0, 3) == 0 ? 0 : Number(1, 1100)); },
            [&] { tile->Offset(Number(-9000, 9000), Number(0, 5) == 0 ? 2000000000 : 64); },
            [&] { tile->Offset(Number(-400, 400), Number(-400, 400)); },
            [&] { tile->SetTileRotateParam(&(m_record = Record(*tile))); },
            [&] { m_records.emplace_back(tile, tile->GetTileRotateParam()); },
            [&] { WriteThroughPointer(); },
            [&] { *tile = *Any(m_all); },
            [&] { TakeBack(tile); },
            [&] { m_wall.AutoConnection(AutoNumberColumnsTopLeft, 0); },
            [&] { m_lookup.rotateEnabled = Number(0, 3) != 0; },
            [&] { m_all.SetOffset(1, 1); },
            [&] { m_all.ExchangeTile(Number(0, 9), m_all.GetCount() - 1); },
            [&] { m_all.DeteleTile(tile); },
            [&] { m_all.AddTile(tile); },
            [&] { Add(m_wall, QRect(Number(0, 2000), Number(0, 2000), 64, 64)); },
        };
        edits[Number(0, Number(0, 4) == 0 ? 17 : 12)](); // the list itself changes seldom
    }

    void Check()
    {
        QRect rect(Number(-200, 3000), Number(-200, 3000), Number(-300, 300), Number(-3, 300));
        if (Number(0, 1) == 0)
            rect.moveTopLeft(m_edited->GetPosition() + QPoint(30 * Number(-1, 1), 30 * Number(-1, 1)));
        const std::function<void(const CTileSet&, CTileSet&)> queries[] = {
            [&](const CTileSet& from, CTileSet& out) { from.GetTileSetAtPosition(out, rect.x(), rect.y()); },
            [&](const CTileSet& from, CTileSet& out) { from.GetTileSetAtRect(out, rect, true); },
            [&](const CTileSet& from, CTileSet& out) { from.GetTileSetAtRect(out, rect, false); },
            [&](const CTileSet& from, CTileSet& out) { from.GetTileSetAtRectWithCenter(out, rect); },
        };
        for (const CTileSet* set : {&m_wall, &m_all}) {
            std::vector<CTileSet> found(std::size(queries));
            for (size_t i = 0; i < found.size(); ++i)
                queries[i](*set, found[i]);
            // Copies that a pointer to the rotation is out of are asked one by one while rotation is enabled.
            std::vector<CTile> copies;
            for (const CTile* tile : set->GetTiles())
                copies.push_back(*tile);
            CTileSet asked;
            for (CTile& copy : copies) {
                copy.GetTileRotateParam();
                asked.AddTile(&copy);
            }
            for (size_t i = 0; i < found.size(); ++i) {
                CTileSet expected;
                queries[i](asked, expected);
                QList<CTile*> originals;
                for (const CTile* copy : expected.GetTiles())
                    originals.append(set->GetTile(static_cast<int>(copy - copies.data())));
                EXPECT_EQ(found[i].GetTiles(), originals);
            }
        }
        // Takes in the pointers given out above, so that the next edit is caught up with alone.
        CTileSet found;
        for (const CTileSet* set : {&m_wall, &m_all})
            set->GetTileSetAtPosition(found, 0, 0);
    }

private:
    static constexpr int kCabinets = 800;

    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_random); }
    CTile* Any(const CTileSet& set) { return set.GetTile(Number(0, set.GetCount() - 1)); }

    SRotateParam Record(const CTile& tile)
    {
        SRotateParam record =
            Rotation(Number(0, 9) == 0 ? qQNaN() : Number(0, 360), tile.GetX() + Number(-64, 64),
                     Number(0, 9) == 0 ? qInf() : tile.GetY() + 32);
        record.rotated = Number(0, 1) != 0;
        return record;
    }

    void WriteThroughPointer()
    {
        if (m_records.empty())
            return;
        const auto [tile, record] = m_records[static_cast<size_t>(Number(0, int(m_records.size()) - 1))];
        m_edited = tile;
        *record = Record(*tile);
    }

    /// As an undo step does, to the state at an earlier call.
    void TakeBack(CTile* tile)
    {
        if (m_earlier)
            TileAccess::SetData(*tile, TileAccess::Data(*m_earlier));
        m_earlier = std::make_unique<CTile>(*Any(m_all));
    }

    std::mt19937 m_random;
    CTile* m_edited = nullptr;
    TestLookup m_lookup;
    CTileSet m_wall;
    CTileSet m_other;
    CTileSet m_all;
    SRotateParam m_record;
    std::vector<std::pair<CTile*, SRotateParam*>> m_records;
    std::unique_ptr<CTile> m_earlier;
};

} // namespace

TEST(TileIndexTest, QueriesFindWhatAScanFindsAfterAnyEdit)
{
    for (unsigned seed = 1; seed <= 4 && !testing::Test::HasFailure(); ++seed) {
        EditedWall wall(seed);
        for (int i = 0; i < 300 && !testing::Test::HasFailure(); ++i) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", edit " << i);
            wall.Edit();
            wall.Check();
        }
    }
}
