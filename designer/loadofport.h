#pragma once

#include <orvantools/portload.h>

class CPort;

using OrvanTools::CapacityOf;

qint64 PixelsOf(const CPort& port); ///< of the cabinets placed on it
