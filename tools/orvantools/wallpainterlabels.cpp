// Everything written on the wall: numbers, ends of chains, backups.
#include "orvantools/wallpainter.h"
#include "orvantools/wallpaintertools.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kDigitWidth = 0.62; ///< of a number's height, the widest of usual fonts
constexpr double kMostText = 70;

} // namespace

const QFont& WallPainter::Font(double height)
{
    const int pixels = std::max(1, static_cast<int>(height));
    auto font = m_fonts.find(pixels);
    if (font == m_fonts.end()) {
        font = m_fonts.insert(pixels, m_painter.font());
        font->setPixelSize(pixels);
    }
    return *font;
}

void WallPainter::PaintEnds(const PicturePort& port)
{
    if (port.chain.empty())
        return;
    const TileShape& first = port.shapes[static_cast<size_t>(port.chain.front())];
    const double radius = EndRadius(port);
    const QPointF start = Map(first.Center());
    const QPointF end = Map(port.shapes[static_cast<size_t>(port.chain.back())].Center());
    if (port.chain.size() > 1) {
        const QPointF half(radius * 0.6, radius * 0.6);
        m_painter.setPen(QPen(Qt::black, radius * 0.2));
        m_painter.setBrush(Qt::white);
        m_painter.drawRect(QRectF(end - half, end + half));
        m_labels.Block(QRectF(end - half, end + half));
    }
    m_painter.setPen(QPen(Qt::white, radius * 0.12));
    m_painter.setBrush(Qt::black);
    m_painter.drawEllipse(start, radius, radius);
    m_labels.Block(QRectF(start - QPointF(radius, radius), start + QPointF(radius, radius)));
    const QString text = FromOne(port.index);
    PaintInside({start, text, radius * (text.size() > 2 ? 0.8 : 1.1), 0}, Qt::white);
}

double WallPainter::EndRadius(const PicturePort& port) const
{
    return Limited(SideOf(port.shapes[static_cast<size_t>(port.chain.front())]) * 0.16, m_leastText, 50);
}

void WallPainter::PaintBackups(const PicturePort& port)
{
    if (port.chain.empty() || port.backups.isEmpty())
        return;
    const QString text =
        QCoreApplication::translate("OrvanTools", "backup: ") + port.backups.join(QStringLiteral(", "));
    const QPointF end = Map(port.shapes[static_cast<size_t>(port.chain.back())].Center());
    const double radius = EndRadius(port);
    PaintTagNear({end, text, Limited(radius * 0.8, m_leastText, 34), 0}, QPointF(), radius);
}

double WallPainter::NumberHeight(const PicturePort& port, const TileShape& shape) const
{
    const int digits = FromOne(NumberOf(port, port.chain.back())).size();
    const double side = SideOf(shape);
    return std::min({kMostText, side * 0.27, side * 0.42 / (digits * kDigitWidth)}); // left of the chain
}

/// The number of each cabinet that has room for it, in its first corner.
void WallPainter::PaintNumbers(const PicturePort& port)
{
    const QColor color = TextOn(FillOf(port));
    for (const int place : port.chain) {
        const TileShape& shape = port.shapes[static_cast<size_t>(place)];
        const double height = NumberHeight(port, shape);
        if (height < m_leastText)
            continue;
        const QString text = FromOne(NumberOf(port, place));
        const double inset = SideOf(shape) * 0.09;
        const QPointF middle(inset + text.size() * height * kDigitWidth * 0.5, inset + height * 0.5);
        const QPointF corner = Map(shape.corners[0]);
        QTransform turn;
        turn.rotate(shape.angle);
        const QPointF at = corner + turn.map(middle);
        PaintInside({at, text, height, shape.angle}, color);
        m_labels.Block(QRectF(at - middle, at + middle).adjusted(inset, inset, -inset, -inset));
    }
}

