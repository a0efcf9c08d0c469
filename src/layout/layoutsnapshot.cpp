#include "layout/layoutsnapshot.h"

#include "common/interfacedlg.h"
#include "layout/portproject.h"
#include "layout/tile.h"
#include "layout/tilegroup.h"

#include <QHash>
#include <QPair>

#include <algorithm>
#include <array>
#include <cstring>

namespace {

// Unlike the comparison of cabinets, to the last bit: a cabinet that shares its record is not altered by
// that, and what is shared is restored as it was.

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
    return IsIdentical(a.rotate, b.rotate) && std::memcmp(&a.type, &b.type, sizeof a.type) == 0
           && a.IsEqual(b);
}

/// Whether the cabinet is as recorded. One that came back to its record shares it again, which keeps both the
/// wall small and the next comparison fast.
bool IsAsRecorded(CTile* tile, const TileRun::Record& record)
{
    const TileData* data = tile->GetData();
    if (data == record.constData())
        return true;
    if (!IsIdentical(*data, *record))
        return false;
    if (!data->handedOut)
        tile->SetData(record.constData());
    return true;
}

/// A cabinet that was not as recorded is another one afterwards.
void PutBack(CTile* tile, const TileRun::Record& record)
{
    if (!IsAsRecorded(tile, record))
        tile->Become(record.constData());
}

CTile* NewTile(const TileRun::Record& record)
{
    auto* tile = new CTile;
    tile->SetData(record.constData());
    return tile;
}

/// Apart from the groups below it.
bool IsAsRecorded(const CTileGroup& group, const GroupSnapshot& record)
{
    return record.id == group.GetID() && record.parentId == group.GetParentGroupID()
           && record.selected == group.IsSelected(InterfaceDesign)
           && IsIdentical(record.rotate, *group.GetRotateParam());
}

/// Whether the cabinets from `first` on are those of the chunk.
bool Holds(const CTileSet& tiles, int first, const TileRun::Chunk& chunk)
{
    if (first < 0 || first + chunk.Size() > tiles.GetCount())
        return false;
    CTile* const* tile = &tiles.GetTiles().at(first);
    for (const TileRun::Record& record : chunk.tiles) {
        if (!IsAsRecorded(*tile++, record))
            return false;
    }
    return true;
}

/// A record whose inside somebody points into changes without notice, so it is copied.
TileRun::Record Fresh(const TileData* data)
{
    return TileRun::Record(data->handedOut ? data->NewCopy() : data);
}

} // namespace

TileRun TileRun::Take(const CTileSet& tiles, const TileRun& previous)
{
    const std::vector<ChunkPointer>& before = previous.m_chunks;
    const int count = tiles.GetCount();
    TileRun run;
    if (count == previous.m_count) {
        run.m_chunks.reserve(before.size());
        for (const ChunkPointer& chunk : before)
            run.AppendInPlace(tiles, chunk);
        return run;
    }

    // Cabinets came or went: whatever lies before and behind them keeps its chunks.
    size_t front = 0;
    int head = 0;
    while (front < before.size() && Holds(tiles, head, *before[front]))
        head += before[front++]->Size();
    size_t back = before.size();
    int tail = count;
    while (back > front && tail - before[back - 1]->Size() >= head
           && Holds(tiles, tail - before[back - 1]->Size(), *before[back - 1]))
        tail -= before[--back]->Size();
    // A short rest joins its neighbours, so that chunks do not dwindle from edit to edit.
    while (head < tail && front > 0 && tail - head + before[front - 1]->Size() <= kChunkSize)
        head -= before[--front]->Size();
    while (head < tail && back < before.size() && tail - head + before[back]->Size() <= kChunkSize)
        tail += before[back++]->Size();

    run.m_chunks.reserve(before.size() + static_cast<size_t>(tail - head) / kChunkSize + 1);
    for (size_t i = 0; i < front; ++i)
        run.Append(before[i]);
    run.AppendMoved(tiles, tail, previous, front, back);
    for (size_t i = back; i < before.size(); ++i)
        run.Append(before[i]);
    return run;
}

TileRun TileRun::Take(const CTileSet& tiles, const TileRun& previous, const std::vector<int>& touched)
{
    TileRun run = previous;
    Chunk* written = nullptr; // the present chunk once it differs from the earlier one
    size_t at = 0;
    int first = 0;
    for (const int position : touched) {
        for (; position >= first + run.m_chunks[at]->Size(); ++at) {
            first += run.m_chunks[at]->Size();
            written = nullptr;
        }
        const auto place = static_cast<size_t>(position - first);
        CTile* tile = tiles.GetTiles().at(position);
        if (IsAsRecorded(tile, run.m_chunks[at]->tiles[place]))
            continue;
        if (!written) {
            written = new Chunk(*run.m_chunks[at]);
            run.m_chunks[at] = ChunkPointer(written);
        }
        written->tiles[place] = Fresh(tile->GetData());
    }
    return run;
}

