#pragma once

#include "common/canvaslimits.h"
#include "common/rotateparam.h"
#include "common/smd5.h"

#include <QExplicitlySharedDataPointer>
#include <QSharedData>
#include <QSize>
#include <QUuid>

/// A left or top edge brought onto the canvas: 0 when it is below `lowest`, and the place at which the
/// cabinet ends at the edge when it is beyond the canvas.
int PlaceOnCanvas(int place, int canvas, int size, int lowest = 0);

/// What a cabinet is made of, apart from view state. Each cabinet of a wall has one, so mind the size. What
/// walks over whole walls read stands in front, within a line or two of the cache.
struct TileFields
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int connectionIndex = -1; ///< place in the port's chain; negative: not connected
    int beginRcvCnnt = -1;    ///< receiving cards before this cabinet in the chain
    QSize multiSize{1, 1};    ///< receiving cards across and down
    int demarcateIndex = -1;
    int portIndex = -1;
    unsigned char selection = 0; ///< one bit a view
    bool multi = false;
    bool fixedLine = false;
    bool ordered = true;
    bool visible = true;
    SRotateParam rotate;
    QUuid senderId;
    QUuid groupId; ///< null: ungrouped
    SMD5 type;
    unsigned char line[kMaxReceiversInTile] = {}; ///< cell code of each inner receiving card

    int GetReceiverCount() const; ///< 0 when the size is negative or its product does not fit
    int GetNextBegin() const;     ///< the begin receiver connection of the next cabinet in the chain
    bool IsEqual(const TileFields& other) const;
    bool IsSamePlace(const TileFields& other) const; ///< place, size and rotation, without tolerance
};

/// The data that copies of a cabinet share until one is written to.
struct TileData : QSharedData, TileFields
{
    /// A pointer into these data is out, so they stay this cabinet's alone and at their place.
    bool handedOut = false;
    bool rotateHandedOut = false; ///< that pointer is to the rotation: the cabinet moves without notice

    TileData* NewCopy() const; ///< [new] of which no pointer is out

    /// Tiles that were not written to yet share these, so that making many is cheap.
    static const QExplicitlySharedDataPointer<TileData>& Default();
};
