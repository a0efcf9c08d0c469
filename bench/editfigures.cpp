// Deleting a selection and copying a sender, beside one pass with the same allocations.
#include "figures.h"

#include "common/interfacedlg.h"
#include "layout/tile.h"

namespace {

/// A cabinet in as many and as large blocks as ours.
struct PlainHandle
{
    std::unique_ptr<PlainCabinet> fields;
    bool selected = false;
    unsigned char rest[sizeof(CTile) - sizeof(void*) - sizeof(bool)];
};

using HandleWall = std::vector<std::unique_ptr<PlainHandle>>;

HandleWall MakeHandleWall(int cabinets)
{
    HandleWall wall;
    for (int i = 0; i < cabinets; ++i) {
        wall.push_back(std::make_unique<PlainHandle>());
        wall.back()->fields = std::make_unique<PlainCabinet>();
        wall.back()->selected = i % 2 == 0;
    }
    return wall;
}

void DeleteSelected(HandleWall& wall)
{
    HandleWall staying;
    for (auto& cabinet : wall) {
        if (!cabinet->selected)
            staying.push_back(std::move(cabinet));
        cabinet.reset();
    }
    wall = std::move(staying);
}

Pair DeleteHalf(const WallKind& kind)
{
    return Interleaved(
        [&] {
            HandleWall wall = MakeHandleWall(kind.cabinets);
            return Seconds([&] { DeleteSelected(wall); });
        },
        [&] {
            const auto sender = MakeBenchWall(kind);
            for (int port = 0; port < kind.ports; ++port) {
                const QList<CTile*>& tiles = TilesOf(*sender, port).GetTiles();
                for (int i = 0; i < tiles.size(); ++i)
                    tiles[i]->SetSelected(i % 2 == 0, InterfaceDesign, -1);
            }
            return Seconds([&] {
                for (int port = 0; port < kind.ports; ++port)
                    sender->GetPort(port)->GetPortProject()->DeleteSelectedTileAndGroup();
            });
        });
}

/// Copies share the fields, so a copy allocates its handle alone.
Pair CopySender(const WallKind& kind)
{
    const HandleWall wall = MakeHandleWall(kind.cabinets);
    const auto sender = MakeBenchWall(kind);
    return Interleaved(
        [&] {
            HandleWall copy;
            return Seconds([&] {
                for (const auto& cabinet : wall) {
                    copy.push_back(std::make_unique<PlainHandle>());
                    copy.back()->selected = cabinet->selected;
                }
            });
        },
        [&] {
            CSender copy;
            return Seconds([&] { copy.CopySender(*sender); });
        });
}

} // namespace

void EditFigures()
{
    OnWalls({"delete the selected half of a wall", "ms", 4, 2}, DeleteHalf);
    OnWalls({"copy a sender", "ms", 4, 2}, CopySender);
}
