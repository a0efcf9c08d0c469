// Recording, undoing and redoing one changed cabinet, beside a deep copy and a comparison of the wall.
#include "benchwall.h"

#include "layout/projectundoredo.h"
#include "layout/tile.h"

#include <malloc.h>

namespace {

using Record = CSenderRecordItem;

struct Session
{
    Session(const benchmark::State& state, int ports)
        : sender(MakeBenchWall(static_cast<int>(state.range(0)), ports)), project(sender.get())
    {
        history.Init();
    }

    void Change()
    {
        const CTileSet& tiles = *sender->GetPort(0)->GetPortProject()->GetTileSet();
        CTile* tile = tiles.GetTile(static_cast<int>(qint64(++changes) * 7919 % tiles.GetCount()));
        tile->SetMultiRcvDemarcateIndex(changes);
    }

    std::unique_ptr<CSender> sender;
    BenchProject project;
    CProjectUndoRedo history;
    int changes = 0;
};

void FloorDeepCopy(benchmark::State& state)
{
    const PlainWall wall = MakePlainWall(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        PlainWall copy = CopyOf(wall);
        state.PauseTiming();
        copy.clear();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(FloorDeepCopy)->Apply(WallSizes);

void FloorCompare(benchmark::State& state)
{
    const PlainWall wall = MakePlainWall(static_cast<int>(state.range(0)));
    const PlainWall copy = CopyOf(wall);
    for (auto _ : state) {
        for (size_t i = 0; i < wall.size(); ++i)
            benchmark::DoNotOptimize(*wall[i] == *copy[i]);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(FloorCompare)->Apply(WallSizes);

template <int ports> void AddStep(benchmark::State& state)
{
    Session session(state, ports);
    for (auto _ : state) {
        session.Change();
        if (!session.history.AddOneStep(Record::OperationMoveTiles))
            state.SkipWithError("the step was refused");
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK_TEMPLATE(AddStep, 1)->Apply(WallSizes);
BENCHMARK_TEMPLATE(AddStep, 160)->Apply(WallSizes);

template <int ports> void RefuseStep(benchmark::State& state)
{
    Session session(state, ports);
    for (auto _ : state) {
        if (session.history.AddOneStep(Record::OperationMoveTiles))
            state.SkipWithError("the step was recorded");
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK_TEMPLATE(RefuseStep, 1)->Apply(WallSizes);
BENCHMARK_TEMPLATE(RefuseStep, 160)->Apply(WallSizes);

/// Times one direction and takes the step back in the other, untimed.
template <bool undo> void Step(benchmark::State& state)
{
    Session session(state, 1);
    session.Change();
    session.history.AddOneStep(Record::OperationMoveTiles);
    if (!undo)
        session.history.Undo(1, nullptr, nullptr);
    const auto go = [&](bool back) {
        return back ? session.history.Undo(1, nullptr, nullptr) : session.history.Redo(1, nullptr, nullptr);
    };
    for (auto _ : state) {
        if (!go(undo))
            state.SkipWithError("no step to take");
        state.PauseTiming();
        go(!undo);
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}

void Undo(benchmark::State& state)
{
    Step<true>(state);
}
BENCHMARK(Undo)->Apply(WallSizes);

void Redo(benchmark::State& state)
{
    Step<false>(state);
}
BENCHMARK(Redo)->Apply(WallSizes);

/// What 199 recorded steps of one changed cabinet each hold, as the counter "MB".
void MemoryOfHistory(benchmark::State& state)
{
    for (auto _ : state) {
        Session session(state, 1);
        const size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
        for (int i = 0; i < CSenderUndoRedo::kStepLimit - 1; ++i) {
            session.Change();
            session.history.AddOneStep(Record::OperationMoveTiles);
        }
        const size_t after = mallinfo2().uordblks + mallinfo2().hblkhd;
        state.counters["MB"] = static_cast<double>(after - before) / 1e6;
    }
}
BENCHMARK(MemoryOfHistory)->Arg(1024)->Arg(32768)->Arg(131072)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
