// What QDebug shows of the layout: a line each, by which a developer finds the object again.
#include "common/debugline.h"
#include "layout/documentchange.h"
#include "layout/sender.h"
#include "layout/tile.h"
#include "layout/tilegroup.h"

#include <utility>

QDebug operator<<(QDebug debug, const SPortPlace& place)
{
    return DebugLine(debug, place.sender, ':', place.port);
}

QDebug operator<<(QDebug debug, const SDocumentChange& change)
{
    const std::pair<bool, const char*> parts[] = {{change.documentReplaced, "replaced"},
                                                  {change.senders, "senders"},
                                                  {change.properties, "properties"},
                                                  {change.steps, "steps"},
                                                  {change.saved, "saved"},
                                                  {change.modifiedState, "modified"}};
    const QDebugStateSaver saver(debug);
    const char* separator = "";
    debug.nospace() << "SDocumentChange(";
    for (const auto& [set, name] : parts)
        if (set)
            debug << std::exchange(separator, " ") << name;
    for (const SPortPlace& place : change.ports)
        debug << std::exchange(separator, " ") << place;
    debug << ')';
    return debug;
}

QDebug operator<<(QDebug debug, const SAddTileInfo& info)
{
    return DebugLine(debug, "SAddTileInfo(", info.columns, 'x', info.rows, " of ", info.width, 'x',
                     info.height, " at ", info.left, ',', info.top, " on port ", info.portIndex, ')');
}

QDebug operator<<(QDebug debug, const CTile& tile)
{
    const QSize cards = tile.GetMultiRcvsSize();
    const double angle = tile.GetRotateRecord().angle;
    const QDebugStateSaver saver(debug);
    debug.nospace() << "CTile(" << tile.GetWidth() << 'x' << tile.GetHeight() << " at " << tile.GetX() << ','
                    << tile.GetY() << " on port " << tile.GetPortIndex() << ", chain "
                    << tile.GetConnectionIndex();
    if (tile.IsMultiRcvTile())
        debug << ", cards " << cards.width() << 'x' << cards.height();
    if (angle != 0)
        debug << ", angle " << angle;
    debug << ')';
    return debug;
}

QDebug operator<<(QDebug debug, const CTileSet& tiles)
{
    return DebugLine(debug, "CTileSet(", tiles.GetCount(), tiles.IsOwner() ? " own" : "", " cabinets)");
}

QDebug operator<<(QDebug debug, const CTileGroup& group)
{
    return DebugLine(debug, "CTileGroup(", group.GetID(), ", ", group.GetSubGroupCount(), " below)");
}

QDebug operator<<(QDebug debug, const CPort& port)
{
    return DebugLine(debug, "CPort(", port.GetPortIndex(), ", ", port.GetTileSet().GetCount(), " cabinets, ",
                     port.GetTileGroupSet().GetDirectCount(), " groups",
                     port.IsBackupDest() ? ", backup" : "", port.IsVisible() ? "" : ", hidden",
                     port.IsFlagLock() ? ", locked" : "", ')');
}

QDebug operator<<(QDebug debug, const CSender& sender)
{
    int cabinets = 0;
    for (const CPort& port : sender.GetPorts())
        cabinets += port.GetTileSet().GetCount();
    return DebugLine(debug, "CSender(", sender.GetSenderName(), ' ', sender.GetId(), ", ",
                     sender.GetPortCount(), " ports, ", cabinets, " cabinets)");
}
