#pragma once

#include "layout/followedlist.h"

#include <QRect>

#include <limits>
#include <vector>

/// Finds the cabinets of a list by place: the outlines of all in one array, and one around each run of 64 of
/// them, since cabinets that stand together in a list mostly do so on the wall. Those that changed since the
/// last query are brought up to date first. The cabinets must outlive it.
class TileIndex
{
public:
    /// What the test takes, the last of the list first. It takes no cabinet that lies outside `area`.
    template <class Test>
    QList<CTile*> FindFromTop(const QList<CTile*>& tiles, const QRect& area, const Test& takes)
    {
        CatchUp(tiles);
        QList<CTile*> found;
        for (size_t run = m_runs.size(); run-- > 0;) {
            if (!m_runs[run].Meets(area))
                continue;
            for (size_t i = qMin(m_extents.size(), (run + 1) * kRunLength); i-- > run * kRunLength;) {
                CTile* tile = tiles.at(static_cast<int>(i));
                if (m_extents[i].Meets(area) && takes(*tile))
                    found.append(tile);
            }
        }
        return found;
    }

private:
    static constexpr size_t kRunLength = 64;

    /// Pixels outside of which a cabinet is not found, the edges included; at first there are none inside.
    struct Extent
    {
        int left = std::numeric_limits<int>::max();
        int top = std::numeric_limits<int>::max();
        int right = std::numeric_limits<int>::min();
        int bottom = std::numeric_limits<int>::min();

        bool Meets(const QRect& area) const
        {
            return left <= area.right() && area.left() <= right && top <= area.bottom()
                   && area.top() <= bottom;
        }
        void Include(const Extent& other);
    };

    static Extent ExtentOf(const CTile& tile, bool rotation);
    void CatchUp(const QList<CTile*>& tiles);

    FollowedList m_list{ChangeJournal::places};
    bool m_rotation = false;       ///< the setting as of the extents
    std::vector<Extent> m_extents; ///< by position
    std::vector<Extent> m_runs;    ///< may be larger than needed after cabinets moved
};
