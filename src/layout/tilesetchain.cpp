#include "common/saturated.h"
#include "layout/serpentinewalk.h"
#include "layout/tile.h"
#include "layout/tileset.h"

#include <QMutexLocker>
#include <QSet>

#include <algorithm>
#include <limits>
#include <vector>

namespace {

constexpr int kMaxIndex = std::numeric_limits<int>::max();

int ReceiversUpTo(const CTile* tile, int begin)
{
    return SaturatedInt(qint64(begin) + tile->GetMultiRcvsCount());
}

/// Writes a place in the chain without looking for the neighbour; a tile that has it stays shared.
void SetPlace(CTile* tile, int index, int begin)
{
    if (tile->GetConnectionIndex() != index) {
        CTileSet nowhere;
        tile->SetConnectionIndex(index, &nowhere);
    }
    if (tile->GetBeginRcvCnnt() != begin)
        tile->SetBeginRcvCnnt(begin);
}

/// A tile with its place in an order; of equal places the earlier in the list comes first.
struct Stop
{
    quint64 place;
    int position;
    CTile* tile;

    bool operator<(const Stop& other) const
    {
        return place != other.place ? place < other.place : position < other.position;
    }
};

/// The numbered tiles with tile i of the chain at place i, places that no tile has left null. False when two
/// entries share an index, or an index lies so far beyond the count that such a table would not pay.
bool SpreadByIndex(const QList<CTile*>& tiles, std::vector<Stop>& out)
{
    const size_t limit = 4 * static_cast<size_t>(tiles.size()) + 16;
    out.clear();
    out.reserve(static_cast<size_t>(tiles.size()));
    for (int i = 0; i < tiles.size(); ++i) {
        const int index = tiles[i]->GetConnectionIndex();
        if (index < 0)
            continue;
        const auto slot = static_cast<size_t>(index);
        if (slot >= limit)
            return false;
        if (slot >= out.size())
            out.resize(slot + 1, Stop{0, 0, nullptr});
        if (out[slot].tile)
            return false;
        out[slot] = {slot, i, tiles[i]};
    }
    return true;
}

bool HasNoGap(const std::vector<Stop>& spread)
{
    return std::all_of(spread.begin(), spread.end(), [](const Stop& stop) { return stop.tile; });
}

/// Whether the chain visits its tiles in the order of the walk. Stops at the first that is out of order.
bool FollowsWalk(const std::vector<Stop>& chain, const SerpentineWalk& walk)
{
    Stop previous{0, -1, nullptr};
    for (const Stop& link : chain) {
        const Stop stop{walk.PlaceOf(link.tile->GetCenter()), link.position, link.tile};
        if (stop < previous)
            return false;
        previous = stop;
    }
    return true;
}

/// The numbered tiles, each once, by index and of equal indices by list order.
std::vector<Stop> ChainOrder(const QList<CTile*>& tiles)
{
    std::vector<Stop> chain;
    if (SpreadByIndex(tiles, chain)) {
        chain.erase(std::remove_if(chain.begin(), chain.end(), [](const Stop& s) { return !s.tile; }),
                    chain.end());
        return chain;
    }
    chain.clear();
    for (int i = 0; i < tiles.size(); ++i) {
        if (tiles[i]->HasSetConnectIndex())
            chain.push_back({static_cast<quint64>(tiles[i]->GetConnectionIndex()), i, tiles[i]});
    }
    std::sort(chain.begin(), chain.end());
    const auto shareIndex = [](const Stop& a, const Stop& b) { return a.place == b.place; };
    if (std::adjacent_find(chain.begin(), chain.end(), shareIndex) == chain.end())
        return chain;
    QSet<CTile*> seen;
    const auto listedTwice = [&](const Stop& stop) {
        const bool repeated = seen.contains(stop.tile);
        seen.insert(stop.tile);
        return repeated;
    };
    chain.erase(std::remove_if(chain.begin(), chain.end(), listedTwice), chain.end());
    return chain;
}

} // namespace

void CTileSet::ClearConnectIndex()
{
    for (CTile* tile : qAsConst(m_tiles))
        tile->SetConnectionIndex(-1, nullptr);
}

bool CTileSet::HasNumberedTiles() const
{
    return std::any_of(m_tiles.begin(), m_tiles.end(),
                       [](const CTile* tile) { return tile->HasSetConnectIndex(); });
}

CTile* CTileSet::GetEndIndexTile() const
{
    CTile* end = nullptr;
    int highest = -1;
    for (CTile* tile : m_tiles) {
        if (tile->GetConnectionIndex() <= highest)
            continue;
        highest = tile->GetConnectionIndex();
        end = tile;
    }
    return end;
}

CTile* CTileSet::GetTileByConnection(int index) const
{
    const auto it = std::find_if(m_tiles.begin(), m_tiles.end(),
                                 [=](const CTile* tile) { return tile->GetConnectionIndex() == index; });
    return it == m_tiles.end() ? nullptr : *it;
}

CTile* CTileSet::GetTileByRcvCnnt(int receiver) const
{
    const auto holds = [=](const CTile* tile) {
        const int begin = tile->GetBeginRcvCnnt();
        return begin != -1 && begin <= receiver && receiver < qint64(begin) + tile->GetMultiRcvsCount();
    };
    const auto it = std::find_if(m_tiles.begin(), m_tiles.end(), holds);
    return it == m_tiles.end() ? nullptr : *it;
}

