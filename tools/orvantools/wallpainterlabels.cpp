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

constexpr double kMostMark = 50;

/// The upright rectangle around one that is turned about its middle.
QRectF TurnedBox(const QPointF& middle, const QSizeF& size, double angle)
{
    QTransform turn;
    turn.translate(middle.x(), middle.y());
    turn.rotate(angle);
    return turn.mapRect(QRectF(QPointF(-size.width(), -size.height()) / 2, size));
}

/// Text that would stand on its head is turned round.
double Upright(double angle)
{
    const double turned = std::remainder(angle, 360);
    return std::abs(turned) > 90 ? std::remainder(turned + 180, 360) : turned;
}

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

PortAreas& WallPainter::Areas()
{
    if (!m_areas) {
        m_areas = std::make_unique<PortAreas>(m_around, m_leastText / 4);
        for (const Part& part : m_parts)
            m_areas->Add(part.port->index, part.port->shapes, m_scale, m_origin);
    }
    return *m_areas;
}

bool WallPainter::IsFree(int port, const QRectF& box)
{
    return m_around.contains(box) && (m_parts.size() == 1 || Areas().IsFree(port, box));
}

void WallPainter::PaintTexts(Part& part)
{
    const PicturePort& port = *part.port;
    const QColor color = TextOn(FillOf(port));
    const CabinetTextPlaces places(port, m_leastText);
    part.isWritten.assign(port.cabinets.size(), false);
    for (const int at : part.cabinets) {
        const TileShape& shape = port.shapes[static_cast<size_t>(at)];
        const PictureCabinet& cabinet = port.cabinets[static_cast<size_t>(at)];
        const CabinetTexts texts = places.Place(cabinet, shape.Size() * m_scale);
        QTransform turn;
        turn.rotate(shape.angle);
        const auto paint = [&](const TextPlace& place, const QString& text) {
            const QPointF middle = Map(shape.corners[0]) + turn.map(place.middle);
            return place.height > 0 && PaintText({middle, text, place.height, Upright(shape.angle)}, color);
        };
        if (cabinet.number >= 0)
            part.isWritten[static_cast<size_t>(at)] = paint(texts.number, FromOne(cabinet.number));
        for (size_t i = 0; cabinet.firstReceiver >= 0 && i < texts.receivers.size(); ++i) {
            if (!paint(texts.receivers[i], FromOne(cabinet.firstReceiver + static_cast<qint64>(i))))
                m_omitted.receivers += IsShown(shape) ? 1 : 0;
        }
    }
}

bool WallPainter::PaintText(const Label& label, const QColor& color)
{
    const double width = QFontMetricsF(Font(label.height)).horizontalAdvance(label.text);
    const QRectF box = TurnedBox(label.place, QSizeF(width, label.height), label.angle);
    if (!m_around.contains(box) || !m_labels.Take(box))
        return false;
    PaintInside(label, color);
    return true;
}

void WallPainter::PaintEnds(const Part& part)
{
    const PicturePort& port = *part.port;
    if (port.chain.empty())
        return;
    const auto shapeOf = [&](int place) { return port.shapes[static_cast<size_t>(place)]; };
    const TileShape first = shapeOf(port.chain.front());
    const TileShape last = shapeOf(port.chain.back());
    if (port.chain.size() > 1 && IsShown(last) && !PaintEnd(part, last))
        ++m_omitted.marks;
    if (IsShown(first) && !PaintStart(part, first))
        ++m_omitted.marks;
}

