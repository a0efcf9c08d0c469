#include "layout/layouttracker.h"

#include "layout/port.h"
#include "layout/tileaccess.h"

namespace {

/// Those of which somebody may write to the data without notice.
std::vector<int> HandedOutOf(const QList<CTile*>& tiles, const Positions& positions)
{
    std::vector<int> found;
    ForEachPosition(positions, tiles.size(), [&](int position) {
        if (TileAccess::Data(*tiles.at(position))->handedOut)
            found.push_back(position);
    });
    return found;
}

} // namespace

const LayoutSnapshot::Pointer& LayoutTracker::Take(CPort& port)
{
    const QList<CTile*>& tiles = port.GetTileSet().GetTiles();
    const Positions changed = FindChanged(tiles);
    Agree(tiles, LayoutSnapshot::Take(port, m_known, changed), !changed);
    return m_known;
}

void LayoutTracker::Restore(CPort* port, const LayoutSnapshot::Pointer& wanted)
{
    const QList<CTile*>& tiles = port->GetTileSet().GetTiles();
    Positions changed = FindChanged(tiles);
    const Positions other = m_known ? wanted->FindOther(*m_known) : std::nullopt;
    if (changed && other)
        changed->insert(changed->end(), other->begin(), other->end());
    else
        changed.reset();
    wanted->Restore(port, changed);
    Agree(tiles, wanted, !changed);
}

/// The cabinets that may not be as known.
Positions LayoutTracker::FindChanged(const QList<CTile*>& tiles)
{
    Positions changed = m_known ? m_list.Changed(tiles) : std::nullopt;
    if (!changed || tiles.isEmpty())
        return changed;
    if (!m_list.IsDistinct()) // a cabinet that is right for one of its places may be wrong for another
        return std::nullopt;
    if (!m_handedOut)
        m_handedOut = HandedOutOf(tiles, std::nullopt);
    changed->insert(changed->end(), m_handedOut->begin(), m_handedOut->end());
    SortPositions(&*changed);
    m_handedOut = HandedOutOf(tiles, changed);
    return changed;
}

void LayoutTracker::Agree(const QList<CTile*>& tiles, const LayoutSnapshot::Pointer& snapshot, bool walked)
{
    m_known = snapshot;
    m_list.Follow(tiles);
    if (walked)
        m_handedOut.reset();
}
