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

/// After every cabinet was given the index that `spoil` makes of its own.
Pair Normalise(const WallKind& kind, const std::function<int(int)>& spoil)
{
    CTileSet nowhere;
    const auto sender = MakeBenchWall(kind);
    return BesideHash(*sender, kind, [&] {
        for (int i = 0; i < kind.ports; ++i) {
            for (CTile* tile : TilesOf(*sender, i).GetTiles())
                tile->SetConnectionIndex(spoil(tile->GetConnectionIndex()), &nowhere);
        }
        return Seconds([&] {
            for (int i = 0; i < kind.ports; ++i)
                TilesOf(*sender, i).TileSetNormalization();
        });
    });
}

} // namespace

void ChainFigures()
{
    OnWalls({"number a wall by its slowest pattern", "ms", 8, 3}, Number);
    OnWalls({"normalise a chain with gaps", "ms", 8, 3},
            [](const WallKind& kind) { return Normalise(kind, [](int index) { return 2 * index + 1; }); });
    OnWalls({"normalise a chain in random order", "ms", 8, 3}, [](const WallKind& kind) {
        std::mt19937 random(1);
        return Normalise(kind, [&](int) { return static_cast<int>(random() >> 1); });
    });
}
