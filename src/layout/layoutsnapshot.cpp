#include "layout/layoutsnapshot.h"

#include "common/interfacedlg.h"
#include "layout/port.h"
#include "layout/tileaccess.h"
#include "layout/tilegroup.h"

#include <QHash>
#include <QPair>

#include <algorithm>
#include <array>
#include <cstring>

namespace {

// Unlike the comparison of cabinets, to the last bit: what a cabinet is made to share must not alter it, and
// is restored as it was.

bool IsIdentical(const SRotateParam& a, const SRotateParam& b)
{
    const auto numbers = [](const SRotateParam& r) {
        return std::array{r.centerX, r.centerY, r.leftTopX, r.leftTopY, r.angle, r.width, r.height};
    };
    const auto mine = numbers(a);
    const auto theirs = numbers(b);
    return a.rotated == b.rotated && a.showCenter == b.showCenter
           && std::memcmp(mine.data(), theirs.data(), sizeof mine) == 0; // tells -0 from 0
}

bool IsIdentical(const TileData& a, const TileData& b)
{
    return a.IsEqual(b) && IsIdentical(a.rotate, b.rotate)
           && std::memcmp(&a.type, &b.type, sizeof a.type) == 0;
}

/// Apart from the groups below it.
bool IsIdentical(const CTileGroup& group, const GroupSnapshot& snapshot)
{
    return snapshot.id == group.GetID() && snapshot.parentId == group.GetParentGroupID()
           && snapshot.selected == group.IsSelected(InterfaceDesign)
           && IsIdentical(snapshot.rotate, *group.GetRotateParam());
}

/// Makes the cabinet share those data if it is as they say, else false. One that somebody holds a pointer
/// into keeps its own.
bool ShareIfSame(CTile* tile, const LayoutSnapshot::Cabinet& cabinet)
{
    const TileData* data = TileAccess::Data(*tile);
    if (data == cabinet.constData())
        return true;
    if (!IsIdentical(*data, *cabinet))
        return false;
    if (!data->handedOut)
        TileAccess::SetData(*tile, cabinet.constData());
    return true;
}

CTile* NewTile(const LayoutSnapshot::Cabinet& cabinet)
{
    auto* tile = new CTile;
    TileAccess::SetData(*tile, cabinet.constData());
    return tile;
}

/// Chunks for that many cabinets; new places are null.
void Resize(QVector<LayoutSnapshot::Chunk>* chunks, int count)
{
    constexpr int whole = LayoutSnapshot::kChunkSize;
    chunks->resize((count + whole - 1) / whole);
    for (int i = 0; i < chunks->size(); ++i) {
        const int size = qMin(whole, count - i * whole);
        if (chunks->at(i).size() != size)
            (*chunks)[i].resize(size);
    }
}

using CabinetsByPlace = QHash<QPair<int, int>, LayoutSnapshot::Cabinet>;

CabinetsByPlace ByPlace(const QVector<LayoutSnapshot::Chunk>& chunks)
{
    CabinetsByPlace cabinets;
    for (const LayoutSnapshot::Chunk& chunk : chunks) {
        for (const LayoutSnapshot::Cabinet& cabinet : chunk)
            cabinets.insert({cabinet->x, cabinet->y}, cabinet);
    }
    return cabinets;
}

} // namespace

GroupSnapshot::List GroupSnapshot::Take(const CTileGroupSet& groups, const List& before)
{
    const auto count = static_cast<size_t>(groups.GetDirectCount());
    List list;
    list.reserve(count);
    for (size_t i = 0; i < count; ++i) {
        const CTileGroup& group = *groups.GetDirectGroupByDirIndex(static_cast<int>(i));
        const Pointer old = i < before.size() ? before[i] : Pointer();
        List children = Take(*group.GetSubGroupSet(), old ? old->children : List());
        if (old && IsIdentical(group, *old) && old->children == children) {
            list.push_back(old);
            continue;
        }
        auto* snapshot = new GroupSnapshot;
        snapshot->id = group.GetID();
        snapshot->parentId = group.GetParentGroupID();
        snapshot->selected = group.IsSelected(InterfaceDesign);
        snapshot->rotate = *group.GetRotateParam();
        snapshot->children = std::move(children);
        list.push_back(Pointer(snapshot));
    }
    return list;
}

bool GroupSnapshot::IsSame(const List& snapshots, const CTileGroupSet& groups)
{
    int i = 0;
    return snapshots.size() == static_cast<size_t>(groups.GetDirectCount())
           && std::all_of(snapshots.begin(), snapshots.end(), [&](const Pointer& snapshot) {
                  const CTileGroup& group = *groups.GetDirectGroupByDirIndex(i++);
                  return IsIdentical(group, *snapshot) && IsSame(snapshot->children, *group.GetSubGroupSet());
              });
}

bool GroupSnapshot::IsEqual(const List& a, const List& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Pointer& p, const Pointer& q) {
        return p == q
               || (p->id == q->id && p->parentId == q->parentId && p->selected == q->selected
                   && p->rotate == q->rotate && IsEqual(p->children, q->children));
    });
}

