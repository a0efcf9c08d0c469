#include "layout/tileindex.h"

#include "layout/rotation.h"
#include "layout/tile.h"
#include "layout/tiledata.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kFar = 1 << 29;     ///< places below it do not overflow when sizes and distances are added
constexpr int kCellsPerSide = 4;  ///< cabinets of average size that a cell holds in each direction, at least
constexpr qint64 kMostCells = 16; ///< a cabinet that reaches into more is tested at every query instead
constexpr size_t kLooseAtLeast = 256; ///< that many may be loose in any list, and a share of long ones
constexpr size_t kLooseShare = 64;

bool IsNear(int place)
{
    return place > -kFar && place < kFar;
}

/// Whole pixels around turned corners, with room for their truncation; invalid when they are out of reach.
QRect ExtentOf(const CPointEx<double> corners[4])
{
    const auto [left, right] = std::minmax({corners[0].x, corners[1].x, corners[2].x, corners[3].x});
    const auto [top, bottom] = std::minmax({corners[0].y, corners[1].y, corners[2].y, corners[3].y});
    for (int i = 0; i < 4; ++i) {
        if (!(std::abs(corners[i].x) < kFar && std::abs(corners[i].y) < kFar))
            return QRect();
    }
    return QRect(QPoint(static_cast<int>(std::floor(left)) - 1, static_cast<int>(std::floor(top)) - 1),
                 QPoint(static_cast<int>(std::ceil(right)) + 1, static_cast<int>(std::ceil(bottom)) + 1));
}

} // namespace

TileIndex::TileIndex(const QList<CTile*>& tiles, bool rotation) : m_tiles(tiles), m_rotation(rotation)
{
    const auto count = static_cast<size_t>(tiles.size());
    std::vector<QRect> extents;
    extents.reserve(count);
    m_bounds.reserve(count);
    for (const CTile* tile : tiles) {
        const Place place = PlaceOf(*tile, rotation);
        m_bounds.push_back(place.bound);
        extents.push_back(place.extent);
    }
    m_isLoose.assign(count, false);
    LayGrid(extents);
    FillGrid(extents);

    m_slotShift = 63;
    while ((size_t(1) << (64 - m_slotShift)) < 2 * count)
        --m_slotShift;
    m_slots.assign(size_t(1) << (64 - m_slotShift), -1);
    m_sameTile.assign(count, -1);
    for (int i = 0; i < tiles.size(); ++i)
        Enter(i);
    m_found.assign(count / 64 + 1, 0);
    m_lowest = m_found.size();
}

bool TileIndex::CatchUp(bool rotation)
{
    return rotation == m_rotation && m_journal.CatchUp([this](const CTile* tile) { Renew(tile); })
           && m_loose.size() <= qMax(kLooseAtLeast, m_bounds.size() / kLooseShare);
}

TileIndex::Place TileIndex::PlaceOf(const CTile& tile, bool rotation)
{
    const TileData& data = *tile.GetData();
    // Empty ones are hit by rules of their own, and a rotation that somebody may write to is never known.
    if (!IsNear(data.x) || !IsNear(data.y) || data.width < 1 || data.height < 1
        || (rotation && data.rotateHandedOut))
        return {};
    const QRect bound(data.x, data.y, data.width, data.height);
    if (!rotation || !data.rotate.rotated)
        return {bound, bound};
    CPointEx<double> corners[4];
    tile.GetRotateArea(corners);
    return {QRect(), ExtentOf(corners)};
}

