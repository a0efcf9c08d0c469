#pragma once

#include "orvantools/sheettable.h"
#include "orvantools/wallpicture.h"

#include <OrvanData/orvandata.h>

#include <QHash>

namespace OrvanTools {

/// The chain of a port as a table, cable by cable; cabinets without a number come last. What is the same for
/// all cabinets is said once, above the table.
class ChainTable
{
public:
    /// [ref] the tiles and the port. The picture is that of the tiles, in their order, mirrored for the rear.
    ChainTable(const QHash<SMD5, QString>& products, const CTileSet& tiles, const PicturePort& port,
               bool isRear);

    SheetTable Make() const;    ///< refers to this
    QString CommonText() const; ///< "All cabinets: 128 × 128, …"; empty when they have nothing in common

private:
    enum class Cell
    {
        Number,
        Cabinet,
        Cards,
        X,
        Y,
        Size,
        Angle,
        Product,
        Distance,
    };

    QString Text(int place, Cell cell, int before) const; ///< `before`: the cabinet before it, -1: none
    QString ProductText(const CTile& tile) const;
    QString DistanceText(int place, int before) const;
    bool IsOneCardEach() const;
    bool IsCommon(Cell cell) const;
    bool IsDistanceCommon() const;
    double AngleOf(int place) const; ///< as the project states it; 0: not turned

    QHash<SMD5, QString> m_products; ///< names by type
    const CTileSet& m_tiles;
    const PicturePort& m_port;
    bool m_isRear;
    std::vector<int> m_order;
    std::vector<Cell> m_cells; ///< of a row
    QStringList m_common;
};

} // namespace OrvanTools
