#include "hittest.h"

#include "scenemodel.h"

namespace {

/// From the top.
QList<CPort*> OpenPorts(CSender& sender)
{
    QList<CPort*> ports;
    const auto add = [&](int index) {
        CPort* port = sender.GetPort(index);
        if (port && index < sender.GetPortCount() && port->IsVisible() && !port->IsFlagLock()
            && !port->IsBackupDest())
            ports.append(port);
    };
    const int current = sender.GetRecentPortIndex();
    add(current);
    for (int i = sender.GetPortCount() - 1; i >= 0; --i) {
        if (i != current)
            add(i);
    }
    return ports;
}

} // namespace

CTile* HitTest::TopAt(CSender& sender, const QPoint& place)
{
    CTileSet found;
    for (const CPort* port : OpenPorts(sender)) {
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
    const QPolygonF area = QRectF(rect);
    for (const CPort* port : OpenPorts(sender)) {
        for (CTile* tile : port->GetTileSet()) {
            if (!whole && tile->IsTileRotated() && SceneModel::CornersOf(*tile).intersects(area))
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
