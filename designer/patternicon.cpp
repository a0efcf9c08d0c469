#include "patternicon.h"

#include <QPainter>
#include <QPolygonF>

namespace {

constexpr int kSize = 24; ///< pixels at 100 %
constexpr int kSharp = 4; ///< times as many are drawn, for finer screens
constexpr int kLines = 3;

/// Left-top corner first: there and back, line after line.
QPolygonF Way(EnAutoNumberType pattern)
{
    const bool byColumns = pattern >= AutoNumberColumnsTopLeft;
    const int corner = pattern % 4;
    const bool fromRight = corner == AutoNumberRowsTopRight || corner == AutoNumberRowsBottomRight;
    const bool fromBottom = corner >= AutoNumberRowsBottomRight;
    QPolygonF way;
    for (int line = 0; line < kLines; ++line) {
        for (const int end : {line % 2, 1 - line % 2}) {
            const double across = byColumns ? double(line) / (kLines - 1) : end;
            const double down = byColumns ? end : double(line) / (kLines - 1);
            way.append(QPointF(fromRight ? 1 - across : across, fromBottom ? 1 - down : down));
        }
    }
    return way;
}

QPixmap Draw(EnAutoNumberType pattern, const QColor& color)
{
    QPixmap picture(kSize * kSharp, kSize * kSharp);
    picture.setDevicePixelRatio(kSharp);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.6));
    painter.setBrush(color);
    QPolygonF way = Way(pattern);
    for (QPointF& point : way)
        point = QPointF(5, 5) + point * (kSize - 10);
    painter.drawPolyline(way);
    painter.drawEllipse(way.first(), 2.6, 2.6);
    const QPointF along = (way.last() - way[way.size() - 2]) / (kSize - 10.0);
    const QPointF across(-along.y(), along.x());
    const QPointF tip = way.last() + along * 3;
    painter.drawPolygon(QPolygonF({tip, tip - along * 6 + across * 3.5, tip - along * 6 - across * 3.5}));
    return picture;
}

} // namespace

QIcon PatternIcon(EnAutoNumberType pattern, const QPalette& palette)
{
    QIcon icon(Draw(pattern, palette.color(QPalette::ButtonText)));
    icon.addPixmap(Draw(pattern, palette.color(QPalette::Disabled, QPalette::ButtonText)), QIcon::Disabled);
    return icon;
}