void GroupSnapshot::Restore(CTileGroupSet* groups, const List& snapshots)
{
    for (const Pointer& snapshot : snapshots) {
        auto* group = new CTileGroup;
        group->SetID(snapshot->id);
        group->SetParentGroupID(snapshot->parentId);
        group->SetRotateParam(&snapshot->rotate);
        group->SetSelected(InterfaceDesign, snapshot->selected); // before the children, which would follow
        Restore(group->GetSubGroupSet(), snapshot->children);
        groups->AddGroup(group, true);
    }
}

LayoutSnapshot::Pointer LayoutSnapshot::Take(CPort& port, const Pointer& before, const Positions& changed)
{
    const CTileGroupSet& liveGroups = port.GetTileGroupSet();
    const bool sameRest = before && before->IsOf(port) && GroupSnapshot::IsSame(before->m_groups, liveGroups);
    if (sameRest && changed && changed->empty())
        return before; // as most ports at most steps
    static const LayoutSnapshot empty;
    const LayoutSnapshot& old = before ? *before : empty;
    const QList<CTile*>& tiles = port.GetTileSet().GetTiles();
    QVector<Chunk> chunks = old.m_chunks;
    const bool resized = tiles.size() != old.m_count;
    if (resized)
        Resize(&chunks, tiles.size());
    CabinetsByPlace byPlace; // a cabinet that came or went moves others in the list; this finds them again
    ForEachPosition(changed, tiles.size(), [&](int position) {
        const int at = position / kChunkSize;
        const int place = position % kChunkSize;
        CTile* tile = tiles.at(position);
        if (chunks.at(at).at(place) && ShareIfSame(tile, chunks.at(at).at(place)))
            return;
        Cabinet cabinet(TileAccess::Data(*tile));
        if (cabinet->handedOut) { // its data change without notice, so they are copied
            if (resized && byPlace.isEmpty())
                byPlace = ByPlace(old.m_chunks);
            const Cabinet found = byPlace.value({cabinet->x, cabinet->y});
            cabinet = found && IsIdentical(*found, *cabinet) ? found : Cabinet(cabinet->NewCopy());
        }
        chunks[at][place] = cabinet;
    });
    if (sameRest && chunks.isSharedWith(old.m_chunks))
        return before;
    auto* snapshot = new LayoutSnapshot;
    snapshot->m_senderId = port.GetSenderId();
    snapshot->m_portIndex = port.GetPortIndex();
    snapshot->m_backup = port.IsBackupDest();
    snapshot->m_chunks = std::move(chunks);
    snapshot->m_count = tiles.size();
    snapshot->m_groups = GroupSnapshot::Take(liveGroups, old.m_groups);
    return Pointer(snapshot);
}

bool LayoutSnapshot::IsOf(const CPort& port) const
{
    return m_senderId == port.GetSenderId() && m_portIndex == port.GetPortIndex()
           && m_backup == port.IsBackupDest();
}

void LayoutSnapshot::Restore(CPort* port, const Positions& changed) const
{
    port->SetSenderIdAndPortIndex(m_senderId, m_portIndex);
    CTileSet* tiles = &port->GetTileSet();
    const int present = qMin(m_count, tiles->GetCount());
    ForEachPosition(changed, present, [&](int position) {
        CTile* tile = tiles->GetTiles().at(position);
        if (!ShareIfSame(tile, At(position)))
            TileAccess::Become(*tile, At(position).constData());
    });
    for (int i = present; i < m_count; ++i)
        tiles->AddTile(NewTile(At(i)));
    // A cabinet that is listed twice keeps its last place; new ones take the others.
    ForEachPosition(changed, present, [&](int position) {
        if (changed || ShareIfSame(tiles->GetTiles().at(position), At(position)))
            return; // positions are known of a list without repeats alone
        tiles->AddTile(NewTile(At(position)));
        tiles->ExchangeTile(position, tiles->GetCount() - 1);
    });
    tiles->Truncate(m_count);

    CTileGroupSet* groups = &port->GetTileGroupSet();
    if (GroupSnapshot::IsSame(m_groups, *groups))
        return; // they keep their address and visibility
    groups->DeleteAll();
    GroupSnapshot::Restore(groups, m_groups);
}

Positions LayoutSnapshot::FindOther(const LayoutSnapshot& other) const
{
    if (m_count != other.m_count)
        return std::nullopt;
    std::vector<int> positions;
    for (int i = 0; i < m_chunks.size(); ++i) {
        if (m_chunks.at(i).isSharedWith(other.m_chunks.at(i)))
            continue;
        for (int position = i * kChunkSize; position < qMin(m_count, (i + 1) * kChunkSize); ++position) {
            if (At(position) != other.At(position))
                positions.push_back(position);
        }
    }
    return positions;
}

bool LayoutSnapshot::IsEqual(const LayoutSnapshot& other) const
{
    const auto isEqual = [](const Cabinet& a, const Cabinet& b) { return a == b || a->IsEqual(*b); };
    const auto isEqualChunk = [=](const Chunk& a, const Chunk& b) {
        return a.isSharedWith(b) || std::equal(a.begin(), a.end(), b.begin(), b.end(), isEqual);
    };
    return m_count == other.m_count
           && std::equal(m_chunks.begin(), m_chunks.end(), other.m_chunks.begin(), isEqualChunk)
           && GroupSnapshot::IsEqual(m_groups, other.m_groups);
}
