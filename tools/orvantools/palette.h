#pragma once

#include <QImage>

namespace OrvanTools {

/// A drawing (RGB32) in 256 colours: those of its areas exactly, others by the nearest one. It has a third of
/// the size, and is written as a PNG in a fraction of the time.
QImage ReducedToPalette(const QImage& drawing);

} // namespace OrvanTools
