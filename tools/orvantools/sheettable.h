#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QPainter;

namespace OrvanTools {

class TextBatch;

struct SheetColumn
{
    QString title;
    double width = 0;      ///< page units
    bool isNumber = false; ///< stands at the right
};

/// Lays rows of text out on pages: one below the other, in as many columns of rows side by side as the page
/// is wide enough for. A text at the left may run on over empty cells. Lengths in tenths of a millimetre.
class SheetTable
{
public:
    /// `text` gives the text of a row and column. [ref] what it refers to.
    SheetTable(std::vector<SheetColumn> columns, int rows, std::function<QString(int row, int column)> text);

    /// A list in as many lines as it needs in a cell of this width; at least one.
    static QStringList Lines(const QStringList& list, double width);

    int RowCount() const { return m_rows; }
    int RowsOn(const QSizeF& area) const;                               ///< how many fit, at least one
    double HeightOn(double width) const;                                ///< of all rows
    void Paint(QPainter& painter, const QRectF& area, int first) const; ///< from that row on, as many as fit

private:
    double Width() const;
    int BlocksOn(double width) const;
    void PaintTitles(QPainter& painter, QPointF leftTop) const;
    double WidthOf(int row, size_t column) const;
    void PaintRow(QPainter& painter, TextBatch& texts, QPointF leftTop, int row) const;

    std::vector<SheetColumn> m_columns;
    int m_rows;
    std::function<QString(int, int)> m_text;
};

} // namespace OrvanTools
