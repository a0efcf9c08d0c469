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

SerpentineWalk::SerpentineWalk(int type, const QRect& bound, const QSize& cell)
{
    const Pattern& pattern = kPatterns[type];
    m_byColumns = pattern.byColumns;
    m_fromEnd = m_byColumns ? pattern.fromRight : pattern.fromBottom;
    m_directions[0] = pattern.evenStrip;
    m_directions[1] = pattern.oddStrip;

    // Along the strips the order follows the points themselves, so only the grid across them matters.
    const qint64 first = m_byColumns ? bound.left() : bound.top();
    const qint64 end = (m_byColumns ? qint64(bound.right()) : qint64(bound.bottom())) + 1;
    m_cell = m_byColumns ? cell.width() : cell.height();
    m_strips = (end - first + m_cell - 1) / m_cell;
    m_start =
        m_fromEnd ? end - m_strips * m_cell : first; // whole cells lie against the edge of the first strip
}

quint64 SerpentineWalk::PlaceOf(const QPoint& point) const
{
    const qint64 across = (m_byColumns ? point.x() : point.y()) - m_start;
    const qint64 cell = across < 0 ? 0 : qMin(across / m_cell, m_strips - 1);
    const qint64 strip = m_fromEnd ? m_strips - 1 - cell : cell;
    return static_cast<quint64>(strip) << 32 | PlaceAlong(m_directions[strip % 2], point);
}