void TileRun::Append(const ChunkPointer& chunk)
{
    m_chunks.push_back(chunk);
    m_count += chunk->Size();
}

/// Appends the cabinets that stand where the earlier chunk had its own.
void TileRun::AppendInPlace(const CTileSet& tiles, const ChunkPointer& previous)
{
    if (Holds(tiles, m_count, *previous)) {
        Append(previous);
        return;
    }
    auto* chunk = new Chunk;
    chunk->tiles.reserve(previous->tiles.size());
    for (const Record& record : previous->tiles) {
        CTile* tile = tiles.GetTile(m_count + chunk->Size());
        chunk->tiles.push_back(IsAsRecorded(tile, record) ? record : Fresh(tile->GetData()));
    }
    Append(ChunkPointer(chunk));
}

/// Appends the cabinets up to `end`, which stand elsewhere in the earlier chunks `from` to `to`, if at all.
void TileRun::AppendMoved(const CTileSet& tiles, int end, const TileRun& previous, size_t from, size_t to)
{
    QHash<QPair<int, int>, Record> byPlace; // only for cabinets whose record cannot be shared as it stands
    const auto find = [&](const TileData* data) {
        for (; from < to; ++from) {
            for (const Record& record : previous.m_chunks[from]->tiles)
                byPlace.insert({record->x, record->y}, record);
        }
        const Record record = byPlace.value({data->x, data->y});
        return record && IsIdentical(*data, *record) ? record : Fresh(data);
    };
    while (m_count < end) {
        auto* chunk = new Chunk;
        const int size = qMin(kChunkSize, end - m_count);
        chunk->tiles.reserve(static_cast<size_t>(size));
        for (int i = m_count; i < m_count + size; ++i) {
            const TileData* data = tiles.GetTile(i)->GetData();
            chunk->tiles.push_back(data->handedOut ? find(data) : Fresh(data));
        }
        Append(ChunkPointer(chunk));
    }
}

void TileRun::Restore(CTileSet* tiles) const
{
    const int present = tiles->GetCount();
    int i = 0;
    for (const ChunkPointer& chunk : m_chunks) {
        for (const Record& record : chunk->tiles) {
            if (i < present)
                PutBack(tiles->GetTiles().at(i), record);
            else
                tiles->AddTile(NewTile(record));
            ++i;
        }
    }
    SeparateRepeated(tiles, present);
    tiles->Truncate(m_count);
}

/// A cabinet that the first `present` entries list twice cannot be as both records: the former become others.
void TileRun::SeparateRepeated(CTileSet* tiles, int present) const
{
    int i = 0;
    for (const ChunkPointer& chunk : m_chunks) {
        for (const Record& record : chunk->tiles) {
            if (i < present && !IsAsRecorded(tiles->GetTiles().at(i), record)) {
                tiles->AddTile(NewTile(record));
                tiles->ExchangeTile(i, tiles->GetCount() - 1);
            }
            ++i;
        }
    }
}

bool TileRun::Restore(CTileSet* tiles, const TileRun& present, const std::vector<int>& touched) const
{
    const bool alike = std::equal(
        m_chunks.begin(), m_chunks.end(), present.m_chunks.begin(), present.m_chunks.end(),
        [](const ChunkPointer& a, const ChunkPointer& b) { return a == b || a->Size() == b->Size(); });
    if (!alike)
        return false;
    auto next = touched.begin();
    int first = 0;
    for (size_t at = 0; at < m_chunks.size(); ++at) {
        const std::vector<Record>& records = m_chunks[at]->tiles;
        const std::vector<Record>& before = present.m_chunks[at]->tiles;
        for (size_t i = 0; m_chunks[at] != present.m_chunks[at] && i < records.size(); ++i) {
            if (records[i] != before[i])
                PutBack(tiles->GetTiles().at(first + static_cast<int>(i)), records[i]);
        }
        const int end = first + m_chunks[at]->Size();
        for (; next != touched.end() && *next < end; ++next)
            PutBack(tiles->GetTiles().at(*next), records[static_cast<size_t>(*next - first)]);
        first = end;
    }
    return true;
}

bool TileRun::IsEqual(const TileRun& other) const
{
    if (m_count != other.m_count)
        return false;
    size_t chunk = 0;
    size_t place = 0; // inside the other's chunk
    for (const ChunkPointer& mine : m_chunks) {
        if (place == 0 && mine == other.m_chunks[chunk]) {
            ++chunk;
            continue;
        }
        for (const Record& record : mine->tiles) {
            const std::vector<Record>& theirs = other.m_chunks[chunk]->tiles;
            if (record != theirs[place] && !record->IsEqual(*theirs[place]))
                return false;
            if (++place == theirs.size()) {
                ++chunk;
                place = 0;
            }
        }
    }
    return true;
}

bool TileRun::IsEqual(const CTileSet& tiles) const
{
    if (m_count != tiles.GetCount())
        return false;
    int i = 0;
    for (const ChunkPointer& chunk : m_chunks) {
        for (const Record& record : chunk->tiles) {
            const TileData* data = tiles.GetTiles().at(i++)->GetData();
            if (data != record.constData() && !data->IsEqual(*record))
                return false;
        }
    }
    return true;
}

