#include "command.h"
#include "console.h"
#include "outputfile.h"
#include "senderoption.h"

#include <OrvanData/orvandata.h>
#include <orvantools/testpattern.h>

#include <QCommandLineParser>

using OrvanTools::PatternMode;
using OrvanTools::PatternOptions;

namespace {

const struct
{
    const char* option;
    PatternMode mode;
    const char* help;
} kModes[] = {
    {"ports", PatternMode::Ports, "Cabinets in their ports' colours; so it is by default."},
    {"numbers", PatternMode::Numbers, "Cabinets in black."},
    {"grid", PatternMode::Grid,
     "Cabinets in their ports' colours, with lines at each 16th pixel of the canvas."},
};

QStringList Forms()
{
    return {QStringLiteral("png")};
}

void AddOptions(QCommandLineParser& parser)
{
    AddSenderOption(parser, QStringLiteral("Whose canvas it is, from 1; the current sender's by default."));
    for (const auto& mode : kModes)
        parser.addOption({QLatin1String(mode.option), QLatin1String(mode.help)});
    AddFormatOption(parser, Forms());
}

/// False when there is more than one.
bool ReadMode(const QCommandLineParser& parser, PatternMode* mode)
{
    int given = 0;
    for (const auto& known : kModes) {
        if (parser.isSet(QLatin1String(known.option))) {
            *mode = known.mode;
            ++given;
        }
    }
    return given <= 1;
}

int Run(const Invocation& invocation)
{
    const QCommandLineParser& parser = invocation.parser;
    const QString file = invocation.files[0];
    const QString output = invocation.files[1];
    PatternOptions options;
    int number = 0;
    if (!ReadMode(parser, &options.mode))
        return Fail(StatusUsage, QString(), QStringLiteral("takes one of --ports, --numbers and --grid"));
    if (OutputForm(parser, output, Forms(), Forms()).isEmpty())
        return StatusUsage;
    if (!ReadOrdinal(parser, "sender", &number))
        return StatusUsage;
    if (const int status = OpenSender(file, output, number, &options.sender))
        return status;
    const QSize size = OrvanTools::PatternSize(*GetProjectData(), options.sender);
    if (size.isEmpty())
        return Fail(StatusFile, file, QStringLiteral("the sender has neither a canvas nor cabinets"));
    if (size.width() > kMaxCanvasWidth || size.height() > kMaxCanvasHeight)
        return Fail(StatusUsage, file,
                    QStringLiteral("%1x%2 pixels are more than a canvas can have, %3x%4")
                        .arg(size.width())
                        .arg(size.height())
                        .arg(kMaxCanvasWidth)
                        .arg(kMaxCanvasHeight));
    return WriteOutput(output, [&options](QIODevice& device) {
        return OrvanTools::WritePattern(device, *GetProjectData(), options);
    });
}

} // namespace

const Command kPatternCommand = {"pattern",
                                 "FILE OUT.png",
                                 "A project, and the picture to write.",
                                 2,
                                 2,
                                 "Make a test picture to show on the wall.",
                                 AddOptions,
                                 Run,
                                 false,
                                 false,
                                 true};
