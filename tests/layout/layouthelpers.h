#pragma once

#include "layout/tile.h"

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

inline void Turn(CTile& tile, double angle, double centerX, double centerY)
{
    SRotateParam record;
    record.rotated = true;
    record.angle = angle;
    record.centerX = centerX;
    record.centerY = centerY;
    tile.SetTileRotateParam(&record);
}
