#include "layout/layouttracker.h"

#include "layout/portproject.h"
#include "layout/tile.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace {

constexpr std::uint64_t kWalkShare = 4; ///< from this share of the cabinets on, looking at all is as fast
constexpr int kScannedFrom = 64;        ///< fewer cabinets are looked at one and all

quintptr Address(const CTile* tile)
{
    return reinterpret_cast<quintptr>(tile);
}

/// Both ascend; each position remains once.
void Merge(const std::vector<int>& from, std::vector<int>* into)
{
    const auto middle = static_cast<std::ptrdiff_t>(into->size());
    into->insert(into->end(), from.begin(), from.end());
    std::inplace_merge(into->begin(), into->begin() + middle, into->end());
    into->erase(std::unique(into->begin(), into->end()), into->end());
}

} // namespace

LayoutTracker::LayoutTracker() = default;

LayoutTracker::~LayoutTracker() = default;

const LayoutSnapshot::Pointer& LayoutTracker::Take(const CPortProject& layout,
                                                   const LayoutSnapshot::Pointer& previous)
{
    const QList<CTile*>& tiles = layout.GetTileSet()->GetTiles();
    const bool quick = previous && m_record == previous && CatchUp(tiles);
    if (quick && m_touched.empty() && GroupSnapshot::Holds(previous->GetGroups(), *layout.GetTileGroupSet()))
        return m_record; // as most ports at most steps
    Agree(tiles,
          quick ? LayoutSnapshot::Take(layout, previous, m_touched) : LayoutSnapshot::Take(layout, previous),
          !quick);
    return m_record;
}

void LayoutTracker::Restore(CPortProject* layout, const LayoutSnapshot::Pointer& record)
{
    const QList<CTile*>& tiles = layout->GetTileSet()->GetTiles();
    const bool quick = m_record && CatchUp(tiles) && record->Restore(layout, *m_record, m_touched);
    if (!quick)
        record->Restore(layout);
    Agree(tiles, record, !quick);
}

/// Finds the cabinets that may have left their record; false when any may have.
bool LayoutTracker::CatchUp(const QList<CTile*>& tiles)
{
    if (!m_tiles.isSharedWith(tiles))
        return false;
    m_touched.clear();
    if (tiles.isEmpty())
        return true;
    const auto count = static_cast<std::uint64_t>(tiles.size());
    if (tiles.size() < kScannedFrom || m_journal.CountUnread() > count / kWalkShare)
        return false;
    if (!m_scanned && !Scan())
        return false;
    const bool complete = m_journal.CatchUp([this](const CTile* tile) {
        if (Address(tile) < m_lowest || Address(tile) > m_highest)
            return;
        const int position = m_slots[Slot(tile)];
        if (position >= 0)
            m_touched.push_back(position);
    });
    if (!complete)
        return false;
    std::sort(m_touched.begin(), m_touched.end());
    std::vector<int> handedOut;
    std::copy_if(m_touched.begin(), m_touched.end(), std::back_inserter(handedOut),
                 [&](int position) { return tiles.at(position)->GetData()->handedOut; });
    Merge(handedOut, &m_handedOut);
    Merge(m_handedOut, &m_touched);
    return true;
}

/// False when some cabinet is listed twice.
bool LayoutTracker::Scan()
{
    const auto count = static_cast<size_t>(m_tiles.size());
    m_slotShift = 63;
    while ((size_t(1) << (64 - m_slotShift)) < 2 * count)
        --m_slotShift;
    m_slots.assign(size_t(1) << (64 - m_slotShift), -1);
    m_handedOut.clear();
    m_lowest = m_highest = Address(m_tiles.constFirst());
    for (int i = 0; i < m_tiles.size(); ++i) {
        m_lowest = qMin(m_lowest, Address(m_tiles.at(i)));
        m_highest = qMax(m_highest, Address(m_tiles.at(i)));
        int& position = m_slots[Slot(m_tiles.at(i))];
        if (position >= 0)
            return false;
        position = i;
        if (m_tiles.at(i)->GetData()->handedOut)
            m_handedOut.push_back(i);
    }
    m_scanned = true;
    return true;
}

/// The slot of that cabinet, or the empty one where it belongs.
size_t LayoutTracker::Slot(const CTile* tile) const
{
    const quint64 spread = (Address(tile) >> 4) * Q_UINT64_C(0x9E3779B97F4A7C15);
    auto slot = static_cast<size_t>(spread >> m_slotShift);
    while (m_slots[slot] >= 0 && m_tiles.at(m_slots[slot]) != tile)
        slot = (slot + 1) % m_slots.size();
    return slot;
}

/// A walk leaves open which cabinets somebody has a pointer into.
void LayoutTracker::Agree(const QList<CTile*>& tiles, const LayoutSnapshot::Pointer& record, bool walked)
{
    m_record = record;
    m_tiles = tiles;
    m_scanned = m_scanned && !walked;
    m_journal.SkipUnread();
}
