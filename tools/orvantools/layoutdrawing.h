#pragma once

#include <QString>

class CProjectData;
class QIODevice;
class QPainter;

namespace OrvanTools {

/// Width and height of the page of a drawing, A3 in tenths of a millimetre. Painters use these units for
/// every device.
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
};

/// Draws one sender of a project for a technician: cabinets, chains, groups, and a legend. Text smaller than
/// `leastText` units is left out.
void PaintLayout(QPainter& painter, const CProjectData& project, int sender, double leastText);

/// The same to a device that is open for writing. False when it does not take all.
bool WriteLayout(QIODevice& device, DrawingFormat format, const CProjectData& project,
                 const DrawingOptions& options);

} // namespace OrvanTools
