#include "orvantools/layoutcheck.h"

#include "orvantools/backupmap.h"
#include "orvantools/overlapfinder.h"
#include "orvantools/storedreceivers.h"

#include <OrvanData/orvandata.h>

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <array>
#include <tuple>

namespace OrvanTools {

namespace {

constexpr std::array<const char*, 12> kKindNames = {
    "overlap",      "off-canvas",        "unnumbered",   "duplicate-index",
    "index-gap",    "receiver-mismatch", "unknown-type", "missing-parameter-file",
    "orphan-group", "backup-of-nothing", "backup-loop",  "port-overload",
};

QString PortAndCabinet(int port, int cabinet)
{
    return QStringLiteral("port %1 cabinet %2").arg(port + 1).arg(cabinet + 1);
}

/// Looks at one project. Senders, ports and cabinets count from 0 here, faults from 1.
class Checker
{
public:
    Checker(const CProjectData& project, const CheckOptions& options)
        : m_project(project), m_options(options), m_backups(project)
    {}

    QList<Fault> Run();

private:
    void CheckSender();
    void CheckOverlaps();
    void CheckPlaces();
    void CheckPort();
    void CheckChain(const CTileSet& tiles);
    void CheckReceivers(const CTileSet& tiles);
    void CheckTypesAndGroups(const CPort& port);
    void CheckBackup(const CPort& port);
    void CheckLoad(const CTileSet& tiles);
    void CheckParameterFiles();

    const CTileSet& Tiles(int port) const
    {
        return *m_project.GetSender(m_sender)->GetPort(port)->GetPortProject()->GetTileSet();
    }
    bool IsOwnLayoutShown(int port) const
    {
        return !m_project.GetSender(m_sender)->GetPort(port)->IsBackupDest();
    }
    void Add(FaultKind kind, int cabinet, const QString& text)
    {
        m_faults.append({kind, m_sender + 1, m_port + 1, cabinet + 1, text});
    }

    static constexpr int kNoCabinet = -1;

