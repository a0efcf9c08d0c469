#include "orvantools/wallarea.h"

#include "orvantools/tileshape.h"

#include <OrvanData/orvandata.h>

namespace OrvanTools {

namespace {

constexpr double kFarthest = 1000000; ///< of an offset, which a file may set to anything
const QRect kSeen(0, 0, kMaxCanvasWidth, kMaxCanvasHeight); ///< by the design view
constexpr QPoint kAside(16, 16);

QPoint CanvasPlace(const CSender& sender)
{
    const QPointF offset = OffsetOf(sender);
    return QPoint(-qRound(qBound(-kFarthest, offset.x(), kFarthest)),
                  -qRound(qBound(-kFarthest, offset.y(), kFarthest)));
}

bool IsFree(const CSender& sender, const QRect& place)
{
    CTileSet found;
    for (int i = 0; i < sender.GetPortCount(); ++i) {
        const CPort& port = *sender.GetPort(i);
        if (!port.IsBackupDest() && port.GetTileSet().GetTileSetAtRect(found, place, false))
            return false;
    }
    return true;
}

} // namespace

QRect CanvasOf(const CSender& sender)
{
    const QSize size = sender.GetCanvasSize();
    return size.isEmpty() ? QRect() : QRect(CanvasPlace(sender), size);
}

QRect LargestCanvasOf(const CSender& sender)
{
    const QSize largest(kMaxCanvasWidth, kMaxCanvasHeight);
    return QRect(CanvasPlace(sender), largest)
           & QRect(-kMaxCanvasWidth, -kMaxCanvasHeight, 2 * kMaxCanvasWidth, 2 * kMaxCanvasHeight);
}

QPoint FreePlace(const CSender& sender, const QRect& wanted)
{
    const QRect all = sender.GetBound();
    const QPoint places[] = {wanted.topLeft(),
                             {wanted.right() + 1, wanted.top()},
                             {wanted.left(), wanted.bottom() + 1},
                             {wanted.left() - wanted.width(), wanted.top()},
                             {wanted.left(), wanted.top() - wanted.height()},
                             {all.right() + 1, wanted.top()},
                             {wanted.left(), all.bottom() + 1},
                             {all.left(), all.bottom() + 1}};
    for (const QRect& area : {CanvasOf(sender) & kSeen, kSeen}) {
        for (const QPoint& place : places) {
            const QRect covered(place, wanted.size());
            if (area.contains(covered) && IsFree(sender, covered))
                return place;
        }
    }
    return wanted.topLeft() + kAside;
}

} // namespace OrvanTools
