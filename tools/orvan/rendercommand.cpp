#include "command.h"
#include "console.h"
#include "drawingfile.h"
#include "openproject.h"
#include "outputfile.h"
#include "samefile.h"

#include <OrvanData/orvandata.h>

#include <QCommandLineParser>

namespace {

constexpr int kLeastWidth = 100;
constexpr int kMostWidth = 20000;

void AddOptions(QCommandLineParser& parser)
{
    parser.addOption({QStringLiteral("sender"),
                      QStringLiteral("Which sender to draw, from 1; the current one by default."),
                      QStringLiteral("N")});
    parser.addOption({QStringLiteral("width"),
                      QStringLiteral("Pixels of a PNG, 1920 by default; sets the page of SVG and PDF, A3 "
                                     "landscape by default."),
                      QStringLiteral("PIXELS")});
    AddDrawingForm(parser);
}

int Run(const Invocation& invocation)
{
    const QCommandLineParser& parser = invocation.parser;
    const QString file = invocation.files[0];
    const QString output = invocation.files[1];
    int number = 0;
    int width = 0;
    const QString form = DrawingForm(parser, output);
    if (form.isEmpty())
        return StatusUsage;
    if (parser.isSet(QStringLiteral("width"))
        && (!ParseNumber(parser.value(QStringLiteral("width")), &width) || width < kLeastWidth
            || width > kMostWidth))
        return Fail(StatusUsage, QString(),
                    QStringLiteral("--width takes a number from %1 to %2").arg(kLeastWidth).arg(kMostWidth));
    if (parser.isSet(QStringLiteral("sender"))
        && (!ParseNumber(parser.value(QStringLiteral("sender")), &number) || number < 1))
        return Fail(StatusUsage, QString(), QStringLiteral("--sender takes a number from 1"));
    if (IsSameFile(file, output))
        return Fail(StatusUsage, OutputName(output), QStringLiteral("is the project itself"));
    if (!OpenProject(file))
        return StatusFile;
    const int senders = GetProjectData()->GetSenderCount();
    if (number > senders)
        return Fail(StatusUsage, file, QStringLiteral("has no sender %1").arg(number));
    const int sender = number > 0 ? number - 1 : GetProjectData()->GetCurSenderIndexForRtCnnt();
    if (!GetProjectData()->GetSender(sender))
        return Fail(StatusFile, file, QStringLiteral("has no sender to draw"));
    return WriteDrawing(output, form, sender, width);
}

} // namespace

const Command kRenderCommand = {"render",
                                "FILE OUT.{png,svg,pdf}",
                                "A project, and the drawing to write.",
                                2,
                                2,
                                "Draw one sender for the wall of the workshop.",
                                AddOptions,
                                Run,
                                true,
                                false,
                                true};
