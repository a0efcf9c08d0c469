#include "orvantools/walllabels.h"

#include "orvantools/cabinettexts.h"
#include "orvantools/chainturns.h"
#include "orvantools/wallpaintertools.h"
#include "orvantools/words.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kMostMark = 50;
constexpr double kMostPortNumber = 120;
constexpr double kMostBackup = 34;
constexpr double kWidest = 1.7;   ///< of a number on the chain, in widths of its cabinet
constexpr double kHighest = 1.35; ///< the same in heights
constexpr double kLeastRun = 6;   ///< from one number of a turn to the next, in heights of text

} // namespace

WallLabels::WallLabels(QPainter& painter, const WallView& view)
    : m_painter(painter), m_view(view), m_leastText(view.GetLeastText()), m_labels(100),
      m_inBatches(painter.paintEngine()->type() == QPaintEngine::Pdf)
{}

Omissions WallLabels::Paint()
{
    const std::vector<WallPart>& parts = m_view.GetParts();
    for (const WallPart& part : parts)
        PaintTexts(part);
    PaintStarts();
    // What may be left out comes last, the most useful first.
    for (const WallPart& part : parts)
        PaintPortNumber(part);
    for (const WallPart& part : parts)
        PaintEnd(part);
    for (const WallPart& part : parts)
        PaintTags(part);
    for (const WallPart& part : parts)
        PaintInnerTags(part);
    for (const WallPart& part : parts)
        PaintBackups(part);
    for (const auto& [look, batch] : m_batches) {
        m_painter.setPen(QColor(look.second));
        batch.Paint(m_painter);
    }
    return m_omitted;
}

const WallLabels::Face& WallLabels::FaceOf(double height)
{
    const int pixels = std::max(1, static_cast<int>(height));
    auto face = m_faces.find(pixels);
    if (face == m_faces.end()) {
        face = m_faces.insert(pixels, {m_painter.font(), 0, {}});
        face->font.setPixelSize(pixels);
        const QFontMetricsF metrics(face->font);
        face->capHeight = metrics.capHeight();
        for (size_t i = 0; i < face->digits.size(); ++i)
            face->digits[i] = metrics.horizontalAdvance(QChar(static_cast<ushort>('0' + i)));
    }
    return *face;
}

double WallLabels::WidthOf(const QString& text, double height)
{
    const Face& face = FaceOf(height);
    double width = 0;
    for (const QChar character : text) {
        const ushort digit = static_cast<ushort>(character.unicode() - '0');
        if (digit >= face.digits.size())
            return QFontMetricsF(face.font).horizontalAdvance(text);
        width += face.digits[digit];
    }
    return width;
}

PortAreas& WallLabels::Areas()
{
    if (!m_areas) {
        m_areas = std::make_unique<PortAreas>(m_view.GetArea(), m_leastText / 8);
        for (const WallPart& part : m_view.GetParts())
            m_areas->Add(part.port->index, part.port->shapes, m_view.GetScale(), m_view.GetOrigin());
    }
    return *m_areas;
}

bool WallLabels::IsFree(int port, const QRectF& box)
{
    return m_view.GetArea().contains(box) && (m_view.GetParts().size() == 1 || Areas().IsFree(port, box));
}

void WallLabels::PaintTexts(const WallPart& part)
{
    const PicturePort& port = *part.port;
    const QColor color = TextOn(FillOf(port));
    const CabinetTextPlaces places(port, m_leastText, m_view.GetGrowth());
    std::vector<bool>& isWritten = m_written[&part];
    isWritten.assign(port.cabinets.size(), false);
    for (const int at : part.cabinets) {
        const TileShape& shape = part.ShapeOf(at);
        const PictureCabinet& cabinet = port.cabinets[static_cast<size_t>(at)];
        const CabinetTexts texts = places.Place(cabinet, shape.Size() * m_view.GetScale());
        QTransform turn;
        turn.rotate(shape.angle);
        const auto paint = [&](const TextPlace& place, const QString& text) {
            const QPointF middle = m_view.Map(shape.corners[0]) + turn.map(place.middle);
            return place.height > 0 && PaintText({middle, text, place.height, Upright(shape.angle)}, color);
        };
        if (cabinet.number >= 0)
            isWritten[static_cast<size_t>(at)] = paint(texts.number, FromOne(cabinet.number));
        for (size_t i = 0; cabinet.firstReceiver >= 0 && i < texts.receivers.size(); ++i) {
            if (!paint(texts.receivers[i], FromOne(cabinet.firstReceiver + static_cast<qint64>(i))))
                m_omitted.receivers += m_view.IsShown(shape) ? 1 : 0;
        }
    }
}

