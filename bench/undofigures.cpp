// Recording, undoing and redoing one changed cabinet.
#include "allocations.h"
#include "figures.h"

#include "frame/lednimbradata.h"
#include "frame/runtimedata.h"
#include "layout/projectundoredo.h"
#include "layout/tile.h"
#include "project/projectdata.h"

namespace {

using Step = CSenderRecordItem;

/// The open document with one wall, and its history.
class Session
{
public:
    explicit Session(const WallKind& kind) : m_history(*GetRuntimeData()->GetProjectUndoRedo())
    {
        CProjectData& project = *GetProjectData();
        project.SetToDefault();
        project.AddSender(MakeBenchWall(kind).release());
        m_history.Init();
    }

    ~Session() { GetProjectData()->SetToDefault(); }

    void Change()
    {
        const CTileSet& tiles = TilesOf(*GetProjectData()->GetCurrentSender());
        CTile* tile = tiles.GetTile(static_cast<int>(qint64(++m_changes) * 7919 % tiles.GetCount()));
        tile->SetMultiRcvDemarcateIndex(m_changes);
    }

    bool AddStep() { return m_history.AddOneStep(Step::OperationMoveTiles); }
    void Undo() { m_history.Undo(1, nullptr, nullptr); }
    void Redo() { m_history.Redo(1, nullptr, nullptr); }

private:
    CProjectUndoRedo& m_history;
    int m_changes = 0;
};

Pair BesideDeepCopy(const WallKind& kind, const Run& ours)
{
    const PlainWall wall = MakePlainWall(kind.cabinets);
    return Interleaved(
        [&] {
            PlainWall copy;
            return Seconds([&] { copy = CopyOf(wall); });
        },
        ours);
}

Pair AddStep(const WallKind& kind)
{
    Session session(kind);
    return BesideDeepCopy(kind, [&] {
        session.Change();
        return Seconds([&] { session.AddStep(); });
    });
}

Pair Undo(const WallKind& kind)
{
    Session session(kind);
    session.Change();
    session.AddStep();
    return BesideDeepCopy(kind, [&] {
        const double seconds = Seconds([&] { session.Undo(); });
        session.Redo();
        return seconds;
    });
}

Pair Redo(const WallKind& kind)
{
    Session session(kind);
    session.Change();
    session.AddStep();
    return BesideDeepCopy(kind, [&] {
        session.Undo();
        return Seconds([&] { session.Redo(); });
    });
}

Pair Refuse(const WallKind& kind)
{
    Session session(kind);
    const PlainWall wall = MakePlainWall(kind.cabinets);
    const PlainWall copy = CopyOf(wall);
    volatile bool equal = true;
    return Interleaved(
        [&] {
            return Seconds([&] {
                for (size_t i = 0; i < wall.size(); ++i)
                    equal = equal && *wall[i] == *copy[i];
            });
        },
        [&] { return Seconds([&] { session.AddStep(); }); });
}

Pair MemoryOfSteps(const WallKind& kind)
{
    Session session(kind);
    const size_t before = allocations::Live();
    for (int i = 0; i < CSenderUndoRedo::kStepLimit; ++i) {
        session.Change();
        session.AddStep();
    }
    return {0, static_cast<double>(allocations::Live() - before) / 1e6};
}

} // namespace

void UndoFigures()
{
    OnWalls({"AddOneStep after one changed cabinet", "ms", 0.1, 0.01}, AddStep);
    OnWalls({"Undo of one changed cabinet", "ms", 0.1, 0.01}, Undo);
    OnWalls({"Redo of one changed cabinet", "ms", 0.1, 0.01}, Redo);
    OnWalls({"memory of 200 steps", "MB", 64, 4, true}, MemoryOfSteps);
    OnWalls({"a step refused, nothing changed", "ms", 0.1, 0.01}, Refuse);
}
