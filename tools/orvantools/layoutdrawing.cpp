#include "orvantools/layoutdrawing.h"

#include "orvantools/palette.h"
#include "orvantools/wallpainter.h"
#include "orvantools/wallpicture.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kMargin = 80;
constexpr double kTitleHeight = 72;
constexpr double kTextHeight = 32;
constexpr double kReadable = 16;      ///< least height of text on paper
constexpr double kReadablePixels = 9; ///< least height of text on a screen
constexpr int kDefaultPixels = 1920;
constexpr int kPngCompression = 12; ///< of 100: areas of one colour gain little from more
constexpr double kPixelsPerInch = 96;
constexpr double kMillimetresPerInch = 25.4;

QString Tr(const char* text)
{
    return QCoreApplication::translate("OrvanTools", text);
}

QFont FontOf(const QPainter& painter, double height, bool bold = false)
{
    QFont font = painter.font();
    font.setPixelSize(std::max(1, static_cast<int>(height)));
    font.setBold(bold);
    return font;
}

/// One line of text in a rectangle, shortened when it does not fit.
void DrawLine(QPainter& painter, const QRectF& place, const QString& text,
              Qt::Alignment alignment = Qt::AlignLeft)
{
    const QFontMetricsF metrics(painter.font());
    const QString shown = metrics.elidedText(text, Qt::ElideRight, place.width());
    const double width = metrics.horizontalAdvance(shown);
    const double x = alignment & Qt::AlignRight ? place.right() - width : place.left();
    painter.drawText(QPointF(x, place.center().y() + metrics.capHeight() / 2), shown);
}

/// What stands below the wall: a table of the ports, the marks, and the printed form at its right.
class Legend
{
public:
    Legend(const WallPicture& picture, double width);

    double GetHeight() const { return m_height; }
    void Paint(QPainter& painter, const QPointF& leftTop) const;

private:
    void PaintPort(QPainter& painter, const PicturePort& port, const QRectF& row) const;
    void PaintHeadings(QPainter& painter, const QRectF& row) const;
    void PaintMarks(QPainter& painter, const QRectF& row) const;
    void PaintForm(QPainter& painter, const QPointF& leftTop) const;
    QRectF Column(const QRectF& row, double from, double to) const
    {
        return QRectF(row.left() + from * row.width(), row.top(), (to - from) * row.width(), row.height());
    }

    const WallPicture& m_picture;
    double m_width;
    double m_formWidth;
    int m_columns;
    int m_rows;
    double m_rowHeight;
    double m_height;
};

constexpr double kGap = 50;

Legend::Legend(const WallPicture& picture, double width)
    : m_picture(picture), m_width(width), m_formWidth(picture.form.isEmpty() ? 0 : 950)
{
    const int ports = static_cast<int>(picture.ports.size());
    m_columns = ports <= 6 ? 1 : ports <= 16 ? 2 : 3;
    m_rows = std::max(1, (ports + m_columns - 1) / m_columns);
    m_rowHeight = std::max(24.0, std::min(46.0, 800.0 / m_rows));
    const double form = picture.form.size() * kTextHeight * 1.5 + 20;
    m_height = std::max((m_rows + 2.3) * m_rowHeight, form);
}

void Legend::Paint(QPainter& painter, const QPointF& leftTop) const
{
    const double right = m_formWidth > 0 ? m_formWidth + kGap : 0;
    const double width = (m_width - right - (m_columns - 1) * kGap) / m_columns;
    for (int column = 0; column < m_columns; ++column) {
        QRectF row(leftTop.x() + column * (width + kGap), leftTop.y(), width, m_rowHeight);
        painter.setFont(FontOf(painter, m_rowHeight * 0.58));
        PaintHeadings(painter, row);
        const int end = std::min(static_cast<int>(m_picture.ports.size()), (column + 1) * m_rows);
        for (int i = column * m_rows; i < end; ++i) {
            row.translate(0, m_rowHeight);
            painter.setFont(FontOf(painter, m_rowHeight * 0.68));
            PaintPort(painter, m_picture.ports[static_cast<size_t>(i)], row);
        }
    }
    const double top = leftTop.y() + (m_rows + 1.3) * m_rowHeight;
    PaintMarks(painter, QRectF(leftTop.x(), top, m_width - right, m_rowHeight));
    if (m_formWidth > 0)
        PaintForm(painter, QPointF(leftTop.x() + m_width - m_formWidth, leftTop.y()));
}

