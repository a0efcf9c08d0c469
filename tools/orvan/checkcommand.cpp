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

namespace {

using OrvanTools::Fault;

void AddOptions(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
    AddCapacityOptions(parser);
}

int PrintFaults(const OrvanTools::CheckOptions& options)
{
    int count = 0;
    OrvanTools::CheckProject(*GetProjectData(), options, [&count](const Fault& fault) {
        ++count;
        Print(fault.Line() + QLatin1Char('\n'));
    });
    Print(QString::number(count) + (count == 1 ? QStringLiteral(" fault\n") : QStringLiteral(" faults\n")));
    return count;
}

int PrintFaultsJson(const OrvanTools::CheckOptions& options)
{
    int count = 0;
    OrvanTools::JsonWriter out(PrintJsonPiece);
    out.Object({}, QStringLiteral("faults"), [&] {
        OrvanTools::CheckProject(*GetProjectData(), options, [&](const Fault& fault) {
            ++count;
            out.Value(fault.Json());
        });
    });
    return count;
}

int Run(const Invocation& invocation)
{
    OrvanTools::CheckOptions options;
    if (const int status = ReadCapacity(invocation.parser, &options.capacity))
        return status;
    const QString file = invocation.files.first();
    if (!OpenProject(file))
        return StatusFile;
    OrvanTools::StoredReceivers stored;
    options.stored = stored.Read(InputPath(file)) ? &stored : nullptr;
    if (!options.stored)
        Warn(file, QStringLiteral("its receiver numbers cannot be read and are not checked"));
    const bool json = invocation.parser.isSet(QStringLiteral("json"));
    const int faults = json ? PrintFaultsJson(options) : PrintFaults(options);
    return faults == 0 ? StatusDone : StatusFaults;
}

} // namespace

const Command kCheckCommand = {"check",    "FILE", "A project archive or a bare project document.",
                               1,          1,      "Faults that a technician would want to know of.",
                               AddOptions, Run,    false,
                               false,      true};
