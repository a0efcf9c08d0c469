#pragma once

#include "figure.h"

#include <benchmark/benchmark.h>

#include <map>

/// Prints the figures as they are measured, as a Markdown table with their growth from wall to wall.
class TableReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    std::string Growth(const std::string& what, const std::string& wall, const Pair& large) const;
    void PrintGrowth(const Figure& figure, const std::string& of) const;

    std::map<std::string, Pair> m_pairs; ///< by name of the benchmark
};