GroupSnapshot::List GroupSnapshot::Take(const CTileGroupSet& groups, const List& previous)
{
    QHash<QUuid, Pointer> byId; // filled when groups no longer stand where they stood
    const auto find = [&](size_t place, const QUuid& wanted) {
        if (place < previous.size() && previous[place]->id == wanted)
            return previous[place];
        if (byId.isEmpty()) {
            for (const Pointer& record : previous)
                byId.insert(record->id, record);
        }
        return byId.value(wanted);
    };
    List list;
    list.reserve(static_cast<size_t>(groups.GetDirectCount()));
    for (int i = 0; i < groups.GetDirectCount(); ++i) {
        const CTileGroup& group = *groups.GetDirectGroupByDirIndex(i);
        const Pointer before = find(static_cast<size_t>(i), group.GetID());
        List children = Take(*group.GetSubGroupSet(), before ? before->children : List());
        if (before && IsAsRecorded(group, *before) && before->children == children) {
            list.push_back(before);
            continue;
        }
        auto* record = new GroupSnapshot;
        record->id = group.GetID();
        record->parentId = group.GetParentGroupID();
        record->selected = group.IsSelected(InterfaceDesign);
        record->rotate = *group.GetRotateParam();
        record->children = std::move(children);
        list.push_back(Pointer(record));
    }
    return list;
}

bool GroupSnapshot::Holds(const List& records, const CTileGroupSet& groups)
{
    if (records.size() != static_cast<size_t>(groups.GetDirectCount()))
        return false;
    int i = 0;
    return std::all_of(records.begin(), records.end(), [&](const Pointer& record) {
        const CTileGroup& group = *groups.GetDirectGroupByDirIndex(i++);
        return IsAsRecorded(group, *record) && Holds(record->children, *group.GetSubGroupSet());
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

void GroupSnapshot::Restore(CTileGroupSet* groups, const List& records)
{
    for (const Pointer& record : records) {
        auto* group = new CTileGroup;
        group->SetID(record->id);
        group->SetParentGroupID(record->parentId);
        group->SetRotateParam(&record->rotate);
        group->SetSelected(InterfaceDesign, record->selected); // before the children come, which would follow
        Restore(group->GetSubGroupSet(), record->children);
        groups->AddGroup(group, true);
    }
}

LayoutSnapshot::Pointer LayoutSnapshot::Take(const CPortProject& layout, const Pointer& previous)
{
    return Make(TileRun::Take(*layout.GetTileSet(), previous ? previous->m_tiles : TileRun()), layout,
                previous);
}

LayoutSnapshot::Pointer LayoutSnapshot::Take(const CPortProject& layout, const Pointer& previous,
                                             const std::vector<int>& touched)
{
    return Make(TileRun::Take(*layout.GetTileSet(), previous->m_tiles, touched), layout, previous);
}

LayoutSnapshot::Pointer LayoutSnapshot::Make(TileRun tiles, const CPortProject& layout,
                                             const Pointer& previous)
{
    static const GroupSnapshot::List none;
    GroupSnapshot::List groups =
        GroupSnapshot::Take(*layout.GetTileGroupSet(), previous ? previous->m_groups : none);
    if (previous && tiles.IsSameRun(previous->m_tiles) && groups == previous->m_groups)
        return previous;
    auto* snapshot = new LayoutSnapshot;
    snapshot->m_tiles = std::move(tiles);
    snapshot->m_groups = std::move(groups);
    return Pointer(snapshot);
}

void LayoutSnapshot::Restore(CPortProject* layout) const
{
    m_tiles.Restore(layout->GetTileSet());
    RestoreGroups(layout);
}

bool LayoutSnapshot::Restore(CPortProject* layout, const LayoutSnapshot& present,
                             const std::vector<int>& touched) const
{
    if (!m_tiles.Restore(layout->GetTileSet(), present.m_tiles, touched))
        return false;
    RestoreGroups(layout);
    return true;
}

void LayoutSnapshot::RestoreGroups(CPortProject* layout) const
{
    CTileGroupSet* groups = layout->GetTileGroupSet();
    if (GroupSnapshot::Holds(m_groups, *groups))
        return; // groups that are as recorded keep their address and visibility
    groups->DeleteAll();
    GroupSnapshot::Restore(groups, m_groups);
}

bool LayoutSnapshot::IsEqual(const LayoutSnapshot& other) const
{
    return m_tiles.IsEqual(other.m_tiles) && GroupSnapshot::IsEqual(m_groups, other.m_groups);
}

bool LayoutSnapshot::IsEqual(const CPortProject& layout) const
{
    return m_tiles.IsEqual(*layout.GetTileSet())
           && GroupSnapshot::IsEqual(m_groups, GroupSnapshot::Take(*layout.GetTileGroupSet(), m_groups));
}