bool WallLabels::PaintText(const Label& label, const QColor& color)
{
    const double width = WidthOf(label.text, label.height);
    const TileShape shape = TurnedShape(label.place, QSizeF(width, label.height), label.angle);
    if (!m_view.GetArea().contains(shape.Bound()) || !m_labels.Take(shape))
        return false;
    PaintInside(label, color);
    return true;
}

std::optional<QPointF> WallLabels::PlaceOnCabinet(const WallPart& part, const TileShape& shape,
                                                  const QSizeF& size)
{
    constexpr double aside[][2] = {{0, 0}, {1, 1},  {-1, 1}, {1, -1}, {0, 1},
                                   {1, 0}, {-1, 0}, {0, -1}, {-1, -1}};
    const QRectF cabinet = m_view.Map(shape.Bound());
    QRectF box(QPointF(), size);
    for (const double distance : {0.2, 0.4, 0.65, 1.0}) {
        for (const auto& way : aside) {
            box.moveCenter(m_view.Map(shape.Center())
                           + QPointF(way[0] * size.width(), way[1] * size.height()) * distance);
            if (box.intersects(cabinet) && IsFree(part.port->index, box) && m_labels.Take(box))
                return box.center();
        }
    }
    return {};
}

/// Straight out of the wall, as long as the way is over cabinets of the port.
std::optional<QPointF> WallLabels::PlaceBeside(const WallPart& part, const QPointF& middle,
                                               const QSizeF& size)
{
    constexpr double ways[][2] = {{0, -1}, {0, 1}, {-1, 0}, {1, 0}};
    QRectF box(QPointF(), size);
    for (const auto& unit : ways) {
        const QPointF way = QPointF(unit[0] * size.width(), unit[1] * size.height()) * 0.5;
        const QPointF across = QPointF(unit[1], unit[0]) * m_leastText * 0.06; // half of the leader's width
        for (QPointF place = middle; m_view.GetArea().contains(place); place += way) {
            box.moveCenter(place);
            if (!Areas().IsFree(part.port->index, QRectF(place - across, place + way + across).normalized()))
                break;
            if (Areas().IsBare(box) && m_view.GetArea().contains(box) && m_labels.Take(box))
                return place;
        }
    }
    return {};
}

/// So far from the port's edge that a leader does not touch its neighbours.
QPointF WallLabels::InsidePort(const WallPart& part, const QPointF& place) const
{
    const QRectF bound = m_view.Map(part.bound);
    const double distance = std::min(m_leastText * 0.3, m_view.NarrowOf(part) * 0.5);
    return QPointF(Limited(place.x(), bound.left() + distance, bound.right() - distance),
                   Limited(place.y(), bound.top() + distance, bound.bottom() - distance));
}

void WallLabels::PaintLeader(const QPointF& from, const QPointF& to)
{
    m_painter.setPen(QPen(Qt::white, m_leastText * 0.25));
    m_painter.drawLine(from, to);
    m_painter.setPen(QPen(Qt::black, m_leastText * 0.12));
    m_painter.drawLine(from, to);
}

void WallLabels::PaintStarts()
{
    std::vector<Start> starts;
    for (const WallPart& part : m_view.GetParts()) {
        const PicturePort& port = *part.port;
        if (port.chain.empty() || !port.chainBegins || !m_view.IsShown(part.ShapeOf(port.chain.front())))
            continue;
        const TileShape& shape = part.ShapeOf(port.chain.front());
        const double height =
            Limited(m_view.SideOf(shape) * 0.176, m_leastText, kMostMark * m_view.GetGrowth());
        const QSizeF size = StartSize(FromOne(port.index), height) * 1.05;
        QPointF middle = m_view.Map(shape.Center());
        auto place = PlaceOnCabinet(part, shape, size);
        if (!place)
            place = PlaceBeside(part, middle, size);
        if (!place && part.isSmall) {
            middle = InsidePort(part, middle);
            place = PlaceBeside(part, middle, size);
        }
        if (place) {
            starts.push_back({middle, *place, FromOne(port.index), height});
            m_named.insert(&part);
        } else {
            ++m_omitted.marks;
        }
    }
    for (const Start& start : starts)
        PaintLeader(start.middle, start.place);
    for (const Start& start : starts) {
        QRectF box(QPointF(), StartSize(start.text, start.height));
        box.moveCenter(start.place);
        m_painter.setPen(QPen(Qt::white, start.height * 0.1));
        m_painter.setBrush(Qt::black);
        m_painter.drawRoundedRect(box, box.height() / 2, box.height() / 2);
        PaintInside({start.place, start.text, start.height, 0}, Qt::white);
    }
}

