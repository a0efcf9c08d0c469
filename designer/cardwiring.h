#pragma once

#include <OrvanData/orvandata.h>

#include <QPoint>
#include <QSize>
#include <QVector>

/// The receiving cards inside a cabinet, and the way of the chain through them.
struct CardWiring
{
    QSize cards{1, 1}; ///< across and down
    EnAutoNumberType pattern = AutoNumberRowsTopLeft;
    bool thereAndBack = true; ///< else each line begins at the same side

    bool IsSeveral() const { return cards.width() * cards.height() > 1; }
    QVector<QPoint> Way() const; ///< column and row of each card along the chain
    void SetTo(SAddTileInfo& block) const;
};
