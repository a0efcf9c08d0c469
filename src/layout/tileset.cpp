#include "layout/tileset.h"

#include "common/interfacedlg.h"
#include "common/saturated.h"
#include "layout/layoutlookup.h"
#include "layout/sender.h"
#include "layout/tileaccess.h"
#include "layout/tileindex.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

constexpr int kWholeCabinet = -1;

template <class Predicate> QList<CTile*> Matching(const QList<CTile*>& tiles, Predicate predicate)
{
    QList<CTile*> found;
    std::copy_if(tiles.begin(), tiles.end(), std::back_inserter(found), predicate);
    return found;
}

QList<CTile*> CopiesOf(const QList<CTile*>& tiles)
{
    QList<CTile*> copies;
    copies.reserve(tiles.size());
    for (const CTile* tile : tiles)
        copies.append(new CTile(*tile));
    return copies;
}

} // namespace

QMutex CTileSet::m_mutex;

CTileSet::CTileSet() = default;

CTileSet::CTileSet(const CTileSet& other) : m_owning(other.m_owning)
{
    AddFromOther(other);
}

CTileSet::~CTileSet()
{
    DeleteAllTiles();
}

CTileSet& CTileSet::operator=(const CTileSet& other)
{
    if (this == &other)
        return *this;
    const QList<CTile*> tiles = other.m_owning ? CopiesOf(other.m_tiles) : other.m_tiles;
    if (other.m_owning)
        DeleteAllTiles(); // no copy is among them
    Replace(tiles, other.m_owning);
    return *this;
}

bool CTileSet::operator==(const CTileSet& other) const
{
    if (this == &other)
        return true;
    return m_owning == other.m_owning
           && std::equal(m_tiles.begin(), m_tiles.end(), other.m_tiles.begin(), other.m_tiles.end(),
                         [](const CTile* a, const CTile* b) { return *a == *b; });
}

void CTileSet::AddTile(CTile* tile)
{
    if (tile)
        m_tiles.append(tile);
}

void CTileSet::AddFromOther(const CTileSet& other)
{
    const QList<CTile*> tiles = m_owning ? CopiesOf(other.m_tiles) : other.m_tiles;
    m_tiles.append(tiles);
}

void CTileSet::DeleteAllTiles()
{
    Replace({}, m_owning);
}

void CTileSet::DeteleTile(int index)
{
    if (index < 0 || index >= m_tiles.size())
        return;
    CTile* tile = m_tiles.takeAt(index);
    if (m_owning && !m_tiles.contains(tile))
        delete tile;
}

void CTileSet::DeteleTile(CTile* tile)
{
    DeteleTile(GetTileIndex(tile));
}

void CTileSet::Truncate(int count)
{
    if (count < m_tiles.size())
        Replace(m_tiles.mid(0, qMax(count, 0)), m_owning);
}

void CTileSet::DeleteSelected(int iface)
{
    QList<CTile*> staying;
    QList<CTile*> dropped;
    for (CTile* tile : qAsConst(m_tiles)) {
        if (!tile->IsSelected(iface))
            staying.append(tile);
        else if (m_owning && TileAccess::MarkLeaving(*tile))
            dropped.append(tile);
    }
    m_tiles = staying;
    qDeleteAll(dropped);
}

int CTileSet::GetTileIndex(const CTile* tile) const
{
    return m_tiles.indexOf(const_cast<CTile*>(tile)); // only its address is compared
}

void CTileSet::ExchangeTile(int i, int j)
{
    const auto isIn = [this](int index) { return index >= 0 && index < m_tiles.size(); };
    if (i != j && isIn(i) && isIn(j))
        m_tiles.swapItemsAt(i, j);
}

bool CTileSet::IsSubset(const CTileSet* other) const
{
    if (!other || other->m_tiles.isEmpty())
        return true;
    const QSet<CTile*> held(m_tiles.begin(), m_tiles.end());
    return std::all_of(other->m_tiles.begin(), other->m_tiles.end(),
                       [&](CTile* tile) { return held.contains(tile); });
}

int CTileSet::GetRcvCount() const
{
    qint64 count = 0;
    for (const CTile* tile : m_tiles) {
        if (tile->GetBeginRcvCnnt() != -1)
            count += tile->GetMultiRcvsCount();
    }
    return SaturatedInt(count);
}

