#include "loadofport.h"

#include <OrvanData/orvandata.h>

qint64 PixelsOf(const CPort& port)
{
    qint64 pixels = 0;
    for (const CTile* tile : port.GetTileSet())
        pixels += qint64(qMax(tile->GetWidth(), 0)) * qMax(tile->GetHeight(), 0);
    return pixels;
}
