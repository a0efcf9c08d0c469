#include "orvantools/textline.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace OrvanTools {

QFont FontOf(const QPainter& painter, double height, bool bold)
{
    QFont font = painter.font();
    font.setPixelSize(std::max(1, static_cast<int>(height)));
    font.setBold(bold);
    return font;
}

double DrawLine(QPainter& painter, const QRectF& place, const QString& text, Qt::Alignment alignment)
{
    const QFontMetricsF metrics(painter.font());
    if (place.width() <= 0)
        return 0;
    QString shown = metrics.elidedText(text, Qt::ElideRight, place.width());
    double width = metrics.horizontalAdvance(shown);
    if (width > place.width()) { // eliding takes widths that are rounded
        shown = metrics.elidedText(text, Qt::ElideRight, 2 * place.width() - width);
        width = metrics.horizontalAdvance(shown);
    }
    if (shown.isEmpty() || width > place.width())
        return 0;
    const double x = alignment & Qt::AlignRight ? place.right() - width : place.left();
    painter.drawText(QPointF(x, place.center().y() + metrics.capHeight() / 2), shown);
    return width;
}

} // namespace OrvanTools
