#pragma once

#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QVector>

#include <vector>

namespace OrvanTools {

/// A piece of the edge of an area.
struct BorderLine
{
    QLineF line;
    QPointF inward; ///< of length one
};

/// The edges of rectangles that stand side by side. Pieces of one straight line are joined, so that a wall of
/// thousands of cabinets has a few hundred lines.
class EdgeLines
{
public:
    void Add(const QRectF& rect);

    QVector<QLineF> GetGrid() const;           ///< every edge, shared ones once
    std::vector<BorderLine> GetBorder() const; ///< those with rectangles on one side only

private:
    struct Edge
    {
        double at;   ///< y of a horizontal edge, x of a vertical one
        double from; ///< along it
        double to;
        bool opens; ///< the rectangle lies behind it
    };

    static std::vector<Edge> Joined(std::vector<Edge> edges);
    static std::vector<Edge> Bordering(const std::vector<Edge>& edges);

    std::vector<Edge> m_horizontal;
    std::vector<Edge> m_vertical;
};

} // namespace OrvanTools
