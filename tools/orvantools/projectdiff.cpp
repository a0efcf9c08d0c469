#include "orvantools/projectdiff.h"

#include "orvantools/cabinetchange.h"
#include "orvantools/cabinetmatch.h"
#include "orvantools/groupdiff.h"
#include "orvantools/projectrows.h"

#include <OrvanData/orvandata.h>

#include <QHash>

#include <algorithm>
#include <array>
#include <functional>
#include <tuple>

namespace OrvanTools {

namespace {

constexpr int kNone = -1;

struct KindNames
{
    const char* name;
    const char* counted;
};

constexpr std::array<KindNames, 13> kKinds = {{
    {"project", "project"},
    {"sender-added", "senders added"},
    {"sender-removed", "senders removed"},
    {"sender", "senders changed"},
    {"port", "ports changed"},
    {"cabinet-added", "cabinets added"},
    {"cabinet-removed", "cabinets removed"},
    {"cabinet-moved", "cabinets moved"},
    {"cabinet-renumbered", "cabinets renumbered"},
    {"cabinet", "cabinets changed"},
    {"group", "groups"},
    {"settings", "settings"},
    {"parameter-file", "parameter files"},
}};

using TypeNames = QHash<SMD5, QString>;

/// What a digest is for a person: "P2.5 (6a68bac7)".
TypeNames NamesOfTypes(const CProjectData& project)
{
    TypeNames names;
    for (const SParameterFileInfo& file : project.GetParameterFiles()) {
        if (!file.type.IsNull())
            names.insert(file.type, file.name + QStringLiteral(" (%1)").arg(file.type.ToString().left(8)));
    }
    return names;
}

CabinetChange::TypeName NameWith(const TypeNames& names)
{
    return [&names](const SMD5& type) { return names.value(type, TypeText(type)); };
}

/// The same sender before and after.
struct SenderPair
{
    int a;
    int b;
};

/// Compares two projects. Senders, ports and cabinets count from 0 here, in differences from 1.
class Comparer
{
public:
    Comparer(const ProjectSide& a, const ProjectSide& b)
        : m_a(a), m_b(b), m_typesA(NamesOfTypes(a.project)), m_typesB(NamesOfTypes(b.project))
    {}

    std::vector<Difference> Run();

private:
    void MatchSenders();
    void Pair(int a, int b);
    void CompareSenders();
    void CompareSender(const SenderPair& sender);
    void ComparePort(const CPort* a, const CPort* b, const std::vector<CabinetPair>& pairs,
                     const SenderPair& sender, int port);
    void TellCabinets(const CabinetMatch& match, const SenderPair& sender);
    void TellPair(const CabinetPair& pair, int sender);
    void TellSender(DifferenceKind kind, const CProjectData& project, int sender);
    QString SourceText(const CProjectData& project, const CPort& port) const;

    void Add(DifferenceKind kind, int sender, int port, int cabinet, const QString& text)
    {
        m_found.push_back({{sender + 1, port + 1, cabinet + 1, text}, kind});
    }

