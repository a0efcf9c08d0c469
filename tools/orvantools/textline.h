#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace OrvanTools {

constexpr double kLineHeight = 1.4; ///< of a line of text, in parts of the text's own height

QFont FontOf(const QPainter& painter, double height, bool bold = false);

/// One line of text in a rectangle, shortened when it does not fit. The width that it takes.
double DrawLine(QPainter& painter, const QRectF& place, const QString& text,
                Qt::Alignment alignment = Qt::AlignLeft);

} // namespace OrvanTools
