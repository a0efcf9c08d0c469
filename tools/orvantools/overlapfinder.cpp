#include "orvantools/overlapfinder.h"

#include "orvantools/overlapsweep.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace OrvanTools {

namespace {

constexpr int kLeastCell = 32;    ///< pixels
constexpr double kLargest = 4096; ///< pixels; more than any cabinet turned by any angle
constexpr int kNotCompared = 0;

/// The side of the cells for a shape, at least twice its own.
int CellSideFor(const TileShape& shape, const QRectF& bound)
{
    const double size = std::max(bound.width(), bound.height());
    if (!shape.CanOverlap() || size > kLargest)
        return kNotCompared;
    int side = kLeastCell;
    while (side < 2 * size)
        side *= 2;
    return side;
}

template <class Visit> void VisitCells(const QRectF& bound, int side, Visit visit)
{
    const auto first = [side](double place) { return static_cast<qint64>(std::floor(place / side)); };
    const auto last = [side](double end) { return static_cast<qint64>(std::ceil(end / side)) - 1; };
    for (qint64 y = first(bound.top()); y <= last(bound.bottom()); ++y) {
        for (qint64 x = first(bound.left()); x <= last(bound.right()); ++x)
            visit(y * (qint64(1) << 32) + x);
    }
}

} // namespace

OverlapFinder::OverlapFinder(const std::vector<TileShape>& shapes)
    : m_shapes(shapes), m_partners(shapes.size(), kNone)
{
    std::vector<std::pair<int, int>> order; // the side of its cells, and the shape
    m_bounds.reserve(shapes.size());
    for (const TileShape& shape : shapes) {
        const auto place = static_cast<int>(m_bounds.size());
        m_bounds.push_back(shape.Bound());
        const int side = CellSideFor(shape, m_bounds.back());
        if (side != kNotCompared)
            order.emplace_back(side, place);
    }
    std::stable_sort(order.begin(), order.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<int> upright;
    for (const auto& [side, shape] : order) {
        if (!m_shapes[static_cast<size_t>(shape)].IsTurned())
            upright.push_back(shape);
    }
    SweepOverlaps(m_bounds, upright, m_partners);
    if (upright.size() == order.size())
        return;
    for (const auto& [side, shape] : order)
        Add(shape, side);
}

void OverlapFinder::Add(int shape, int side)
{
    const auto index = static_cast<size_t>(shape);
    const bool turned = m_shapes[index].IsTurned();
    Grid& own = m_grids[side];
    for (auto& [cellSide, grid] : m_grids) {
        VisitCells(m_bounds[index], cellSide, [&, &cells = grid](qint64 place) {
            const auto cell = cells.find(place);
            if (cell == cells.end())
                return;
            CompareWithin(cell->second.turned, shape);
            if (turned)
                CompareWithin(cell->second.upright, shape);
        });
    }
    VisitCells(m_bounds[index], side, [&](qint64 place) {
        Cell& cell = own[place];
        Shapes& shapes = turned ? cell.turned : cell.upright;
        if (m_partners[index] == kNone)
            shapes.alone.push_back(shape);
        else
            AddOverlapping(shapes, shape);
    });
}

void OverlapFinder::AddOverlapping(Shapes& shapes, int shape) const
{
    const auto corners = [this](int of) { return m_shapes[static_cast<size_t>(of)].corners; };
    // Stacked cabinets are stored one after another.
    if (shapes.overlapping.empty() || corners(shapes.overlapping.back()) != corners(shape))
        shapes.overlapping.push_back(shape);
}

void OverlapFinder::CompareWithin(Shapes& others, int shape)
{
    size_t kept = 0;
    for (const int other : others.alone) {
        const bool overlaps = m_partners[static_cast<size_t>(other)] != kNone || Compare(shape, other);
        if (overlaps)
            AddOverlapping(others, other);
        else
            others.alone[kept++] = other;
    }
    others.alone.resize(kept);
    // The latest first: stacked cabinets are stored one after another.
    for (size_t i = others.overlapping.size(); i > 0 && m_partners[static_cast<size_t>(shape)] == kNone; --i)
        Compare(shape, others.overlapping[i - 1]);
}

bool OverlapFinder::Compare(int a, int b)
{
    const auto first = static_cast<size_t>(a);
    const auto second = static_cast<size_t>(b);
    if (!m_bounds[first].intersects(m_bounds[second]) || !IsOverlap(m_shapes[first], m_shapes[second]))
        return false;
    for (const auto& pair : {std::pair(a, b), std::pair(b, a)}) {
        int& partner = m_partners[static_cast<size_t>(pair.first)];
        if (partner == kNone)
            partner = pair.second;
    }
    return true;
}

} // namespace OrvanTools
