#pragma once

#include "orvantools/tileshape.h"

#include <map>
#include <unordered_map>
#include <vector>

namespace OrvanTools {

/// Finds which shapes overlap another one. Shapes that are not turned are swept. When some are turned, the
/// canvas is cut into cells, one grid for each size of shapes, so that a shape covers few cells. From the
/// largest to the smallest, each shape is compared with the turned ones in its cells, and a turned one with
/// all. Shapes known to overlap are kept apart. Equal shapes in a row count once, and a cell holds a limited
/// number of the others. A shape without area, or larger than any cabinet, overlaps nothing.
class OverlapFinder
{
public:
    static constexpr int kNone = -1;

    explicit OverlapFinder(const std::vector<TileShape>& shapes);

    int GetPartner(size_t shape) const { return m_partners[shape]; } ///< one that it overlaps, or kNone

private:
    struct Shapes
    {
        std::vector<int> alone;
        std::vector<int> overlapping;
    };

    struct Cell
    {
        Shapes upright;
        Shapes turned;
    };

    using Grid = std::unordered_map<qint64, Cell>;

    void Add(int shape, int side);
    void CompareWithin(Shapes& others, int shape);
    void AddOverlapping(Shapes& shapes, int shape) const;
    bool Compare(int a, int b);

    const std::vector<TileShape>& m_shapes;
    std::vector<QRectF> m_bounds;
    std::vector<int> m_partners;
    std::map<int, Grid> m_grids; ///< by the side of their cells, pixels
};

} // namespace OrvanTools
