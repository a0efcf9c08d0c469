#include "orvantools/sheettable.h"

#include "orvantools/textbatch.h"
#include "orvantools/textline.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>

#include <algorithm>
#include <utility>

namespace OrvanTools {

namespace {

constexpr double kRowHeight = 38;
constexpr double kTextHeight = 27;
constexpr double kCellGap = 22;
constexpr double kBlockGap = 60;
constexpr int kLeastRows = 8;  ///< of a table, before there is another beside it
constexpr int kShadedRows = 2; ///< every other one, to lead the eye

} // namespace

SheetTable::SheetTable(std::vector<SheetColumn> columns, int rows, std::function<QString(int, int)> text)
    : m_columns(std::move(columns)), m_rows(rows), m_text(std::move(text))
{}

QStringList SheetTable::Lines(const QStringList& list, double width)
{
    QFont font;
    font.setPixelSize(static_cast<int>(kTextHeight));
    const QFontMetricsF metrics(font);
    QStringList lines{QString()};
    for (int i = 0; i < list.size(); ++i) {
        const QString item = i + 1 < list.size() ? list[i] + QStringLiteral(", ") : list[i];
        if (!lines.last().isEmpty() && metrics.horizontalAdvance(lines.last() + item) > width)
            lines.append(QString());
        lines.last() += item;
    }
    return lines;
}

/// Of a cell and the empty ones behind it.
double SheetTable::WidthOf(int row, size_t column) const
{
    double width = m_columns[column].width;
    for (size_t i = column + 1; !m_columns[column].isNumber && i < m_columns.size(); ++i) {
        if (!m_text(row, static_cast<int>(i)).isEmpty())
            break;
        width += kCellGap + m_columns[i].width;
    }
    return width;
}

double SheetTable::Width() const
{
    double width = 0;
    for (const SheetColumn& column : m_columns)
        width += column.width + kCellGap;
    return width;
}

int SheetTable::BlocksOn(double width) const
{
    const int room = static_cast<int>((width + kBlockGap) / (Width() + kBlockGap));
    return std::max(1, std::min(room, m_rows / kLeastRows));
}

int SheetTable::RowsOn(const QSizeF& area) const
{
    return std::max(1, static_cast<int>(area.height() / kRowHeight) - 1) * BlocksOn(area.width());
}

double SheetTable::HeightOn(double width) const
{
    const int blocks = BlocksOn(width);
    return ((m_rows + blocks - 1) / blocks + 1) * kRowHeight;
}

void SheetTable::Paint(QPainter& painter, const QRectF& area, int first) const
{
    const int blocks = BlocksOn(area.width());
    const int rowsOfBlock = RowsOn(area.size()) / blocks;
    const int end = std::min(m_rows, first + rowsOfBlock * blocks);
    painter.setFont(FontOf(painter, kTextHeight));
    TextBatch texts(painter.font());
    for (int block = 0; block < blocks && first + block * rowsOfBlock < end; ++block) {
        QPointF place = area.topLeft() + QPointF(block * (Width() + kBlockGap), 0);
        const int begin = first + block * rowsOfBlock;
        PaintTitles(painter, place);
        for (int row = begin; row < std::min(end, begin + rowsOfBlock); ++row) {
            place.ry() += kRowHeight;
            PaintRow(painter, texts, place, row);
        }
    }
    texts.Paint(painter);
}

void SheetTable::PaintTitles(QPainter& painter, QPointF leftTop) const
{
    painter.setFont(FontOf(painter, kTextHeight, true));
    painter.setPen(Qt::black);
    const QPointF end = leftTop + QPointF(Width(), kRowHeight);
    painter.drawLine(QPointF(leftTop.x(), end.y()), end);
    for (const SheetColumn& column : m_columns) {
        DrawLine(painter, QRectF(leftTop, QSizeF(column.width, kRowHeight)), column.title,
                 column.isNumber ? Qt::AlignRight : Qt::AlignLeft);
        leftTop.rx() += column.width + kCellGap;
    }
    painter.setFont(FontOf(painter, kTextHeight));
}

void SheetTable::PaintRow(QPainter& painter, TextBatch& texts, QPointF leftTop, int row) const
{
    if (row % kShadedRows == 1)
        painter.fillRect(QRectF(leftTop, QSizeF(Width(), kRowHeight)), QColor(240, 240, 240));
    for (size_t i = 0; i < m_columns.size(); ++i) {
        const SheetColumn& column = m_columns[i];
        const QString text = m_text(row, static_cast<int>(i));
        const QRectF place(leftTop, QSizeF(text.isEmpty() ? column.width : WidthOf(row, i), kRowHeight));
        const Qt::Alignment alignment = column.isNumber ? Qt::AlignRight : Qt::AlignLeft;
        if (!texts.Add(place, text, alignment))
            DrawLine(painter, place, text, alignment);
        leftTop.rx() += column.width + kCellGap;
    }
}

} // namespace OrvanTools
