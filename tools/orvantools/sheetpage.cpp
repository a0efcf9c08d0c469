#include "orvantools/sheetpage.h"

#include "orvantools/textline.h"

#include <QCoreApplication>
#include <QPainter>

namespace OrvanTools {

namespace {

constexpr double kMargin = 100;
constexpr double kHeaderHeight = 190;
constexpr double kTitleHeight = 52;
constexpr double kKeyPlanWidth = 300;
constexpr double kAside = 480; ///< for what stands at the right

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

void PaintSheetHeader(QPainter& painter, const SheetPage& page, const QSizeF& size, const QStringList& aside)
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
    QRectF line(header.topLeft(), QSizeF(header.width(), kTitleHeight * 1.3));
    painter.setPen(Qt::black);
    painter.setFont(FontOf(painter, kSheetText));
    DrawLine(painter, line, aside.value(1), Qt::AlignRight);
    painter.setFont(FontOf(painter, kTitleHeight, true));
    DrawLine(painter, line.adjusted(0, 0, -kAside, 0), page.title);
    line = QRectF(line.bottomLeft(), QSizeF(line.width(), kSheetLine));
    painter.setFont(FontOf(painter, kSheetText));
    DrawLine(painter, line, aside.value(0), Qt::AlignRight);
    painter.setFont(FontOf(painter, kSheetText, true));
    DrawLine(painter, line.adjusted(0, 0, -kAside, 0), page.heading);
    line.translate(0, kSheetLine);
    painter.setFont(FontOf(painter, kSheetText));
    DrawLine(painter, line, page.figures);
}

QString Joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  ·  "));
}

QString Counted(qint64 number, const char* one, const char* many)
{
    return QCoreApplication::translate("OrvanTools", number == 1 ? one : many).arg(number);
}

} // namespace OrvanTools
