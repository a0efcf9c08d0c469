#pragma once

#include "orvantools/tileshape.h"

#include <unordered_map>
#include <vector>

namespace OrvanTools {

/// Finds which shapes overlap another one. The canvas is cut into cells, and a shape is compared with those
/// of its cells: shapes already known to overlap are kept apart, and of the others only so many fit into a
/// cell.
class OverlapFinder
{
public:
    static constexpr int kNone = -1;

    explicit OverlapFinder(const std::vector<TileShape>& shapes);

    int GetPartner(size_t shape) const { return m_partners[shape]; } ///< one that it overlaps, or kNone

private:
    struct Cell
    {
        std::vector<int> alone;
        std::vector<int> overlapping;
    };

    void Add(int shape);
    void CompareWithin(Cell& cell, int shape);
    bool Compare(int a, int b);

    const std::vector<TileShape>& m_shapes;
    std::vector<int> m_partners;
    std::unordered_map<qint64, Cell> m_cells;
};

} // namespace OrvanTools
