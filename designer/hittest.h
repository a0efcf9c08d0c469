#pragma once

#include <OrvanData/orvandata.h>

#include <QList>

/// Which cabinets of a sender the mouse means: those of open ports.
namespace HitTest {

/// The one on top as it is drawn, the current port's before others; null where there is none.
CTile* TopAt(CSender& sender, const QPoint& place);
QList<CTile*> InRect(CSender& sender, const QRect& rect, bool whole); ///< wholly inside, or touched

} // namespace HitTest
