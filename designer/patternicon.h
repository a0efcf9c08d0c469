#pragma once

#include "cardwiring.h"

#include <QIcon>
#include <QPalette>

constexpr int kCardPicture = 96; ///< the longer side of a picture of cards, pixels at 100 %

QString PatternName(EnAutoNumberType pattern);

/// The way of an automatic numbering: a chain from its start to its arrow.
QIcon PatternIcon(EnAutoNumberType pattern, const QPalette& palette);

/// The cards of a cabinet and the way of the chain through them.
QPixmap CardPicture(const CardWiring& wiring, const QPalette& palette);
