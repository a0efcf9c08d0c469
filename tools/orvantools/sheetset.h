#pragma once

#include "orvantools/portload.h"

#include <functional>

class CProjectData;
class QIODevice;

namespace OrvanTools {

enum class Paper
{
    A4,
    A3,
    Letter,
};

struct SheetOptions
{
    int sender = -1;   ///< counted from 0; -1: all
    int port = -1;     ///< of that sender, counted from 0; -1: all in use
    bool rear = false; ///< the wall as seen from behind
    Paper paper = Paper::A4;
    PortCapacity capacity;
    std::function<void(int percent)> progress;
    bool atOwnRate = false; ///< at the frames and bits that each sender is set to, where it is
};

/// Writes the papers that a crew takes to the wall, as a PDF: a cover with the contents, an overview of each
/// sender, for each port with cabinets pages on which every number can be read, and its chain as a table.
/// Each page lies as it fits better. Backups have no pages: they show their source's. The same project gives
/// the same bytes. False when the device does not take all.
bool WriteSheets(QIODevice& device, const CProjectData& project, const SheetOptions& options);

} // namespace OrvanTools
