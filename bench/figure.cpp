#include "figure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <vector>

#include <sys/resource.h>

namespace {

constexpr int kRuns = 9;
constexpr WallKind kWalls[] = {{1024}, {8192}, {32768}, {131072}, {32768, 160}, {32768, 1, true}};

bool g_cpuTime = false;

double OnClock(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

double OfCommands()
{
    rusage used = {};
    getrusage(RUSAGE_CHILDREN, &used);
    return static_cast<double>(used.ru_utime.tv_sec + used.ru_stime.tv_sec)
           + static_cast<double>(used.ru_utime.tv_usec + used.ru_stime.tv_usec) / 1e6;
}

double Now()
{
    return g_cpuTime ? OnClock(CLOCK_PROCESS_CPUTIME_ID) + OfCommands() : OnClock(CLOCK_MONOTONIC);
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::string NameOf(const WallKind& wall)
{
    std::string name = std::to_string(wall.cabinets);
    if (wall.ports > 1)
        name += ", " + std::to_string(wall.ports) + " ports";
    if (wall.multi)
        name += ", multi-receiver";
    return name;
}

void Register(const std::string& name, const Figure& figure, const std::function<Pair()>& measure)
{
    const auto run = [=](benchmark::State& state) {
        Pair pair;
        for (auto _ : state)
            pair = measure();
        state.SetLabel(figure.unit);
        state.counters["floor"] = pair.floor;
        state.counters["ours"] = pair.ours;
        state.counters["must"] = figure.must;
        state.counters["aim"] = figure.aim;
        state.counters["of value"] = figure.ofValue;
    };
    benchmark::RegisterBenchmark(name.c_str(), run)->Iterations(1); // of nine runs
}

} // namespace

void CountCpuTime()
{
    g_cpuTime = true;
}

double Seconds(const std::function<void()>& work)
{
    const double start = Now();
    work();
    return Now() - start;
}

Pair Interleaved(const Run& floor, const Run& ours)
{
    std::vector<double> floors;
    std::vector<double> own;
    for (int i = 0; i < kRuns; ++i) {
        floors.push_back(floor() * 1000);
        own.push_back(ours() * 1000);
    }
    return {Median(floors), Median(own)};
}

void OnWalls(const Figure& figure, const std::function<Pair(const WallKind&)>& measure)
{
    for (const WallKind& wall : kWalls)
        OnWall(figure, wall, measure);
}

void OnWall(const Figure& figure, const WallKind& wall, const std::function<Pair(const WallKind&)>& measure)
{
    Register(figure.what + "/" + NameOf(wall), figure, [=] { return measure(wall); });
}

void Once(const Figure& figure, const std::function<Pair()>& measure)
{
    Register(figure.what, figure, measure);
}
