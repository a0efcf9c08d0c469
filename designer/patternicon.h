#pragma once

#include <OrvanData/orvandata.h>

#include <QIcon>
#include <QPalette>

constexpr int kCardPicture = 96; ///< the longer side of a picture of cards, pixels at 100 %

QString PatternName(EnAutoNumberType pattern);

/// The way of an automatic numbering: a chain from its start to its arrow.
QIcon PatternIcon(EnAutoNumberType pattern, const QPalette& palette);

/// The cards of each cabinet of a block and the way of the chain through them.
QPixmap CardPicture(const SAddTileInfo& block, const QPalette& palette);
