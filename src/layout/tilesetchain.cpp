#include "common/saturated.h"
#include "layout/serpentinewalk.h"
#include "layout/tile.h"
#include "layout/tileset.h"

#include <QMutexLocker>

#include <algorithm>
#include <limits>
#include <unordered_set>
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

/// An entry of a tile list with its place in some order.
struct Stop
{
    quint64 place;
    int position; ///< in the list
};

/// Equal places keep their order.
void SortByPlace(std::vector<Stop>& stops)
{
    std::stable_sort(stops.begin(), stops.end(),
                     [](const Stop& a, const Stop& b) { return a.place < b.place; });
}

/// The stops by place, equal ones as listed, and each tile once.
std::vector<Stop> InOrder(const QList<CTile*>& tiles, std::vector<Stop> stops)
{
    std::unordered_set<const CTile*> seen;
    seen.reserve(stops.size());
    const auto isRepeated = [&](const Stop& stop) { return !seen.insert(tiles.at(stop.position)).second; };
    stops.erase(std::remove_if(stops.begin(), stops.end(), isRepeated), stops.end());
    SortByPlace(stops);
    return stops;
}

/// The numbered tiles by index, equal ones as listed, and each once.
std::vector<Stop> ChainOrder(const QList<CTile*>& tiles)
{
    std::vector<Stop> chain;
    chain.reserve(static_cast<size_t>(tiles.size()));
    for (int i = 0; i < tiles.size(); ++i) {
        if (tiles.at(i)->HasSetConnectIndex())
            chain.push_back({static_cast<quint64>(tiles.at(i)->GetConnectionIndex()), i});
    }
    return InOrder(tiles, std::move(chain));
}

/// Makes the stops the chain, in their order. Tiles without a number have no receivers before them either.
void NumberAlong(const std::vector<Stop>& stops, const QList<CTile*>& tiles)
{
    int index = 0;
    int begin = 0;
    for (const Stop& stop : stops) {
        CTile* tile = tiles.at(stop.position);
        SetPlace(tile, index++, begin);
        begin = ReceiversUpTo(tile, begin);
    }
    for (CTile* tile : tiles) {
        if (!tile->HasSetConnectIndex())
            tile->SetBeginRcvCnnt(-1);
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

bool CTileSet::AppendToChain(const QList<CTile*>& tiles)
{
    CTile* last = GetEndIndexTile();
    bool any = false;
    for (CTile* tile : tiles) {
        if (!tile || tile->HasSetConnectIndex() || (last && last->GetConnectionIndex() == kMaxIndex))
            continue;
        CTileSet before; // the neighbour is known: no search through the set
        before.AddTile(last);
        tile->SetConnectionIndex(last ? last->GetConnectionIndex() + 1 : 0, &before);
        last = tile;
        any = true;
    }
    return any;
}

bool CTileSet::InsertIntoChain(CTile* tile, const CTile* before)
{
    if (!IsTileIn(tile) || tile->HasSetConnectIndex()
        || (before && !(IsTileIn(before) && before->HasSetConnectIndex())))
        return false;
    TileSetNormalization();
    const int place = before ? before->GetConnectionIndex() + 1 : 0;
    CTileSet nowhere; // no search here either
    for (CTile* other : qAsConst(m_tiles)) {
        if (other->GetConnectionIndex() >= place)
            other->SetConnectionIndex(other->GetConnectionIndex() + 1, &nowhere);
    }
    tile->SetConnectionIndex(place, &nowhere);
    TileSetNormalization();
    return true;
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
        const QPoint centre = m_tiles.at(i)->GetCenter();
        if (walk.Visits(centre))
            stops.push_back({walk.PlaceOf(centre), i});
        else
            m_tiles.at(i)->SetConnectionIndex(-1, nullptr);
    }
    NumberAlong(InOrder(m_tiles, stops), m_tiles);
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
