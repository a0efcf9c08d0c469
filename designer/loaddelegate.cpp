#include "loaddelegate.h"

#include <QPainter>

#include <algorithm>

void LoadDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    const QString text = std::exchange(ground.text, QString());
    QStyledItemDelegate::paint(painter, option, QModelIndex());
    if (text.isEmpty())
        return;
    const double load = index.data(Qt::UserRole).toDouble();
    const QRectF bar = QRectF(option.rect).adjusted(3, 3, -4, -4);
    const QColor color = load > 1 ? QColor(200, 30, 30) : option.palette.color(QPalette::Highlight);
    painter->save();
    painter->fillRect(bar, option.palette.color(QPalette::Base));
    painter->fillRect(QRectF(bar.topLeft(), QSizeF(bar.width() * std::min(load, 1.0), bar.height())), color);
    painter->setPen(option.palette.color(QPalette::Mid));
    painter->drawRect(bar);
    painter->setPen(load > 0.5 ? option.palette.color(QPalette::HighlightedText)
                               : option.palette.color(QPalette::Text));
    painter->drawText(bar, Qt::AlignCenter, text);
    painter->restore();
}
