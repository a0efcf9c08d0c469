#pragma once

#include "layout/sender.h"

#include <memory>
#include <vector>

/// A wall to measure on.
struct WallKind
{
    int cabinets = 0;
    int ports = 1;
    bool multi = false; ///< four receiving cards a cabinet
};

/// A wall twice as wide as high on each port in use, numbered in rows.
std::unique_ptr<CSender> MakeBenchWall(const WallKind& kind);

CTileSet& TilesOf(CSender& sender, int port = 0);

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
