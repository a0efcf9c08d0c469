#pragma once

#include "common/rotateparam.h"
#include "layout/tiledata.h"

#include <QExplicitlySharedDataPointer>
#include <QList>
#include <QSharedData>
#include <QUuid>

#include <vector>

class CPortProject;
class CTileGroupSet;
class CTileSet;

/// The cabinets of a layout as a run of shared chunks of shared records, so that a later run that changed one
/// cabinet costs one chunk. Never changes once recorded.
class TileRun
{
public:
    using Record = QExplicitlySharedDataPointer<const TileData>;
    static constexpr int kChunkSize = 256; ///< at most that many cabinets share one chunk

    struct Chunk : QSharedData
    {
        std::vector<Record> tiles;

        int Size() const { return static_cast<int>(tiles.size()); }
    };
    using ChunkPointer = QExplicitlySharedDataPointer<const Chunk>;

    /// Takes what equals `previous` from there. Cabinets that equal their earlier record share it again.
    static TileRun Take(const CTileSet& tiles, const TileRun& previous);
    /// The same where the list of cabinets is that of `previous` and, outside the positions `touched`, each
    /// has its record there. Positions ascend.
    static TileRun Take(const CTileSet& tiles, const TileRun& previous, const std::vector<int>& touched);

    /// In place: a cabinet keeps its address, and its view state when it is as recorded.
    void Restore(CTileSet* tiles) const;
    /// The same where, outside the positions `touched`, each cabinet has its record in `present`. False, and
    /// nothing done, when the two runs are not divided alike.
    bool Restore(CTileSet* tiles, const TileRun& present, const std::vector<int>& touched) const;
    bool IsSameRun(const TileRun& other) const { return m_chunks == other.m_chunks; } ///< by identity
    bool IsEqual(const TileRun& other) const;
    bool IsEqual(const CTileSet& tiles) const;
    int GetCount() const { return m_count; }
    const std::vector<ChunkPointer>& GetChunks() const { return m_chunks; }

private:
    void SeparateRepeated(CTileSet* tiles, int present) const;
    void Append(const ChunkPointer& chunk);
    void AppendInPlace(const CTileSet& tiles, const ChunkPointer& previous);
    void AppendMoved(const CTileSet& tiles, int end, const TileRun& previous, size_t from, size_t to);

    std::vector<ChunkPointer> m_chunks;
    int m_count = 0;
};

/// One group and what lies below it, shared between records like the cabinets.
struct GroupSnapshot : QSharedData
{
    using Pointer = QExplicitlySharedDataPointer<const GroupSnapshot>;
    using List = std::vector<Pointer>;

    QUuid id;
    QUuid parentId;
    bool selected = false;
    SRotateParam rotate;
    List children;

    static List Take(const CTileGroupSet& groups, const List& previous);
    static bool Holds(const List& records, const CTileGroupSet& groups); ///< Take would give `records` again
    static bool IsEqual(const List& a, const List& b);                   ///< in depth
    static void Restore(CTileGroupSet* groups, const List& records);
};

/// The layout of one port at the time of an undo step. Never changes once taken.
class LayoutSnapshot : public QSharedData
{
public:
    using Pointer = QExplicitlySharedDataPointer<const LayoutSnapshot>;

    /// `previous` itself when nothing changed, else a record that shares with it what did not; null for none.
    static Pointer Take(const CPortProject& layout, const Pointer& previous);
    void Restore(CPortProject* layout) const;

    // the same for a layout of which LayoutTracker knows the cabinets that may not be as in the other record
    static Pointer Take(const CPortProject& layout, const Pointer& previous, const std::vector<int>& touched);
    bool Restore(CPortProject* layout, const LayoutSnapshot& present, const std::vector<int>& touched) const;

    bool IsEqual(const LayoutSnapshot& other) const; ///< as layouts compare, but groups in depth
    bool IsEqual(const CPortProject& layout) const;
    const TileRun& GetTiles() const { return m_tiles; }
    const GroupSnapshot::List& GetGroups() const { return m_groups; }

private:
    static Pointer Make(TileRun tiles, const CPortProject& layout, const Pointer& previous);
    void RestoreGroups(CPortProject* layout) const;

    TileRun m_tiles;
    GroupSnapshot::List m_groups;
};
