#pragma once

#include "layout/followedlist.h"
#include "layout/layoutsnapshot.h"

class CPort;

/// Takes snapshots of one live port again and again, or puts them back, and remembers which one its layout
/// was like last. Looks at all cabinets only where FollowedList says so, else at those that left their data
/// since and at those that somebody holds a pointer into.
class LayoutTracker
{
public:
    const LayoutSnapshot::Pointer& Take(CPort& port); ///< valid until the next call
    void Restore(CPort* port, const LayoutSnapshot::Pointer& wanted);

private:
    Positions FindChanged(const QList<CTile*>& tiles);
    void Agree(const QList<CTile*>& tiles, const LayoutSnapshot::Pointer& snapshot, bool walked);

    /// What the layout was like: each cabinet shares its data, unless somebody holds a pointer into them.
    LayoutSnapshot::Pointer m_known; ///< null before the first call
    FollowedList m_list{ChangeJournal::data};
    Positions m_handedOut; ///< of cabinets with a pointer out; may be too many
};
