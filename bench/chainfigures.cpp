// Numbering a wall and normalising its chain, beside one hash from index to cabinet.
#include "figures.h"

#include "layout/tile.h"

#include <QHash>

#include <random>

namespace {

Pair BesideHash(CTileSet& tiles, const Run& ours)
{
    volatile quintptr found = 0;
    return Interleaved(
        [&] {
            return Seconds([&] {
                QHash<int, CTile*> byIndex;
                byIndex.reserve(tiles.GetCount());
                for (int i = 0; i < tiles.GetCount(); ++i)
                    byIndex.insert(tiles.GetTile(i)->GetConnectionIndex(), tiles.GetTile(i));
                for (int i = 0; i < tiles.GetCount(); ++i)
                    found = found + reinterpret_cast<quintptr>(byIndex.value(i));
            });
        },
        ours);
}

/// By the pattern that takes longest. All cabinets count, those of a sender with 160 ports port by port.
Pair Number(const WallKind& kind)
{
    const auto sender = MakeBenchWall(kind);
    CTileSet all;
    sender->GetTileSet(all);
    Pair slowest;
    for (int type = AutoNumberRowsTopLeft; type <= AutoNumberColumnsBottomLeft; ++type) {
        const Pair pair = BesideHash(all, [&] {
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
    CTileSet all;
    sender->GetTileSet(all);
    return BesideHash(all, [&] {
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
