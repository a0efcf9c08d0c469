#pragma once

#include "benchwall.h"

#include <functional>
#include <string>

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

/// Makes Seconds count what the processor spent on this program and the commands it ran, for a machine that
/// is busy with others. Waiting for the disk is then left out.
void CountCpuTime();

double Seconds(const std::function<void()>& work);

/// Medians of nine runs each in milliseconds, taken in turns, so that both meet the same load of the machine.
Pair Interleaved(const Run& floor, const Run& ours);

// Registered figures are measured when the benchmarks are run.

/// On every wall; the name of a benchmark is that of the figure, a slash, and the wall.
void OnWalls(const Figure& figure, const std::function<Pair(const WallKind&)>& measure);
void OnWall(const Figure& figure, const WallKind& wall, const std::function<Pair(const WallKind&)>& measure);
void Once(const Figure& figure, const std::function<Pair()>& measure);
