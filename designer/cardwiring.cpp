#include "cardwiring.h"

QVector<QPoint> CardWiring::Way() const
{
    const bool byColumns = pattern >= AutoNumberColumnsTopLeft;
    const int corner = pattern % 4;
    const bool fromRight = corner == AutoNumberRowsTopRight || corner == AutoNumberRowsBottomRight;
    const bool fromBottom = corner >= AutoNumberRowsBottomRight;
    const QSize lines = byColumns ? cards.transposed() : cards; // along and across the lines
    QVector<QPoint> way;
    for (int line = 0; line < lines.height(); ++line) {
        for (int step = 0; step < lines.width(); ++step) {
            const int along = thereAndBack && line % 2 == 1 ? lines.width() - 1 - step : step;
            const QPoint cell = byColumns ? QPoint(line, along) : QPoint(along, line);
            way.append(QPoint(fromRight ? cards.width() - 1 - cell.x() : cell.x(),
                              fromBottom ? cards.height() - 1 - cell.y() : cell.y()));
        }
    }
    return way;
}

void CardWiring::SetTo(SAddTileInfo& block) const
{
    if (!IsSeveral())
        return;
    block.multi = true;
    block.multiSize = cards;
    const QVector<QPoint> way = Way();
    for (int i = 0; i < qMin(way.size(), kMaxReceiversInTile); ++i)
        block.line[i] = static_cast<unsigned char>(way[i].x() * cards.height() + way[i].y());
}
