#pragma once

#include <QImage>

namespace OrvanTools {

/// A drawing (RGB32) in 256 colours: those of its areas exactly, others by the nearest one. The PNG is a
/// third as large and is written in a fraction of the time.
QImage ReducedToPalette(const QImage& drawing);

} // namespace OrvanTools
