#include "orvantools/overlapfinder.h"

#include <cmath>
#include <utility>

namespace OrvanTools {

namespace {

constexpr double kCell = 256; ///< pixels

int CellOf(double place)
{
    return static_cast<int>(std::floor(place / kCell));
}

int LastCellOf(double end)
{
    return static_cast<int>(std::ceil(end / kCell)) - 1;
}

} // namespace

OverlapFinder::OverlapFinder(const std::vector<TileShape>& shapes)
    : m_shapes(shapes), m_partners(shapes.size(), kNone)
{
    for (size_t i = 0; i < shapes.size(); ++i)
        Add(static_cast<int>(i));
}

void OverlapFinder::Add(int shape)
{
    const QRectF bound = m_shapes[static_cast<size_t>(shape)].Bound();
    for (int y = CellOf(bound.top()); y <= LastCellOf(bound.bottom()); ++y) {
        for (int x = CellOf(bound.left()); x <= LastCellOf(bound.right()); ++x) {
            Cell& cell = m_cells[y * (qint64(1) << 32) + x];
            CompareWithin(cell, shape);
            const bool overlaps = m_partners[static_cast<size_t>(shape)] != kNone;
            (overlaps ? cell.overlapping : cell.alone).push_back(shape);
        }
    }
}

void OverlapFinder::CompareWithin(Cell& cell, int shape)
{
    size_t kept = 0;
    for (const int other : cell.alone) {
        const bool overlaps = m_partners[static_cast<size_t>(other)] != kNone || Compare(shape, other);
        if (overlaps)
            cell.overlapping.push_back(other);
        else
            cell.alone[kept++] = other;
    }
    cell.alone.resize(kept);
    // The latest first: stacked cabinets are stored one after another.
    for (size_t i = cell.overlapping.size(); i > 0 && m_partners[static_cast<size_t>(shape)] == kNone; --i)
        Compare(shape, cell.overlapping[i - 1]);
}

bool OverlapFinder::Compare(int a, int b)
{
    if (a == b || !IsOverlap(m_shapes[static_cast<size_t>(a)], m_shapes[static_cast<size_t>(b)]))
        return false;
    for (const auto& pair : {std::pair(a, b), std::pair(b, a)}) {
        int& partner = m_partners[static_cast<size_t>(pair.first)];
        if (partner == kNone)
            partner = pair.second;
    }
    return true;
}

} // namespace OrvanTools
