#include "orvantools/overlapsweep.h"

#include <algorithm>
#include <tuple>

namespace OrvanTools {

namespace {

constexpr int kNone = -1;

/// The rectangles that the sweep line crosses. A tree over all rectangles in the order of their tops; each
/// node holds the one that reaches down farthest.
class Crossed
{
public:
    /// `rows`: the rectangles by their tops.
    Crossed(const std::vector<QRectF>& bounds, const std::vector<int>& rows) : m_bounds(bounds), m_rows(rows)
    {
        while (m_leaves <= rows.size()) // one is left, so that Find never asks for all
            m_leaves *= 2;
        m_tree.assign(2 * m_leaves, kNone);
    }

    void Set(size_t row, bool crossed)
    {
        size_t node = m_leaves + row;
        m_tree[node] = crossed ? m_rows[row] : kNone;
        for (node /= 2; node > 0; node /= 2)
            m_tree[node] = Lower(m_tree[2 * node], m_tree[2 * node + 1]);
    }

    /// A rectangle that reaches below the top of `bound` and begins above its bottom, or kNone.
    int Find(const QRectF& bound) const
    {
        const auto end = std::lower_bound(
            m_rows.begin(), m_rows.end(), bound.bottom(),
            [this](int rectangle, double bottom) { return Bound(rectangle).top() < bottom; });
        int found = kNone;
        size_t last = m_leaves + static_cast<size_t>(end - m_rows.begin());
        for (size_t first = m_leaves; first < last; first /= 2, last /= 2) {
            if (last % 2 != 0)
                found = Lower(found, m_tree[--last]);
        }
        return found != kNone && Bound(found).bottom() > bound.top() ? found : kNone;
    }

private:
    const QRectF& Bound(int rectangle) const { return m_bounds[static_cast<size_t>(rectangle)]; }
    int Lower(int a, int b) const
    {
        if (a == kNone || b == kNone)
            return a == kNone ? b : a;
        return Bound(a).bottom() >= Bound(b).bottom() ? a : b;
    }

    const std::vector<QRectF>& m_bounds;
    const std::vector<int>& m_rows;
    size_t m_leaves = 1;
    std::vector<int> m_tree;
};

} // namespace

void SweepOverlaps(const std::vector<QRectF>& bounds, const std::vector<int>& which,
                   std::vector<int>& partners)
{
    const auto bound = [&bounds](int rectangle) -> const QRectF& {
        return bounds[static_cast<size_t>(rectangle)];
    };
    std::vector<int> rows = which;
    std::sort(rows.begin(), rows.end(), [&](int a, int b) { return bound(a).top() < bound(b).top(); });
    std::vector<size_t> rowOf(bounds.size());
    std::vector<std::tuple<double, bool, int>> edges; // those where one ends come first
    for (size_t row = 0; row < rows.size(); ++row) {
        rowOf[static_cast<size_t>(rows[row])] = row;
        edges.emplace_back(bound(rows[row]).left(), true, rows[row]);
        edges.emplace_back(bound(rows[row]).right(), false, rows[row]);
    }
    std::sort(edges.begin(), edges.end());

    Crossed alone(bounds, rows);
    Crossed overlapping(bounds, rows);
    for (const auto& [x, begins, rectangle] : edges) {
        const auto own = static_cast<size_t>(rectangle);
        if (!begins) {
            alone.Set(rowOf[own], false);
            overlapping.Set(rowOf[own], false);
            continue;
        }
        int partner = overlapping.Find(bounds[own]);
        for (int other = alone.Find(bounds[own]); other != kNone; other = alone.Find(bounds[own])) {
            partner = other;
            partners[static_cast<size_t>(other)] = rectangle;
            alone.Set(rowOf[static_cast<size_t>(other)], false);
            overlapping.Set(rowOf[static_cast<size_t>(other)], true);
        }
        if (partner != kNone)
            partners[own] = partner;
        (partner == kNone ? alone : overlapping).Set(rowOf[own], true);
    }
}

} // namespace OrvanTools
