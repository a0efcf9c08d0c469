#include "orvantools/chaintable.h"

#include "orvantools/wallpaintertools.h"
#include "orvantools/words.h"

#include <OrvanData/orvandata.h>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

QString None()
{
    return QStringLiteral("–");
}

/// The numbered cabinets in order, then the others.
std::vector<int> OrderOf(const PicturePort& port)
{
    std::vector<int> order = port.chain;
    for (size_t i = 0; i < port.cabinets.size(); ++i)
        if (port.cabinets[i].number < 0)
            order.push_back(static_cast<int>(i));
    return order;
}

} // namespace

ChainTable::ChainTable(const QHash<SMD5, QString>& products, const CTileSet& tiles, const PicturePort& port,
                       bool isRear)
    : m_products(products), m_tiles(tiles), m_port(port), m_isRear(isRear),
      m_order(OrderOf(port)), m_cells{Cell::Number, Cell::Cabinet}
{
    if (!IsOneCardEach())
        m_cells.push_back(Cell::Cards);
    m_cells.insert(m_cells.end(), {Cell::X, Cell::Y});
    for (const Cell cell : {Cell::Size, Cell::Angle, Cell::Product}) {
        if (!IsCommon(cell))
            m_cells.push_back(cell);
        else if (!m_order.empty() && Text(m_order.front(), cell, -1) != None())
            m_common.append(Text(m_order.front(), cell, -1));
    }
    if (!IsDistanceCommon())
        m_cells.push_back(Cell::Distance);
    else if (m_port.chain.size() > 1)
        m_common.append(Tr("distance %1").arg(DistanceText(m_order[1], m_order[0])));
}

/// Then the numbers of cabinets are those of their cards.
bool ChainTable::IsOneCardEach() const
{
    return std::all_of(m_order.begin(), m_order.end(), [this](int place) {
        const PictureCabinet& cabinet = m_port.cabinets[static_cast<size_t>(place)];
        return cabinet.receivers.empty() && cabinet.firstReceiver == cabinet.number;
    });
}

bool ChainTable::IsCommon(Cell cell) const
{
    const auto isSame = [this, cell](int place) {
        const CTile& tile = *m_tiles.GetTile(place);
        const CTile& first = *m_tiles.GetTile(m_order.front());
        switch (cell) {
        case Cell::Size:
            return tile.GetSize() == first.GetSize();
        case Cell::Angle:
            return AngleOf(place) == AngleOf(m_order.front());
        default:
            return tile.GetType() == first.GetType();
        }
    };
    return std::all_of(m_order.begin(), m_order.end(), isSame);
}

/// From each cabinet to the next. The first one has none.
bool ChainTable::IsDistanceCommon() const
{
    const QString first = m_order.size() > 1 ? DistanceText(m_order[1], m_order[0]) : QString();
    for (size_t i = 2; i < m_order.size(); ++i)
        if (DistanceText(m_order[i], m_order[i - 1]) != first)
            return false;
    return true;
}

double ChainTable::AngleOf(int place) const
{
    return m_port.shapes[static_cast<size_t>(place)].IsTurned()
               ? m_tiles.GetTile(place)->GetRotateRecord().angle
               : 0;
}

QString ChainTable::CommonText() const
{
    return m_common.isEmpty() ? QString() : Tr("All cabinets: ") + m_common.join(QStringLiteral(", "));
}

SheetTable ChainTable::Make() const
{
    const SheetColumn known[] = {
        {Tr("number"), 130, true},   {Tr("cabinet"), 130, true},
        {Tr("cards"), 145, true},    {m_isRear ? Tr("front x") : Tr("x"), 115, true},
        {Tr("y"), 115, true},        {Tr("size"), 190, true},
        {Tr("angle"), 120, true},    {Tr("product"), 420, false},
        {Tr("distance"), 145, true},
    };
    std::vector<SheetColumn> columns;
    for (const Cell cell : m_cells)
        columns.push_back(known[static_cast<size_t>(cell)]);
    const auto text = [this](int row, int column) {
        const int before = row > 0 ? m_order[static_cast<size_t>(row) - 1] : -1;
        return Text(m_order[static_cast<size_t>(row)], m_cells[static_cast<size_t>(column)], before);
    };
    return SheetTable(std::move(columns), static_cast<int>(m_order.size()), text);
}

QString ChainTable::Text(int place, Cell cell, int before) const
{
    const CTile& tile = *m_tiles.GetTile(place);
    const PictureCabinet& cabinet = m_port.cabinets[static_cast<size_t>(place)];
    switch (cell) {
    case Cell::Number:
        return cabinet.number < 0 ? None() : FromOne(cabinet.number);
    case Cell::Cabinet:
        return FromOne(place);
    case Cell::Cards: {
        if (cabinet.firstReceiver < 0)
            return None();
        const qint64 last = qint64(cabinet.firstReceiver) + std::max<qint64>(1, tile.GetMultiRcvsCount()) - 1;
        return last > cabinet.firstReceiver && tile.IsMultiRcvTile()
                   ? FromOne(cabinet.firstReceiver) + QStringLiteral("–") + FromOne(last)
                   : FromOne(cabinet.firstReceiver);
    }
    case Cell::X:
        return QString::number(tile.GetX());
    case Cell::Y:
        return QString::number(tile.GetY());
    case Cell::Size:
        return QString::number(tile.GetWidth()) + QStringLiteral(" × ") + QString::number(tile.GetHeight());
    case Cell::Angle: {
        const double angle = AngleOf(place);
        return angle == 0 ? None() : QString::number(angle, 'g', 6) + QStringLiteral("°");
    }
    case Cell::Product:
        return ProductText(tile);
    case Cell::Distance:
        return DistanceText(place, before);
    }
    return {};
}

QString ChainTable::ProductText(const CTile& tile) const
{
    const QString type = tile.GetType().ToString();
    return type.isEmpty() ? None() : m_products.value(tile.GetType(), type);
}

QString ChainTable::DistanceText(int place, int before) const
{
    if (before < 0 || NumberOf(m_port, place) < 0)
        return None();
    const QPointF way = m_port.shapes[static_cast<size_t>(place)].Center()
                        - m_port.shapes[static_cast<size_t>(before)].Center();
    return QString::number(std::hypot(way.x(), way.y()), 'f', 1);
}

} // namespace OrvanTools
