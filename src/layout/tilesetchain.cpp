#include "common/saturated.h"
#include "layout/serpentinewalk.h"
#include "layout/tile.h"
#include "layout/tileset.h"

#include <QMutexLocker>
#include <QSet>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>
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

/// Has the memory fetched that a walk along the list comes to next: a large wall outgrows the caches, and
/// each cabinet is two blocks on the heap. A call of it would be dropped as one without effect.
[[gnu::always_inline]] inline void FetchAhead(const QList<CTile*>& tiles, int at)
{
    constexpr int ahead = 8;
    if (at + 2 * ahead >= tiles.size())
        return;
    __builtin_prefetch(tiles.at(at + 2 * ahead));
    __builtin_prefetch(tiles.at(at + ahead)->GetData());
}

/// An entry of a tile list with its place in some order.
struct Stop
{
    quint64 place;
    int position;      ///< in the list
    int receivers = 0; ///< of the tile, for who numbers along the stops
};

/// Sorts in as many linear passes as the places have bytes that differ; equal places keep their order.
void SortByPlace(std::vector<Stop>& stops)
{
    constexpr int kDigitBits = 8;
    constexpr size_t kDigits = 1 << kDigitBits;
    quint64 differing = 0;
    for (const Stop& stop : stops)
        differing |= stop.place ^ stops.front().place;
    std::vector<Stop> sorted(stops.size());
    for (int shift = 0; shift < 64; shift += kDigitBits) {
        const auto digit = [=](quint64 place) { return static_cast<size_t>(place >> shift) % kDigits; };
        if (digit(differing) == 0)
            continue;
        std::array<size_t, kDigits> starts = {};
        for (const Stop& stop : stops)
            ++starts[digit(stop.place)];
        size_t start = 0;
        for (size_t& count : starts)
            start += std::exchange(count, start);
        for (const Stop& stop : stops)
            sorted[starts[digit(stop.place)]++] = stop;
        stops.swap(sorted);
    }
}

/// Puts the stops in order, of equal places as listed, and each tile in once. Every stop of a tile has the
/// same place, so only stops that share one are compared.
void BringInOrder(const QList<CTile*>& tiles, std::vector<Stop>& stops)
{
    SortByPlace(stops);
    auto kept = stops.begin();
    for (auto first = stops.begin(); first != stops.end();) {
        const quint64 place = first->place;
        const auto next =
            std::find_if(first, stops.end(), [=](const Stop& stop) { return stop.place != place; });
        if (next - first == 1) {
            *kept++ = *first++;
            continue;
        }
        QSet<CTile*> seen;
        for (; first != next; ++first) {
            CTile* tile = tiles[first->position];
            if (!seen.contains(tile))
                *kept++ = *first;
            seen.insert(tile);
        }
    }
    stops.erase(kept, stops.end());
}

/// The numbered tiles, each once, by index and of equal indices by list order.
std::vector<Stop> ChainOrder(const QList<CTile*>& tiles)
{
    std::vector<Stop> chain;
    chain.reserve(static_cast<size_t>(tiles.size()));
    for (int i = 0; i < tiles.size(); ++i) {
        FetchAhead(tiles, i);
        const int index = tiles[i]->GetConnectionIndex();
        if (index >= 0)
            chain.push_back({static_cast<quint64>(index), i, tiles[i]->GetMultiRcvsCount()});
    }
    BringInOrder(tiles, chain);
    return chain;
}

/// Makes the stops the chain, in their order; what they leave out and is not numbered begins nowhere. Tiles
/// are written to in list order, as they mostly lie in memory, since a large wall outgrows the caches and a
/// chain may have any order.
void NumberAlong(const std::vector<Stop>& stops, const QList<CTile*>& tiles)
{
    struct Place
    {
        int index = -1;
        int begin = 0;
    };
    std::vector<Place> places(static_cast<size_t>(tiles.size()));
    Place next{0, 0};
    for (const Stop& stop : stops) {
        places[static_cast<size_t>(stop.position)] = next;
        next = {next.index + 1, SaturatedInt(qint64(next.begin) + stop.receivers)};
    }
    for (int i = 0; i < tiles.size(); ++i) {
        FetchAhead(tiles, i);
        const Place& place = places[static_cast<size_t>(i)];
        if (place.index >= 0)
            SetPlace(tiles.at(i), place.index, place.begin);
        else if (!tiles.at(i)->HasSetConnectIndex())
            tiles.at(i)->SetBeginRcvCnnt(-1);
    }
}

