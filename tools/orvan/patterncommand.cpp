#include "command.h"
#include "console.h"
#include "openproject.h"
#include "privatefolder.h"
#include "samefile.h"
#include "senderoption.h"

#include <OrvanData/orvandata.h>
#include <orvantools/testpattern.h>

#include <QCommandLineParser>
#include <QFileInfo>
#include <QSaveFile>

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

void AddOptions(QCommandLineParser& parser)
{
    AddSenderOption(parser, QStringLiteral("Whose canvas it is, from 1; the current sender's by default."));
    for (const auto& mode : kModes)
        parser.addOption({QLatin1String(mode.option), QLatin1String(mode.help)});
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

/// Returns the exit status. On failure standard error says why, and the file stays as it was.
int WritePatternTo(const QString& file, const PatternOptions& options)
{
    const QFileInfo there(file);
    if (there.exists() && !there.isFile() && !there.isDir())
        return Fail(StatusFile, file, QStringLiteral("is no regular file"));
    const SignalsHeld held; // what is written beside the file is gone or renamed afterwards
    QSaveFile output(file);
    if (!output.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        || !OrvanTools::WritePattern(output, *GetProjectData(), options) || !output.commit())
        return Fail(StatusFile, file, output.errorString());
    return StatusDone;
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
    if (QFileInfo(output).suffix().toLower() != QLatin1String("png"))
        return Fail(StatusUsage, output, QStringLiteral("a pattern ends in .png"));
    if (!ReadSenderOption(parser, &number))
        return StatusUsage;
    if (IsSameFile(file, output))
        return Fail(StatusUsage, output, QStringLiteral("is the project itself"));
    if (!OpenProject(file))
        return StatusFile;
    if (const int status = FindSender(file, number, &options.sender))
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
    return WritePatternTo(output, options);
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
                                 false};