    const CProjectData& m_project;
    const CheckOptions& m_options;
    BackupMap m_backups;
    QSet<SMD5> m_types;
    QList<Fault> m_faults;
    int m_sender = 0;
    int m_port = 0;
};

QList<Fault> Checker::Run()
{
    for (const SParameterFileInfo& file : m_project.GetParameterFiles())
        m_types.insert(file.type);
    for (m_sender = 0; m_sender < m_project.GetSenderCount(); ++m_sender)
        CheckSender();
    CheckParameterFiles();
    std::stable_sort(m_faults.begin(), m_faults.end(), [](const Fault& a, const Fault& b) {
        return std::tie(a.kind, a.sender, a.port, a.cabinet) < std::tie(b.kind, b.sender, b.port, b.cabinet);
    });
    return m_faults;
}

void Checker::CheckSender()
{
    CheckOverlaps();
    CheckPlaces();
    for (m_port = 0; m_port < m_project.GetSender(m_sender)->GetPortCount(); ++m_port)
        CheckPort();
}

void Checker::CheckOverlaps()
{
    std::vector<TileShape> shapes;
    std::vector<std::pair<int, int>> places; // port and cabinet
    for (int port = 0; port < m_project.GetSender(m_sender)->GetPortCount(); ++port) {
        if (!IsOwnLayoutShown(port))
            continue;
        for (int i = 0; i < Tiles(port).GetCount(); ++i) {
            shapes.push_back(ShapeOf(*Tiles(port).GetTile(i)));
            places.emplace_back(port, i);
        }
    }
    const OverlapFinder finder(shapes);
    for (size_t i = 0; i < shapes.size(); ++i) {
        const int partner = finder.GetPartner(i);
        if (partner == OverlapFinder::kNone)
            continue;
        const auto [port, cabinet] = places[static_cast<size_t>(partner)];
        m_port = places[i].first;
        Add(FaultKind::Overlap, places[i].second,
            QStringLiteral("overlap with ") + PortAndCabinet(port, cabinet));
    }
}

void Checker::CheckPlaces()
{
    const CSender& sender = *m_project.GetSender(m_sender);
    // A sender that nobody has placed yet has the offset (-1, -1), one without a canvas the size (-1, -1).
    const QSize offset = sender.GetOffset() == QSize(-1, -1) ? QSize(0, 0) : sender.GetOffset();
    const QRectF limits(0, 0, kMaxCanvasWidth, kMaxCanvasHeight);
    const QRectF canvas =
        sender.GetCanvasSize().isEmpty() ? limits : QRectF(QPointF(), sender.GetCanvasSize());
    constexpr double rounding = 1; // of turned corners
    for (m_port = 0; m_port < sender.GetPortCount(); ++m_port) {
        for (int i = 0; IsOwnLayoutShown(m_port) && i < Tiles(m_port).GetCount(); ++i) {
            const TileShape shape = ShapeOf(*Tiles(m_port).GetTile(i));
            QRectF bound = shape.Bound().translated(offset.width(), offset.height());
            if (shape.IsTurned())
                bound.adjust(rounding, rounding, -rounding, -rounding);
            if (!limits.contains(bound))
                Add(FaultKind::OffCanvas, i, QStringLiteral("off-canvas: beyond the largest canvas"));
            else if (!canvas.contains(bound))
                Add(FaultKind::OffCanvas, i,
                    QStringLiteral("off-canvas: outside the canvas of %1x%2")
                        .arg(sender.GetCanvasSize().width())
                        .arg(sender.GetCanvasSize().height()));
        }
    }
}

void Checker::CheckPort()
{
    const CPort& port = *m_project.GetSender(m_sender)->GetPort(m_port);
    CheckBackup(port);
    if (!IsOwnLayoutShown(m_port))
        return;
    const CTileSet& tiles = *port.GetPortProject()->GetTileSet();
    CheckChain(tiles);
    CheckReceivers(tiles);
    CheckTypesAndGroups(port);
    CheckLoad(tiles);
}

/// The numbered cabinets, by number and then by place.
std::vector<std::pair<int, int>> ChainOf(const CTileSet& tiles)
{
    std::vector<std::pair<int, int>> chain;
    for (int i = 0; i < tiles.GetCount(); ++i) {
        if (tiles.GetTile(i)->HasSetConnectIndex())
            chain.emplace_back(tiles.GetTile(i)->GetConnectionIndex(), i);
    }
    std::sort(chain.begin(), chain.end());
    return chain;
}

void Checker::CheckChain(const CTileSet& tiles)
{
    for (int i = 0; i < tiles.GetCount(); ++i) {
        if (!tiles.GetTile(i)->HasSetConnectIndex())
            Add(FaultKind::Unnumbered, i, QStringLiteral("unnumbered: not in the chain"));
    }
    const auto chain = ChainOf(tiles);
    for (size_t i = 0; i < chain.size(); ++i) {
        const int before = i == 0 ? -1 : chain[i - 1].first;
        const auto [number, cabinet] = chain[i];
        const bool again = i > 0 && before == number;
        const bool once = !again && (i + 1 == chain.size() || chain[i + 1].first != number);
        if (!once)
            Add(FaultKind::DuplicateIndex, cabinet,
                QStringLiteral("duplicate-index: number %1, as cabinet %2")
                    .arg(number + 1)
                    .arg((again ? chain[i - 1] : chain[i + 1]).second + 1));
        if (number > before + 1)
            Add(FaultKind::IndexGap, cabinet,
                before < 0
                    ? QStringLiteral("index-gap: the chain begins with number %1").arg(number + 1)
                    : QStringLiteral("index-gap: number %1 follows %2").arg(number + 1).arg(before + 1));
    }
}

void Checker::CheckReceivers(const CTileSet& tiles)
{
    if (!m_options.stored)
        return;
    const std::vector<int> stored = m_options.stored->OfPort(m_sender, m_port);
    if (static_cast<int>(stored.size()) != tiles.GetCount())
        return; // the file states other cabinets than it holds; reading it said so
    int receivers = 0;
    for (const auto& link : ChainOf(tiles)) {
        const int cabinet = link.second;
        if (stored[static_cast<size_t>(cabinet)] != receivers)
            Add(FaultKind::ReceiverMismatch, cabinet,
                QStringLiteral("receiver-mismatch: the file has first receiver %1, the wiring gives %2")
                    .arg(stored[static_cast<size_t>(cabinet)])
                    .arg(receivers));
        receivers += tiles.GetTile(cabinet)->GetMultiRcvsCount();
    }
}

void Checker::CheckTypesAndGroups(const CPort& port)
{
    QMap<QUuid, CTileGroup*> groups;
    port.GetPortProject()->GetTileGroupSet()->GetGroupListRecursive(groups);
    const CTileSet& tiles = *port.GetPortProject()->GetTileSet();
    for (int i = 0; i < tiles.GetCount(); ++i) {
        const CTile& tile = *tiles.GetTile(i);
        if (!tile.GetType().IsNull() && !m_types.contains(tile.GetType()))
            Add(FaultKind::UnknownType, i,
                QStringLiteral("unknown-type: no parameter file for ") + tile.GetType().ToString());
        if (!tile.GetGroupId().isNull() && !groups.contains(tile.GetGroupId()))
            Add(FaultKind::OrphanGroup, i,
                QStringLiteral("orphan-group: the port has no group ") + tile.GetGroupId().toString());
    }
}

void Checker::CheckBackup(const CPort& port)
{
    const PortPlace place{m_sender, m_port};
    if (port.IsBackupDest() && !m_backups.SourceOf(place))
        Add(FaultKind::BackupOfNothing, kNoCabinet,
            QStringLiteral("backup-of-nothing: the port backed up does not exist"));
    if (m_backups.IsInLoop(place))
        Add(FaultKind::BackupLoop, kNoCabinet, QStringLiteral("backup-loop: in the end it backs up itself"));
}

void Checker::CheckLoad(const CTileSet& tiles)
{
    qint64 pixels = 0;
    for (int i = 0; i < tiles.GetCount(); ++i)
        pixels += qint64(tiles.GetTile(i)->GetWidth()) * tiles.GetTile(i)->GetHeight();
    if (pixels > m_options.portPixels)
        Add(FaultKind::PortOverload, kNoCabinet,
            QStringLiteral("port-overload: %1 pixels, the port carries %2")
                .arg(pixels)
                .arg(m_options.portPixels));
}

void Checker::CheckParameterFiles()
{
    const CProductDirectorySet* products = GetRuntimeData()->GetProductDirectorySet();
    for (const SParameterFileInfo& file : m_project.GetParameterFiles()) {
        const QString path = CConstantData::GetProjectParamFileTemp() + file.name + QStringLiteral(".rcvbp");
        const bool there = QFileInfo(path).isFile() && CConstantData::GetMD5FromFile(path) == file.type;
        if (!there && !products->FindProductFromGuid(file.type))
            m_faults.append(
                {FaultKind::MissingParameterFile, 0, 0, 0,
                 QStringLiteral("missing-parameter-file: %1, ").arg(file.name) + file.type.ToString()});
    }
}

} // namespace

QString FaultKindName(FaultKind kind)
{
    return QLatin1String(kKindNames[static_cast<size_t>(kind)]);
}

QString Fault::Line() const
{
    QString line;
    const auto place = [&line](const char* name, int number) {
        if (number > 0)
            line += (line.isEmpty() ? QString() : QStringLiteral(" ")) + QLatin1String(name)
                    + QString::number(number);
    };
    place("sender ", sender);
    place("port ", port);
    place("cabinet ", cabinet);
    return line.isEmpty() ? text : line + QStringLiteral(": ") + text;
}

QJsonObject Fault::Json() const
{
    return {{QStringLiteral("kind"), FaultKindName(kind)},
            {QStringLiteral("sender"), sender},
            {QStringLiteral("port"), port},
            {QStringLiteral("cabinet"), cabinet},
            {QStringLiteral("text"), text}};
}

QList<Fault> CheckProject(const CProjectData& project, const CheckOptions& options)
{
    return Checker(project, options).Run();
}

} // namespace OrvanTools