bool IsWithoutGap(const std::vector<Stop>& chain)
{
    quint64 next = 0;
    return std::all_of(chain.begin(), chain.end(), [&](const Stop& link) { return link.place == next++; });
}

/// Whether the chain visits its tiles in the order of the walk. Ends at the first that is out of order.
bool FollowsWalk(const QList<CTile*>& tiles, const std::vector<Stop>& chain, const SerpentineWalk& walk)
{
    auto previous = std::make_pair(quint64(0), -1);
    for (const Stop& link : chain) {
        const QPoint centre = tiles[link.position]->GetCenter();
        if (!walk.Visits(centre))
            return false;
        const auto stop = std::make_pair(walk.PlaceOf(centre), link.position);
        if (stop < previous)
            return false;
        previous = stop;
    }
    return true;
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
    const QRect bound = GetBound();
    QSize cell;
    if (bound.isEmpty() || type < 0 || type >= SerpentineWalk::kPatternCount || !AutoConnectGetSize(cell)) {
        ClearConnectIndex();
        return false;
    }
    const SerpentineWalk walk(type, bound, cell);
    std::vector<Stop> stops;
    stops.reserve(static_cast<size_t>(m_tiles.size()));
    for (int i = 0; i < m_tiles.size(); ++i) {
        FetchAhead(m_tiles, i);
        CTile* tile = m_tiles.at(i);
        const QPoint centre = tile->GetCenter();
        if (walk.Visits(centre))
            stops.push_back({walk.PlaceOf(centre), i, tile->GetMultiRcvsCount()});
        else
            tile->SetConnectionIndex(-1, nullptr);
    }
    BringInOrder(m_tiles, stops);
    NumberAlong(stops, m_tiles);
    return !stops.empty();
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
        const QPoint centre = m_tiles.at(i)->GetCenter();
        if (!m_tiles.at(i)->HasSetConnectIndex() && rect.contains(centre))
            stops.push_back({PlaceAlong(direction, centre), i});
    }
    SortByPlace(stops);

    const CTile* previous = nullptr;
    for (const Stop& stop : stops) {
        CTile* tile = m_tiles.at(stop.position);
        if (tile->HasSetConnectIndex())
            continue; // listed twice
        if (previous && next > 0)
            SetPlace(tile, next, ReceiversUpTo(previous, previous->GetBeginRcvCnnt()));
        else
            tile->SetConnectionIndex(next, this);
        previous = tile;
        if (next == kMaxIndex)
            break;
        ++next;
    }
    return previous != nullptr;
}

int CTileSet::GetConnectionType() const
{
    const std::vector<Stop> chain = ChainOrder(m_tiles);
    if (chain.empty() || !IsWithoutGap(chain))
        return -1;
    CTileSet unnumbered;
    GetTileSetUnnumbered(unnumbered);
    const QRect bound = GetBound();
    QSize cell;
    if (bound.isEmpty() || !AutoConnectGetSize(cell))
        return -1;
    for (int type = 0; type < SerpentineWalk::kPatternCount; ++type) {
        const SerpentineWalk walk(type, bound, cell);
        const auto isVisited = [&](const CTile* tile) { return walk.Visits(tile->GetCenter()); };
        const QList<CTile*>& left = unnumbered.GetTiles();
        if (std::none_of(left.begin(), left.end(), isVisited) && FollowsWalk(m_tiles, chain, walk))
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
    const std::vector<Stop> stops = ChainOrder(m_tiles);
    NumberAlong(stops, m_tiles);
    if (!chain)
        return;
    for (const Stop& stop : stops)
        chain->append(m_tiles.at(stop.position));
}
