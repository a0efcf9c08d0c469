#include "capacityoptions.h"
#include "command.h"
#include "console.h"
#include "inputfile.h"
#include "openproject.h"

#include <OrvanData/orvandata.h>
#include <orvantools/jsonwriter.h>
#include <orvantools/layoutcheck.h>
#include <orvantools/storedreceivers.h>

#include <QCommandLineParser>

#include <functional>

namespace {

using OrvanTools::Fault;
using OrvanTools::FaultKind;

constexpr int kMostOfAKind = 20; ///< lines, unless all are wanted

void AddOptions(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object with all faults.")});
    parser.addOption({QStringLiteral("all"),
                      QStringLiteral("Print all faults, not the first %1 of a kind.").arg(kMostOfAKind)});
    parser.addOption({QStringLiteral("ignore"),
                      QStringLiteral("Pass over the faults of this kind. May be given several times."),
                      QStringLiteral("KIND")});
    AddCapacityOptions(parser);
}

/// StatusDone, or the status of wrong usage when a kind is none, which was told.
int ReadIgnored(const QCommandLineParser& parser, QList<FaultKind>* ignored)
{
    const QStringList kinds = OrvanTools::FaultKindNames();
    for (const QString& name : parser.values(QStringLiteral("ignore"))) {
        const int kind = kinds.indexOf(name);
        if (kind < 0)
            return Fail(StatusUsage, QString(),
                        QStringLiteral("--ignore does not know '%1', only %2")
                            .arg(name, kinds.join(QStringLiteral(", "))));
        ignored->append(static_cast<FaultKind>(kind));
    }
    return StatusDone;
}

/// Prints faults as they are found, kind after kind.
class FaultLines
{
public:
    explicit FaultLines(bool all) : m_all(all) {}

    void Add(const Fault& fault)
    {
        if (fault.kind != m_kind)
            EndKind();
        m_kind = fault.kind;
        if (m_all || m_ofKind < kMostOfAKind)
            Print(fault.Line() + QLatin1Char('\n'));
        ++m_ofKind;
    }

    void EndKind()
    {
        if (!m_all && m_ofKind > kMostOfAKind)
            Print(QStringLiteral("… and %1 more\n").arg(m_ofKind - kMostOfAKind));
        m_ofKind = 0;
    }

private:
    bool m_all;
    FaultKind m_kind = FaultKind::Overlap;
    int m_ofKind = 0;
};

using Check = std::function<void(const std::function<void(const Fault&)>& found)>;

void PrintFaults(bool all, const Check& check)
{
    FaultLines lines(all);
    check([&lines](const Fault& fault) { lines.Add(fault); });
    lines.EndKind();
}

void PrintFaultsJson(const Check& check)
{
    OrvanTools::JsonWriter out(PrintJsonPiece);
    out.Object({}, QStringLiteral("faults"),
               [&] { check([&out](const Fault& fault) { out.Value(fault.Json()); }); });
}

QString CountLine(int faults, int ignored)
{
    QString line =
        QString::number(faults) + (faults == 1 ? QStringLiteral(" fault") : QStringLiteral(" faults"));
    if (ignored > 0)
        line += QStringLiteral(", %1 ignored").arg(ignored);
    return line + QLatin1Char('\n');
}

/// Tells all faults that are not ignored. Their number.
int TellFaults(const QCommandLineParser& parser, const OrvanTools::CheckOptions& options,
               const QList<FaultKind>& ignored)
{
    int faults = 0;
    int passedOver = 0;
    const Check check = [&](const std::function<void(const Fault&)>& found) {
        OrvanTools::CheckProject(*GetProjectData(), options, [&](const Fault& fault) {
            if (ignored.contains(fault.kind)) {
                ++passedOver;
                return;
            }
            ++faults;
            found(fault);
        });
    };
    if (parser.isSet(QStringLiteral("json"))) {
        PrintFaultsJson(check);
    } else {
        PrintFaults(parser.isSet(QStringLiteral("all")), check);
        Print(CountLine(faults, passedOver));
    }
    return faults;
}

int Run(const Invocation& invocation)
{
    OrvanTools::CheckOptions options;
    QList<FaultKind> ignored;
    if (const int status = ReadCapacity(invocation.parser, &options.capacity))
        return status;
    if (const int status = ReadIgnored(invocation.parser, &ignored))
        return status;
    const QString file = invocation.files.first();
    if (!OpenProject(file))
        return StatusFile;
    OrvanTools::StoredReceivers stored;
    options.stored = stored.Read(InputPath(file)) ? &stored : nullptr;
    if (!options.stored)
        Warn(file, QStringLiteral("its receiver numbers cannot be read and are not checked"));
    return TellFaults(invocation.parser, options, ignored) == 0 ? StatusDone : StatusFaults;
}

} // namespace

const Command kCheckCommand = {"check",    "FILE", "A project archive or a bare project document.",
                               1,          1,      "Faults that a technician would want to know of.",
                               AddOptions, Run,    false,
                               false,      true};
