#include "capacityoptions.h"
#include "command.h"
#include "console.h"
#include "inputfile.h"
#include "openproject.h"

#include <OrvanData/orvandata.h>
#include <orvantools/jsonwriter.h>
#include <orvantools/printable.h>
#include <orvantools/projectjson.h>
#include <orvantools/projecttext.h>

#include <QCommandLineParser>

namespace {

void AddOptions(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print one JSON object.")});
    parser.addOption({QStringLiteral("tiles"), QStringLiteral("With --json: every cabinet and group too.")});
    AddCapacityOptions(parser);
}

int Run(const Invocation& invocation)
{
    const bool json = invocation.parser.isSet(QStringLiteral("json"));
    const bool tiles = invocation.parser.isSet(QStringLiteral("tiles"));
    if (tiles && !json)
        return Fail(StatusUsage, QString(), QStringLiteral("--tiles goes with --json"));
    OrvanTools::PortCapacity capacity;
    if (const int status = ReadCapacity(invocation.parser, &capacity))
        return status;
    const QString file = invocation.files.first();
    if (!OpenProject(file))
        return StatusFile;
    const QString format = IsArchive(file) ? QStringLiteral("archive") : QStringLiteral("xml");
    if (json) {
        const CMonitorInterfaceData monitor = GetMonitorData()->GetInterfaceData();
        const QJsonObject more{{QStringLiteral("format"), format}};
        OrvanTools::JsonWriter out(PrintJsonPiece);
        OrvanTools::WriteProject(*GetProjectData(), monitor, tiles, capacity, more, out);
    } else {
        Print(OrvanTools::Printable(InputName(file)) + QStringLiteral(" (%1)\n").arg(format));
        Print(OrvanTools::SummarizeProject(*GetProjectData(), capacity));
    }
    return StatusDone;
}

} // namespace

const Command kInfoCommand = {"info",     "FILE", "A project archive or a bare project document.",
                              1,          1,      "What a project file holds.",
                              AddOptions, Run,    false,
                              false,      true};
