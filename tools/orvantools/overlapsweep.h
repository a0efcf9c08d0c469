#pragma once

#include <QRectF>

#include <vector>

namespace OrvanTools {

/// Finds, for each of some rectangles, another one that it overlaps, in n log n steps. `which` names them by
/// their place in `bounds`. `partners`, with the same places, gets what was found; other places are left
/// alone. None may be empty.
void SweepOverlaps(const std::vector<QRectF>& bounds, const std::vector<int>& which,
                   std::vector<int>& partners);

} // namespace OrvanTools
