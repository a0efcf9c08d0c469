#pragma once

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSizeF>
#include <QString>

#include <memory>

namespace OrvanTools {

/// A page that is longer than PDF readers take, 14400 points, made smaller in its proportions. Tenths of a
/// millimetre.
QSizeF LimitedPage(const QSizeF& page);

/// A PDF in memory whose bytes depend on what is drawn alone. Pages are painted one after another, in tenths
/// of a millimetre.
class PdfDocument
{
public:
    explicit PdfDocument(const QString& title);

    /// Begins a page and leads back to the same painter, with its default state.
    QPainter& BeginPage(const QSizeF& size);
    QByteArray Finish(); ///< the whole document; empty when it could not be drawn

private:
    /// Qt lists the fonts of a PDF in the order of a hash, which is another one in each run. While this
    /// lives, new hashes have one order.
    class FixedHashOrder
    {
    public:
        FixedHashOrder();
        ~FixedHashOrder();
        FixedHashOrder(const FixedHashOrder&) = delete;
        FixedHashOrder& operator=(const FixedHashOrder&) = delete;

    private:
        bool m_wasRandom;
    };

    FixedHashOrder m_order;
    QBuffer m_bytes;
    QPdfWriter m_writer;
    QPainter m_painter; ///< declared last: it ends before its device
};

} // namespace OrvanTools
