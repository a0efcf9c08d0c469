#include "orvantools/portareas.h"

#include "orvantools/tileshape.h"

#include <QRect>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr short kBare = -1;
constexpr short kSeveral = -2;
constexpr double kMostCells = 1200000;
constexpr double kTouch = 0.01; ///< neighbours that share an edge do not share cells behind it

} // namespace

PortAreas::PortAreas(const QRectF& area, double cell)
    : m_area(area), m_cell(std::max(cell, std::sqrt(area.width() * area.height() / kMostCells))),
      m_columns(static_cast<int>(area.width() / m_cell) + 1),
      m_rows(static_cast<int>(area.height() / m_cell) + 1)
{
    const auto cells = static_cast<size_t>(m_columns) * static_cast<size_t>(m_rows);
    m_owners.assign(cells, kBare);
    m_steps.assign(cells + 1, 0);
}

void PortAreas::Add(int port, const std::vector<TileShape>& shapes, double scale, const QPointF& origin)
{
    m_used.assign(static_cast<size_t>(m_rows), {m_columns, 0});
    for (const TileShape& shape : shapes)
        CountShape(shape, scale, origin);
    for (int y = 0; y < m_rows; ++y) {
        const Row& used = m_used[static_cast<size_t>(y)];
        int covering = 0;
        for (int x = used.from; x < used.to; ++x) {
            const auto cell =
                static_cast<size_t>(y) * static_cast<size_t>(m_columns) + static_cast<size_t>(x);
            covering += m_steps[cell];
            m_steps[cell] = 0;
            short& owner = m_owners[cell];
            if (covering > 0)
                owner = owner == kBare || owner == port ? static_cast<short>(port) : kSeveral;
        }
    }
}

void PortAreas::CountShape(const TileShape& shape, double scale, const QPointF& origin)
{
    std::array<QPointF, 4> corners; // in cells
    double top = m_rows;
    double bottom = -1;
    for (size_t i = 0; i < 4; ++i) {
        corners[i] = (shape.corners[i] * scale + origin - m_area.topLeft()) / m_cell;
        top = std::min(top, corners[i].y());
        bottom = std::max(bottom, corners[i].y());
    }
    const int first = static_cast<int>(std::max(0.0, std::floor(top + kTouch)));
    const int last = static_cast<int>(std::min(m_rows - 1.0, std::floor(bottom - kTouch)));
    for (int y = first; y <= last; ++y) {
        // The part of the shape in this row, from corner to corner.
        double left = m_columns;
        double right = -1;
        for (size_t i = 0; i < 4; ++i) {
            const QPointF& a = corners[i];
            const QPointF& b = corners[(i + 1) % 4];
            const double from = std::max(std::min(a.y(), b.y()), double(y));
            const double to = std::min(std::max(a.y(), b.y()), y + 1.0);
            if (from > to)
                continue;
            const double slope = a.y() == b.y() ? 0 : (b.x() - a.x()) / (b.y() - a.y());
            for (const double x : {a.x() + (from - a.y()) * slope, a.x() + (to - a.y()) * slope}) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
        const int begin = static_cast<int>(std::max(0.0, std::floor(left + kTouch)));
        const int end = static_cast<int>(std::min<double>(m_columns, std::floor(right - kTouch) + 1));
        if (begin >= end)
            continue;
        const auto row = static_cast<size_t>(y) * static_cast<size_t>(m_columns);
        Row& used = m_used[static_cast<size_t>(y)];
        used = {std::min(used.from, begin), std::max(used.to, std::min(end + 1, m_columns))};
        ++m_steps[row + static_cast<size_t>(begin)];
        if (end < m_columns)
            --m_steps[row + static_cast<size_t>(end)];
    }
}

QRect PortAreas::CellsOf(const QRectF& box) const
{
    const auto cell = [this](double at) { return static_cast<int>(std::floor(at / m_cell)); };
    const QPoint first(cell(box.left() - m_area.left()), cell(box.top() - m_area.top()));
    const QPoint last(cell(box.right() - m_area.left()), cell(box.bottom() - m_area.top()));
    return QRect(first, last).intersected(QRect(0, 0, m_columns, m_rows));
}

template <class Test> bool PortAreas::IsAll(const QRectF& box, Test test) const
{
    const QRect cells = CellsOf(box);
    for (int y = cells.top(); y <= cells.bottom(); ++y) {
        const auto row = m_owners.begin() + y * m_columns;
        if (!std::all_of(row + cells.left(), row + cells.right() + 1, test))
            return false;
    }
    return true;
}

bool PortAreas::IsOwn(int port, const QRectF& box) const
{
    return IsAll(box, [port](short owner) { return owner == port; });
}

bool PortAreas::IsFree(int port, const QRectF& box) const
{
    return IsAll(box, [port](short owner) { return owner == port || owner == kBare; });
}

bool PortAreas::IsBare(const QRectF& box) const
{
    return IsAll(box, [](short owner) { return owner == kBare; });
}

} // namespace OrvanTools