/// A frame around the number when that is not beside the chain, else a mark of its own.
void WallLabels::PaintEnd(const WallPart& part)
{
    const PicturePort& port = *part.port;
    std::vector<bool>& isWritten = m_written[&part];
    if (port.chain.size() < 2 || !port.chainEnds)
        return;
    const auto last = static_cast<size_t>(port.chain.back());
    const TileShape& shape = port.shapes[last];
    if (!m_view.IsShown(shape))
        return;
    if (!isWritten[last]) {
        isWritten[last] = PaintNumberTag(
            part, shape,
            {m_view.Map(shape.Center()), FromOne(port.cabinets[last].number), m_leastText, 0, true});
        if (isWritten[last])
            return;
    }
    double side = Limited(m_view.SideOf(shape) * 0.19, m_leastText * 0.8, kMostMark * m_view.GetGrowth());
    auto place = PlaceOnCabinet(part, shape, QSizeF(side, side) * 1.2);
    if (!place) {
        side /= 2;
        place = PlaceOnCabinet(part, shape, QSizeF(side, side) * 1.2);
    }
    if (!place) {
        ++m_omitted.marks;
        return;
    }
    const QPointF half(side / 2, side / 2);
    m_painter.setPen(QPen(Qt::black, side * 0.16));
    m_painter.setBrush(Qt::white);
    m_painter.drawRect(QRectF(*place - half, *place + half));
}

/// Where single cabinets or the start of a chain cannot be seen.
void WallLabels::PaintPortNumber(const WallPart& part)
{
    const bool isWanted = part.isSmall || (part.port->chain.empty() && m_view.GetParts().size() > 1);
    if (isWanted && !IsPortNumberPainted(part) && !m_named.contains(&part))
        ++m_omitted.ports;
}

bool WallLabels::IsPortNumberPainted(const WallPart& part)
{
    const PicturePort& port = *part.port;
    // On cabinets that are drawn each, a number alone would be taken for that of a cabinet.
    const QString text = part.isSmall ? FromOne(port.index) : Tr("Port %1").arg(port.index + 1);
    const QSizeF size = part.bound.size() * m_view.GetScale();
    const double height = std::min({kMostPortNumber * m_view.GetGrowth(), size.height() * 0.5,
                                    size.width() * 0.45 / (text.size() * kDigitWidth)});
    if (height < m_leastText)
        return false;
    for (const QPointF& middle :
         {part.bound.center(),
          port.shapes[static_cast<size_t>(part.cabinets[part.cabinets.size() / 2])].Center()}) {
        const Label label{m_view.Map(middle), text, height, 0};
        if (Areas().IsOwn(port.index, TagBox(label)) && PaintTag(part, label, FillOf(port)))
            return true;
    }
    return false;
}

/// Smaller cabinets have numbers first of all where the chain begins, ends and turns.
void WallLabels::PaintTags(const WallPart& part)
{
    const PicturePort& port = *part.port;
    std::vector<bool>& isWritten = m_written[&part];
    for (const size_t at : ChainTurns(part, m_view.GetScale(), kLeastRun * m_leastText)) {
        const auto place = static_cast<size_t>(port.chain[at]);
        const TileShape& shape = port.shapes[place];
        if (isWritten[place] || !m_view.IsShown(shape))
            continue;
        if (at == 0 && port.cabinets[place].number == 0) {
            isWritten[place] = true; // the mark of the start says it
            continue;
        }
        const Label label{m_view.Map(shape.Center()), FromOne(port.cabinets[place].number), m_leastText, 0};
        isWritten[place] = PaintNumberTag(part, shape, label);
    }
}

/// Where a number does not fit beside the chain, it may do so on it.
void WallLabels::PaintInnerTags(const WallPart& part)
{
    const PicturePort& port = *part.port;
    std::vector<bool>& isWritten = m_written[&part];
    for (const int at : part.chain) {
        const auto place = static_cast<size_t>(port.chain[static_cast<size_t>(at)]);
        const TileShape& shape = port.shapes[place];
        if (isWritten[place] || !m_view.IsShown(shape))
            continue;
        const Label label{m_view.Map(shape.Center()), FromOne(port.cabinets[place].number), m_leastText,
                          Upright(shape.angle)};
        const QSizeF room = shape.Size() * m_view.GetScale();
        const QSizeF needed = TagBox({QPointF(), label.text, label.height, 0}).size();
        const bool fits =
            needed.width() < room.width() * kWidest && needed.height() < room.height() * kHighest;
        if (!fits || !PaintNumberTag(part, shape, label))
            ++m_omitted.numbers;
    }
}

