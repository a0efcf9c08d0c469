#pragma once

#include "orvantools/edgelines.h"

namespace OrvanTools {

struct PicturePort;
struct TileShape;

/// Rectangles that cover what the given cabinets cover, those without turned ones: neighbours of one size
/// that follow one another along a row or column are joined.
std::vector<QRectF> JoinedRects(const std::vector<TileShape>& shapes, const std::vector<int>& cabinets);

/// The edge of the area of the given cabinets. Turned ones have an edge where no other turned one lies close.
std::vector<BorderLine> PortBorder(const PicturePort& port, const std::vector<int>& cabinets);

} // namespace OrvanTools
