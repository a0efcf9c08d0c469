#include "capacityoptions.h"
#include "command.h"
#include "console.h"
#include "drawingfile.h"
#include "outputfile.h"
#include "progressline.h"
#include "senderoption.h"

#include <OrvanData/orvandata.h>
#include <orvantools/sheetset.h>

#include <QBuffer>
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
    parser.addOption({QStringLiteral("sheets"),
                      QStringLiteral("A PDF for the crew: a cover, and pages for each sender and port.")});
    parser.addOption({QStringLiteral("paper"),
                      QStringLiteral("Of the sheets: A4 (the default), A3 or letter."),
                      QStringLiteral("SIZE")});
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

bool ReadPaper(const QCommandLineParser& parser, OrvanTools::Paper* paper)
{
    const QString name = parser.value(QStringLiteral("paper")).toLower();
    if (name == QLatin1String("a3"))
        *paper = OrvanTools::Paper::A3;
    else if (name == QLatin1String("letter"))
        *paper = OrvanTools::Paper::Letter;
    else if (parser.isSet(QStringLiteral("paper")) && name != QLatin1String("a4"))
        return false;
    return true;
}

/// Whether the options go with one another.
bool IsUsage(const QCommandLineParser& parser, const QString& form)
{
    const bool sheets = parser.isSet(QStringLiteral("sheets"));
    QString fault;
    if (sheets && form != QLatin1String("pdf"))
        fault = QStringLiteral("--sheets makes a PDF");
    else if (sheets && parser.isSet(QStringLiteral("width")))
        fault = QStringLiteral("--sheets takes --paper, not --width");
    else if (!sheets && parser.isSet(QStringLiteral("paper")))
        fault = QStringLiteral("--paper goes with --sheets");
    if (!fault.isEmpty())
        Fail(StatusUsage, QString(), fault);
    return fault.isEmpty();
}

int DrawSheets(const QString& output, OrvanTools::SheetOptions options)
{
    QBuffer sheets; // signals end the program while it draws, and wait while it writes
    sheets.open(QIODevice::WriteOnly);
    ProgressLine progress(QStringLiteral("drawing ") + OutputName(output));
    options.progress = [&progress](int percent) { progress.Bar()->SetValue(percent); };
    const bool drawn = OrvanTools::WriteSheets(sheets, *GetProjectData(), options);
    progress.End();
    if (!drawn)
        return Fail(StatusFile, OutputName(output), QStringLiteral("cannot be drawn"));
    return WriteOutput(output,
                       [&sheets](QIODevice& file) { return file.write(sheets.data()) == sheets.size(); });
}

int Run(const Invocation& invocation)
{
    const QCommandLineParser& parser = invocation.parser;
    const QString file = invocation.files[0];
    const QString output = invocation.files[1];
    int number = 0;
    int port = 0;
    OrvanTools::DrawingOptions options;
    OrvanTools::Paper paper = OrvanTools::Paper::A4;
    const QString form = DrawingForm(parser, output);
    if (form.isEmpty() || !IsUsage(parser, form) || !ReadWidth(parser, &options.width)
        || !ReadOrdinal(parser, "sender", &number) || !ReadOrdinal(parser, "port", &port))
        return StatusUsage;
    if (!ReadPaper(parser, &paper))
        return Fail(StatusUsage, QString(), QStringLiteral("--paper takes A4, A3 or letter"));
    if (const int status = ReadCapacity(parser, &options.capacity))
        return status;
    if (const int status = OpenSender(file, output, number, &options.sender))
        return status;
    if (port > GetProjectData()->GetSender(options.sender)->GetPortCount())
        return Fail(StatusUsage, file, QStringLiteral("has no port %1").arg(port));
    options.port = port - 1;
    options.rear = parser.isSet(QStringLiteral("rear"));
    if (!parser.isSet(QStringLiteral("sheets")))
        return WriteDrawing(output, form, options);
    // One port is one of the current sender unless another is named.
    const int sender = number > 0 || port > 0 ? options.sender : -1;
    return DrawSheets(output, {sender, options.port, options.rear, paper, options.capacity, {}});
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