/// Smaller cabinets have numbers only where the chain begins, ends and turns.
void WallPainter::PaintNumbersOfTurns(const PicturePort& port)
{
    const auto shapeAt = [&port](size_t i) -> const TileShape& {
        return port.shapes[static_cast<size_t>(port.chain[i])];
    };
    for (size_t i = 0; i < port.chain.size(); ++i) {
        const TileShape& shape = shapeAt(i);
        if (NumberHeight(port, shape) >= m_leastText || (i == 0 && NumberOf(port, port.chain[i]) == 0))
            continue;
        const QPointF here = Map(shape.Center());
        const bool isLast = i + 1 == port.chain.size();
        const QPointF in = i == 0 ? QPointF() : here - Map(shapeAt(i - 1).Center());
        const QPointF out = isLast ? QPointF() : Map(shapeAt(i + 1).Center()) - here;
        const bool turns = std::abs(in.x() * out.y() - in.y() * out.x()) > 1e-6 * (1 + in.manhattanLength());
        if (i != 0 && !isLast && !turns)
            continue;
        // Moved along the row towards the cabinets of the port, away from the numbers of the next port.
        const QString text = FromOne(NumberOf(port, port.chain[i]));
        const double beyond = QFontMetricsF(Font(m_leastText)).horizontalAdvance(text) + m_leastText * 0.5
                              - shape.Bound().width() * m_scale;
        const double row = std::abs(in.x()) > std::abs(out.x()) ? -in.x() : out.x();
        const double aside = beyond > 0 && std::abs(row) > 1e-6 ? std::copysign(beyond * 0.5, row) : 0;
        PaintTagNear({here, text, m_leastText, 0}, QPointF(aside, 0), m_leastText);
    }
}

void WallPainter::PaintReceiverNumbers(const PicturePort& port)
{
    const QColor color = TextOn(FillOf(port));
    for (size_t c = 0; c < port.cabinets.size(); ++c) {
        const PictureCabinet& cabinet = port.cabinets[c];
        const double side = SideOf(port.shapes[c]);
        for (size_t i = 0; cabinet.firstReceiver >= 0 && i < cabinet.receivers.size(); ++i) {
            const QRectF& part = cabinet.receivers[i];
            const QString text = FromOne(cabinet.firstReceiver + static_cast<qint64>(i));
            const double height = std::min({40.0, side * 0.16, side * part.height() * 0.3,
                                            side * part.width() * 0.5 / (text.size() * kDigitWidth)});
            if (height < m_leastText)
                continue;
            const QPointF place =
                Map(port.shapes[c].At(part.left() + part.width() * 0.75, part.top() + part.height() * 0.75));
            PaintInside({place, text, height, port.shapes[c].angle}, color);
        }
    }
}

void WallPainter::PaintInside(const Label& label, const QColor& color)
{
    const QFont& font = Font(label.height);
    const QFontMetricsF metrics(font);
    const QPointF baseline(-metrics.horizontalAdvance(label.text) / 2, metrics.capHeight() / 2);
    m_painter.setFont(font);
    m_painter.setPen(color);
    if (label.angle == 0) {
        m_painter.drawText(label.place + baseline, label.text);
        return;
    }
    m_painter.save();
    m_painter.translate(label.place);
    m_painter.rotate(label.angle);
    m_painter.drawText(baseline, label.text);
    m_painter.restore();
}

bool WallPainter::PaintTag(const Label& label)
{
    const QFontMetricsF metrics(Font(label.height));
    QRectF ground(0, 0, metrics.horizontalAdvance(label.text) + label.height * 0.5, label.height * 1.2);
    ground.moveCenter(label.place);
    if (!m_labels.Take(ground))
        return false;
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(QColor(255, 255, 255, 225));
    m_painter.drawRect(ground);
    PaintInside(label, Qt::black);
    return true;
}

bool WallPainter::PaintTagNear(const Label& label, const QPointF& aside, double distance)
{
    const double width = QFontMetricsF(Font(label.height)).horizontalAdvance(label.text);
    const double across = distance + width * 0.5 + label.height * 0.3;
    const double down = distance + label.height * 0.7;
    const QPointF ways[] = {aside, {0, -down}, {0, down}, {across, 0}, {-across, 0}};
    return std::any_of(std::begin(ways), std::end(ways), [&](const QPointF& way) {
        return PaintTag({label.place + way, label.text, label.height, 0});
    });
}

} // namespace OrvanTools
