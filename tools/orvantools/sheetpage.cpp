#include "orvantools/sheetpage.h"

#include "orvantools/textline.h"
#include "orvantools/words.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace OrvanTools {

namespace {

constexpr double kMargin = 100;
constexpr double kHeaderHeight = 190;
constexpr double kTitleHeight = 52;
constexpr double kKeyPlanWidth = 300;
constexpr double kMostAside = 0.5; ///< of the width, for what stands at the right

/// A line of which the end is not shortened.
QString HeadingText(const SheetPage& page, const QFont& font, double width)
{
    const QFontMetricsF metrics(font);
    const QString end = page.sender.isEmpty() ? page.heading : Joined({QStringLiteral(" "), page.heading});
    return Joined({metrics.elidedText(page.sender, Qt::ElideRight, width - metrics.horizontalAdvance(end)),
                   page.heading});
}

/// As large as fits; shortened only when it does not fit at the size of the other texts.
void DrawTitle(QPainter& painter, const QRectF& place, const QString& title)
{
    painter.setFont(FontOf(painter, kTitleHeight, true));
    const double width = QFontMetricsF(painter.font()).horizontalAdvance(title);
    const double height = kTitleHeight * std::min(1.0, place.width() / std::max(1.0, width));
    painter.setFont(FontOf(painter, std::max(kSheetText, height), true));
    DrawLine(painter, place, title);
}

} // namespace

QSizeF SheetSize(Paper paper, bool landscape)
{
    const QSizeF size = paper == Paper::A4   ? QSizeF(2100, 2970)
                        : paper == Paper::A3 ? QSizeF(2970, 4200)
                                             : QSizeF(2159, 2794);
    return landscape ? size.transposed() : size;
}

QRectF SheetBody(const QSizeF& page)
{
    return QRectF(QPointF(), page).adjusted(kMargin, kMargin + kHeaderHeight + kSheetGap, -kMargin, -kMargin);
}

void PaintSheetHeader(QPainter& painter, const SheetPage& page, const QSizeF& size, const SheetAside& aside)
{
    QRectF header(QPointF(kMargin, kMargin), SheetBody(size).size());
    header.setHeight(kHeaderHeight);
    if (page.keyPlan) {
        painter.save();
        page.keyPlan(painter,
                     QRectF(header.right() - kKeyPlanWidth, header.top(), kKeyPlanWidth - 5, kHeaderHeight));
        painter.restore();
        header.setRight(header.right() - kKeyPlanWidth - kSheetGap);
    }
    painter.setPen(Qt::black);
    QRectF line(header.topLeft(), QSizeF(header.width(), kTitleHeight * 1.3));
    double left = line.width(); // of what stands at the left
    for (const QString& text : {aside.number, aside.view}) {
        painter.setFont(FontOf(painter, kSheetText));
        const QRectF place = line.adjusted(line.width() * (1 - kMostAside), 0, 0, 0);
        left = std::min(left, line.width() - DrawLine(painter, place, text, Qt::AlignRight) - kSheetGap);
        line = QRectF(line.bottomLeft(), QSizeF(line.width(), kSheetLine));
    }
    line = QRectF(header.topLeft(), QSizeF(left, kTitleHeight * 1.3));
    DrawTitle(painter, line, page.title);
    line = QRectF(line.bottomLeft(), QSizeF(left, kSheetLine));
    painter.setFont(FontOf(painter, kSheetText, true));
    DrawLine(painter, line, HeadingText(page, painter.font(), left));
    line = QRectF(line.bottomLeft(), QSizeF(header.width(), kSheetLine));
    painter.setFont(FontOf(painter, kSheetText));
    DrawLine(painter, line, page.figures);
}

} // namespace OrvanTools
