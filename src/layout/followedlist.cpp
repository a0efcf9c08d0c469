#include "layout/followedlist.h"

#include <algorithm>

namespace {

constexpr std::uint64_t kWalkShare = 4; ///< from this share of the cabinets on, looking at all is as fast

} // namespace

void SortPositions(std::vector<int>* positions)
{
    std::sort(positions->begin(), positions->end());
    positions->erase(std::unique(positions->begin(), positions->end()), positions->end());
}

Positions FollowedList::Changed(const QList<CTile*>& tiles)
{
    const auto most = static_cast<std::uint64_t>(tiles.size()) / kWalkShare;
    if (!m_tiles.isSharedWith(tiles) || m_journal.CountUnread() > most || !FindPlaces())
        return std::nullopt;
    std::vector<int> positions;
    const bool complete = m_journal.CatchUp([&](const CTile* tile) {
        const auto place = m_places.constFind(tile);
        if (place != m_places.constEnd())
            positions.push_back(*place);
    });
    if (!complete)
        return std::nullopt;
    SortPositions(&positions);
    return positions;
}

void FollowedList::Follow(const QList<CTile*>& tiles)
{
    if (!m_tiles.isSharedWith(tiles))
        m_places.clear();
    m_tiles = tiles;
    m_journal.SkipUnread();
}

/// False when a cabinet is listed twice.
bool FollowedList::FindPlaces()
{
    if (m_places.isEmpty()) {
        m_places.reserve(m_tiles.size());
        for (int i = 0; i < m_tiles.size(); ++i)
            m_places.insert(m_tiles.at(i), i);
    }
    return m_places.size() == m_tiles.size();
}
