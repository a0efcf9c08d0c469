// Loading and saving project archives.
#include "allocations.h"
#include "figures.h"
#include "filefloors.h"

#include "frame/lednimbradata.h"
#include "project/projectdata.h"

#include <QFile>

#include <benchmark/benchmark.h>

namespace {

constexpr double kPlainFields = 184; ///< bytes of a cabinet as nothing but its fields

/// Makes the wall the open document and saves it as `path`.
void SaveWall(const WallKind& kind, const QString& path)
{
    CProjectData& project = *GetProjectData();
    project.SetToDefault();
    project.AddSender(MakeBenchWall(kind).release());
    project.SaveProjectToFile(path, nullptr);
}

Pair LoadTime(const QString& path, const std::function<void()>& floor)
{
    const QByteArray name = QFile::encodeName(path);
    QString error;
    return Interleaved(
        [&] { return Seconds(floor); },
        [&] {
            return Seconds([&] { GetProjectData()->LoadProjectFromFile(name.constData(), error, nullptr); });
        });
}

struct LoadMemory
{
    double model;  ///< bytes
    double beyond; ///< bytes at the peak, the model taken off
};

LoadMemory MemoryOfLoad(const QString& path)
{
    CProjectData project;
    QString error;
    allocations::ResetPeak();
    const size_t before = allocations::Live();
    project.LoadProjectFromFile(QFile::encodeName(path).constData(), error, nullptr);
    const size_t after = allocations::Live();
    return {static_cast<double>(after - before), static_cast<double>(allocations::Peak() - after)};
}

Pair SaveTime(const QString& path)
{
    const std::vector<FloorTile> tiles = LoadFloor(path);
    return Interleaved([&] { return Seconds([&] { SaveFloor(path + QStringLiteral(".floor"), tiles); }); },
                       [&] { return Seconds([&] { GetProjectData()->SaveProjectToFile(path, nullptr); }); });
}

} // namespace

void FileFigures(const QString& folder)
{
    const QString path = folder + QStringLiteral("/wall.prj");
    OnWalls({"load a project archive", "ms", 0.5, 0.4}, [=](const WallKind& kind) {
        SaveWall(kind, path);
        return LoadTime(path, [&] { LoadFloor(path); });
    });
    OnWalls({"load a project archive, beside a tree", "ms", 3.5, 2.0}, [=](const WallKind& kind) {
        SaveWall(kind, path);
        return LoadTime(path, [&] { benchmark::DoNotOptimize(LoadTreeFloor(path)); });
    });
    OnWalls({"load, peak memory beyond the model", "kB", 0.6, 0.4}, [=](const WallKind& kind) {
        SaveWall(kind, path);
        return Pair{static_cast<double>(DocumentSize(path)) / 1000, MemoryOfLoad(path).beyond / 1000};
    });
    OnWalls({"loaded model, a cabinet", "bytes", 300, 240, true}, [=](const WallKind& kind) {
        SaveWall(kind, path);
        return Pair{kPlainFields, MemoryOfLoad(path).model / kind.cabinets};
    });
    OnWalls({"save to an archive", "ms", 0.75, 0.6}, [=](const WallKind& kind) {
        SaveWall(kind, path);
        return SaveTime(path);
    });
}
