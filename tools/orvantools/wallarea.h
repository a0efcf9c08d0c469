#pragma once

#include <QPoint>
#include <QRect>

class CSender;

namespace OrvanTools {

// Where a sender's cabinets may lie, in their own coordinates.

/// Null: the sender has no canvas. An offset that no wall has counts as the farthest one that has sense.
QRect CanvasOf(const CSender& sender);

/// Of the largest canvas that there can be, from the same place on.
QRect LargestCanvasOf(const CSender& sender);

/// Where cabinets of that bound find room, for its left top: there, beside that, or beside all cabinets; on
/// the canvas where it has room, else wherever a view shows them. Without any room a little aside of
/// `wanted`, on top of what is there. Turned cabinets are in the way by their corners alone.
QPoint FreePlace(const CSender& sender, const QRect& wanted);

} // namespace OrvanTools
