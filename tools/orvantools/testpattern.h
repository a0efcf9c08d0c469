#pragma once

#include <QSize>

class CProjectData;
class QIODevice;

namespace OrvanTools {

enum class PatternMode
{
    Ports,   ///< cabinets in the standard colours of their ports
    Numbers, ///< cabinets in black
    Grid,    ///< as Ports, and lines over the canvas at each 16th pixel from its left top
};

struct PatternOptions
{
    int sender = 0; ///< counted from 0
    PatternMode mode = PatternMode::Ports;
};

/// Pixels of a sender's test picture: its canvas, or without one the wall. Empty when there is neither.
QSize PatternSize(const CProjectData& project, int sender);

/// Writes a picture to be shown on the wall itself, as PNG: the canvas pixel by pixel, each cabinet with a
/// border, its number and the place that the project states for it. The lines of the grid count from the
/// canvas, not from the cabinets: so a cabinet that shows the wrong part of it has them at the wrong places.
/// A backup's own layout is not shown. A sender that only backs up shows the cabinets of the ports it stands
/// in for. The same project gives the same bytes, and little memory is needed for any canvas. False without
/// anything to show, beyond the largest canvas, and when the device does not take all.
bool WritePattern(QIODevice& device, const CProjectData& project, const PatternOptions& options);

} // namespace OrvanTools
