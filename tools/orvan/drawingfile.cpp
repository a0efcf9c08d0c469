#include "drawingfile.h"

#include "command.h"
#include "console.h"
#include "outputfile.h"

#include <OrvanData/orvandata.h>

#include <QBuffer>

using OrvanTools::DrawingFormat;

namespace {

QStringList Streamed()
{
    return {QStringLiteral("png"), QStringLiteral("svg")};
}

DrawingFormat FormatOf(const QString& form)
{
    return form == QLatin1String("png")   ? DrawingFormat::Png
           : form == QLatin1String("pdf") ? DrawingFormat::Pdf
                                          : DrawingFormat::Svg;
}

} // namespace

void AddDrawingForm(QCommandLineParser& parser)
{
    AddFormatOption(parser, Streamed());
}

QString DrawingForm(const QCommandLineParser& parser, const QString& output)
{
    return OutputForm(parser, output, Streamed() + QStringList{QStringLiteral("pdf")}, Streamed());
}

int WriteDrawing(const QString& file, const QString& form, const OrvanTools::DrawingOptions& options)
{
    QBuffer drawing; // signals end the program while it draws, and wait while it writes
    drawing.open(QIODevice::WriteOnly);
    if (!OrvanTools::WriteLayout(drawing, FormatOf(form), *GetProjectData(), options))
        return Fail(StatusFile, OutputName(file), QStringLiteral("cannot be drawn"));
    return WriteOutput(
        file, [&drawing](QIODevice& output) { return output.write(drawing.data()) == drawing.size(); });
}
