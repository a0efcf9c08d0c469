#include "orvantools/textbatch.h"

#include <QFontMetricsF>
#include <QPainter>

namespace OrvanTools {

TextBatch::TextBatch(const QFont& font)
    : m_font(QRawFont::fromFont(font)), m_capHeight(QFontMetricsF(font).capHeight())
{}

const TextBatch::Glyph& TextBatch::GlyphOf(QChar character)
{
    auto known = m_known.find(character);
    if (known == m_known.end()) {
        Glyph glyph;
        const QVector<quint32> indexes = m_font.glyphIndexesForString(character);
        if (indexes.size() == 1)
            glyph = {indexes[0], qRound(m_font.advancesForGlyphIndexes(indexes)[0].x())};
        known = m_known.insert(character, glyph);
    }
    return *known;
}

bool TextBatch::Add(const QRectF& place, const QString& text, Qt::Alignment alignment)
{
    int width = 0;
    for (const QChar character : text) {
        const Glyph& glyph = GlyphOf(character);
        if (glyph.index == 0)
            return false;
        width += glyph.advance;
    }
    if (width > place.width())
        return false;
    const double left = alignment & Qt::AlignRight ? place.right() - width : place.left();
    QPoint at(qRound(left), qRound(place.center().y() + m_capHeight / 2));
    for (const QChar character : text) {
        const Glyph& glyph = GlyphOf(character);
        m_indexes.append(glyph.index);
        m_places.append(at);
        at.rx() += glyph.advance;
    }
    return true;
}

void TextBatch::Paint(QPainter& painter) const
{
    QGlyphRun run;
    run.setRawFont(m_font);
    run.setGlyphIndexes(m_indexes);
    run.setPositions(m_places);
    painter.drawGlyphRun(QPointF(), run);
}

} // namespace OrvanTools
