#include "capacityoptions.h"
#include "command.h"
#include "console.h"
#include "drawingfile.h"
#include "openproject.h"
#include "outputfile.h"
#include "samefile.h"
#include "senderoption.h"

#include <OrvanData/orvandata.h>

#include <QCommandLineParser>

namespace {

constexpr int kLeastWidth = 100;
constexpr int kMostWidth = 20000;

void AddOptions(QCommandLineParser& parser)
{
    AddSenderOption(parser, QStringLiteral("Which sender to draw, from 1; the current one by default."));
    parser.addOption(
        {QStringLiteral("port"), QStringLiteral("Draw this port alone, from 1."), QStringLiteral("N")});
    parser.addOption({QStringLiteral("rear"), QStringLiteral("The wall as seen from behind.")});
    parser.addOption({QStringLiteral("width"),
                      QStringLiteral("Pixels of a PNG, 1920 by default; sets the page of SVG and PDF, A3 "
                                     "landscape by default."),
                      QStringLiteral("PIXELS")});
    AddCapacityOptions(parser);
    AddDrawingForm(parser);
}

bool ReadWidth(const QCommandLineParser& parser, int* width)
{
    const QString name = QStringLiteral("width");
    if (!parser.isSet(name)
        || (ParseNumber(parser.value(name), width) && *width >= kLeastWidth && *width <= kMostWidth))
        return true;
    Fail(StatusUsage, QString(),
         QStringLiteral("--width takes a number from %1 to %2").arg(kLeastWidth).arg(kMostWidth));
    return false;
}

int Run(const Invocation& invocation)
{
    const QCommandLineParser& parser = invocation.parser;
    const QString file = invocation.files[0];
    const QString output = invocation.files[1];
    int number = 0;
    int port = 0;
    OrvanTools::DrawingOptions options;
    const QString form = DrawingForm(parser, output);
    if (form.isEmpty() || !ReadWidth(parser, &options.width) || !ReadOrdinal(parser, "sender", &number)
        || !ReadOrdinal(parser, "port", &port))
        return StatusUsage;
    if (const int status = ReadCapacity(parser, &options.capacity))
        return status;
    if (IsSameFile(file, output))
        return Fail(StatusUsage, OutputName(output), QStringLiteral("is the project itself"));
    if (!OpenProject(file))
        return StatusFile;
    if (const int status = FindSender(file, number, &options.sender))
        return status;
    if (port > GetProjectData()->GetSender(options.sender)->GetPortCount())
        return Fail(StatusUsage, file, QStringLiteral("has no port %1").arg(port));
    options.port = port - 1;
    options.rear = parser.isSet(QStringLiteral("rear"));
    return WriteDrawing(output, form, options);
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
