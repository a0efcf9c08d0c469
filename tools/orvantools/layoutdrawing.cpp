#include "orvantools/layoutdrawing.h"

#include "orvantools/legend.h"
#include "orvantools/palette.h"
#include "orvantools/pdfdocument.h"
#include "orvantools/textline.h"
#include "orvantools/wallpainter.h"
#include "orvantools/wallpicture.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kMargin = 80;
constexpr double kTitleHeight = 72;
constexpr double kTextHeight = 37;
constexpr double kReadable = 16;      ///< least height of text on paper
constexpr double kReadablePixels = 9; ///< least height of text on a screen
constexpr double kLegendText = 32;
constexpr double kLegendReadable = 20;
constexpr double kMostReadable = 80; ///< on smaller pages only the title and the wall have room
constexpr double kMostLegend = 0.3;  ///< of the page's height
constexpr double kGap = 50;
constexpr int kDefaultPixels = 1920;
constexpr int kPngCompression = 12; ///< of 100: areas of one colour gain little from more
constexpr double kPixelsPerInch = 96;
constexpr double kMillimetresPerInch = 25.4;

/// Title, sender and figures. Returns the bottom of it.
double PaintHeader(QPainter& painter, const WallPicture& picture, const QRectF& page, double growth,
                   double leastText)
{
    const double titleHeight = std::max(kTitleHeight * growth, std::min(leastText, kMostReadable * 2));
    painter.setPen(Qt::black);
    painter.setFont(FontOf(painter, titleHeight, true));
    QRectF line(page.left(), page.top(), page.width(), titleHeight * kLineHeight);
    const double view = QFontMetricsF(painter.font()).horizontalAdvance(picture.view);
    const double reserved = picture.view.isEmpty() ? 0 : std::min(view, line.width() * 0.5) + titleHeight;
    DrawLine(painter, line.adjusted(line.width() - reserved + titleHeight - 1, 0, 0, 0), picture.view,
             Qt::AlignRight);
    DrawLine(painter, line.adjusted(0, 0, -reserved, 0), picture.title);
    if (leastText > kMostReadable)
        return line.bottom();

    const double height = std::max(kTextHeight * growth, leastText);
    line = QRectF(line.left(), line.bottom(), line.width(), height * kLineHeight);
    painter.setFont(FontOf(painter, height));
    const double figures = QFontMetricsF(painter.font()).horizontalAdvance(picture.figures);
    const double left = std::max(line.width() - figures - height * 1.6, line.width() * 0.3);
    const double name =
        DrawLine(painter, QRectF(line.topLeft(), QSizeF(left, line.height())), picture.senderName);
    DrawLine(painter, line.adjusted(name + height * 1.5, 0, 0, 0), picture.figures);
    return line.bottom();
}

bool WritePng(QIODevice& device, const CProjectData& project, const DrawingOptions& options)
{
    const int width = options.width > 0 ? options.width : kDefaultPixels;
    const QSizeF page = QSizeF(kPageWidth, kPageHeight) * std::max(1.0, double(width) / kDefaultPixels);
    const double scale = width / page.width();
    QImage image(width, static_cast<int>(std::lround(page.height() * scale)), QImage::Format_RGB32);
    if (image.isNull())
        return false;
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    PaintLayout(painter, project, options, page, kReadablePixels / scale);
    painter.end();
    QImageWriter writer(&device, "png");
    writer.setText(QStringLiteral("Title"), TitleOf(project, options.sender));
    writer.setCompression(kPngCompression);
    return writer.write(ReducedToPalette(image));
}

/// Size of the page in tenths of a millimetre, of the proportions of A3.
QSizeF PageSize(const DrawingOptions& options)
{
    if (options.width <= 0)
        return QSizeF(kPageWidth, kPageHeight);
    const double width = options.width / kPixelsPerInch * kMillimetresPerInch * 10;
    return LimitedPage(QSizeF(width, width * kPageHeight / kPageWidth));
}

/// The page to draw on, which is reduced to a smaller one.
QSizeF DrawnPage(const QSizeF& page)
{
    return page.width() < kPageWidth ? QSizeF(kPageWidth, kPageHeight) : page;
}

bool WriteSvg(QIODevice& device, const CProjectData& project, const DrawingOptions& options)
{
    const QSizeF page = PageSize(options);
    const QSizeF drawn = DrawnPage(page);
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setResolution(static_cast<int>(kPixelsPerInch));
    generator.setTitle(TitleOf(project, options.sender).toHtmlEscaped()); // which Qt does not do
    generator.setSize((page / 10 / kMillimetresPerInch * kPixelsPerInch).toSize());
    generator.setViewBox(QRect(QPoint(0, 0), drawn.toSize()));
    QPainter painter;
    if (!painter.begin(&generator))
        return false;
    PaintLayout(painter, project, options, drawn, kReadable * drawn.width() / page.width());
    return painter.end();
}

bool WritePdf(QIODevice& device, const CProjectData& project, const DrawingOptions& options)
{
    const QSizeF page = PageSize(options);
    const QSizeF drawn = DrawnPage(page);
    PdfDocument document(TitleOf(project, options.sender));
    QPainter& painter = document.BeginPage(page);
    const double scale = page.width() / drawn.width();
    painter.scale(scale, scale);
    PaintLayout(painter, project, options, drawn, kReadable / scale);
    const QByteArray bytes = document.Finish();
    return !bytes.isEmpty() && device.write(bytes) == bytes.size();
}

} // namespace

void PaintLayout(QPainter& painter, const CProjectData& project, const DrawingOptions& options,
                 const QSizeF& page, double leastText)
{
    const WallPicture picture = MakeWallPicture(
        project, options.sender, {options.port, options.rear, options.capacity, options.atOwnRate});
    const double growth = std::sqrt(page.width() / kPageWidth);
    const double margin = kMargin * growth;
    const QRectF inside(margin, margin * 0.6, page.width() - 2 * margin, page.height() - margin * 1.3);
    const double top = PaintHeader(painter, picture, inside, growth, leastText) + kGap * 0.3;
    const Legend legend(picture, painter.font(), QSizeF(inside.width(), inside.height() * kMostLegend),
                        kLegendText * growth, std::max(kLegendReadable, leastText));
    const bool hasLegend = leastText <= kMostReadable;
    const double bottom = hasLegend ? inside.bottom() - legend.GetHeight() : inside.bottom();
    const QRectF wall(inside.left(), top, inside.width(), bottom - kGap - top);
    const Omissions omissions = WallPainter(painter, picture, wall, leastText).Paint();
    if (hasLegend)
        legend.Paint(painter, QPointF(inside.left(), bottom), omissions);
}

bool WriteLayout(QIODevice& device, DrawingFormat format, const CProjectData& project,
                 const DrawingOptions& options)
{
    // Not all writers of formats tell when a device takes no more.
    QBuffer drawing;
    drawing.open(QIODevice::WriteOnly);
    bool drawn = false;
    switch (format) {
    case DrawingFormat::Png:
        drawn = WritePng(drawing, project, options);
        break;
    case DrawingFormat::Svg:
        drawn = WriteSvg(drawing, project, options);
        break;
    case DrawingFormat::Pdf:
        drawn = WritePdf(drawing, project, options);
        break;
    }
    return drawn && device.write(drawing.data()) == drawing.data().size();
}

} // namespace OrvanTools
