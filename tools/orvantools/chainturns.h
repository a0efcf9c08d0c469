#pragma once

#include <cstddef>
#include <vector>

namespace OrvanTools {

struct WallPart;

/// Places in the chain where it begins, ends and turns. Where it turns all the time, after ways shorter than
/// `leastRun`, those are left out. Painter units; `scale`: of them to a pixel of the canvas.
std::vector<size_t> ChainTurns(const WallPart& part, double scale, double leastRun);

} // namespace OrvanTools
