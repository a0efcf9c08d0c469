#pragma once

#include "layout/changejournal.h"

#include <QHash>
#include <QList>

#include <algorithm>
#include <optional>
#include <vector>

/// Positions in a list of cabinets; an empty optional: all of them.
using Positions = std::optional<std::vector<int>>;

/// In ascending order, each once.
void SortPositions(std::vector<int>* positions);

template <class Visit> void ForEachPosition(const Positions& positions, int count, Visit visit)
{
    if (positions)
        std::for_each(positions->begin(), positions->end(), visit);
    else
        for (int i = 0; i < count; ++i)
            visit(i);
}

/// Tells which cabinets of a list a journal has noted since the list was last followed. The list is shared
/// with the set until somebody writes to it; while it is shared, it is the same.
class FollowedList
{
public:
    explicit FollowedList(ChangeJournal& journal) : m_journal(journal) {}

    /// All, when the list is another one, when it names a cabinet twice or when so many were noted that
    /// looking at all is as fast.
    Positions Changed(const QList<CTile*>& tiles);
    void Follow(const QList<CTile*>& tiles); ///< from now on; looks at no cabinet
    bool IsDistinct();                       ///< the list that is followed names no cabinet twice

private:
    QList<CTile*> m_tiles;
    ChangeJournal::Reader m_journal; ///< read up to when the list was last followed

    // found when first needed
    QHash<const CTile*, int> m_places;
    const CTile* m_lowest = nullptr; ///< the least address of them; null: not found yet
    const CTile* m_highest = nullptr;
    bool m_distinct = true;
};