    const ProjectSide& m_a;
    const ProjectSide& m_b;
    TypeNames m_typesA;
    TypeNames m_typesB;
    std::vector<int> m_partnerOfA; ///< senders
    std::vector<int> m_partnerOfB;
    std::vector<Difference> m_found;
};

std::vector<Difference> Comparer::Run()
{
    const auto tell = [this](DifferenceKind kind, const TextRows& a, const TextRows& b) {
        for (const QString& text : CompareRows(a, b))
            Add(kind, kNone, kNone, kNone, text);
    };
    tell(DifferenceKind::Project, ProjectRows(m_a.project), ProjectRows(m_b.project));
    CompareSenders();
    tell(DifferenceKind::Settings, SettingsRows(m_a.project, m_a.monitor),
         SettingsRows(m_b.project, m_b.monitor));
    if (!IsOtherMonitoringSame(m_a.monitor, m_b.monitor))
        Add(DifferenceKind::Settings, kNone, kNone, kNone, QStringLiteral("other monitoring settings"));
    tell(DifferenceKind::ParameterFile, ParameterFileRows(m_a.project), ParameterFileRows(m_b.project));
    std::stable_sort(m_found.begin(), m_found.end(), [](const Difference& x, const Difference& y) {
        return std::tie(x.sender, x.port, x.kind, x.cabinet) < std::tie(y.sender, y.port, y.kind, y.cabinet);
    });
    return std::move(m_found);
}

void Comparer::Pair(int a, int b)
{
    m_partnerOfA[static_cast<size_t>(a)] = b;
    m_partnerOfB[static_cast<size_t>(b)] = a;
}

/// By id, then by name, then by order.
void Comparer::MatchSenders()
{
    const int countA = m_a.project.GetSenderCount();
    const int countB = m_b.project.GetSenderCount();
    m_partnerOfA.assign(static_cast<size_t>(countA), kNone);
    m_partnerOfB.assign(static_cast<size_t>(countB), kNone);
    const std::function<QString(const CSender&)> keys[] = {
        [](const CSender& sender) { return sender.GetId().toString(); },
        [](const CSender& sender) { return sender.GetSenderName(); },
        [](const CSender&) { return QStringLiteral("any"); },
    };
    for (const auto& keyOf : keys) {
        QHash<QString, QList<int>> left;
        for (int b = 0; b < countB; ++b) {
            if (m_partnerOfB[static_cast<size_t>(b)] == kNone)
                left[keyOf(*m_b.project.GetSender(b))].append(b);
        }
        for (int a = 0; a < countA; ++a) {
            const QString key = keyOf(*m_a.project.GetSender(a));
            const auto found = left.find(key);
            if (m_partnerOfA[static_cast<size_t>(a)] == kNone && !key.isEmpty() && found != left.end()
                && !found->isEmpty())
                Pair(a, found->takeFirst());
        }
    }
}

void Comparer::CompareSenders()
{
    MatchSenders();
    int last = kNone;
    for (int b = 0; b < m_b.project.GetSenderCount(); ++b) {
        const int a = m_partnerOfB[static_cast<size_t>(b)];
        if (a == kNone) {
            TellSender(DifferenceKind::SenderAdded, m_b.project, b);
            continue;
        }
        if (a < last)
            Add(DifferenceKind::Sender, b, kNone, kNone, QStringLiteral("was sender %1 before").arg(a + 1));
        last = std::max(last, a);
        CompareSender({a, b});
    }
    for (int a = 0; a < m_a.project.GetSenderCount(); ++a) {
        if (m_partnerOfA[static_cast<size_t>(a)] == kNone)
            TellSender(DifferenceKind::SenderRemoved, m_a.project, a);
    }
}

void Comparer::TellSender(DifferenceKind kind, const CProjectData& project, int sender)
{
    const CSender& which = *project.GetSender(sender);
    int cabinets = 0;
    for (int port = 0; port < which.GetPortCount(); ++port)
        cabinets += which.GetPort(port)->GetTileSet().GetCount();
    const QString name = project.GetShowSenderName(sender, true);
    const bool added = kind == DifferenceKind::SenderAdded;
    Add(kind, sender, kNone, kNone,
        QStringList{name, Counted(which.GetPortCount(), "port"), Counted(cabinets, "cabinet"),
                    added ? QStringLiteral("added") : QStringLiteral("removed")}
            .join(QStringLiteral(", ")));
}

void Comparer::CompareSender(const SenderPair& sender)
{
    const CSender& before = *m_a.project.GetSender(sender.a);
    const CSender& after = *m_b.project.GetSender(sender.b);
    const QStringList changes = CompareRows(SenderRows(m_a.project, before), SenderRows(m_b.project, after));
    if (!changes.isEmpty())
        Add(DifferenceKind::Sender, sender.b, kNone, kNone, changes.join(QStringLiteral("; ")));
    const SenderMatch match = MatchCabinets(before, after);
    for (int port = 0; port < static_cast<int>(match.ports.size()); ++port)
        ComparePort(port < before.GetPortCount() ? before.GetPort(port) : nullptr,
                    port < after.GetPortCount() ? after.GetPort(port) : nullptr,
                    match.ports[static_cast<size_t>(port)], sender, port);
    TellCabinets(match.others, sender);
}

/// The port that a port backs up, in the numbers of b.
QString Comparer::SourceText(const CProjectData& project, const CPort& port) const
{
    if (!port.IsBackupDest())
        return QStringLiteral("none");
    const bool before = &project == &m_a.project;
    const int found = project.GetScIndexByID(port.GetBackupSrcSenderId());
    const int sender = found < 0 || !before ? found : m_partnerOfA[static_cast<size_t>(found)];
    const QString name = port.GetBackupSrcIP() != 0 ? AddressText(port.GetBackupSrcIP())
                         : sender >= 0              ? QStringLiteral("sender %1").arg(sender + 1)
                         : found >= 0               ? QStringLiteral("a removed sender")
                                                    : port.GetBackupSrcSenderId().toString();
    return QStringLiteral("of ") + name
           + QStringLiteral(" port %1").arg(qint64(port.GetBackupSrcPortIndex()) + 1);
}

/// Null stands for a port that is not in use.
void Comparer::ComparePort(const CPort* a, const CPort* b, const std::vector<CabinetPair>& pairs,
                           const SenderPair& sender, int port)
{
    if (a && b) {
        TextRows before = PortRows(*a);
        TextRows after = PortRows(*b);
        before.push_back({QStringLiteral("backup"), SourceText(m_a.project, *a)});
        after.push_back({QStringLiteral("backup"), SourceText(m_b.project, *b)});
        const QStringList changes = CompareRows(before, after);
        if (!changes.isEmpty())
            Add(DifferenceKind::Port, sender.b, port, kNone, changes.join(QStringLiteral("; ")));
    }
    for (const CabinetPair& pair : pairs)
        TellPair(pair, sender.b);
    CompareGroups(a, b, pairs, [&](const GroupDifference& difference) {
        Add(DifferenceKind::Group, difference.removed ? sender.a : sender.b, port, difference.cabinet,
            difference.text);
    });
}

void Comparer::TellCabinets(const CabinetMatch& match, const SenderPair& sender)
{
    for (const CabinetPair& pair : match.pairs)
        TellPair(pair, sender.b);
    for (const CabinetRef& cabinet : match.removed)
        Add(DifferenceKind::CabinetRemoved, sender.a, cabinet.port, cabinet.cabinet,
            QStringLiteral("removed from ") + CabinetChange::Describe(*cabinet.tile));
    for (const CabinetRef& cabinet : match.added)
        Add(DifferenceKind::CabinetAdded, sender.b, cabinet.port, cabinet.cabinet,
            QStringLiteral("added at ") + CabinetChange::Describe(*cabinet.tile));
}

void Comparer::TellPair(const CabinetPair& pair, int sender)
{
    const CabinetChange change(*pair.a.tile, *pair.b.tile);
    const auto tell = [&](DifferenceKind kind, const QString& text) {
        Add(kind, sender, pair.b.port, pair.b.cabinet, text);
    };
    if (pair.a.port != pair.b.port) {
        const QString ports =
            QStringLiteral("moved from port %1 to port %2").arg(pair.a.port + 1).arg(pair.b.port + 1);
        tell(DifferenceKind::CabinetMoved,
             change.IsRenumbered() ? ports + QStringLiteral(", ") + change.NumberText() : ports);
    } else {
        if (change.IsMoved())
            tell(DifferenceKind::CabinetMoved, QStringLiteral("moved ") + change.MoveText());
        if (change.IsRenumbered())
            tell(DifferenceKind::CabinetRenumbered, change.NumberText());
    }
    if (change.IsOther())
        tell(DifferenceKind::Cabinet, change.OtherText(NameWith(m_typesA), NameWith(m_typesB)));
}

} // namespace

QString DifferenceKindName(DifferenceKind kind)
{
    return QLatin1String(kKinds[static_cast<size_t>(kind)].name);
}

std::vector<Difference> CompareProjects(const ProjectSide& a, const ProjectSide& b)
{
    return Comparer(a, b).Run();
}

QString CountDifferences(const std::vector<Difference>& differences)
{
    std::array<int, kKinds.size()> counts = {};
    for (const Difference& difference : differences)
        ++counts[static_cast<size_t>(difference.kind)];
    QStringList words;
    for (size_t kind = 0; kind < kKinds.size(); ++kind) {
        if (counts[kind] > 0)
            words.append(QLatin1String(kKinds[kind].counted) + QStringLiteral(" %1").arg(counts[kind]));
    }
    if (words.isEmpty())
        return {};
    return Counted(static_cast<qint64>(differences.size()), "difference") + QStringLiteral(": ")
           + words.join(QStringLiteral(", "));
}

} // namespace OrvanTools
