#include "orvantools/portborder.h"

#include "orvantools/wallpicture.h"

#include <QHash>

#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kClose = 0.35; ///< of a side: the middles of two sides that lie side by side

/// Adds a rectangle to the last one when together they are one rectangle.
bool Join(std::vector<QRectF>& rects, const QRectF& rect)
{
    if (rects.empty())
        return false;
    QRectF& last = rects.back();
    const bool isRow = rect.top() == last.top() && rect.bottom() == last.bottom()
                       && (rect.left() == last.right() || rect.right() == last.left());
    const bool isColumn = rect.left() == last.left() && rect.right() == last.right()
                          && (rect.top() == last.bottom() || rect.bottom() == last.top());
    if (isRow || isColumn)
        last = last.united(rect);
    return isRow || isColumn;
}

/// Sides of turned cabinets, found by the place of their middles.
class TurnedSides
{
public:
    explicit TurnedSides(double cell) : m_cell(cell) {}

    void Add(const QPointF& middle)
    {
        m_middles[Key(CellOf(middle.x()), CellOf(middle.y()))].push_back(middle);
    }

    int CountNear(const QPointF& middle, double distance) const
    {
        int count = 0;
        for (qint64 y = CellOf(middle.y()) - 1; y <= CellOf(middle.y()) + 1; ++y) {
            for (qint64 x = CellOf(middle.x()) - 1; x <= CellOf(middle.x()) + 1; ++x) {
                const auto cell = m_middles.constFind(Key(x, y));
                for (size_t i = 0; cell != m_middles.constEnd() && count < 2 && i < cell->size(); ++i)
                    count += QLineF((*cell)[i], middle).length() <= distance ? 1 : 0;
            }
        }
        return count;
    }

private:
    qint64 CellOf(double at) const { return static_cast<qint64>(std::floor(at / m_cell)); }
    static qint64 Key(qint64 x, qint64 y) { return y * (qint64(1) << 32) + x; }

    double m_cell;
    QHash<qint64, std::vector<QPointF>> m_middles;
};

QLineF SideOf(const TileShape& shape, size_t side)
{
    return QLineF(shape.corners[side], shape.corners[(side + 1) % 4]);
}

void AddTurned(std::vector<BorderLine>& border, const PicturePort& port, const std::vector<int>& turned)
{
    double close = 0;
    const auto shapeOf = [&port](int place) -> const TileShape& {
        return port.shapes[static_cast<size_t>(place)];
    };
    for (const int place : turned)
        close += std::min(shapeOf(place).Size().width(), shapeOf(place).Size().height());
    close *= kClose / static_cast<double>(turned.size());
    if (close <= 0)
        return;
    TurnedSides sides(close);
    for (const int place : turned) {
        for (size_t side = 0; side < 4; ++side)
            sides.Add(SideOf(shapeOf(place), side).center());
    }
    for (const int place : turned) {
        for (size_t side = 0; side < 4; ++side) {
            const QLineF line = SideOf(shapeOf(place), side);
            if (line.length() > 0 && sides.CountNear(line.center(), close) < 2)
                border.push_back({line, QPointF(-line.dy(), line.dx()) / line.length()});
        }
    }
}

} // namespace

std::vector<QRectF> JoinedRects(const std::vector<TileShape>& shapes, const std::vector<int>& cabinets)
{
    std::vector<QRectF> runs;
    for (const int place : cabinets) {
        const TileShape& shape = shapes[static_cast<size_t>(place)];
        if (!shape.IsTurned() && !Join(runs, shape.Bound()))
            runs.push_back(shape.Bound());
    }
    std::vector<QRectF> rects;
    for (const QRectF& run : runs) {
        if (!Join(rects, run))
            rects.push_back(run);
    }
    return rects;
}

std::vector<BorderLine> PortBorder(const PicturePort& port, const std::vector<int>& cabinets)
{
    EdgeLines edges;
    for (const QRectF& rect : JoinedRects(port.shapes, cabinets))
        edges.Add(rect);
    std::vector<BorderLine> border = edges.GetBorder();
    std::vector<int> turned;
    for (const int place : cabinets) {
        if (port.shapes[static_cast<size_t>(place)].IsTurned())
            turned.push_back(place);
    }
    if (!turned.empty())
        AddTurned(border, port, turned);
    return border;
}

} // namespace OrvanTools