// Columns of the table, in parts of its width.
constexpr double kPortAt = 0.09;
constexpr double kCabinetsAt = 0.22;
constexpr double kReceiversAt = 0.34;
constexpr double kPixelsAt = 0.47;
constexpr double kNoteAt = 0.64;

void Legend::PaintHeadings(QPainter& painter, const QRectF& row) const
{
    painter.setPen(QColor(90, 90, 90));
    DrawLine(painter, Column(row, kCabinetsAt, kReceiversAt - 0.01), Tr("cabinets"), Qt::AlignRight);
    DrawLine(painter, Column(row, kReceiversAt, kPixelsAt - 0.01), Tr("receivers"), Qt::AlignRight);
    DrawLine(painter, Column(row, kPixelsAt, kNoteAt - 0.02), Tr("pixels"), Qt::AlignRight);
}

void Legend::PaintPort(QPainter& painter, const PicturePort& port, const QRectF& row) const
{
    const QRectF swatch =
        Column(row, 0, kPortAt - 0.015).adjusted(0, row.height() * 0.15, 0, -row.height() * 0.15);
    QPen outline(Qt::black, 1.5);
    if (port.hidden)
        outline.setDashPattern({4, 3});
    painter.setPen(outline);
    painter.setBrush(port.color);
    painter.drawRect(swatch);
    const QLineF line(swatch.left() + 4, swatch.center().y(), swatch.right() - 4, swatch.center().y());
    painter.setPen(QPen(Qt::white, 9));
    painter.drawLine(line);
    painter.setPen(WallPainter::ChainPen(port.index, 4));
    painter.drawLine(line);

    painter.setPen(Qt::black);
    DrawLine(painter, Column(row, kPortAt, kCabinetsAt), Tr("Port %1").arg(port.index + 1));
    const auto number = [&](double from, double to, qint64 value) {
        DrawLine(painter, Column(row, from, to), QString::number(value), Qt::AlignRight);
    };
    number(kCabinetsAt, kReceiversAt - 0.01, static_cast<qint64>(port.cabinets.size()));
    number(kReceiversAt, kPixelsAt - 0.01, port.receivers);
    number(kPixelsAt, kNoteAt - 0.02, port.pixels);
    DrawLine(painter, Column(row, kNoteAt, 1), port.note);
}

void Legend::PaintMarks(QPainter& painter, const QRectF& row) const
{
    const double size = row.height() * 0.34;
    painter.setFont(FontOf(painter, m_rowHeight * 0.58));
    double x = row.left();
    const double y = row.center().y();
    const auto caption = [&](double at, const QString& text) {
        painter.setPen(QColor(60, 60, 60));
        DrawLine(painter, QRectF(at, row.top(), row.right() - at, row.height()), text);
        x = at + QFontMetricsF(painter.font()).horizontalAdvance(text) + kGap;
    };
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(QPointF(x + size, y), size, size);
    caption(x + size * 3, Tr("start of a chain, with its port"));
    painter.setPen(QPen(Qt::black, 4));
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(x, y - size * 0.7, size * 1.4, size * 1.4));
    caption(x + size * 2.4, Tr("end of a chain"));
    painter.setPen(WallPainter::GroupPen());
    painter.drawLine(QPointF(x, y), QPointF(x + 90, y));
    caption(x + 110, Tr("group"));
    painter.setPen(QPen(QColor(110, 110, 110), 3, Qt::DashDotLine));
    painter.drawLine(QPointF(x, y), QPointF(x + 90, y));
    caption(x + 110, Tr("edge of the canvas"));
}

