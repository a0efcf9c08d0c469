#pragma once

#include "layout/changejournal.h"
#include "layout/layoutsnapshot.h"

#include <QList>

#include <vector>

class CPortProject;

/// Records one live layout again and again, or puts records of it back, and remembers which record the layout
/// was like last. While the layout keeps its list of cabinets, only those of them are looked at that left
/// their record since or that somebody holds a pointer into; else, or after many changes, all are.
class LayoutTracker
{
public:
    LayoutTracker();
    ~LayoutTracker();

    /// As LayoutSnapshot does. Valid until the next call.
    const LayoutSnapshot::Pointer& Take(const CPortProject& layout, const LayoutSnapshot::Pointer& previous);
    void Restore(CPortProject* layout, const LayoutSnapshot::Pointer& record);

private:
    bool CatchUp(const QList<CTile*>& tiles);
    bool Scan();
    size_t Slot(const CTile* tile) const;
    void Agree(const QList<CTile*>& tiles, const LayoutSnapshot::Pointer& record, bool walked);

    // what the layout was like: each cabinet shares its record, or somebody has a pointer into it
    LayoutSnapshot::Pointer m_record; ///< null: not known
    QList<CTile*> m_tiles;            ///< shared with the set until its list changes
    RecordJournal::Reader m_journal;  ///< read up to then

    // found by a scan of that list when it is first caught up with
    bool m_scanned = false;
    std::vector<int> m_slots; ///< cabinet to position: open addressing; -1: empty
    int m_slotShift = 0;
    quintptr m_lowest = 0; ///< address of a cabinet; tells most of other ports apart without the slots
    quintptr m_highest = 0;
    std::vector<int> m_handedOut; ///< positions that change without notice; ascending

    std::vector<int> m_touched; ///< positions that may have left their record; ascending
};
