#pragma once

#include "layout/changejournal.h"
#include "layout/tile.h"
#include "layout/tiledata.h"

#include <utility>

/// What the library alone does with a cabinet: snapshots compare and share its data without copying.
class TileAccess
{
public:
    static const TileData* Data(const CTile& tile) { return tile.m_data.constData(); }
    /// Shares the data; copies into place where a pointer is out.
    static void SetData(CTile& tile, const TileData* data);
    static void Become(CTile& tile, const TileData* data); ///< the same, without view state, as a copy is
    /// True once for a cabinet that is to be freed, since it may be listed twice.
    static bool MarkLeaving(CTile& tile) { return !std::exchange(tile.m_leaving, true); }
};

// Private functions of CTile, for its sources.

/// Leaves data that have the value already as they are, so that they stay shared; false then.
template <class Member, class Value> bool CTile::Store(Member member, const Value& value)
{
    if (m_data.constData()->*member == value)
        return false;
    Write().*member = value;
    return true;
}

/// For place and size, whose changes hit tests must hear of.
template <class Member, class Value> void CTile::StorePlace(Member member, const Value& value)
{
    if (Store(member, value))
        ChangeJournal::places.Append(this);
}
