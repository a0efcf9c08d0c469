#include "orvantools/layoutcheck.h"

#include "orvantools/backupmap.h"
#include "orvantools/cabinetchain.h"
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

/// Numbers as the host shows them, from 1. A file may hold any number.
qint64 Shown(int number)
{
    return qint64(number) + 1;
}

QString PortAndCabinet(int port, int cabinet)
{
    return QStringLiteral("port %1 cabinet %2").arg(port + 1).arg(cabinet + 1);
}

/// Looks at one project. Senders, ports and cabinets count from 0 here, faults from 1.
class Checker
{
public:
    Checker(const CProjectData& project, const CheckOptions& options,
            const std::function<void(const Fault&)>& found)
        : m_project(project), m_options(options), m_found(found), m_backups(project)
    {}

    void Run();

private:
    using Check = void (Checker::*)();

    void OverSenders(Check check);
    void OverPorts(Check check);
    void OverOwnLayouts(Check check); ///< of all ports but the backups
    void Tell();

    void CheckOverlaps();
    void CheckPlaces();
    void CheckChain();
    void CheckReceivers();
    void CheckTypes();
    void CheckParameterFiles();
    void CheckGroups();
    void CheckBackup();
    void CheckLoad();

    const CPort& Port() const { return *m_project.GetSender(m_sender)->GetPort(m_port); }
    const CTileSet& Tiles() const { return Port().GetTileSet(); }
    void Add(FaultKind kind, int cabinet, const QString& text)
    {
        m_faults.push_back({{m_sender + 1, m_port + 1, cabinet + 1, text}, kind});
    }

    static constexpr int kNoCabinet = -1;

    const CProjectData& m_project;
    const CheckOptions& m_options;
    const std::function<void(const Fault&)>& m_found;
    BackupMap m_backups;
    QSet<SMD5> m_types;
    std::vector<Fault> m_faults; ///< not told yet
    int m_sender = 0;
    int m_port = 0;
};

/// Faults are told kind after kind, so that a large wall does not need memory for all of them.
void Checker::Run()
{
    for (const SParameterFileInfo& file : m_project.GetParameterFiles())
        m_types.insert(file.type);
    OverSenders(&Checker::CheckOverlaps);
    OverOwnLayouts(&Checker::CheckPlaces);
    OverOwnLayouts(&Checker::CheckChain);
    OverOwnLayouts(&Checker::CheckReceivers);
    OverOwnLayouts(&Checker::CheckTypes);
    CheckParameterFiles();
    Tell();
    OverOwnLayouts(&Checker::CheckGroups);
    OverPorts(&Checker::CheckBackup);
    OverOwnLayouts(&Checker::CheckLoad);
}

void Checker::OverSenders(Check check)
{
    for (m_sender = 0; m_sender < m_project.GetSenderCount(); ++m_sender)
        (this->*check)();
    Tell();
}

void Checker::OverPorts(Check check)
{
    for (m_sender = 0; m_sender < m_project.GetSenderCount(); ++m_sender) {
        for (m_port = 0; m_port < m_project.GetSender(m_sender)->GetPortCount(); ++m_port)
            (this->*check)();
    }
    Tell();
}

void Checker::OverOwnLayouts(Check check)
{
    for (m_sender = 0; m_sender < m_project.GetSenderCount(); ++m_sender) {
        for (m_port = 0; m_port < m_project.GetSender(m_sender)->GetPortCount(); ++m_port) {
            if (!Port().IsBackupDest())
                (this->*check)();
        }
    }
    Tell();
}

void Checker::Tell()
{
    std::stable_sort(m_faults.begin(), m_faults.end(), [](const Fault& a, const Fault& b) {
        return std::tie(a.kind, a.sender, a.port, a.cabinet) < std::tie(b.kind, b.sender, b.port, b.cabinet);
    });
    for (const Fault& fault : m_faults)
        m_found(fault);
    m_faults.clear();
}

