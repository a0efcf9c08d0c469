#include "loadofport.h"

#include <OrvanData/orvandata.h>

qint64 PixelsOf(const CPort& port)
{
    qint64 pixels = 0;
    for (const CTile* tile : port.GetTileSet())
        pixels += qint64(qMax(tile->GetWidth(), 0)) * qMax(tile->GetHeight(), 0);
    return pixels;
}

OrvanTools::PortCapacity CapacityOf(const CSender& sender)
{
    OrvanTools::PortCapacity capacity;
    if (sender.GetSignalFreq() > 0)
        capacity.framesPerSecond = sender.GetSignalFreq();
    if (sender.GetColorDepth() > 0)
        capacity.colorBits = sender.GetColorDepth();
    return capacity;
}
