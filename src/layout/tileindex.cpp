#include "layout/tileindex.h"

#include "common/saturated.h"
#include "layout/corners.h"
#include "layout/layoutlookup.h"
#include "layout/tileaccess.h"

#include <algorithm>
#include <cmath>

void TileIndex::Extent::Include(const Extent& other)
{
    left = qMin(left, other.left);
    top = qMin(top, other.top);
    right = qMax(right, other.right);
    bottom = qMax(bottom, other.bottom);
}

TileIndex::Extent TileIndex::ExtentOf(const CTile& tile, bool rotation)
{
    using Limits = std::numeric_limits<int>;
    const Extent everywhere{Limits::min(), Limits::min(), Limits::max(), Limits::max()};
    // Empty ones are hit by rules of their own, and a rotation that somebody may write to is never known.
    if (tile.GetSize().isEmpty() || (rotation && TileAccess::Data(tile)->rotateHandedOut))
        return everywhere;
    if (!tile.IsTileRotated()) {
        const QRect bound = tile.GetBound();
        return {bound.left(), bound.top(), bound.right(), bound.bottom()};
    }
    CPointEx<double> c[4];
    tile.GetRotateArea(c);
    // Corners far away, or that are no numbers, are too coarse for a bound.
    const auto isNear = [](const CPointEx<double>& p) {
        return std::abs(p.x) < kFar && std::abs(p.y) < kFar;
    };
    if (!std::all_of(c, c + 4, isNear))
        return everywhere;
    const auto [left, right] = std::minmax({c[0].x, c[1].x, c[2].x, c[3].x});
    const auto [top, bottom] = std::minmax({c[0].y, c[1].y, c[2].y, c[3].y});
    // whole pixels, with room for what the tests truncate
    return {TruncatedInt(std::floor(left) - 1), TruncatedInt(std::floor(top) - 1),
            TruncatedInt(std::ceil(right) + 1), TruncatedInt(std::ceil(bottom) + 1)};
}

void TileIndex::CatchUp(const QList<CTile*>& tiles)
{
    const bool rotation = GetLayoutLookup()->IsRotateEnabled();
    Positions changed = m_list.Changed(tiles);
    if (!changed || rotation != m_rotation) {
        changed.reset();
        m_list.Follow(tiles);
        m_rotation = rotation;
        m_extents.resize(static_cast<size_t>(tiles.size()));
        m_runs.assign((m_extents.size() + kRunLength - 1) / kRunLength, Extent());
    }
    ForEachPosition(changed, tiles.size(), [&](int position) {
        const auto at = static_cast<size_t>(position);
        m_extents[at] = ExtentOf(*tiles.at(position), rotation);
        m_runs[at / kRunLength].Include(m_extents[at]);
    });
}
