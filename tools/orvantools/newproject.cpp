#include "orvantools/newproject.h"

namespace OrvanTools {

namespace {

constexpr int kOrders = 8;

bool IsWithin(const QSize& size, int width, int height)
{
    return size.width() >= 1 && size.height() >= 1 && size.width() <= width && size.height() <= height;
}

/// The types of a strip's cabinets and, for those that the library knows, their parameter files.
void TakeTypes(CProjectData& project, const CTileSet& tiles, const NewProject& wanted)
{
    for (int i = 0; i < tiles.GetCount(); ++i) {
        CTile& tile = *tiles.GetTile(i);
        tile.SetType(wanted.types[tile.GetX() / wanted.cabinet.width() % wanted.types.size()]);
    }
    QList<SMD5> used;
    tiles.GetProductTypeArray(&used);
    for (const SMD5& type : used) {
        QString name;
        if (GetRuntimeData()->GetProductDirectorySet()->GetProductTypeNameFromGuid(type, name))
            project.AddParameterFileInfo(name, type);
    }
}

void BuildStrip(CProjectData& project, CPort& port, const NewProject& wanted, int firstColumn, int columns)
{
    SAddTileInfo block;
    block.senderId = port.GetSenderId();
    block.portIndex = port.GetPortIndex();
    block.left = firstColumn * wanted.cabinet.width();
    block.columns = columns;
    block.rows = wanted.grid.height();
    block.width = wanted.cabinet.width();
    block.height = wanted.cabinet.height();
    port.GetPortProject()->AddTile(block);

    CTileSet& tiles = port.GetTileSet();
    if (!wanted.types.isEmpty())
        TakeTypes(project, tiles, wanted);
    if (wanted.order != NewProject::kNotNumbered)
        tiles.AutoConnection(static_cast<EnAutoNumberType>(wanted.order), 0);
    port.GetPortProject()->CancelAllSelected();
}

} // namespace

QString WhyNotBuildable(const NewProject& wanted)
{
    if (!IsWithin(wanted.cabinet, kMaxCabinetSize, kMaxCabinetSize))
        return QStringLiteral("a cabinet has 1x1 to %1x%1 pixels").arg(kMaxCabinetSize);
    if (!IsWithin(wanted.canvas, kMaxCanvasWidth, kMaxCanvasHeight))
        return QStringLiteral("a canvas has 1x1 to %1x%2 pixels").arg(kMaxCanvasWidth).arg(kMaxCanvasHeight);
    if (!IsWithin(wanted.grid, kMaxCanvasWidth / wanted.cabinet.width(),
                  kMaxCanvasHeight / wanted.cabinet.height()))
        return QStringLiteral("the block has no cabinets or exceeds the largest canvas, %1x%2 pixels")
            .arg(kMaxCanvasWidth)
            .arg(kMaxCanvasHeight);
    if (wanted.ports < 1 || wanted.ports > kMaxPorts)
        return QStringLiteral("a sender has 1 to %1 ports").arg(kMaxPorts);
    if (wanted.ports > wanted.grid.width())
        return QStringLiteral("more ports (%1) than columns (%2)").arg(wanted.ports).arg(wanted.grid.width());
    if (wanted.order != NewProject::kNotNumbered && (wanted.order < 0 || wanted.order >= kOrders))
        return QStringLiteral("the order of numbering is 0 to %1").arg(kOrders - 1);
    return {};
}

bool BuildProject(CProjectData& project, const NewProject& wanted)
{
    if (!WhyNotBuildable(wanted).isEmpty())
        return false;
    project.SetToDefault();
    project.GetPrintSetData()->projectName = {!wanted.name.isEmpty(), wanted.name};
    CSender& sender = *project.NewSender();
    sender.SetSenderName(wanted.name);
    sender.SetCanvasSize(wanted.canvas);
    sender.SetOffset(QSize(0, 0));
    SetPortCountAtLeast(sender, wanted.ports);

    const int columns = wanted.grid.width() / wanted.ports;
    const int wider = wanted.grid.width() % wanted.ports;
    int column = 0;
    for (int i = 0; i < wanted.ports; ++i) {
        const int width = columns + (i < wider ? 1 : 0);
        BuildStrip(project, *sender.GetPort(i), wanted, column, width);
        column += width;
    }
    return true;
}

void SetPortCountAtLeast(CSender& sender, int ports)
{
    for (int count = ports; count <= kMaxPorts; ++count) {
        if (CSender::IsPortCountAccepted(count)) {
            sender.SetPortCount(count);
            return;
        }
    }
}

} // namespace OrvanTools
