// Loading and saving walls beside the floors that the pieces set, interleaved, in medians.
#include "allocations.h"
#include "benchwall.h"
#include "filefloors.h"

#include "frame/lednimbradata.h"
#include "project/projectdata.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int kRuns = 9;

double Milliseconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

struct Pair
{
    double floor;
    double ours;
};

Pair Interleaved(const std::function<void()>& floor, const std::function<void()>& ours)
{
    std::vector<double> floors;
    std::vector<double> own;
    for (int i = 0; i < kRuns; ++i) {
        floors.push_back(Milliseconds(floor));
        own.push_back(Milliseconds(ours));
    }
    return {Median(floors), Median(own)};
}

void Print(const char* what, int cabinets, const Pair& pair)
{
    std::printf("%-8s %7d cabinets  floor %8.1f ms  ours %8.1f ms  ratio %5.2f\n", what, cabinets, pair.floor,
                pair.ours, pair.ours / pair.floor);
}

void MeasureMemory(const QString& path, int cabinets)
{
    CProjectData project;
    QString error;
    allocations::ResetPeak();
    const size_t before = allocations::Live();
    project.LoadProjectFromFile(QFile::encodeName(path).constData(), error, nullptr);
    const size_t model = allocations::Live() - before;
    const size_t beyond = allocations::Peak() - allocations::Live();
    std::printf(
        "memory   %7d cabinets  model %6.0f bytes a cabinet, load peak beyond it %5.2f x the document\n",
        cabinets, static_cast<double>(model) / cabinets,
        static_cast<double>(beyond) / static_cast<double>(DocumentSize(path)));
}

void Measure(const QString& folder, int cabinets, int ports)
{
    CProjectData& project = *GetProjectData();
    project.SetToDefault();
    project.AddSender(MakeBenchWall(cabinets, ports).release());
    const QString path = folder + QStringLiteral("/wall.prj");
    const QByteArray name = QFile::encodeName(path);
    project.SaveProjectToFile(path, nullptr);
    const std::vector<FloorTile> tiles = LoadFloor(path);
    QString error;

    std::printf("%d ports\n", ports);
    Print("load", cabinets,
          Interleaved([&] { LoadFloor(path); },
                      [&] { project.LoadProjectFromFile(name.constData(), error, nullptr); }));
    MeasureMemory(path, cabinets);
    Print("save", cabinets,
          Interleaved([&] { SaveFloor(folder + QStringLiteral("/floor.prj"), tiles); },
                      [&] { project.SaveProjectToFile(path, nullptr); }));
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    LedNimbraData_Init();
    for (const int cabinets : {1024, 8192, 32768, 131072})
        Measure(home.path(), cabinets, 1);
    Measure(home.path(), 32768, 160);
    LedNimbraData_Release();
}
