// Numbering a wall and normalising its chain, beside one hash from index to cabinet.
#include "figures.h"

#include "layout/tile.h"

#include <QHash>

#include <random>

namespace {

/// One hash for each chain.
Pair BesideHash(CSender& sender, const WallKind& kind, const Run& ours)
{
    volatile quintptr found = 0;
    const auto build = [&](const QList<CTile*>& tiles) {
        QHash<int, CTile*> byIndex;
        byIndex.reserve(tiles.size());
        for (CTile* tile : tiles)
            byIndex.insert(tile->GetConnectionIndex(), tile);
        for (int i = 0; i < tiles.size(); ++i)
            found = found + reinterpret_cast<quintptr>(byIndex.value(i));
    };
    return Interleaved(
        [&] {
            return Seconds([&] {
                for (int i = 0; i < kind.ports; ++i)
                    build(TilesOf(sender, i).GetTiles());
            });
        },
        ours);
}

Pair Number(const WallKind& kind)
{
    const auto sender = MakeBenchWall(kind);
    Pair slowest;
    for (int type = AutoNumberRowsTopLeft; type <= AutoNumberColumnsBottomLeft; ++type) {
        const Pair pair = BesideHash(*sender, kind, [&] {
            return Seconds([&] {
                for (int i = 0; i < kind.ports; ++i)
                    TilesOf(*sender, i).AutoConnection(static_cast<EnAutoNumberType>(type), 0);
            });
        });
        if (slowest.floor == 0 || pair.ours / pair.floor > slowest.ours / slowest.floor)
            slowest = pair;
    }
    return slowest;
}

/// After `spoil` gave every cabinet of a port another index.
Pair Normalise(const WallKind& kind, const std::function<void(CTileSet&)>& spoil)
{
    const auto sender = MakeBenchWall(kind);
    return BesideHash(*sender, kind, [&] {
        for (int i = 0; i < kind.ports; ++i)
            spoil(TilesOf(*sender, i));
        return Seconds([&] {
            for (int i = 0; i < kind.ports; ++i)
                TilesOf(*sender, i).TileSetNormalization();
        });
    });
}

} // namespace

void ChainFigures(Table& table)
{
    CTileSet nowhere;
    std::mt19937 random(1);
    table.AddOnWalls({"number a wall by its slowest pattern", "ms", 8, 3}, Number);
    table.AddOnWalls({"normalise a chain with gaps", "ms", 8, 3}, [&](const WallKind& kind) {
        return Normalise(kind, [&](CTileSet& tiles) {
            for (CTile* tile : tiles.GetTiles())
                tile->SetConnectionIndex(2 * tile->GetConnectionIndex() + 1, &nowhere);
        });
    });
    table.AddOnWalls({"normalise a chain in random order", "ms", 8, 3}, [&](const WallKind& kind) {
        return Normalise(kind, [&](CTileSet& tiles) {
            for (CTile* tile : tiles.GetTiles())
                tile->SetConnectionIndex(static_cast<int>(random() >> 1), &nowhere);
        });
    });
}