void Legend::PaintForm(QPainter& painter, const QPointF& leftTop) const
{
    const double line = kTextHeight * 1.5;
    const QRectF frame(leftTop, QSizeF(m_formWidth, m_picture.form.size() * line + 20));
    painter.setPen(QPen(Qt::black, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
    painter.setFont(FontOf(painter, kTextHeight));
    QRectF place(frame.left() + 20, frame.top() + 10, frame.width() - 40, line);
    for (const QString& text : m_picture.form) {
        DrawLine(painter, place, text);
        place.translate(0, line);
    }
}

bool WritePng(QIODevice& device, const CProjectData& project, const DrawingOptions& options)
{
    const int width = options.width > 0 ? options.width : kDefaultPixels;
    const double scale = double(width) / kPageWidth;
    QImage image(width, static_cast<int>(std::lround(kPageHeight * scale)), QImage::Format_RGB32);
    if (image.isNull())
        return false;
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    PaintLayout(painter, project, options.sender, std::max(kReadable, kReadablePixels / scale));
    painter.end();
    QImageWriter writer(&device, "png");
    writer.setCompression(kPngCompression);
    return writer.write(ReducedToPalette(image));
}

/// Size of the page in tenths of a millimetre, of the proportions of A3.
QSizeF PageSize(const DrawingOptions& options)
{
    if (options.width <= 0)
        return QSizeF(kPageWidth, kPageHeight);
    const double width = options.width / kPixelsPerInch * kMillimetresPerInch * 10;
    return QSizeF(width, width * kPageHeight / kPageWidth);
}

bool WriteSvg(QIODevice& device, const CProjectData& project, const DrawingOptions& options)
{
    const QSizeF page = PageSize(options) / 10 / kMillimetresPerInch * kPixelsPerInch;
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setResolution(static_cast<int>(kPixelsPerInch));
    generator.setSize(page.toSize());
    generator.setViewBox(QRect(0, 0, kPageWidth, kPageHeight));
    QPainter painter;
    if (!painter.begin(&generator))
        return false;
    PaintLayout(painter, project, options.sender, kReadable);
    return painter.end();
}

bool WritePdf(QIODevice& device, const CProjectData& project, const DrawingOptions& options)
{
    const QSizeF page = PageSize(options);
    QPdfWriter writer(&device);
    writer.setResolution(254);
    writer.setPageSize(QPageSize(page / 10, QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    writer.setCreator(QStringLiteral("OrvanData"));
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    const double scale = page.width() / kPageWidth;
    painter.scale(scale, scale);
    PaintLayout(painter, project, options.sender, kReadable);
    return painter.end();
}

} // namespace

void PaintLayout(QPainter& painter, const CProjectData& project, int sender, double leastText)
{
    const WallPicture picture = MakeWallPicture(project, sender);
    const double width = kPageWidth - 2 * kMargin;
    const Legend legend(picture, width);

    painter.setPen(Qt::black);
    painter.setFont(FontOf(painter, kTitleHeight, true));
    DrawLine(painter, QRectF(kMargin, kMargin * 0.6, width, kTitleHeight * 1.3), picture.title);
    painter.setFont(FontOf(painter, kTextHeight * 1.15));
    const QFontMetricsF metrics(painter.font());
    const double figures = metrics.horizontalAdvance(picture.figures);
    const double name = std::min(metrics.horizontalAdvance(picture.senderName), width - figures - kGap);
    const QRectF line(kMargin, kMargin * 0.6 + kTitleHeight * 1.3, width, kTextHeight * 1.7);
    DrawLine(painter, QRectF(line.topLeft(), QSizeF(name + 1, line.height())), picture.senderName);
    DrawLine(painter, line.adjusted(name + kGap, 0, 0, 0), picture.figures);

    const double top = kMargin * 0.6 + kTitleHeight * 1.3 + kTextHeight * 2.2;
    const double bottom = kPageHeight - kMargin * 0.7 - legend.GetHeight();
    painter.setFont(FontOf(painter, kTextHeight));
    WallPainter(painter, picture, QRectF(kMargin, top, width, bottom - kGap - top), leastText).Paint();
    legend.Paint(painter, QPointF(kMargin, bottom));
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