int CTileSet::GetCountInGroup(const QUuid& id) const
{
    return static_cast<int>(std::count_if(m_tiles.begin(), m_tiles.end(),
                                          [&](const CTile* tile) { return tile->GetGroupId() == id; }));
}

void CTileSet::SelectAll(int iface)
{
    for (CTile* tile : qAsConst(m_tiles))
        tile->SetSelected(true, iface, kWholeCabinet);
}

void CTileSet::UnSelectAll(int iface)
{
    for (CTile* tile : qAsConst(m_tiles))
        tile->SetSelected(false, iface, kWholeCabinet);
}

void CTileSet::GetSelTileSet(CTileSet& out, int iface) const
{
    out.SetResult(Matching(m_tiles, [=](const CTile* tile) { return tile->IsSelected(iface); }));
}

void CTileSet::GetUnselectedTileSet(CTileSet& out) const
{
    out.SetResult(Matching(m_tiles, [](const CTile* tile) { return !tile->IsSelected(InterfaceDesign); }));
}

bool CTileSet::ExistTileIsLock() const
{
    const CSender* sender = GetLayoutLookup()->CurrentSender();
    return sender && std::any_of(m_tiles.begin(), m_tiles.end(), [=](const CTile* tile) {
               const CPort* port = sender->GetPort(tile->GetPortIndex());
               return port && port->IsFlagLock();
           });
}

void CTileSet::GetTileSetUngrouped(CTileSet& out) const
{
    out.SetResult(Matching(m_tiles, [](const CTile* tile) { return tile->GetGroupId().isNull(); }));
}

void CTileSet::GetTileSetGrouped(CTileSet& out) const
{
    out.SetResult(Matching(m_tiles, [](const CTile* tile) { return !tile->GetGroupId().isNull(); }));
}

void CTileSet::GetTileSetUnnumbered(CTileSet& out) const
{
    out.SetResult(Matching(m_tiles, [](const CTile* tile) { return !tile->HasSetConnectIndex(); }));
}

bool CTileSet::GetTileSetInGroup(CTileSet& out, const QUuid& id, bool append) const
{
    const QList<CTile*> found =
        Matching(m_tiles, [&](const CTile* tile) { return tile->GetGroupId() == id; });
    if (append)
        out.m_tiles.append(found);
    else
        out.SetResult(found);
    return !found.isEmpty();
}

void CTileSet::SetAllNotGroup()
{
    for (CTile* tile : qAsConst(m_tiles))
        tile->SetGroupId(QUuid());
}

bool CTileSet::IsAllSameSize() const
{
    return std::all_of(m_tiles.begin(), m_tiles.end(),
                       [this](const CTile* tile) { return tile->GetSize() == m_tiles.first()->GetSize(); });
}

bool CTileSet::IsAllSameType() const
{
    return std::all_of(m_tiles.begin(), m_tiles.end(),
                       [this](const CTile* tile) { return tile->GetType() == m_tiles.first()->GetType(); });
}

bool CTileSet::GetProductTypeArray(QList<SMD5>* out) const
{
    if (m_tiles.isEmpty() || !out)
        return false;
    QSet<SMD5> seen;
    out->clear();
    for (const CTile* tile : m_tiles) {
        const SMD5 type = tile->GetType();
        if (seen.contains(type))
            continue;
        seen.insert(type);
        out->append(type);
    }
    return true;
}

/// Makes this set the non-owning list of what a query found.
void CTileSet::SetResult(const QList<CTile*>& tiles)
{
    Replace(tiles, false);
}

/// Frees the tiles of an owning set that are not part of the new content.
void CTileSet::Replace(const QList<CTile*>& tiles, bool owning)
{
    QList<CTile*> dropped;
    if (m_owning && !m_tiles.isEmpty()) {
        const QSet<CTile*> kept(tiles.begin(), tiles.end());
        dropped = Matching(
            m_tiles, [&](CTile* tile) { return !kept.contains(tile) && TileAccess::MarkLeaving(*tile); });
    }
    m_tiles = tiles;
    m_owning = owning;
    m_index.reset();
    qDeleteAll(dropped);
}
