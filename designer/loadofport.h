#pragma once

#include <orvantools/portload.h>

class CPort;
class CSender;

qint64 PixelsOf(const CPort& port); ///< of the cabinets placed on it

/// What a port carries at the sender's frequency and depth, where these are set.
OrvanTools::PortCapacity CapacityOf(const CSender& sender);
