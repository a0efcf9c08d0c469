#include "tablereporter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr double kMostAboveFloor = 0.1; ///< of the power that a time grows with

std::string Number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, value >= 100 ? "%.0f" : value >= 1 ? "%.2f" : "%.4f", value);
    return text;
}

/// The power of the number of cabinets that the time grows with.
double Exponent(double few, double many, double times)
{
    return std::log(many / few) / std::log(times);
}

/// The bounds are those of walls of 32768 cabinets; other walls show how a figure grows.
const char* HowMet(const Figure& figure, const std::string& wall, double value)
{
    const bool bound = wall.empty() || wall.rfind("32768", 0) == 0;
    if (!bound)
        return "–";
    return value <= figure.aim ? "aim" : value <= figure.must ? "must" : "NO";
}

void PrintRow(const Figure& figure, const std::string& wall, const Pair& pair, const std::string& growth)
{
    const double ratio = pair.floor > 0 ? pair.ours / pair.floor : 0;
    const char* met = HowMet(figure, wall, figure.ofValue ? pair.ours : ratio);
    std::printf("| %s | %s | %s | %s | %s | %s | %s | %s | %s | %s |\n", figure.what.c_str(), wall.c_str(),
                pair.floor > 0 ? Number(pair.floor).c_str() : "–", Number(pair.ours).c_str(),
                figure.unit.c_str(), pair.floor > 0 ? Number(ratio).c_str() : "–",
                Number(figure.must).c_str(), Number(figure.aim).c_str(), met, growth.c_str());
    std::fflush(stdout);
}

} // namespace

bool TableReporter::ReportContext(const Context&)
{
    std::printf("| what | cabinets | floor | ours | unit | ratio | must | aim | met | growth floor → ours |\n"
                "|---|---|---|---|---|---|---|---|---|---|\n");
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Aggregate)
            continue;
        const std::string& name = run.run_name.function_name;
        const size_t slash = std::min(name.find('/'), name.size());
        const std::string wall = name.substr(std::min(slash + 1, name.size()));
        const auto counter = [&](const char* of) { return run.counters.at(of).value; };
        const Figure figure{name.substr(0, slash), run.report_label, counter("must"), counter("aim"),
                            counter("of value") != 0};
        const Pair pair{counter("floor"), counter("ours")};
        m_pairs[name] = pair;
        PrintRow(figure, wall, pair, figure.ofValue ? "" : Growth(figure.what, wall, pair));
    }
}

void TableReporter::Finalize()
{
    PrintGrowth({"load, 131072 against 32768 cabinets", "times", 1.08, 1.02}, "load a project archive");
    PrintGrowth({"save, 131072 against 32768 cabinets", "times", 4.6, 4.2, true}, "save to an archive");
}

/// To the largest wall, from the smallest of its kind.
std::string TableReporter::Growth(const std::string& what, const std::string& wall, const Pair& large) const
{
    const std::string largest = "131072";
    if (wall.rfind(largest, 0) != 0)
        return {};
    for (const int cabinets : {8192, 32768}) {
        const auto small = m_pairs.find(what + "/" + std::to_string(cabinets) + wall.substr(largest.size()));
        if (small == m_pairs.end())
            continue;
        const double times = 131072.0 / cabinets;
        const double floor = Exponent(small->second.floor, large.floor, times);
        const double ours = Exponent(small->second.ours, large.ours, times);
        return Number(floor) + " → " + Number(ours) + (ours > floor + kMostAboveFloor ? " NO" : "");
    }
    return {};
}

/// How often the time for 32768 cabinets goes into that for 131072.
void TableReporter::PrintGrowth(const Figure& figure, const std::string& of) const
{
    const auto few = m_pairs.find(of + "/32768");
    const auto many = m_pairs.find(of + "/131072");
    if (few != m_pairs.end() && many != m_pairs.end())
        PrintRow(figure, "32768 → 131072",
                 {many->second.floor / few->second.floor, many->second.ours / few->second.ours}, "");
}
