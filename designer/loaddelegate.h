#pragma once

#include <QStyledItemDelegate>

/// Draws how full a port is as a bar, red when it is more than full.
class LoadDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
