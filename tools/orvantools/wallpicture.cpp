#include "orvantools/wallpicture.h"

#include "orvantools/backupmap.h"

#include <OrvanData/orvandata.h>

#include <QCoreApplication>
#include <QHostAddress>

#include <algorithm>

namespace OrvanTools {

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("OrvanTools", text);
}

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

std::vector<int> MakeChain(const std::vector<PictureCabinet>& cabinets)
{
    std::vector<int> chain;
    for (size_t i = 0; i < cabinets.size(); ++i) {
        if (cabinets[i].number >= 0)
            chain.push_back(static_cast<int>(i));
    }
    std::stable_sort(chain.begin(), chain.end(), [&cabinets](int a, int b) {
        return cabinets[static_cast<size_t>(a)].number < cabinets[static_cast<size_t>(b)].number;
    });
    return chain;
}

QString PortName(const CProjectData& project, const PortPlace& place, int fromSender)
{
    const QString port = Tr("port %1").arg(place.port + 1);
    return place.sender == fromSender
               ? port
               : project.GetShowSenderName(place.sender, true) + QLatin1Char(' ') + port;
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

PicturePort MakePort(const CProjectData& project, const CPort& port, const BackupMap& map, int sender)
{
    PicturePort picture;
    picture.index = port.GetPortIndex();
    picture.hidden = !port.IsVisible();
    picture.color = CConstantData::GetColorByPort(picture.index);
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
    picture.chain = MakeChain(picture.cabinets);
    picture.groups = GroupOutlines(tiles, picture.shapes).Make(port.GetTileGroupSet());

    QStringList notes;
    if (port.IsBackupDest())
        notes.append(BackupText(project, port, map, sender));
    if (picture.hidden)
        notes.append(Tr("hidden"));
    if (port.IsFlagLock())
        notes.append(Tr("locked"));
    picture.note = notes.join(QStringLiteral(", "));
    for (const PortPlace& backup : map.BackupsOf({sender, picture.index}))
        picture.backups.append(PortName(project, backup, sender));
    return picture;
}

QStringList FormLines(const SPrintFormData& form)
{
    QStringList lines;
    const auto add = [&lines](const char* label, const SPrintLine& line) {
        if (line.enable && !line.text.isEmpty())
            lines.append(Tr(label) + QStringLiteral(": ") + line.text);
    };
    add("Designer", form.designer);
    add("Design date", form.designDate);
    add("Approver", form.approver);
    add("Approve date", form.approveDate);
    return lines;
}

QString Figures(const WallPicture& picture, const QSize& canvas)
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
    if (!canvas.isEmpty())
        parts.append(Tr("canvas ") + SizeText(canvas));
    if (cabinets == 0)
        parts.append(Tr("no cabinets"));
    else
        parts.append({Tr("wall ") + SizeText(picture.bound.size().toSize()),
                      Tr(cabinets == 1 ? "%1 cabinet" : "%1 cabinets").arg(cabinets),
                      Tr(receivers == 1 ? "%1 receiver" : "%1 receivers").arg(receivers),
                      Tr(pixels == 1 ? "%1 pixel" : "%1 pixels").arg(pixels)});
    return parts.join(QStringLiteral("  ·  "));
}

} // namespace

WallPicture MakeWallPicture(const CProjectData& project, int index)
{
    const CSender& sender = *project.GetSender(index);
    const BackupMap backups(project);
    WallPicture picture;
    for (int i = 0; i < sender.GetPortCount(); ++i) {
        PicturePort port = MakePort(project, *sender.GetPort(i), backups, index);
        for (const TileShape& shape : port.shapes)
            picture.bound = picture.bound.united(shape.Bound());
        if (!port.cabinets.empty() || !port.note.isEmpty())
            picture.ports.push_back(std::move(port));
    }
    const QSize offset = sender.GetOffset() == QSize(-1, -1) ? QSize(0, 0) : sender.GetOffset();
    const QSize canvas = sender.GetCanvasSize();
    if (!canvas.isEmpty())
        picture.canvas = QRectF(-QPointF(offset.width(), offset.height()), canvas);

    const QString name = project.GetShowSenderName(index, true);
    const SPrintLine& printed = project.GetPrintSetData()->projectName;
    picture.title = printed.enable && !printed.text.isEmpty() ? printed.text : name;
    picture.senderName = Tr("Sender %1").arg(index + 1) + QStringLiteral(": ") + name;
    picture.figures = Figures(picture, canvas);
    picture.form = FormLines(*project.GetPrintSetData());
    return picture;
}

} // namespace OrvanTools
