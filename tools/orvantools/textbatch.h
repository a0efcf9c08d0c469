#pragma once

#include <QGlyphRun>
#include <QHash>
#include <QRawFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace OrvanTools {

/// Many short texts of one font, painted together, with letters on whole units: a page of numbers is drawn
/// several times as fast, and its PDF is half as large.
class TextBatch
{
public:
    explicit TextBatch(const QFont& font);

    /// One line in the middle of a rectangle's height. False when it does not fit or the font lacks a
    /// character of it; then nothing is added.
    bool Add(const QRectF& place, const QString& text, Qt::Alignment alignment);
    void Paint(QPainter& painter) const;

private:
    struct Glyph
    {
        quint32 index = 0; ///< 0: the font has none
        int advance = 0;
    };

    const Glyph& GlyphOf(QChar character);

    QRawFont m_font;
    double m_capHeight;
    QHash<QChar, Glyph> m_known;
    QVector<quint32> m_indexes;
    QVector<QPointF> m_places;
};

} // namespace OrvanTools
