#pragma once

#include <QRectF>

#include <vector>

namespace OrvanTools {

/// Finds for each of some rectangles another one of them that it overlaps, in n log n steps however they lie.
/// `which` names them by their place in `bounds`; `partners`, of the same places, gets what was found and is
/// left alone otherwise. None may be empty.
void SweepOverlaps(const std::vector<QRectF>& bounds, const std::vector<int>& which,
                   std::vector<int>& partners);

} // namespace OrvanTools
