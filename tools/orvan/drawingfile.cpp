#include "drawingfile.h"

#include "command.h"
#include "console.h"
#include "privatefolder.h"

#include <OrvanData/orvandata.h>
#include <orvantools/layoutdrawing.h>

#include <QBuffer>
#include <QFileInfo>
#include <QSaveFile>

#include <optional>

using OrvanTools::DrawingFormat;

namespace {

std::optional<DrawingFormat> FormatOf(const QString& file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    if (suffix == QLatin1String("png"))
        return DrawingFormat::Png;
    if (suffix == QLatin1String("svg"))
        return DrawingFormat::Svg;
    if (suffix == QLatin1String("pdf"))
        return DrawingFormat::Pdf;
    return {};
}

/// A full disk takes a part of the bytes first. Only a second write without a buffer tells the reason.
bool WriteAll(QIODevice& output, const QByteArray& bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 taken = output.write(bytes.constData() + done, bytes.size() - done);
        if (taken <= 0)
            return false;
        done += taken;
    }
    return true;
}

} // namespace

bool IsDrawingName(const QString& file)
{
    return FormatOf(file).has_value();
}

int WriteDrawing(const QString& file, int sender, int width)
{
    OrvanTools::DrawingOptions options;
    options.sender = sender;
    options.width = width;
    QBuffer drawing;
    drawing.open(QIODevice::WriteOnly);
    if (!OrvanTools::WriteLayout(drawing, FormatOf(file).value_or(DrawingFormat::Svg), *GetProjectData(),
                                 options))
        return Fail(StatusFile, file, QStringLiteral("cannot be drawn"));
    const SignalsHeld held; // what is written beside the file is gone or renamed afterwards
    QSaveFile output(file);
    if (!output.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !WriteAll(output, drawing.data())
        || !output.commit())
        return Fail(StatusFile, file, output.errorString());
    return StatusDone;
}
