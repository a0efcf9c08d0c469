#include "layout/serpentinewalk.h"

#include <QtGlobal>

namespace {

struct Pattern
{
    int evenStrip;
    int oddStrip;
    bool byColumns;
    bool fromRight;
    bool fromBottom;
};

constexpr Pattern kPatterns[SerpentineWalk::kPatternCount] = {
    {0, 2, false, false, false}, {2, 0, false, true, false}, {3, 1, false, true, true},
    {1, 3, false, false, true},  {4, 6, true, false, false}, {5, 7, true, true, false},
    {7, 5, true, true, true},    {6, 4, true, false, true},
};

constexpr bool RunsBackwards(int direction)
{
    return (direction & 2) != 0; // left or up
}

} // namespace

quint32 PlaceAlong(int direction, const QPoint& point)
{
    const int coordinate = direction < 4 ? point.x() : point.y();
    const quint32 ascending =
        static_cast<quint32>(coordinate) ^ 0x80000000u; // keeps the order of signed values
    return RunsBackwards(direction) ? ~ascending : ascending;
}

SerpentineWalk::Axis::Axis(int first, int last, int size, bool fromEnd) : start(first), cell(size)
{
    const qint64 end = qint64(last) + 1;
    count = (end - first + cell - 1) / cell;
    if (fromEnd)
        start = end - count * cell;
}

SerpentineWalk::SerpentineWalk(int type, const QRect& bound, const QSize& cell)
    : m_byColumns(kPatterns[type].byColumns),
      m_fromEnd(m_byColumns ? kPatterns[type].fromRight : kPatterns[type].fromBottom),
      m_directions{kPatterns[type].evenStrip, kPatterns[type].oddStrip},
      m_columns(bound.left(), bound.right(), cell.width(), kPatterns[type].fromRight),
      m_rows(bound.top(), bound.bottom(), cell.height(), kPatterns[type].fromBottom)
{}

bool SerpentineWalk::Visits(const QPoint& point) const
{
    return m_columns.Holds(point.x()) && m_rows.Holds(point.y());
}

quint64 SerpentineWalk::PlaceOf(const QPoint& point) const
{
    const Axis& across = m_byColumns ? m_columns : m_rows;
    const qint64 cell = ((m_byColumns ? point.x() : point.y()) - across.start) / across.cell;
    const qint64 strip = m_fromEnd ? across.count - 1 - cell : cell;
    return static_cast<quint64>(strip) << 32 | PlaceAlong(m_directions[strip % 2], point);
}