void Checker::CheckOverlaps()
{
    std::vector<TileShape> shapes;
    std::vector<std::pair<int, int>> places; // port and cabinet
    for (m_port = 0; m_port < m_project.GetSender(m_sender)->GetPortCount(); ++m_port) {
        for (int i = 0; !Port().IsBackupDest() && i < Tiles().GetCount(); ++i) {
            shapes.push_back(ShapeOf(*Tiles().GetTile(i)));
            places.emplace_back(m_port, i);
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

bool IsWithin(const QRectF& bound, const QRectF& area, double allowed)
{
    return bound.left() >= area.left() - allowed && bound.top() >= area.top() - allowed
           && bound.right() <= area.right() + allowed && bound.bottom() <= area.bottom() + allowed;
}

void Checker::CheckPlaces()
{
    constexpr double rounding = 1; // of turned corners
    const CSender& sender = *m_project.GetSender(m_sender);
    const QPointF offset = OffsetOf(sender);
    const QSize size = sender.GetCanvasSize();
    const QRectF limits(0, 0, kMaxCanvasWidth, kMaxCanvasHeight);
    const QRectF canvas = size.isEmpty() ? limits : QRectF(QPointF(), size);
    const QString beyond = QStringLiteral("off-canvas: outside the largest canvas");
    const QString outside =
        QStringLiteral("off-canvas: outside the canvas of %1x%2").arg(size.width()).arg(size.height());
    for (int i = 0; i < Tiles().GetCount(); ++i) {
        const CTile& tile = *Tiles().GetTile(i);
        const TileShape shape = ShapeOf(tile);
        const QRectF bound = shape.Bound().translated(offset);
        const double allowed = shape.IsTurned() ? rounding : 0;
        if (PixelsOf(tile) == 0)
            continue;
        if (!IsWithin(bound, limits, allowed))
            Add(FaultKind::OffCanvas, i, beyond);
        else if (!IsWithin(bound, canvas, allowed))
            Add(FaultKind::OffCanvas, i, outside);
    }
}

void Checker::CheckChain()
{
    const CTileSet& tiles = Tiles();
    for (int i = 0; i < tiles.GetCount(); ++i) {
        if (!tiles.GetTile(i)->HasSetConnectIndex())
            Add(FaultKind::Unnumbered, i, QStringLiteral("unnumbered: not in the chain"));
    }
    const std::vector<ChainLink> chain = ChainOf(tiles);
    for (size_t i = 0; i < chain.size(); ++i) {
        const int before = i == 0 ? -1 : chain[i - 1].number;
        const auto [number, cabinet] = chain[i];
        const bool again = i > 0 && before == number;
        const bool once = !again && (i + 1 == chain.size() || chain[i + 1].number != number);
        if (!once)
            Add(FaultKind::DuplicateIndex, cabinet,
                QStringLiteral("duplicate-index: number %1, as cabinet %2")
                    .arg(Shown(number))
                    .arg((again ? chain[i - 1] : chain[i + 1]).cabinet + 1));
        if (number > Shown(before))
            Add(FaultKind::IndexGap, cabinet,
                before < 0 ? QStringLiteral("index-gap: the chain begins with number %1").arg(Shown(number))
                           : QStringLiteral("index-gap: number %1 follows %2")
                                 .arg(Shown(number))
                                 .arg(Shown(before)));
    }
}

void Checker::CheckReceivers()
{
    const CTileSet& tiles = Tiles();
    if (!m_options.stored)
        return;
    const std::vector<int> stored = m_options.stored->OfPort(m_sender, m_port);
    if (static_cast<int>(stored.size()) != tiles.GetCount())
        return; // the file states other cabinets than it holds; reading it said so
    qint64 receivers = 0;
    for (const ChainLink& link : ChainOf(tiles)) {
        const int cabinet = link.cabinet;
        if (stored[static_cast<size_t>(cabinet)] != receivers)
            Add(FaultKind::ReceiverMismatch, cabinet,
                QStringLiteral(
                    "receiver-mismatch: the file begins with receiving card %1, the wiring with %2")
                    .arg(Shown(stored[static_cast<size_t>(cabinet)]))
                    .arg(receivers + 1));
        receivers += tiles.GetTile(cabinet)->GetMultiRcvsCount();
    }
}

void Checker::CheckTypes()
{
    for (int i = 0; i < Tiles().GetCount(); ++i) {
        const SMD5 type = Tiles().GetTile(i)->GetType();
        if (!type.IsNull() && !m_types.contains(type))
            Add(FaultKind::UnknownType, i,
                QStringLiteral("unknown-type: no parameter file for ") + type.ToString());
    }
}

void Checker::CheckGroups()
{
    QMap<QUuid, CTileGroup*> groups;
    Port().GetTileGroupSet().GetGroupListRecursive(groups);
    for (int i = 0; i < Tiles().GetCount(); ++i) {
        const QUuid group = Tiles().GetTile(i)->GetGroupId();
        if (!group.isNull() && !groups.contains(group))
            Add(FaultKind::OrphanGroup, i,
                QStringLiteral("orphan-group: the port has no group ") + group.toString());
    }
}

void Checker::CheckBackup()
{
    const PortPlace place{m_sender, m_port};
    if (Port().IsBackupDest() && !m_backups.SourceOf(place))
        Add(FaultKind::BackupOfNothing, kNoCabinet,
            QStringLiteral("backup-of-nothing: the port backed up does not exist"));
    if (m_backups.IsInLoop(place))
        Add(FaultKind::BackupLoop, kNoCabinet, QStringLiteral("backup-loop: in the end it backs up itself"));
}

void Checker::CheckLoad()
{
    const qint64 pixels = PixelsOf(Tiles());
    const PortCapacity capacity = m_options.atOwnRate
                                      ? CapacityOf(*m_project.GetSender(m_sender), m_options.capacity)
                                      : m_options.capacity;
    if (pixels > capacity.Carried())
        Add(FaultKind::PortOverload, kNoCabinet,
            QStringLiteral("port-overload: %1 pixels, the port carries %2 (%3)")
                .arg(QString::number(pixels), QString::number(capacity.Carried()),
                     capacity.PercentText(pixels)));
}

void Checker::CheckParameterFiles()
{
    const CProductDirectorySet* products = GetRuntimeData()->GetProductDirectorySet();
    for (const SParameterFileInfo& file : m_project.GetParameterFiles()) {
        const QString path = CConstantData::GetProjectParamFileTemp() + file.name + QStringLiteral(".rcvbp");
        const bool there = QFileInfo(path).isFile() && CConstantData::GetMD5FromFile(path) == file.type;
        if (!there && !products->FindProductFromGuid(file.type))
            m_faults.push_back(
                {{0, 0, 0,
                  QStringLiteral("missing-parameter-file: %1, ").arg(file.name) + file.type.ToString()},
                 FaultKind::MissingParameterFile});
    }
}

} // namespace

QString FaultKindName(FaultKind kind)
{
    return QLatin1String(kKindNames[static_cast<size_t>(kind)]);
}

QStringList FaultKindNames()
{
    QStringList names;
    for (const char* name : kKindNames)
        names.append(QLatin1String(name));
    return names;
}

void CheckProject(const CProjectData& project, const CheckOptions& options,
                  const std::function<void(const Fault&)>& found)
{
    Checker(project, options, found).Run();
}

QList<Fault> CheckProject(const CProjectData& project, const CheckOptions& options)
{
    QList<Fault> faults;
    CheckProject(project, options, [&faults](const Fault& fault) { faults.append(fault); });
    return faults;
}

} // namespace OrvanTools
