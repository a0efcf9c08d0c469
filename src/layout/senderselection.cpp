#include "layout/senderselection.h"

#include "common/canvaslimits.h"
#include "common/interfacedlg.h"
#include "common/rotateparam.h"
#include "layout/portselection.h"
#include "layout/sender.h"
#include "layout/tile.h"

#include <algorithm>

namespace {

bool IsAnyTurned(const CTileSet& tiles)
{
    return std::any_of(tiles.begin(), tiles.end(),
                       [](const CTile* tile) { return tile->GetRotateRecord().rotated; });
}

void SetSizes(CTileSet& tiles, int width, int height, bool keepsGrid)
{
    tiles.SetWidthAuto(width, keepsGrid);
    tiles.SetHeightAuto(height, keepsGrid);
}

void DeleteSelected(CPort& port)
{
    port.GetPortProject()->DeleteSelectedTileAndGroup();
    port.GetTileSet().TileSetNormalization();
}

} // namespace

QList<CPort*> CSenderSelection::OwnPorts() const
{
    QList<CPort*> ports;
    for (int i = 0; i < m_sender.GetPortCount(); ++i) {
        if (!m_sender.GetPort(i)->IsBackupDest())
            ports.append(m_sender.GetPort(i));
    }
    return ports;
}

QList<CPort*> CSenderSelection::GetPorts() const
{
    QList<CPort*> ports;
    for (CPort* port : OwnPorts()) {
        const CTileSet& tiles = port->GetTileSet();
        if (std::any_of(tiles.begin(), tiles.end(),
                        [](const CTile* tile) { return tile->IsSelected(InterfaceDesign); }))
            ports.append(port);
    }
    return ports;
}

template <class Edit> void CSenderSelection::ForEachPort(const Edit& edit) const
{
    for (CPort* port : GetPorts()) {
        CPortSelection selection(*port);
        edit(selection);
    }
}

QList<CTile*> CSenderSelection::GetTiles() const
{
    QList<CTile*> tiles;
    for (const CPort* port : OwnPorts()) {
        for (CTile* tile : port->GetTileSet()) {
            if (tile->IsSelected(InterfaceDesign))
                tiles.append(tile);
        }
    }
    return tiles;
}

QRect CSenderSelection::GetBound() const
{
    QRect bound;
    for (const CTile* tile : GetTiles())
        bound |= tile->GetBound();
    return bound;
}

QList<CTile*> CSenderSelection::GetTilesAround() const
{
    QList<CTile*> tiles;
    ForEachPort([&](const CPortSelection& selection) { tiles += selection.GetTilesAround(); });
    return tiles;
}

void CSenderSelection::Clear()
{
    for (CPort* port : OwnPorts())
        port->GetTileSet().UnSelectAll(InterfaceDesign);
}

void CSenderSelection::MarkWholeGroups()
{
    for (CPort* port : OwnPorts())
        CPortSelection(*port).MarkWholeGroups();
}

void CSenderSelection::Offset(int dx, int dy)
{
    ForEachPort([=](CPortSelection& selection) { selection.Offset(dx, dy); });
}

void CSenderSelection::Turn(double angle)
{
    if (qFuzzyIsNull(angle))
        return; // it would still write records of a turn
    const QPointF middle = QRectF(GetBound()).center();
    SRotateParam turn;
    turn.angle = angle;
    turn.centerX = middle.x();
    turn.centerY = middle.y();
    ForEachPort([&](CPortSelection& selection) { selection.Turn(turn); });
}

void CSenderSelection::TurnTo(double angle)
{
    const QList<CTile*> tiles = GetTiles();
    if (tiles.isEmpty())
        return;
    const double present = tiles.first()->GetRotateRecord().angle;
    if (std::all_of(tiles.begin(), tiles.end(),
                    [&](const CTile* tile) { return qFuzzyIsNull(tile->GetRotateRecord().angle - present); }))
        Turn(angle - present);
    else
        ForEachPort([=](CPortSelection& selection) { selection.TurnEachTo(angle); });
}

/// Turned cabinets have no rows along the canvas that could stay together.
void CSenderSelection::Resize(int width, int height)
{
    CTileSet tiles;
    for (CTile* tile : GetTiles())
        tiles.AddTile(tile);
    SetSizes(tiles, width, height, !IsAnyTurned(tiles));
    ForEachPort([](CPortSelection& selection) { selection.TakeSizes(); });
}

QRect CSenderSelection::GetBoundIfResized(int width, int height) const
{
    CTileSet copies;
    copies.SetOwnerShip(true);
    for (const CTile* tile : GetTiles())
        copies.AddTile(new CTile(*tile));
    SetSizes(copies, width, height, !IsAnyTurned(copies));
    QRect bound;
    for (const CTile* tile : copies) {
        if (!tile->GetRotateRecord().rotated)
            bound |= tile->GetBound();
    }
    return bound;
}

void CSenderSelection::Delete()
{
    for (CPort* port : GetPorts())
        DeleteSelected(*port);
}

bool CSenderSelection::Ungroup()
{
    bool any = false;
    ForEachPort([&](CPortSelection& selection) { any = selection.Ungroup() || any; });
    return any;
}

void CSenderSelection::CopyTo(CPortProject& layout) const
{
    ForEachPort([&](const CPortSelection& selection) { selection.CopyTo(layout); });
}

bool CSenderSelection::MoveTo(CPort& port)
{
    QList<CPort*> others = GetPorts();
    others.removeAll(&port);
    CPortProject moved;
    for (CPort* other : qAsConst(others))
        CPortSelection(*other).CopyTo(moved);
    const int count = moved.GetTileSet()->GetCount();
    if (port.IsBackupDest() || count == 0 || count > kMaxTilesOfPort - port.GetTileSet().GetCount())
        return false;
    for (CPort* other : qAsConst(others))
        DeleteSelected(*other);
    CPortSelection(port).Paste(moved, 0, 0);
    return true;
}
