#include "command.h"
#include "console.h"
#include "openproject.h"

#include <OrvanData/orvandata.h>
#include <orvantools/layoutcheck.h>
#include <orvantools/storedreceivers.h>

#include <QCommandLineParser>
#include <QJsonArray>

namespace {

using OrvanTools::Fault;

void AddOptions(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
    parser.addOption({QStringLiteral("port-pixels"), QStringLiteral("Pixels that one port carries."),
                      QStringLiteral("N"), QStringLiteral("655360")});
}

void PrintFaults(const QList<Fault>& faults)
{
    QString text;
    for (const Fault& fault : faults)
        text += fault.Line() + QLatin1Char('\n');
    Print(text
          + QStringLiteral("%1 %2\n")
                .arg(faults.size())
                .arg(faults.size() == 1 ? QStringLiteral("fault") : QStringLiteral("faults")));
}

void PrintFaultsJson(const QList<Fault>& faults)
{
    QJsonArray list;
    for (const Fault& fault : faults)
        list.append(fault.Json());
    PrintJson({{QStringLiteral("faults"), list}});
}

int Run(const Invocation& invocation)
{
    int portPixels = 0;
    if (!ParseNumber(invocation.parser.value(QStringLiteral("port-pixels")), &portPixels))
        return Fail(StatusUsage, QString(), QStringLiteral("--port-pixels takes a number"));
    const QString file = invocation.files.first();
    if (!OpenProject(file))
        return StatusFile;
    OrvanTools::StoredReceivers stored;
    OrvanTools::CheckOptions options;
    options.portPixels = portPixels;
    options.stored = stored.Read(file) ? &stored : nullptr;
    if (!options.stored)
        Warn(file, QStringLiteral("its receiver numbers cannot be read and are not checked"));
    const QList<Fault> faults = OrvanTools::CheckProject(*GetProjectData(), options);
    if (invocation.parser.isSet(QStringLiteral("json")))
        PrintFaultsJson(faults);
    else
        PrintFaults(faults);
    return faults.isEmpty() ? StatusDone : StatusFaults;
}

} // namespace

const Command kCheckCommand = {"check",    "FILE", "A project archive or a bare project document.",
                               1,          1,      "Faults that a technician would want to know of.",
                               AddOptions, Run,    false,
                               false};
