#include "command.h"
#include "console.h"
#include "openproject.h"

#include <OrvanData/orvandata.h>
#include <orvantools/jsonwriter.h>
#include <orvantools/projectdiff.h>

#include <QCommandLineParser>

namespace {

using OrvanTools::Difference;

void AddOptions(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
}

void PrintLines(const std::vector<Difference>& differences)
{
    if (differences.empty())
        return;
    Print(OrvanTools::CountDifferences(differences) + QLatin1Char('\n'));
    for (const Difference& difference : differences)
        Print(difference.Line() + QLatin1Char('\n'));
}

int Run(const Invocation& invocation)
{
    CProjectData before;
    if (!OpenProject(invocation.files.at(0), before))
        return StatusFile;
    const CMonitorInterfaceData monitorBefore = GetMonitorData()->GetInterfaceData();
    CProjectData after;
    if (!OpenProject(invocation.files.at(1), after))
        return StatusFile;
    const CMonitorInterfaceData monitorAfter = GetMonitorData()->GetInterfaceData();

    const std::vector<Difference> differences =
        OrvanTools::CompareProjects({before, monitorBefore}, {after, monitorAfter});
    if (invocation.parser.isSet(QStringLiteral("json"))) {
        OrvanTools::JsonWriter out(PrintJsonPiece);
        out.Object({}, QStringLiteral("differences"), [&] {
            for (const Difference& difference : differences)
                out.Value(difference.Json());
        });
    } else {
        PrintLines(differences);
    }
    return differences.empty() ? StatusDone : StatusFaults;
}

} // namespace

const Command kDiffCommand = {"diff",     "A B", "Two projects, each an archive or a bare project document.",
                              2,          2,     "What differs between two projects.",
                              AddOptions, Run,   false,
                              false};
