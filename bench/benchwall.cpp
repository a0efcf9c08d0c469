#include "benchwall.h"

#include <algorithm>
#include <cmath>

std::unique_ptr<CSender> MakeBenchWall(const WallKind& kind)
{
    auto sender = std::make_unique<CSender>();
    sender->SetPortCount(kind.ports == 1 ? 4 : kind.ports);
    const int each = kind.cabinets / kind.ports;
    SAddTileInfo block;
    block.senderId = sender->GetId();
    block.width = 64;
    block.height = 64;
    block.rows = std::max(1, static_cast<int>(std::sqrt(each / 2.0)));
    block.columns = each / block.rows;
    block.multi = kind.multi;
    block.multiSize = kind.multi ? QSize(2, 2) : QSize(1, 1);
    for (int i = 0; i < kind.ports; ++i) {
        block.portIndex = i;
        sender->GetPort(i)->GetPortProject()->AddTile(block);
        TilesOf(*sender, i).AutoConnection(AutoNumberRowsTopLeft, 0);
    }
    return sender;
}

CTileSet& TilesOf(CSender& sender, int port)
{
    return sender.GetPort(port)->GetTileSet();
}

bool PlainCabinet::operator==(const PlainCabinet& other) const
{
    return std::equal(std::begin(ids), std::end(ids), other.ids)
           && std::equal(std::begin(numbers), std::end(numbers), other.numbers)
           && std::equal(std::begin(type), std::end(type), other.type)
           && std::equal(std::begin(line), std::end(line), other.line)
           && std::equal(std::begin(flags), std::end(flags), other.flags)
           && std::equal(std::begin(rotation), std::end(rotation), other.rotation,
                         [](double a, double b) { return a - b < 0.49 && b - a < 0.49; });
}

PlainWall MakePlainWall(int cabinets)
{
    PlainWall wall;
    for (int i = 0; i < cabinets; ++i) {
        wall.push_back(std::make_unique<PlainCabinet>());
        wall.back()->numbers[0] = i;
    }
    return wall;
}

PlainWall CopyOf(const PlainWall& wall)
{
    PlainWall copy;
    copy.reserve(wall.size());
    for (const auto& cabinet : wall)
        copy.push_back(std::make_unique<PlainCabinet>(*cabinet));
    return copy;
}
