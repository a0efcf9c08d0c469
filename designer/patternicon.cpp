#include "patternicon.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kSize = 24; ///< pixels at 100 %
constexpr int kSharp = 4; ///< times as many are drawn, for finer screens
constexpr int kLines = 3;

QPixmap Blank(const QSize& size)
{
    QPixmap picture(size * kSharp);
    picture.setDevicePixelRatio(kSharp);
    picture.fill(Qt::transparent);
    return picture;
}

/// From a dot to an arrow.
void PaintWay(QPainter& painter, const QPolygonF& way, const QColor& color)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.6));
    painter.setBrush(color);
    painter.drawPolyline(way);
    painter.drawEllipse(way.first(), 2.6, 2.6);
    if (way.size() < 2)
        return;
    const QPointF last = way.last() - way[way.size() - 2];
    const QPointF along = last / std::hypot(last.x(), last.y());
    const QPointF across(-along.y(), along.x());
    const QPointF tip = way.last() + along * 3;
    painter.drawPolygon(QPolygonF({tip, tip - along * 6 + across * 3.5, tip - along * 6 - across * 3.5}));
}

QPixmap Draw(EnAutoNumberType pattern, const QColor& color)
{
    const QSize ends = pattern >= AutoNumberColumnsTopLeft ? QSize(kLines, 2) : QSize(2, kLines);
    SAddTileInfo lines; // a chain through cards looks the same
    lines.SetCards(ends, pattern);
    QPolygonF way;
    for (const QPoint& end : lines.GetCards())
        way.append(QPointF(5 + (kSize - 10.0) * end.x() / (ends.width() - 1),
                           5 + (kSize - 10.0) * end.y() / (ends.height() - 1)));
    QPixmap picture = Blank(QSize(kSize, kSize));
    QPainter painter(&picture);
    PaintWay(painter, way, color);
    return picture;
}

} // namespace

QString PatternName(EnAutoNumberType pattern)
{
    static const char* const kNames[] = {QT_TRANSLATE_NOOP("ChainActions", "Rows from the top left"),
                                         QT_TRANSLATE_NOOP("ChainActions", "Rows from the top right"),
                                         QT_TRANSLATE_NOOP("ChainActions", "Rows from the bottom right"),
                                         QT_TRANSLATE_NOOP("ChainActions", "Rows from the bottom left"),
                                         QT_TRANSLATE_NOOP("ChainActions", "Columns from the top left"),
                                         QT_TRANSLATE_NOOP("ChainActions", "Columns from the top right"),
                                         QT_TRANSLATE_NOOP("ChainActions", "Columns from the bottom right"),
                                         QT_TRANSLATE_NOOP("ChainActions", "Columns from the bottom left")};
    return QCoreApplication::translate("ChainActions", kNames[pattern]);
}

QIcon PatternIcon(EnAutoNumberType pattern, const QPalette& palette)
{
    QIcon icon(Draw(pattern, palette.color(QPalette::ButtonText)));
    icon.addPixmap(Draw(pattern, palette.color(QPalette::Disabled, QPalette::ButtonText)), QIcon::Disabled);
    return icon;
}

QPixmap CardPicture(const SAddTileInfo& block, const QPalette& palette)
{
    const QSize& cards = block.multiSize;
    const int side = std::min(kCardPicture / std::max(cards.width(), cards.height()), 32);
    QPixmap picture = Blank(cards * side + QSize(1, 1));
    QPainter painter(&picture);
    painter.setPen(QPen(palette.color(QPalette::Mid), 1));
    painter.setBrush(palette.color(QPalette::Base));
    QPolygonF way;
    for (const QPoint& cell : block.GetCards()) {
        painter.drawRect(QRect(cell * side, QSize(side, side)));
        way.append(QPointF(cell * side) + QPointF(side, side) / 2);
    }
    PaintWay(painter, way, palette.color(QPalette::Text));
    return picture;
}