/// A place for a mark: in the middle of a cabinet, beside the middle where something is written there, or
/// beside the wall.
std::optional<QPointF> WallPainter::MarkPlace(const Part& part, const TileShape& shape, double radius)
{
    const QPointF middle = Map(shape.Center());
    const QPointF half(radius, radius);
    const int port = part.port->index;
    const auto take = [&](const QPointF& place) {
        const QRectF box(place - half, place + half);
        return IsFree(port, box) && m_labels.Take(box);
    };
    constexpr double aside[][2] = {{0, 0}, {1, 1},  {-1, 1}, {1, -1}, {0, 1},
                                   {1, 0}, {-1, 0}, {0, -1}, {-1, -1}};
    for (const double distance : {0.4, 0.8, 1.3, 2.0}) {
        for (const auto& way : aside) {
            const QPointF place = middle + QPointF(way[0], way[1]) * distance * radius;
            if (take(place))
                return place;
        }
    }
    // Straight out of the wall, as long as the way is over cabinets of the port.
    constexpr double ways[][2] = {{0, -1}, {0, 1}, {-1, 0}, {1, 0}};
    for (const auto& unit : ways) {
        const QPointF way = QPointF(unit[0], unit[1]) * radius;
        const QPointF across(unit[1] * m_leastText / 8, unit[0] * m_leastText / 8);
        for (QPointF place = middle; m_around.contains(place); place += way) {
            const QRectF box(place - half, place + half);
            if (!Areas().IsFree(port, QRectF(place - across, place + way + across).normalized()))
                break;
            if (Areas().IsBare(box) && m_around.contains(box) && m_labels.Take(box))
                return place;
        }
    }
    return {};
}

void WallPainter::PaintLeader(const QPointF& from, const QPointF& to)
{
    if (QLineF(from, to).length() < 1)
        return;
    m_painter.setPen(QPen(Qt::white, m_leastText * 0.25));
    m_painter.drawLine(from, to);
    m_painter.setPen(QPen(Qt::black, m_leastText * 0.12));
    m_painter.drawLine(from, to);
}

bool WallPainter::PaintEnd(const Part& part, const TileShape& shape)
{
    const double half = Limited(SideOf(shape) * 0.096, m_leastText * 0.4, kMostMark * 0.6);
    const auto place = MarkPlace(part, shape, half * 1.2);
    if (!place)
        return false;
    PaintLeader(Map(shape.Center()), *place);
    m_painter.setPen(QPen(Qt::black, half * 0.33));
    m_painter.setBrush(Qt::white);
    m_painter.drawRect(QRectF(*place - QPointF(half, half), *place + QPointF(half, half)));
    return true;
}

bool WallPainter::PaintStart(const Part& part, const TileShape& shape)
{
    const QString text = FromOne(part.port->index);
    const double ofText = text.size() > 2 ? 0.8 : 1.1; // the height of a text in a circle of radius 1
    const double radius = Limited(SideOf(shape) * 0.16, m_leastText / ofText * 1.01, kMostMark);
    const auto place = MarkPlace(part, shape, radius * 1.06);
    if (!place)
        return false;
    PaintLeader(Map(shape.Center()), *place);
    m_painter.setPen(QPen(Qt::white, radius * 0.12));
    m_painter.setBrush(Qt::black);
    m_painter.drawEllipse(*place, radius, radius);
    PaintInside({*place, text, radius * ofText, 0}, Qt::white);
    return true;
}

void WallPainter::PaintBackups(const Part& part)
{
    const PicturePort& port = *part.port;
    QStringList texts;
    if (!port.backups.isEmpty())
        texts.append(QCoreApplication::translate("OrvanTools", "backup: ")
                     + port.backups.join(QStringLiteral(", ")));
    if (!port.backupOf.isEmpty())
        texts.append(port.backupOf);
    if (port.chain.empty() || texts.isEmpty())
        return;
    const TileShape& shape = port.shapes[static_cast<size_t>(port.chain.back())];
    const double radius = Limited(part.side * 0.16, m_leastText, kMostMark);
    if (IsShown(shape))
        PaintTagNear(port.index,
                     {Map(shape.Center()), texts.join(QStringLiteral(", ")),
                      Limited(radius * 0.8, m_leastText, 34), 0},
                     QPointF(), radius);
}