void WallLabels::PaintInside(const Label& label, const QColor& color)
{
    const Face& face = FaceOf(label.height);
    const double width = WidthOf(label.text, label.height);
    const QPointF baseline(-width / 2, face.capHeight / 2);
    if (m_inBatches && label.angle == 0) {
        TextBatch& batch =
            m_batches.try_emplace({face.font.pixelSize(), color.rgb()}, face.font).first->second;
        const QRectF place(label.place.x() - width / 2, label.place.y(), 2 * width, 0); // letters are rounded
        if (batch.Add(place, label.text, Qt::AlignLeft))
            return;
    }
    m_painter.setFont(face.font);
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

QRectF WallLabels::TagBox(const Label& label)
{
    const double width = WidthOf(label.text, label.height);
    return TurnedShape(label.place, QSizeF(width + label.height * 0.4, label.height * 1.2), label.angle)
        .Bound();
}

bool WallLabels::PaintTag(const WallPart& part, const Label& label, const QColor& ground, bool isInside)
{
    const QRectF box = TagBox(label);
    if (!(isInside ? m_view.GetArea().contains(box) : IsFree(part.port->index, box)) || !m_labels.Take(box))
        return false;
    m_painter.save();
    m_painter.translate(label.place);
    m_painter.rotate(label.angle);
    const double frame = label.isEnd ? label.height * 0.14 : 0;
    m_painter.setPen(frame > 0 ? QPen(Qt::black, frame) : QPen(Qt::NoPen));
    m_painter.setBrush(ground);
    m_painter.drawRect(TagBox({QPointF(), label.text, label.height, 0})
                           .adjusted(frame / 2, frame / 2, -frame / 2, -frame / 2));
    m_painter.restore();
    PaintInside(label, TextOn(ground));
    return true;
}

/// Beside its own port only; what is longer than that would be taken for the neighbour's too.
bool WallLabels::IsBesidePort(const WallPart& part, const QRectF& box, bool isBelow) const
{
    const QSizeF room = part.bound.size() * m_view.GetScale();
    return m_view.GetParts().size() == 1
           || (isBelow ? box.width() <= room.width() : box.height() <= room.height());
}

bool WallLabels::PaintNumberTag(const WallPart& part, const TileShape& shape, const Label& label)
{
    const QPolygonF cabinet = m_view.Map(shape.Polygon());
    const QSizeF box = TagBox({QPointF(), label.text, label.height, 0}).size();
    const double down = (label.height + box.height()) * 0.5;
    const double across = (label.height + box.width()) * 0.5;
    const double beyond = std::max(0.0, box.width() - shape.Bound().width() * m_view.GetScale()) * 0.5;
    const QPointF ways[] = {{0, 0},    {beyond, 0}, {-beyond, 0}, {0, -down},
                            {0, down}, {across, 0}, {-across, 0}};
    return std::any_of(std::begin(ways), std::end(ways), [&](const QPointF& way) {
        Label moved = label;
        moved.place += way;
        // On another cabinet that can be told apart it would say something wrong about that one.
        const QRectF place = TagBox(moved);
        const bool isOn = part.isSmall ? Areas().IsOwn(part.port->index, place)
                                       : cabinet.containsPoint(moved.place, Qt::OddEvenFill);
        const QColor ground = isOn && !label.isEnd ? FillOf(*part.port) : QColor(Qt::white);
        const bool isInside = !shape.IsTurned() && m_view.Map(shape.Bound()).contains(place);
        return (isOn || (IsBesidePort(part, place, way.y() != 0) && Areas().IsBare(place)))
               && PaintTag(part, moved, ground, isInside);
    });
}

void WallLabels::PaintBackups(const WallPart& part)
{
    const PicturePort& port = *part.port;
    QStringList texts = port.backups;
    if (!texts.isEmpty())
        texts.first().prepend(Tr("backup: "));
    if (!port.backupOf.isEmpty())
        texts.append(port.backupOf);
    if (port.chain.empty() || texts.isEmpty())
        return;
    const TileShape& shape = part.ShapeOf(port.chain.back());
    if (!m_view.IsShown(shape))
        return;
    const double radius = Limited(part.side * 0.16, m_leastText, kMostMark * m_view.GetGrowth());
    Label label{m_view.Map(shape.Center()), texts.join(QStringLiteral(", ")),
                Limited(radius * 0.8, m_leastText, kMostBackup * m_view.GetGrowth()), 0};
    const QSizeF box = TagBox(label).size();
    const double down = radius + box.height() * 0.5;
    const double across = radius + box.width() * 0.5;
    const double beyond = std::max(0.0, box.width() - shape.Bound().width() * m_view.GetScale()) * 0.5;
    const QPointF ways[] = {{0, down},       {0, -down},       {beyond, down}, {-beyond, down},
                            {beyond, -down}, {-beyond, -down}, {across, 0},    {-across, 0}};
    const QPointF middle = label.place;
    for (const bool isOwn : {true, false}) {
        for (const QPointF& way : ways) {
            label.place = middle + way;
            if ((!isOwn || Areas().IsOwn(port.index, TagBox(label))) && PaintTag(part, label, Qt::white))
                return;
        }
    }
}

} // namespace OrvanTools
