#pragma once

#include "orvantools/portload.h"

#include <QSizeF>

class CProjectData;
class QIODevice;
class QPainter;

namespace OrvanTools {

/// Width and height of a page of A3 in tenths of a millimetre. Painters use these units on every device. A
/// larger page has more of them, a smaller one is drawn as A3 and reduced.
constexpr int kPageWidth = 4200;
constexpr int kPageHeight = 2970;

enum class DrawingFormat
{
    Png,
    Svg,
    Pdf,
};

struct DrawingOptions
{
    int sender = 0; ///< counted from 0
    /// Pixels of a PNG. The page of another format has as many at 96 to the inch. 0: 1920, or A3.
    int width = 0;
    int port = -1;     ///< the only one to draw, counted from 0; -1: all
    bool rear = false; ///< the wall as seen from behind
    PortCapacity capacity;
    bool atOwnRate = false; ///< at the frames and bits that the sender is set to, where it is
};

/// Draws one sender of a project for a technician: cabinets, chains, groups, and a legend. Text smaller than
/// `leastText` units is left out; the header and the legend have a size of their own.
void PaintLayout(QPainter& painter, const CProjectData& project, const DrawingOptions& options,
                 const QSizeF& page, double leastText);

/// The same to a device that is open for writing. False when it does not take all.
bool WriteLayout(QIODevice& device, DrawingFormat format, const CProjectData& project,
                 const DrawingOptions& options);

} // namespace OrvanTools
