#include "orvantools/legend.h"

#include "orvantools/textline.h"
#include "orvantools/words.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

// In parts of the text's height.
constexpr double kSwatch = 2.6;
constexpr double kGap = 1;
constexpr double kLongestNote = 16;
constexpr double kSmall = 0.85; ///< headings and the marks

constexpr int kFewRows = 6;       ///< of one table, before a second one begins beside it
constexpr double kMostForm = 0.3; ///< of the width

} // namespace

QString OmissionText(const Omissions& omissions, size_t hiddenPorts)
{
    QStringList parts;
    const auto add = [&parts](int count, const char* what) {
        if (count > 0)
            parts.append(Tr(what).arg(count));
    };
    add(omissions.numbers, "numbers of cabinets (%1)");
    add(omissions.receivers, "numbers of receiving cards (%1)");
    add(omissions.ports, "numbers of ports (%1)");
    add(omissions.marks, "starts or ends of chains (%1)");
    add(omissions.chains, "chains (%1)");
    QString text;
    if (hiddenPorts > 0)
        text = Tr("and %1 more ports, see the sheets").arg(hiddenPorts) + QStringLiteral("   ");
    if (!parts.isEmpty())
        text += Tr("not shown, too small here: ") + parts.join(QStringLiteral(", "));
    return text;
}

void PaintMarks(QPainter& painter, const QRectF& row, double text)
{
    const double size = text * 0.45;
    const double y = row.center().y();
    double x = row.left();
    painter.setFont(FontOf(painter, text * kSmall));
    const auto caption = [&](double width, const QString& what) {
        x += width + text * 0.6;
        painter.setPen(QColor(60, 60, 60));
        x += DrawLine(painter, QRectF(x, row.top(), row.right() - x, row.height()), what) + kGap * 2 * text;
    };
    const auto isRoom = [&] { return x + 4 * text < row.right(); };
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(QPointF(x + size, y), size, size);
    caption(size * 2, Tr("start of a chain, with its port"));
    if (isRoom()) {
        painter.setPen(QPen(Qt::black, text * 0.13));
        painter.setBrush(Qt::white);
        painter.drawRect(QRectF(x, y - size * 0.7, size * 1.4, size * 1.4));
        caption(size * 1.4, Tr("end of a chain"));
    }
    const auto line = [&](QPen pen, const QString& what) {
        if (!isRoom())
            return;
        pen.setWidthF(text * 0.1);
        painter.setPen(pen);
        painter.drawLine(QPointF(x, y), QPointF(x + kSwatch * text, y));
        caption(kSwatch * text, what);
    };
    line(WallPainter::GroupPen(), Tr("group"));
    line(QPen(QColor(110, 110, 110), 1, Qt::DashDotLine), Tr("edge of the canvas"));
}

Legend::Legend(const WallPicture& picture, const QFont& font, const QSizeF& most, double text,
               double leastText)
    : m_picture(picture), m_width(most.width())
{
    MakeFields(font);
    Arrange(std::max(text, leastText), most.height());
    while (!Fits() && m_text > leastText)
        Arrange(std::max(leastText, m_text * 0.94), most.height());
}

void Legend::MakeFields(QFont font)
{
    Field port{QString(), {}, false, 0};
    Field cabinets{Tr("cabinets"), {}, true, 0};
    Field receivers{Tr("receivers"), {}, true, 0};
    Field pixels{Tr("pixels"), {}, true, 0};
    Field load{Tr("load"), {}, true, 0};
    Field note{QString(), {}, false, 0};
    for (const PicturePort& from : m_picture.ports) {
        port.texts.append(Tr("Port %1").arg(from.index + 1));
        cabinets.texts.append(QString::number(from.cabinets.size()));
        receivers.texts.append(QString::number(from.receivers));
        pixels.texts.append(QString::number(from.pixels));
        load.texts.append(from.load);
        note.texts.append(from.note);
    }
    m_fields = {port, cabinets, receivers, pixels, load, note};
    constexpr int size = 100;
    font.setPixelSize(size);
    const QFontMetricsF metrics(font);
    m_needed = kSwatch;
    for (Field& field : m_fields) {
        field.width = metrics.horizontalAdvance(field.heading) / size * kSmall;
        for (const QString& text : field.texts)
            field.width = std::max(field.width, metrics.horizontalAdvance(text.left(200)) / size);
        field.width *= 1.05; // fonts of other sizes are not exactly in proportion
        m_needed += field.width + kGap;
    }
    for (const QString& text : m_picture.form)
        m_form = std::max(m_form, metrics.horizontalAdvance(text.left(200)) / size * 1.05 + 1.5);
    m_needed -= std::max(0.0, m_fields.back().width - kLongestNote);
}

