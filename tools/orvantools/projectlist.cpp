#include "orvantools/projectlist.h"

#include "orvantools/cabinetchain.h"
#include "orvantools/productnames.h"
#include "orvantools/rowwriter.h"
#include "orvantools/tileshape.h"

#include <OrvanData/orvandata.h>

#include <QLineF>

#include <functional>
#include <optional>

namespace OrvanTools {

namespace {

using ListPort = std::function<bool(RowWriter& rows, int sender, const CPort& port)>;

/// Numbers as the host shows them, from 1. A file may hold any number.
qint64 Shown(int number)
{
    return qint64(number) + 1;
}

bool ListPorts(RowWriter& rows, const CProjectData& project, const ListPort& list)
{
    for (int i = 0; i < project.GetSenderCount(); ++i) {
        const CSender& sender = *project.GetSender(i);
        for (int j = 0; j < sender.GetPortCount(); ++j) {
            const CPort& port = *sender.GetPort(j);
            if (!port.IsBackupDest() && !list(rows, i, port))
                return false;
        }
    }
    return rows.Finish();
}

void AddNumbers(RowWriter& rows, const CTile& tile)
{
    if (!tile.HasSetConnectIndex()) {
        rows.AddEmpty(2);
        return;
    }
    rows.Add(Shown(tile.GetConnectionIndex()));
    if (tile.GetBeginRcvCnnt() >= 0)
        rows.Add(Shown(tile.GetBeginRcvCnnt()));
    else
        rows.AddEmpty();
}

bool AddCabinet(RowWriter& rows, int sender, const CPort& port, int index,
                const QHash<SMD5, QString>& products)
{
    const CTile& tile = *port.GetTileSet().GetTile(index);
    rows.Add(Shown(sender));
    rows.Add(Shown(port.GetPortIndex()));
    rows.Add(Shown(index));
    AddNumbers(rows, tile);
    for (const int value :
         {tile.GetMultiRcvsCount(), tile.GetX(), tile.GetY(), tile.GetWidth(), tile.GetHeight()})
        rows.Add(value);
    rows.AddAngle(ShapeOf(tile).angle);
    rows.AddText(tile.GetType().ToString());
    rows.AddText(products.value(tile.GetType()));
    rows.AddText(tile.GetGroupId().isNull() ? QString() : tile.GetGroupId().toString());
    return rows.EndRow();
}

/// One end of a cable.
struct CableEnd
{
    int cabinet = 0;
    QPointF center;
};

void AddPlace(RowWriter& rows, const QPointF& place)
{
    rows.AddPixels(place.x());
    rows.AddPixels(place.y());
}

/// The fields behind the step; the cable from the port has no `from`.
bool AddCable(RowWriter& rows, const std::optional<CableEnd>& from, const CableEnd& to)
{
    if (!from) {
        rows.AddEmpty();
        rows.Add(Shown(to.cabinet));
        rows.AddEmpty(2);
        AddPlace(rows, to.center);
        rows.AddEmpty();
    } else {
        rows.Add(Shown(from->cabinet));
        rows.Add(Shown(to.cabinet));
        AddPlace(rows, from->center);
        AddPlace(rows, to.center);
        rows.AddPixels(QLineF(from->center, to.center).length());
    }
    return rows.EndRow();
}

bool AddCables(RowWriter& rows, int sender, const CPort& port)
{
    std::optional<CableEnd> from;
    qint64 step = 0;
    for (const ChainLink& link : ChainOf(port.GetTileSet())) {
        const CableEnd to{link.cabinet, ShapeOf(*port.GetTileSet().GetTile(link.cabinet)).Center()};
        for (const qint64 number : {Shown(sender), Shown(port.GetPortIndex()), ++step})
            rows.Add(number);
        if (!AddCable(rows, from, to))
            return false;
        from = to;
    }
    return true;
}

} // namespace

bool WriteCabinetList(QIODevice& device, ListForm form, const CProjectData& project)
{
    RowWriter rows(device, form,
                   {"sender", "port", "cabinet", "number", "receiver", "receivers", "x", "y", "width",
                    "height", "angle", "type", "product", "group"});
    const QHash<SMD5, QString> products = ProductNames(project);
    return ListPorts(rows, project, [&products](RowWriter& list, int sender, const CPort& port) {
        for (int i = 0; i < port.GetTileSet().GetCount(); ++i) {
            if (!AddCabinet(list, sender, port, i, products))
                return false;
        }
        return true;
    });
}

bool WriteCableSchedule(QIODevice& device, ListForm form, const CProjectData& project)
{
    RowWriter rows(device, form,
                   {"sender", "port", "step", "from", "to", "from_x", "from_y", "to_x", "to_y", "distance"});
    return ListPorts(rows, project, AddCables);
}

} // namespace OrvanTools