CTile* CTileSet::GetTileByRcvCnntIndex(int receiver) const
{
    return GetTileByRcvCnnt(receiver);
}

QRect CTileSet::GetRectByRcvCnntIndex(int receiver) const
{
    CTile* tile = GetTileByRcvCnnt(receiver);
    if (!tile)
        return QRect();
    if (!tile->IsMultiRcvTile())
        return tile->GetBound();
    return tile->GetMultiRcvRect(receiver - tile->GetBeginRcvCnnt());
}

bool CTileSet::CanDrawCnntLine(int pixels) const
{
    return pixels >= 1 && std::any_of(m_tiles.begin(), m_tiles.end(), [=](const CTile* tile) {
               return tile->GetWidth() > pixels && tile->GetHeight() > pixels;
           });
}

bool CTileSet::AutoConnection(EnAutoNumberType type, int)
{
    ClearConnectIndex();
    const QRect bound = GetBound();
    QSize cell;
    if (bound.isEmpty() || type < 0 || type >= SerpentineWalk::kPatternCount || !AutoConnectGetSize(cell))
        return false;

    const SerpentineWalk walk(type, bound, cell);
    std::vector<Stop> stops;
    stops.reserve(static_cast<size_t>(m_tiles.size()));
    for (int i = 0; i < m_tiles.size(); ++i)
        stops.push_back({walk.PlaceOf(m_tiles[i]->GetCenter()), i, m_tiles[i]});
    std::sort(stops.begin(), stops.end());

    int next = 0;
    int begin = 0;
    for (const Stop& stop : stops) {
        if (stop.tile->HasSetConnectIndex())
            continue; // listed twice
        SetPlace(stop.tile, next++, begin);
        begin = ReceiversUpTo(stop.tile, begin);
    }
    return next > 0;
}

bool CTileSet::AutoConnectGetSize(QSize& cell) const
{
    int width = 0;
    int height = 0;
    for (const CTile* tile : m_tiles) {
        const QSize size = tile->GetSize();
        if (size.width() > 0 && (width == 0 || size.width() < width))
            width = size.width();
        if (size.height() > 0 && (height == 0 || size.height() < height))
            height = size.height();
    }
    if (width == 0 || height == 0)
        return false;
    cell = QSize(width, height);
    return true;
}

bool CTileSet::NumberSetRect(int& next, const QRect& rect, const QSize&, int direction)
{
    if (direction < 0 || direction >= kDirectionCount)
        return false;
    std::vector<Stop> stops;
    for (int i = 0; i < m_tiles.size(); ++i) {
        const QPoint centre = m_tiles[i]->GetCenter();
        if (!m_tiles[i]->HasSetConnectIndex() && rect.contains(centre))
            stops.push_back({PlaceAlong(direction, centre), i, m_tiles[i]});
    }
    std::sort(stops.begin(), stops.end());

    const CTile* previous = nullptr;
    for (const Stop& stop : stops) {
        if (stop.tile->HasSetConnectIndex())
            continue; // listed twice
        if (previous)
            SetPlace(stop.tile, next, ReceiversUpTo(previous, previous->GetBeginRcvCnnt()));
        else
            stop.tile->SetConnectionIndex(next, this);
        previous = stop.tile;
        if (next == kMaxIndex)
            break;
        ++next;
    }
    return previous != nullptr;
}

int CTileSet::GetConnectionType() const
{
    std::vector<Stop> chain;
    if (m_tiles.isEmpty() || !SpreadByIndex(m_tiles, chain)
        || chain.size() != static_cast<size_t>(m_tiles.size()) || !HasNoGap(chain))
        return -1;
    const QRect bound = GetBound();
    QSize cell;
    if (bound.isEmpty() || !AutoConnectGetSize(cell))
        return -1;
    for (int type = 0; type < SerpentineWalk::kPatternCount; ++type) {
        if (FollowsWalk(chain, SerpentineWalk(type, bound, cell)))
            return type;
    }
    return -1;
}

bool CTileSet::CanSnapToRcvsMulti() const
{
    return !m_tiles.isEmpty() && std::all_of(m_tiles.begin(), m_tiles.end(), [this](const CTile* tile) {
        return tile->IsMultiRcvTile() && tile->GetSize() == m_tiles.first()->GetSize()
               && tile->GetMultiRcvsSize() == m_tiles.first()->GetMultiRcvsSize();
    });
}

void CTileSet::TileSetNormalization()
{
    QMutexLocker lock(&m_mutex);
    Normalize(nullptr);
}

void CTileSet::GetTileSetNumberedNormalization(CTileSet& out)
{
    QList<CTile*> chain;
    Normalize(&chain);
    out.SetResult(chain);
}

void CTileSet::Normalize(QList<CTile*>* chain)
{
    for (CTile* tile : qAsConst(m_tiles)) {
        if (!tile->HasSetConnectIndex())
            SetPlace(tile, tile->GetConnectionIndex(), -1);
    }
    int next = 0;
    int begin = 0;
    for (const Stop& link : ChainOrder(m_tiles)) {
        SetPlace(link.tile, next++, begin);
        begin = ReceiversUpTo(link.tile, begin);
        if (chain)
            chain->append(link.tile);
    }
}
