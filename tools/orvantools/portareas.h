#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

namespace OrvanTools {

struct TileShape;

/// Which port's cabinets cover what of a drawing, as a raster. A cell counts as covered when some of it is.
class PortAreas
{
public:
    PortAreas(const QRectF& area, double cell);

    /// The cabinets of one port, from 0, on the drawing at `scale` and `origin`.
    void Add(int port, const std::vector<TileShape>& shapes, double scale, const QPointF& origin);

    bool IsOwn(int port, const QRectF& box) const;  ///< all of it on the port's cabinets
    bool IsFree(int port, const QRectF& box) const; ///< none of it on those of other ports
    bool IsBare(const QRectF& box) const;           ///< none of it on cabinets

private:
    struct Row
    {
        int from;
        int to; ///< the first cell behind it
    };
    void CountShape(const TileShape& shape, double scale, const QPointF& origin);
    QRect CellsOf(const QRectF& box) const; ///< those of the raster only
    template <class Test> bool IsAll(const QRectF& box, Test test) const;

    QRectF m_area;
    double m_cell;
    int m_columns;
    int m_rows;
    std::vector<short> m_owners;
    std::vector<int> m_steps; ///< of one port: how many cabinets begin less end at a cell of a row
    std::vector<Row> m_used;  ///< of one port: the cells of each row that it may cover
};

} // namespace OrvanTools
