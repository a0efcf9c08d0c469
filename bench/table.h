#pragma once

#include "benchwall.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

/// A figure and what we ask of it.
struct Figure
{
    std::string what;
    std::string unit;
    double must = 0; ///< largest ratio to the floor, or value when `ofValue`
    double aim = 0;
    bool ofValue = false;
};

struct Pair
{
    double floor = 0; ///< 0: the figure has none
    double ours = 0;
};

/// The seconds that one run took, without its preparation.
using Run = std::function<double()>;

/// Makes Seconds count what the processor spent on this program, for a machine that is busy with others.
/// Waiting for the disk is then left out.
void CountCpuTime();

double Seconds(const std::function<void()>& work);

/// Medians of nine runs each, taken in turns, so that both meet the same load of the machine.
Pair Interleaved(const Run& floor, const Run& ours);

/// Prints the figures as they are measured, as a Markdown table.
class Table
{
public:
    explicit Table(std::string filter); ///< only figures whose name holds it

    using Measure = std::function<Pair(const WallKind&)>;

    /// On all walls, with growth from 8192 to 131072 cabinets.
    void AddOnWalls(const Figure& figure, const Measure& measure);
    void Add(const Figure& figure, const std::function<Pair()>& measure);
    /// How often the time of a figure for 32768 cabinets goes into that for 131072.
    void AddGrowth(const Figure& figure, const std::string& of);

private:
    bool IsWanted(const Figure& figure) const;
    void PrintRow(const Figure& figure, const std::string& wall, const Pair& pair, const std::string& growth);

    std::string m_filter;
    std::map<std::string, std::map<int, Pair>> m_onOnePort; ///< by figure, then by cabinets
};
