#include "table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <utility>

namespace {

constexpr int kRuns = 9;
constexpr WallKind kWalls[] = {{1024}, {8192}, {32768}, {131072}, {32768, 160}, {32768, 1, true}};

bool g_cpuTime = false;

double Now()
{
    timespec time = {};
    clock_gettime(g_cpuTime ? CLOCK_PROCESS_CPUTIME_ID : CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
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

std::string Number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, value >= 100 ? "%.0f" : value >= 1 ? "%.2f" : "%.4f", value);
    return text;
}

/// The power of the number of cabinets that the time grows with.
double Exponent(double few, double many)
{
    return std::log(many / few) / std::log(131072.0 / 8192);
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

Table::Table(std::string filter) : m_filter(std::move(filter))
{
    std::printf("| what | cabinets | floor | ours | unit | ratio | must | aim | met | growth floor → ours |\n"
                "|---|---|---|---|---|---|---|---|---|---|\n");
}

void Table::AddOnWalls(const Figure& figure, const Measure& measure)
{
    if (!IsWanted(figure))
        return;
    for (const WallKind& wall : kWalls) {
        const Pair pair = measure(wall);
        std::map<int, Pair>& onOnePort = m_onOnePort[figure.what];
        std::string growth;
        if (wall.ports == 1 && !wall.multi)
            onOnePort[wall.cabinets] = pair;
        if (wall.cabinets == 131072 && !figure.ofValue)
            growth = Number(Exponent(onOnePort[8192].floor, pair.floor)) + " → "
                     + Number(Exponent(onOnePort[8192].ours, pair.ours));
        PrintRow(figure, NameOf(wall), pair, growth);
    }
}

void Table::Add(const Figure& figure, const std::function<Pair()>& measure)
{
    if (IsWanted(figure))
        PrintRow(figure, "", measure(), "");
}

void Table::AddGrowth(const Figure& figure, const std::string& of)
{
    const std::map<int, Pair>& measured = m_onOnePort[of];
    if (measured.empty())
        return;
    const Pair& few = measured.at(32768);
    const Pair& many = measured.at(131072);
    PrintRow(figure, "32768 → 131072", {many.floor / few.floor, many.ours / few.ours}, "");
}

bool Table::IsWanted(const Figure& figure) const
{
    return figure.what.find(m_filter) != std::string::npos;
}

void Table::PrintRow(const Figure& figure, const std::string& wall, const Pair& pair,
                     const std::string& growth)
{
    const double ratio = pair.floor > 0 ? pair.ours / pair.floor : 0;
    const double judged = figure.ofValue ? pair.ours : ratio;
    const char* met = judged <= figure.aim ? "aim" : judged <= figure.must ? "must" : "NO";
    std::printf("| %s | %s | %s | %s | %s | %s | %s | %s | %s | %s |\n", figure.what.c_str(), wall.c_str(),
                pair.floor > 0 ? Number(pair.floor).c_str() : "–", Number(pair.ours).c_str(),
                figure.unit.c_str(), pair.floor > 0 ? Number(ratio).c_str() : "–",
                Number(figure.must).c_str(), Number(figure.aim).c_str(), met, growth.c_str());
    std::fflush(stdout);
}
