#include "layout/tiledata.h"

#include "common/saturated.h"

#include <cstring>
#include <limits>

int PlaceOnCanvas(int place, int canvas, int size, int lowest)
{
    if (place < lowest)
        return 0;
    return place < canvas ? place : SaturatedInt(qint64(canvas) - size);
}

int TileFields::GetReceiverCount() const
{
    const qint64 count = qint64(multiSize.width()) * multiSize.height();
    const bool isCount = multiSize.width() >= 0 && count >= 0 && count <= std::numeric_limits<int>::max();
    return isCount ? static_cast<int>(count) : 0;
}

int TileFields::GetNextBegin() const
{
    return SaturatedInt(qint64(GetReceiverCount()) + beginRcvCnnt);
}

bool TileFields::IsEqual(const TileFields& other) const
{
    return x == other.x && y == other.y && width == other.width && height == other.height
           && connectionIndex == other.connectionIndex && beginRcvCnnt == other.beginRcvCnnt
           && portIndex == other.portIndex && senderId == other.senderId && groupId == other.groupId
           && type == other.type && selection == other.selection && multi == other.multi
           && fixedLine == other.fixedLine && ordered == other.ordered && visible == other.visible
           && multiSize == other.multiSize && demarcateIndex == other.demarcateIndex && rotate == other.rotate
           && std::memcmp(line, other.line, sizeof line) == 0;
}

bool TileFields::IsSamePlace(const TileFields& other) const
{
    return x == other.x && y == other.y && width == other.width && height == other.height
           && rotate.rotated == other.rotate.rotated && rotate.centerX == other.rotate.centerX
           && rotate.centerY == other.rotate.centerY && rotate.angle == other.rotate.angle;
}

TileData* TileData::NewCopy() const
{
    auto* copy = new TileData(*this);
    copy->handedOut = false;
    copy->rotateHandedOut = false;
    return copy;
}

const QExplicitlySharedDataPointer<TileData>& TileData::Default()
{
    static const QExplicitlySharedDataPointer<TileData> data(new TileData);
    return data;
}
