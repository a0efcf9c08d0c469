#include "loaddelegate.h"

#include <QWidget>

#include <algorithm>

void LoadDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    const QString text = index.data().toString();
    QStyledItemDelegate::paint(painter, option, QModelIndex());
    if (text.isEmpty())
        return;
    const double load = index.data(Qt::UserRole).toDouble();
    QStyleOptionProgressBar bar;
    bar.initFrom(option.widget);
    bar.rect = option.rect.adjusted(2, 2, -2, -2);
    bar.state |= QStyle::State_Horizontal;
    bar.maximum = 100;
    bar.progress = qRound(std::min(load, 1.0) * bar.maximum);
    bar.text = text;
    bar.textVisible = true;
    bar.textAlignment = Qt::AlignCenter;
    if (load > 1)
        bar.palette.setColor(QPalette::Highlight, QColor(200, 30, 30));
    option.widget->style()->drawControl(QStyle::CE_ProgressBar, &bar, painter);
}
