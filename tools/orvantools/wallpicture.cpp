#include "orvantools/wallpicture.h"

#include "orvantools/backupmap.h"
#include "orvantools/cabinetchain.h"
#include "orvantools/printable.h"
#include "orvantools/words.h"

#include <OrvanData/orvandata.h>

#include <QHostAddress>

#include <algorithm>

namespace OrvanTools {

namespace {

constexpr int kLongestName = 24; ///< of a sender, in a note about another one's port

QString SizeText(const QSize& size)
{
    return QString::number(size.width()) + QStringLiteral(" × ") + QString::number(size.height());
}

std::vector<QRectF> ReceiverParts(CTile& tile)
{
    std::vector<QRectF> parts;
    const int count = std::min(tile.GetMultiRcvsCount(), kMaxReceiversInTile);
    if (count <= 1 || tile.GetSize().isEmpty())
        return parts;
    for (int i = 0; i < count; ++i) {
        const QRectF part = tile.GetMultiRcvRelativeRect(i);
        parts.emplace_back(part.x() / tile.GetWidth(), part.y() / tile.GetHeight(),
                           part.width() / tile.GetWidth(), part.height() / tile.GetHeight());
    }
    return parts;
}

PictureCabinet MakeCabinet(CTile& tile)
{
    return {tile.HasSetConnectIndex() ? tile.GetConnectionIndex() : -1, tile.GetBeginRcvCnnt(),
            ReceiverParts(tile)};
}

QString PortName(const CProjectData& project, const PortPlace& place, int fromSender)
{
    const QString port = Tr("port %1").arg(place.port + 1);
    if (place.sender == fromSender)
        return port;
    const QString name = Printable(project.GetShowSenderName(place.sender, true));
    // A long name would leave no room for the port.
    return (name.size() > kLongestName ? Tr("sender %1").arg(place.sender + 1) : name) + QLatin1Char(' ')
           + port;
}

QString BackupText(const CProjectData& project, const CPort& port, const BackupMap& map, int sender)
{
    const auto source = map.SourceOf({sender, port.GetPortIndex()});
    if (source)
        return Tr("backup of ") + PortName(project, *source, sender);
    if (port.GetBackupSrcIP() == 0)
        return Tr("backup of a port that does not exist");
    return Tr("backup of ") + QHostAddress(static_cast<quint32>(port.GetBackupSrcIP())).toString()
           + QLatin1Char(' ') + Tr("port %1").arg(qint64(port.GetBackupSrcPortIndex()) + 1);
}

/// Whether no port of a sender has cabinets but for those that back up others.
bool IsBackupOnly(const CSender& sender)
{
    bool isAnyBackup = false;
    for (int i = 0; i < sender.GetPortCount(); ++i) {
        const CPort& port = *sender.GetPort(i);
        if (!port.IsBackupDest() && port.GetTileSet().GetCount() > 0)
            return false;
        isAnyBackup = isAnyBackup || port.IsBackupDest();
    }
    return isAnyBackup;
}

void AddCabinets(PicturePort& picture, const CPort& port)
{
    const CTileSet& tiles = port.GetTileSet();
    picture.cabinets.reserve(static_cast<size_t>(tiles.GetCount()));
    picture.shapes.reserve(static_cast<size_t>(tiles.GetCount()));
    for (int i = 0; i < tiles.GetCount(); ++i) {
        CTile& tile = *tiles.GetTile(i);
        picture.shapes.push_back(ShapeOf(tile));
        picture.cabinets.push_back(MakeCabinet(tile));
        picture.pixels += PixelsOf(tile);
    }
    picture.receivers = tiles.GetRcvCount();
    for (const ChainLink& link : ChainOf(tiles))
        picture.chain.push_back(link.cabinet);
    picture.groups = GroupOutlines(tiles, picture.shapes).Make(port.GetTileGroupSet());
}

void AddNotes(PicturePort& picture, const CProjectData& project, const CPort& port, const BackupMap& map,
              int sender)
{
    if (port.IsBackupDest())
        picture.backupOf = BackupText(project, port, map, sender);
    QStringList notes;
    if (!picture.backupOf.isEmpty())
        notes.append(picture.backupOf);
    if (picture.hidden)
        notes.append(Tr("hidden"));
    if (port.IsFlagLock())
        notes.append(Tr("locked"));
    for (const PortPlace& backup : map.BackupsOf({sender, picture.index}))
        picture.backups.append(PortName(project, backup, sender));
    if (!picture.backups.isEmpty())
        notes.append(Tr("backup: ") + picture.backups.join(QStringLiteral(", ")));
    picture.note = notes.join(QStringLiteral(", "));
}

void Mirror(PicturePort& port)
{
    for (TileShape& shape : port.shapes)
        shape = shape.Mirrored();
    for (PictureCabinet& cabinet : port.cabinets) {
        for (QRectF& part : cabinet.receivers)
            part.moveLeft(1 - part.right());
    }
    const auto mirror = [](const QPointF& point) { return QPointF(-point.x(), point.y()); };
    for (GroupOutline& outline : port.groups) {
        for (BorderLine& border : outline.lines)
            border = {QLineF(mirror(border.line.p1()), mirror(border.line.p2())), mirror(border.inward)};
    }
}

QStringList FormLines(const SPrintFormData& form)
{
    QStringList lines;
    const auto add = [&lines](const char* label, const SPrintLine& line) {
        if (line.enable && !line.text.isEmpty())
            lines.append(Tr(label) + QStringLiteral(": ") + Printable(line.text));
    };
    add("Designer", form.designer);
    add("Design date", form.designDate);
    add("Approver", form.approver);
    add("Approve date", form.approveDate);
    return lines;
}

QString Figures(const WallPicture& picture)
{
    qint64 pixels = 0;
    qint64 cabinets = 0;
    qint64 receivers = 0;
    for (const PicturePort& port : picture.ports) {
        pixels += port.pixels;
        cabinets += static_cast<qint64>(port.cabinets.size());
        receivers += port.receivers;
    }
    QStringList parts;
    if (!picture.canvas.isEmpty())
        parts.append(Tr("canvas ") + SizeText(picture.canvas.size().toSize()));
    if (cabinets == 0)
        parts.append(Tr("no cabinets"));
    else
        parts.append({Tr("wall ") + SizeText(picture.bound.size().toSize()),
                      Counted(cabinets, "%1 cabinet", "%1 cabinets"),
                      Counted(receivers, "%1 receiver", "%1 receivers"),
                      Counted(pixels, "%1 pixel", "%1 pixels")});
    return Joined(parts);
}

/// In the coordinates of the sender's cabinets.
QRectF CanvasOf(const CSender& sender, bool isRear)
{
    if (sender.GetCanvasSize().isEmpty())
        return QRectF();
    QRectF canvas(-OffsetOf(sender), sender.GetCanvasSize());
    if (isRear)
        canvas.moveLeft(-canvas.right());
    return canvas;
}

void AddTexts(WallPicture& picture, const CProjectData& project, int index, const PictureOptions& options)
{
    picture.title = TitleOf(project, index);
    picture.senderName =
        Tr("Sender %1").arg(index + 1) + QStringLiteral(": ") + project.GetShowSenderName(index, true);
    QStringList view;
    if (picture.isBackup)
        view.append(Tr("backup"));
    if (options.port >= 0)
        view.append(Tr("port %1").arg(options.port + 1));
    if (options.rear)
        view.append(Tr("rear view"));
    picture.view = Joined(view);
    picture.figures = Figures(picture);
    picture.form = FormLines(*project.GetPrintSetData());
}

} // namespace

QString TitleOf(const CProjectData& project, int sender)
{
    const SPrintLine& printed = project.GetPrintSetData()->projectName;
    return Printable(printed.enable && !printed.text.isEmpty() ? printed.text
                                                               : project.GetShowSenderName(sender, true));
}

WallPicture MakeWallPicture(const CProjectData& project, int index, const PictureOptions& options)
{
    const CSender& sender = *project.GetSender(index);
    const BackupMap backups(project);
    const bool isBackupOnly = IsBackupOnly(sender);
    const PortCapacity capacity = options.atOwnRate ? CapacityOf(sender, options.capacity) : options.capacity;
    int canvasFrom = index;
    WallPicture picture;
    picture.isRear = options.rear;
    picture.isBackup = isBackupOnly;
    for (int i = 0; i < sender.GetPortCount(); ++i) {
        if (options.port >= 0 && i != options.port)
            continue;
        const CPort& port = *sender.GetPort(i);
        const PortPlace shown = isBackupOnly ? backups.OriginalOf({index, i}) : PortPlace{index, i};
        PicturePort made;
        made.index = i;
        made.hidden = !port.IsVisible();
        made.color = CConstantData::GetColorByPort(i);
        AddCabinets(made, *project.GetSender(shown.sender)->GetPort(shown.port));
        AddNotes(made, project, port, backups, index);
        if (!port.IsBackupDest())
            made.load = capacity.PercentText(made.pixels);
        if (made.cabinets.empty() && made.note.isEmpty())
            continue;
        if (options.rear)
            Mirror(made);
        if (picture.bound.isEmpty())
            canvasFrom = shown.sender;
        for (const TileShape& shape : made.shapes)
            picture.bound = picture.bound.united(shape.Bound());
        picture.ports.push_back(std::move(made));
    }
    picture.canvas = CanvasOf(*project.GetSender(canvasFrom), options.rear);
    AddTexts(picture, project, index, options);
    return picture;
}

} // namespace OrvanTools
