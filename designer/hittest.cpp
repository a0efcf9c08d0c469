#include "hittest.h"

#include "documentcontroller.h"
#include "scenemodel.h"

#include <algorithm>

namespace {

/// As they are drawn, the current one before others.
QList<CPort*> FromTop(CSender& sender)
{
    QList<CPort*> ports = DocumentController::OpenPorts(sender);
    std::reverse(ports.begin(), ports.end());
    const int current = ports.indexOf(sender.GetPort(sender.GetRecentPortIndex()));
    if (current > 0)
        ports.move(current, 0);
    return ports;
}

bool IsTouched(const CTile& turned, const QRect& rect)
{
    const QRect bound = turned.GetBound();
    return rect.contains(bound)
           || (rect.intersects(bound) && SceneModel::CornersOf(turned).intersects(QPolygonF(QRectF(rect))));
}

} // namespace

CTile* HitTest::TopAt(CSender& sender, const QPoint& place)
{
    CTileSet found;
    for (const CPort* port : FromTop(sender)) {
        if (port->GetTileSet().GetTileSetAtPosition(found, place.x(), place.y()))
            return found.GetTile(0);
    }
    return nullptr;
}

/// The library takes a turned cabinet as touched by its corners, the mouse by all that is drawn.
QList<CTile*> HitTest::InRect(CSender& sender, const QRect& rect, bool whole)
{
    QList<CTile*> tiles;
    CTileSet found;
    for (const CPort* port : FromTop(sender)) {
        for (CTile* tile : port->GetTileSet()) {
            if (!whole && tile->IsTileRotated() && IsTouched(*tile, rect))
                tiles.append(tile);
        }
        port->GetTileSet().GetTileSetAtRect(found, rect, whole);
        for (CTile* tile : found) {
            if (whole || !tile->IsTileRotated())
                tiles.append(tile);
        }
    }
    return tiles;
}
