#pragma once

#include "layout/changejournal.h"

#include <QList>
#include <QRect>
#include <QtAlgorithms>

#include <vector>

class CTile;

/// Finds the cabinets of a list by place: a grid of cells over them, each with the positions of the cabinets
/// that reach into it. Belongs to one content of a list and one state of the rotation setting; cabinets that
/// change meanwhile are caught up with from the journal of changes. The cabinets must outlive it.
class TileIndex
{
public:
    TileIndex(const QList<CTile*>& tiles, bool rotation);

    /// Takes in what changed since the last time. False when so much did that a new index is due.
    bool CatchUp(bool rotation);

    /// What the test takes, the last of the list first. A test tells the Area() outside which it takes
    /// nothing and whether it Takes() an unturned cabinet by its bound, not empty, or any cabinet.
    template <class Test> QList<CTile*> FindFromTop(const Test& test)
    {
        const QRect area = test.Area();
        const int right = Column(area.right());
        const int bottom = Row(area.bottom());
        for (int row = Row(area.top()), column = Column(area.left()); row <= bottom && column <= right;
             ++row) {
            const size_t cell = Cell(column, row);
            const size_t end = m_cellBegin[cell + static_cast<size_t>(right - column) + 1];
            for (size_t i = m_cellBegin[cell]; i < end; ++i)
                Check(m_positions[i], test);
        }
        for (const int position : m_loose)
            Check(position, test);
        return TakeFound();
    }

private:
    /// Where a cabinet lies as the index sees it.
    struct Place
    {
        QRect bound;  ///< exact; invalid: only the cabinet itself tells
        QRect extent; ///< outside which it is not found; invalid: it may be found anywhere
    };

    static Place PlaceOf(const CTile& tile, bool rotation);
    void LayGrid(const std::vector<QRect>& extents);
    void FillGrid(const std::vector<QRect>& extents);
    template <class Visit> void ForEachCell(const QRect& extent, Visit visit) const;
    void Enter(int position);
    void Renew(const CTile* tile);
    size_t Slot(const CTile* tile) const;
    QList<CTile*> TakeFound();

    int Column(int x) const
    {
        return (qBound(m_area.left(), x, m_area.right()) - m_area.left()) >> m_cellShift;
    }
    int Row(int y) const { return (qBound(m_area.top(), y, m_area.bottom()) - m_area.top()) >> m_cellShift; }
    size_t Cell(int column, int row) const
    {
        return static_cast<size_t>(row) * static_cast<size_t>(m_columns) + static_cast<size_t>(column);
    }

    template <class Test> void Check(int position, const Test& test)
    {
        const auto at = static_cast<size_t>(position);
        const QRect& bound = m_bounds[at];
        if (bound.isValid() ? !test.Takes(bound) : !test.Takes(*m_tiles.at(position)))
            return;
        m_found[at / 64] |= quint64(1) << at % 64;
        m_lowest = qMin(m_lowest, at / 64);
        m_highest = qMax(m_highest, at / 64);
        ++m_foundAtMost;
    }

    QList<CTile*> m_tiles; ///< shares the list of the set
    bool m_rotation;
    ChangeJournal::Reader m_journal;
    std::vector<QRect> m_bounds; ///< by position, as in Place

    // the grid; a cabinet that moves stays in its old cells, where its new bound is tested
    QRect m_area;
    int m_cellShift = 0; ///< cells are 2^shift pixels wide and high
    int m_columns = 1;
    std::vector<size_t> m_cellBegin; ///< of each cell, row by row, where its part of m_positions begins
    std::vector<int> m_positions;
    std::vector<int> m_loose; ///< positions tested at every query
    std::vector<bool> m_isLoose;

    // from cabinet to positions
    std::vector<int> m_slots;    ///< open addressing; -1: empty
    std::vector<int> m_sameTile; ///< by position: another position of that cabinet, -1: none
    int m_slotShift = 0;

    // the query that runs: one bit a position, the words between which bits are set
    std::vector<quint64> m_found;
    size_t m_lowest = 0;
    size_t m_highest = 0;
    int m_foundAtMost = 0;
};