/// Smaller cabinets have numbers first of all where the chain begins, ends and turns.
void WallPainter::PaintTags(Part& part)
{
    const PicturePort& port = *part.port;
    const auto shapeAt = [&port](size_t i) -> const TileShape& {
        return port.shapes[static_cast<size_t>(port.chain[i])];
    };
    for (const int at : part.chain) {
        const auto i = static_cast<size_t>(at);
        const auto place = static_cast<size_t>(port.chain[i]);
        const TileShape& shape = shapeAt(i);
        if (part.isWritten[place] || !IsShown(shape))
            continue;
        const QPointF here = Map(shape.Center());
        const bool isLast = i + 1 == port.chain.size();
        const QPointF in = i == 0 ? QPointF() : here - Map(shapeAt(i - 1).Center());
        const QPointF out = isLast ? QPointF() : Map(shapeAt(i + 1).Center()) - here;
        const bool turns = std::abs(in.x() * out.y() - in.y() * out.x()) > 1e-6 * (1 + in.manhattanLength());
        if (i != 0 && !isLast && !turns)
            continue;
        if (i == 0 && NumberOf(port, port.chain[i]) == 0) {
            part.isWritten[place] = true; // the mark of the start says it
            continue;
        }
        // Moved along the row towards the cabinets of the port, away from the numbers of the next port.
        const Label label{here, FromOne(NumberOf(port, port.chain[i])), m_leastText, 0};
        const double beyond = TagBox(label).width() - shape.Bound().width() * m_scale;
        const double row = std::abs(in.x()) > std::abs(out.x()) ? -in.x() : out.x();
        const double aside = beyond > 0 && std::abs(row) > 1e-6 ? std::copysign(beyond * 0.5, row) : 0;
        part.isWritten[place] = PaintTagNear(port.index, label, QPointF(aside, 0), m_leastText);
    }
}

/// Where a number does not fit beside the chain, it may do so on it.
void WallPainter::PaintInnerTags(Part& part)
{
    const PicturePort& port = *part.port;
    for (const int at : part.chain) {
        const auto place = static_cast<size_t>(port.chain[static_cast<size_t>(at)]);
        const TileShape& shape = port.shapes[place];
        if (part.isWritten[place] || !IsShown(shape))
            continue;
        const Label label{Map(shape.Center()), FromOne(port.cabinets[place].number), m_leastText,
                          Upright(shape.angle)};
        const QSizeF room = shape.Size() * m_scale;
        const QSizeF needed = TagBox({QPointF(), label.text, label.height, 0}).size();
        const bool fits = needed.width() < room.width() && needed.height() < room.height();
        if (!fits || !PaintTag(port.index, label))
            ++m_omitted.numbers;
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

QRectF WallPainter::TagBox(const Label& label)
{
    const double width = QFontMetricsF(Font(label.height)).horizontalAdvance(label.text);
    return TurnedBox(label.place, QSizeF(width + label.height * 0.4, label.height * 1.2), label.angle);
}

bool WallPainter::PaintTag(int port, const Label& label)
{
    const QRectF box = TagBox(label);
    if (!IsFree(port, box) || !m_labels.Take(box))
        return false;
    m_painter.save();
    m_painter.translate(label.place);
    m_painter.rotate(label.angle);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(QColor(255, 255, 255, 225));
    m_painter.drawRect(TagBox({QPointF(), label.text, label.height, 0}));
    m_painter.restore();
    PaintInside(label, Qt::black);
    return true;
}

bool WallPainter::PaintTagNear(int port, const Label& label, const QPointF& aside, double distance)
{
    const double width = QFontMetricsF(Font(label.height)).horizontalAdvance(label.text);
    const double across = distance + width * 0.5 + label.height * 0.3;
    const double down = distance + label.height * 0.7;
    const QPointF ways[] = {aside, -aside, {0, -down}, {0, down}, {across, 0}, {-across, 0}};
    return std::any_of(std::begin(ways), std::end(ways), [&](const QPointF& way) {
        return PaintTag(port, {label.place + way, label.text, label.height, 0});
    });
}

} // namespace OrvanTools