void Legend::Arrange(double text, double mostHeight)
{
    const int ports = static_cast<int>(m_picture.ports.size());
    m_text = text;
    m_row = text * kLineHeight;
    m_formWidth = m_picture.form.isEmpty() ? 0 : std::min(m_form * text, kMostForm * m_width);
    const double gap = 2 * kGap * text;
    const double width = m_width - (m_formWidth > 0 ? m_formWidth + gap : 0);
    const int mostColumns = std::max(1, static_cast<int>((width + gap) / (m_needed * text + gap)));
    m_columns = std::clamp((ports + kFewRows - 1) / kFewRows, 1, mostColumns);
    const int mostRows =
        std::max(1, static_cast<int>(mostHeight / m_row) - 3); // headings, marks, what is missing
    while (m_columns < mostColumns && m_columns * mostRows < ports)
        ++m_columns;
    m_rows = std::min(mostRows, (ports + m_columns - 1) / m_columns);
    m_shown = std::min(ports, m_columns * m_rows);
    m_tableWidth = (width - (m_columns - 1) * gap) / m_columns;
    m_height = std::max((m_rows + 3) * m_row, m_picture.form.size() * m_row + text);
}

void Legend::Paint(QPainter& painter, const QPointF& leftTop, const Omissions& omissions) const
{
    const double gap = 2 * kGap * m_text;
    for (int i = 0; i < m_shown; ++i) {
        QRectF row(leftTop.x() + i / m_rows * (m_tableWidth + gap), leftTop.y(), m_tableWidth, m_row);
        if (i % m_rows == 0)
            PaintFields(painter, -1, row);
        row.translate(0, (i % m_rows + 1) * m_row);
        PaintPort(painter, m_picture.ports[static_cast<size_t>(i)], row);
        PaintFields(painter, i, row);
    }
    const double width = m_width - (m_formWidth > 0 ? m_formWidth + gap : 0);
    QRectF row(leftTop.x(), leftTop.y() + (m_rows + 1) * m_row, width, m_row);
    PaintMarks(painter, row, m_text);
    row.translate(0, m_row);
    painter.setPen(Qt::black);
    DrawLine(painter, row, OmissionText(omissions, m_picture.ports.size() - static_cast<size_t>(m_shown)));
    if (m_formWidth > 0)
        PaintForm(painter, QPointF(leftTop.x() + m_width - m_formWidth, leftTop.y()));
}

void Legend::PaintFields(QPainter& painter, int port, const QRectF& row) const
{
    painter.setFont(FontOf(painter, port < 0 ? m_text * kSmall : m_text));
    painter.setPen(port < 0 ? QColor(90, 90, 90) : QColor(Qt::black));
    double x = row.left() + (kSwatch + kGap) * m_text;
    for (const Field& field : m_fields) {
        const bool isLast = &field == &m_fields.back();
        const double width = isLast ? row.right() - x : std::min(field.width * m_text, row.right() - x);
        DrawLine(painter, QRectF(x, row.top(), width, row.height()),
                 port < 0 ? field.heading : field.texts[port],
                 field.isNumber ? Qt::AlignRight : Qt::AlignLeft);
        x += width + kGap * m_text;
    }
}

void Legend::PaintPort(QPainter& painter, const PicturePort& port, const QRectF& row) const
{
    const QRectF swatch(row.left(), row.top() + row.height() * 0.15, kSwatch * m_text, row.height() * 0.7);
    QPen outline(Qt::black, m_text * 0.05);
    if (port.hidden)
        outline.setDashPattern({4, 3});
    painter.setPen(outline);
    painter.setBrush(port.color);
    painter.drawRect(swatch);
    const QLineF line(swatch.left() + 4, swatch.center().y(), swatch.right() - 4, swatch.center().y());
    painter.setPen(QPen(Qt::white, m_text * 0.28));
    painter.drawLine(line);
    painter.setPen(WallPainter::ChainPen(port.index, m_text * 0.125));
    painter.drawLine(line);
}

void Legend::PaintForm(QPainter& painter, const QPointF& leftTop) const
{
    const double margin = m_text * 0.4;
    const QRectF frame(leftTop, QSizeF(m_formWidth, m_picture.form.size() * m_row + 2 * margin));
    painter.setPen(QPen(Qt::black, m_text * 0.06));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
    painter.setFont(FontOf(painter, m_text));
    QRectF place(frame.left() + m_text * 0.6, frame.top() + margin, frame.width() - m_text * 1.2, m_row);
    for (const QString& text : m_picture.form) {
        DrawLine(painter, place, text);
        place.translate(0, m_row);
    }
}

} // namespace OrvanTools
