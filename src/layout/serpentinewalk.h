#pragma once

#include "layout/tileset.h"

#include <QPoint>
#include <QRect>
#include <QSize>

// Directions of numbering inside one strip of cells. Each has two codes; which one a pattern uses tells the
// corner that it began at.
constexpr int kDirectionCount = 8;

/// Where a point stands along a direction code 0 to 7: 0 and 1 run right, 2 and 3 left, 4 and 5 down, 6 and 7
/// up. Ascending in that direction.
quint32 PlaceAlong(int direction, const QPoint& point);

/// The order in which a pattern of automatic numbering visits the points of a bound laid out in equal cells:
/// strip of cells after strip of cells, every other one backwards.
class SerpentineWalk
{
public:
    static constexpr int kPatternCount = AutoNumberColumnsBottomLeft + 1;

    /// `type` is 0 to 7, see EnAutoNumberType; neither the bound nor the cell is empty.
    SerpentineWalk(int type, const QRect& bound, const QSize& cell);

    bool Visits(const QPoint& point) const; ///< whether a cell holds the point
    /// Of a point that it visits. Ascending along the walk, so sorting by it visits each cell in turn and,
    /// inside a cell, its points in the direction of the strip.
    quint64 PlaceOf(const QPoint& point) const;

private:
    /// The grid on one axis. Whole cells lie against the edge that the pattern begins at.
    struct Axis
    {
        Axis(int first, int last, int cell, bool fromEnd);
        bool Holds(int coordinate) const { return coordinate >= start && coordinate < start + count * cell; }

        qint64 start;
        qint64 cell;
        qint64 count; ///< of cells
    };

    bool m_byColumns;
    bool m_fromEnd; ///< the first strip is the bottom or the rightmost one
    int m_directions[2];
    Axis m_columns;
    Axis m_rows;
};
