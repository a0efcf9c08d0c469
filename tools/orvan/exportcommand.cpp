#include "command.h"
#include "console.h"
#include "openproject.h"
#include "outputfile.h"
#include "samefile.h"

#include <OrvanData/orvandata.h>
#include <orvantools/projectlist.h>

#include <QCommandLineParser>

namespace {

const char* const kForms[] = {"csv", "jsonl"};

QStringList Forms()
{
    return {QLatin1String(kForms[0]), QLatin1String(kForms[1])};
}

void AddOptions(QCommandLineParser& parser)
{
    parser.addOption(
        {QStringLiteral("chains"), QStringLiteral("The cables in chain order, not the cabinets.")});
    AddFormatOption(parser, Forms());
}

int Run(const Invocation& invocation)
{
    const QString file = invocation.files[0];
    const QString output = invocation.files[1];
    const QString form = OutputForm(invocation.parser, output, Forms(), Forms());
    if (form.isEmpty())
        return StatusUsage;
    if (IsSameFile(file, output))
        return Fail(StatusUsage, OutputName(output), QStringLiteral("is the project itself"));
    if (!OpenProject(file))
        return StatusFile;
    const auto list =
        form == QLatin1String(kForms[0]) ? OrvanTools::ListForm::Csv : OrvanTools::ListForm::JsonLines;
    const auto write = invocation.parser.isSet(QStringLiteral("chains")) ? OrvanTools::WriteCableSchedule
                                                                         : OrvanTools::WriteCabinetList;
    return WriteOutput(output, [&](QIODevice& device) { return write(device, list, *GetProjectData()); });
}

} // namespace

const Command kExportCommand = {"export",
                                "FILE OUT.{csv,jsonl}",
                                "A project, and the list to write.",
                                2,
                                2,
                                "The cabinet list, or the cable schedule.",
                                AddOptions,
                                Run,
                                false,
                                false,
                                true};
