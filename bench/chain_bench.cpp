// Numbering, normalising and looking up along the chain, beside one QHash from index to cabinet.
#include "benchwall.h"

#include "layout/tile.h"

#include <QHash>

#include <random>

namespace {

CTileSet& Tiles(CSender& sender)
{
    return *sender.GetPort(0)->GetPortProject()->GetTileSet();
}

void ScatterIndices(CTileSet& tiles)
{
    CTileSet nowhere;
    for (int i = 0; i < tiles.GetCount(); ++i)
        tiles.GetTile(i)->SetConnectionIndex(2 * tiles.GetTile(i)->GetConnectionIndex() + 1, &nowhere);
}

void FloorHash(benchmark::State& state)
{
    const auto sender = MakeBenchWall(static_cast<int>(state.range(0)));
    const CTileSet& tiles = Tiles(*sender);
    for (auto _ : state) {
        QHash<int, CTile*> byIndex;
        byIndex.reserve(tiles.GetCount());
        for (int i = 0; i < tiles.GetCount(); ++i)
            byIndex.insert(tiles.GetTile(i)->GetConnectionIndex(), tiles.GetTile(i));
        for (int i = 0; i < tiles.GetCount(); ++i)
            benchmark::DoNotOptimize(byIndex.value(i));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(FloorHash)->Apply(WallSizes);

template <int type> void Number(benchmark::State& state)
{
    const auto sender = MakeBenchWall(static_cast<int>(state.range(0)));
    for (auto _ : state)
        Tiles(*sender).AutoConnection(static_cast<EnAutoNumberType>(type), 0);
    state.SetComplexityN(state.range(0));
}
BENCHMARK_TEMPLATE(Number, AutoNumberRowsTopLeft)->Apply(WallSizes);
BENCHMARK_TEMPLATE(Number, AutoNumberRowsBottomRight)->Apply(WallSizes);
BENCHMARK_TEMPLATE(Number, AutoNumberColumnsTopLeft)->Apply(WallSizes);
BENCHMARK_TEMPLATE(Number, AutoNumberColumnsBottomRight)->Apply(WallSizes);

void RecognisePattern(benchmark::State& state)
{
    const auto sender = MakeBenchWall(static_cast<int>(state.range(0)));
    Tiles(*sender).AutoConnection(AutoNumberColumnsBottomLeft, 0); // the last one tried
    for (auto _ : state)
        benchmark::DoNotOptimize(Tiles(*sender).GetConnectionType());
    state.SetComplexityN(state.range(0));
}
BENCHMARK(RecognisePattern)->Apply(WallSizes);

void NormaliseNormal(benchmark::State& state)
{
    const auto sender = MakeBenchWall(static_cast<int>(state.range(0)));
    Tiles(*sender).AutoConnection(AutoNumberColumnsTopLeft, 0);
    for (auto _ : state)
        Tiles(*sender).TileSetNormalization();
    state.SetComplexityN(state.range(0));
}
BENCHMARK(NormaliseNormal)->Apply(WallSizes);

void NormaliseGaps(benchmark::State& state)
{
    const auto sender = MakeBenchWall(static_cast<int>(state.range(0)));
    Tiles(*sender).AutoConnection(AutoNumberColumnsTopLeft, 0);
    for (auto _ : state) {
        state.PauseTiming();
        ScatterIndices(Tiles(*sender));
        state.ResumeTiming();
        Tiles(*sender).TileSetNormalization();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(NormaliseGaps)->Apply(WallSizes);

void NormaliseRandom(benchmark::State& state)
{
    const auto sender = MakeBenchWall(static_cast<int>(state.range(0)));
    CTileSet& tiles = Tiles(*sender);
    CTileSet nowhere;
    std::mt19937 random(1);
    for (auto _ : state) {
        state.PauseTiming();
        for (int i = 0; i < tiles.GetCount(); ++i)
            tiles.GetTile(i)->SetConnectionIndex(static_cast<int>(random() >> 1), &nowhere);
        state.ResumeTiming();
        tiles.TileSetNormalization();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(NormaliseRandom)->Apply(WallSizes);

void SetUpReceivers(benchmark::State& state)
{
    const auto sender = MakeBenchWall(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        CTileSet chain;
        Tiles(*sender).GetTileSetNumberedNormalization(chain);
        benchmark::DoNotOptimize(chain.GetTileByRcvCnnt(chain.GetCount() - 1));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(SetUpReceivers)->Apply(WallSizes);

} // namespace
