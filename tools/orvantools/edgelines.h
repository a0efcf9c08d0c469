#pragma once

#include <QLineF>
#include <QPointF>
#include <QRectF>

#include <vector>

namespace OrvanTools {

/// A piece of the edge of an area.
struct BorderLine
{
    QLineF line;
    QPointF inward; ///< of length one
};

/// The edge of the area that rectangles cover. Pieces of one straight line are joined.
class EdgeLines
{
public:
    void Add(const QRectF& rect);

    std::vector<BorderLine> GetBorder() const; ///< the edges with rectangles on one side only

private:
    struct Edge
    {
        double at;   ///< y of a horizontal edge, x of a vertical one
        double from; ///< along it
        double to;
        bool opens; ///< the rectangle lies behind it
    };

    static std::vector<Edge> Bordering(const std::vector<Edge>& edges);

    std::vector<Edge> m_horizontal;
    std::vector<Edge> m_vertical;
};

} // namespace OrvanTools
