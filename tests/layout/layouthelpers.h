#pragma once

#include "common/canvaslimits.h"
#include "layout/tile.h"
#include "layout/tileset.h"

/// Knows how many of its kind live.
template <class Base> struct Counted : Base
{
    Counted() { ++alive; }
    ~Counted() override { --alive; }
    static inline int alive = 0;
};

inline void Place(CTile& tile, const QRect& rect)
{
    tile.SetWidth(rect.width());
    tile.SetHeight(rect.height());
    tile.SetX(rect.x());
    tile.SetY(rect.y());
}

using CountedTile = Counted<CTile>;

/// Appends a cabinet whose receiving cards, if several, run down each column.
inline CTile* Add(CTileSet& set, const QRect& rect, QSize receivers = QSize(1, 1))
{
    auto* tile = new CountedTile;
    Place(*tile, rect);
    tile->SetBeMultiRcvsTile(receivers != QSize(1, 1));
    tile->SetMultiRcvsSize(receivers);
    const unsigned char line[kMaxReceiversInTile] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    tile->SetMultiRcvsLine(line);
    tile->SetMultiRcvsOrdered(true);
    set.AddTile(tile);
    return tile;
}

inline SRotateParam Rotation(double angle, double centerX, double centerY)
{
    SRotateParam record;
    record.rotated = true;
    record.angle = angle;
    record.centerX = centerX;
    record.centerY = centerY;
    return record;
}

inline void Turn(CTile& tile, double angle, double centerX, double centerY)
{
    const SRotateParam record = Rotation(angle, centerX, centerY);
    tile.SetTileRotateParam(&record);
}