void TileIndex::LayGrid(const std::vector<QRect>& extents)
{
    int left = kFar, top = kFar, right = -kFar, bottom = -kFar;
    qint64 count = 0;
    qint64 sides = 0;
    for (const QRect& extent : extents) {
        if (!extent.isValid())
            continue;
        left = qMin(left, extent.left());
        top = qMin(top, extent.top());
        right = qMax(right, extent.right());
        bottom = qMax(bottom, extent.bottom());
        sides += extent.width() + extent.height();
        ++count;
    }
    m_area = count == 0 ? QRect(0, 0, 1, 1) : QRect(QPoint(left, top), QPoint(right, bottom));
    const auto cells = [this] {
        m_columns = Column(m_area.right()) + 1;
        return qint64(m_columns) * (Row(m_area.bottom()) + 1);
    };
    while (qint64(1) << m_cellShift < kCellsPerSide * sides / qMax<qint64>(2 * count, 1)
           || cells() > count + 1)
        ++m_cellShift;
    m_cellBegin.assign(static_cast<size_t>(cells()) + 1, 0);
}

/// Counts the cabinets of each cell first, so that all cells lie in one array.
void TileIndex::FillGrid(const std::vector<QRect>& extents)
{
    for (size_t i = 0; i < extents.size(); ++i) {
        const QRect& extent = extents[i];
        qint64 cells = 0;
        if (extent.isValid())
            cells = qint64(Column(extent.right()) - Column(extent.left()) + 1)
                    * (Row(extent.bottom()) - Row(extent.top()) + 1);
        m_isLoose[i] = cells < 1 || cells > kMostCells;
        if (m_isLoose[i])
            m_loose.push_back(static_cast<int>(i));
        else
            ForEachCell(extent, [this](size_t cell) { ++m_cellBegin[cell]; });
    }
    size_t end = 0;
    for (size_t& begin : m_cellBegin)
        begin = end += begin;
    m_positions.resize(end);
    for (size_t i = extents.size(); i-- > 0;) {
        if (!m_isLoose[i])
            ForEachCell(extents[i],
                        [&](size_t cell) { m_positions[--m_cellBegin[cell]] = static_cast<int>(i); });
    }
}

template <class Visit> void TileIndex::ForEachCell(const QRect& extent, Visit visit) const
{
    const int right = Column(extent.right());
    const int bottom = Row(extent.bottom());
    for (int row = Row(extent.top()); row <= bottom; ++row) {
        for (int column = Column(extent.left()); column <= right; ++column)
            visit(Cell(column, row));
    }
}

/// The slot of that cabinet, or the empty one where it belongs.
size_t TileIndex::Slot(const CTile* tile) const
{
    const quint64 spread = (reinterpret_cast<quintptr>(tile) >> 4) * Q_UINT64_C(0x9E3779B97F4A7C15);
    auto slot = static_cast<size_t>(spread >> m_slotShift);
    while (m_slots[slot] >= 0 && m_tiles.at(m_slots[slot]) != tile)
        slot = (slot + 1) % m_slots.size();
    return slot;
}

void TileIndex::Enter(int position)
{
    int& first = m_slots[Slot(m_tiles.at(position))];
    m_sameTile[static_cast<size_t>(position)] = first;
    first = position;
}

void TileIndex::Renew(const CTile* tile)
{
    for (int i = m_slots[Slot(tile)]; i >= 0; i = m_sameTile[static_cast<size_t>(i)]) {
        const auto at = static_cast<size_t>(i);
        m_bounds[at] = PlaceOf(*tile, m_rotation).bound;
        if (!m_isLoose[at])
            m_loose.push_back(i);
        m_isLoose[at] = true;
    }
}

QList<CTile*> TileIndex::TakeFound()
{
    QList<CTile*> found = m_tiles.mid(0, m_foundAtMost); // long enough to be overwritten
    auto end = found.begin();
    for (size_t word = m_highest + 1; word-- > m_lowest;) {
        for (quint64& bits = m_found[word]; bits != 0;) {
            const auto bit = 63 - qCountLeadingZeroBits(bits);
            *end++ = m_tiles.at(static_cast<int>(word * 64 + bit));
            bits &= ~(quint64(1) << bit);
        }
    }
    found.erase(end, found.end());
    m_lowest = m_found.size();
    m_highest = 0;
    m_foundAtMost = 0;
    return found;
}
