#include "orvantools/pdfdocument.h"

#include <QHashFunctions>
#include <QPageSize>

#include <algorithm>

namespace OrvanTools {

namespace {

constexpr double kMostPoints = 14400; ///< PDF 1.7, annex C: the length of a page
constexpr double kUnitsPerInch = 254;
constexpr double kPointsPerInch = 72;

/// Qt writes the time of the drawing. A fixed one of the same length keeps the offsets of the file's table.
void FixCreationDate(QByteArray* pdf)
{
    const QByteArray key = "\n/CreationDate (D:";
    const int begin = pdf->indexOf(key) + key.size();
    const int end = pdf->indexOf(')', begin);
    if (begin < key.size() || end < 0)
        return;
    const QByteArray fixed = QByteArray("20000101000000").leftJustified(end - begin);
    for (int i = begin; i < end; ++i) {
        const char old = pdf->at(i);
        if (old == '-')
            (*pdf)[i] = '+';
        else if (old >= '0' && old <= '9') // the marks of a time zone stay
            (*pdf)[i] = fixed[i - begin] == ' ' ? '0' : fixed[i - begin];
    }
}

} // namespace

QSizeF LimitedPage(const QSizeF& page)
{
    const double most = kMostPoints / kPointsPerInch * kUnitsPerInch;
    return page * std::min(1.0, most / std::max(page.width(), page.height()));
}

PdfDocument::FixedHashOrder::FixedHashOrder() : m_wasRandom(qGlobalQHashSeed() != 0)
{
    qSetGlobalQHashSeed(0);
}

PdfDocument::FixedHashOrder::~FixedHashOrder()
{
    if (m_wasRandom)
        qSetGlobalQHashSeed(-1);
}

PdfDocument::PdfDocument(const QString& title) : m_writer(&m_bytes)
{
    m_bytes.open(QIODevice::WriteOnly);
    m_writer.setResolution(static_cast<int>(kUnitsPerInch));
    m_writer.setPageMargins(QMarginsF());
    m_writer.setCreator(QStringLiteral("OrvanData"));
    m_writer.setTitle(title);
}

QPainter& PdfDocument::BeginPage(const QSizeF& size)
{
    m_writer.setPageSize(QPageSize(size / 10, QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    if (m_painter.isActive()) {
        m_writer.newPage();
        m_painter.restore();
    } else {
        m_painter.begin(&m_writer);
    }
    m_painter.save();
    return m_painter;
}

QByteArray PdfDocument::Finish()
{
    m_painter.restore();
    if (!m_painter.end())
        return {};
    QByteArray bytes = m_bytes.data();
    FixCreationDate(&bytes);
    return bytes;
}

} // namespace OrvanTools
