#pragma once

#include "orvantools/sheetset.h"

#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace OrvanTools {

// Of a page, in tenths of a millimetre.
constexpr double kSheetText = 34;
constexpr double kSheetLine = 52;
constexpr double kSheetGap = 30;
constexpr double kLeastSheetText = 20; ///< of the numbers on the wall

/// One page of a set. Its painters keep what they refer to.
struct SheetPage
{
    using Painting = std::function<void(QPainter&, const QRectF& area)>;

    bool landscape = false;
    QString title;   ///< of the project
    QString sender;  ///< stands before the heading, shortened where there is no room for both
    QString heading; ///< port and part
    QString figures;
    Painting body;
    Painting keyPlan; ///< none: no place is left for it
};

QSizeF SheetSize(Paper paper, bool landscape);
QRectF SheetBody(const QSizeF& page); ///< what the header and the margins leave

/// What stands at the right of the header.
struct SheetAside
{
    QString number; ///< "page 2 of 5"
    QString view;   ///< front or rear
};

void PaintSheetHeader(QPainter& painter, const SheetPage& page, const QSizeF& size, const SheetAside& aside);

} // namespace OrvanTools
