#pragma once

#include "layout/layoutlookup.h"
#include "layout/sender.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

/// The sizes that every concern is measured at: cabinets of a wall.
inline void WallSizes(benchmark::internal::Benchmark* bench)
{
    for (int cabinets : {1024, 8192, 32768, 131072})
        bench->Arg(cabinets);
    bench->Complexity()->Unit(benchmark::kMicrosecond);
}

/// A wall twice as wide as high on the first `ports` ports, numbered in rows.
std::unique_ptr<CSender> MakeBenchWall(int cabinets, int ports = 1);

/// Lets the library find one sender as the open project's only and current one, as long as it lives.
class BenchProject : public LayoutLookup
{
public:
    explicit BenchProject(CSender* sender) : m_sender(sender) { SetLayoutLookup(this); }
    ~BenchProject() override { SetLayoutLookup(nullptr); }

    CSender* CurrentSender() const override { return m_sender; }
    QList<CSender*> Senders() const override { return {m_sender}; }

private:
    CSender* m_sender;
};

/// A cabinet as nothing but its fields: what the floors that we measure ourselves against are made of.
struct PlainCabinet
{
    unsigned char ids[32];
    int numbers[10];
    char type[33];
    unsigned char line[10];
    bool flags[5];
    double rotation[7];

    bool operator==(const PlainCabinet& other) const; ///< field by field
};

/// Each cabinet on the heap by itself.
using PlainWall = std::vector<std::unique_ptr<PlainCabinet>>;

PlainWall MakePlainWall(int cabinets);
PlainWall CopyOf(const PlainWall& wall);
