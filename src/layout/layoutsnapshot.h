#pragma once

#include "common/rotateparam.h"
#include "layout/followedlist.h"
#include "layout/tiledata.h"

#include <QExplicitlySharedDataPointer>
#include <QSharedData>
#include <QUuid>
#include <QVector>

#include <vector>

class CPort;
class CTileGroupSet;

/// One group and what lies below it.
struct GroupSnapshot : QSharedData
{
    using Pointer = QExplicitlySharedDataPointer<const GroupSnapshot>;
    using List = std::vector<Pointer>;

    QUuid id;
    QUuid parentId;
    bool selected = false;
    SRotateParam rotate;
    List children;

    /// A group that is as it was, and at its place, keeps its snapshot.
    static List Take(const CTileGroupSet& groups, const List& before);
    static bool IsEqual(const List& a, const List& b);                      ///< in depth
    static bool IsSame(const List& snapshots, const CTileGroupSet& groups); ///< Take would give them again
    static void Restore(CTileGroupSet* groups, const List& snapshots);
};

/// The layout of one port at one time, and whose port that is. Shares the data of its cabinets with them, and
/// with the snapshot before it whatever did not change. Never changes once taken.
class LayoutSnapshot : public QSharedData
{
public:
    using Pointer = QExplicitlySharedDataPointer<const LayoutSnapshot>;
    using Cabinet = QExplicitlySharedDataPointer<const TileData>;
    using Chunk = QVector<Cabinet>;
    static constexpr int kChunkSize = 256; ///< cabinets in each chunk but the last

    /// `before`, null for none, is given back when nothing changed. Only the cabinets `changed` are looked
    /// at; one that came back to what it was shares its data with the snapshot again.
    static Pointer Take(CPort& port, const Pointer& before, const Positions& changed);
    /// Only the cabinets `changed` are looked at. Each keeps its address, and its view state if it is right
    /// already.
    void Restore(CPort* port, const Positions& changed) const;

    bool IsBackup() const { return m_backup; }
    Positions FindOther(const LayoutSnapshot& other) const; ///< cabinets whose data the two do not share
    bool IsEqual(const LayoutSnapshot& other) const;        ///< as layouts compare, but groups in depth
    const QVector<Chunk>& GetChunks() const { return m_chunks; }

private:
    bool IsOf(const CPort& port) const;
    const Cabinet& At(int position) const
    {
        return m_chunks.at(position / kChunkSize).at(position % kChunkSize);
    }

    QUuid m_senderId;
    int m_portIndex = 0;
    bool m_backup = false;
    QVector<Chunk> m_chunks;
    int m_count = 0; ///< of cabinets
    GroupSnapshot::List m_groups;
};
