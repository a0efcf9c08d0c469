#include "orvantools/cabinettexts.h"

#include "orvantools/wallpaintertools.h"

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kMostNumber = 70;
constexpr double kMostReceiver = 40;
constexpr double kInset = 0.09; ///< of a number, in parts of the shorter side

double ShorterOf(const QSizeF& size)
{
    return std::min(size.width(), size.height());
}

QSizeF SizeOf(const QRectF& part, const QSizeF& cabinet)
{
    return QSizeF(part.width() * cabinet.width(), part.height() * cabinet.height());
}

/// The receiving card in the cabinet's first corner.
const QRectF& FirstPart(const std::vector<QRectF>& parts)
{
    return *std::min_element(parts.begin(), parts.end(), [](const QRectF& a, const QRectF& b) {
        return a.left() + a.top() < b.left() + b.top();
    });
}

/// The quarter of a card that is farthest from the chain, but not where the cabinet's number is.
QPointF ReceiverPlace(const QRectF& part, bool isFirst)
{
    const bool isLeft = part.center().x() < 0.5 - 1e-6 || isFirst;
    const bool isUpper = part.center().y() < 0.5 - 1e-6 && !isFirst;
    return part.topLeft()
           + QPointF(part.width() * (isLeft ? 0.25 : 0.75), part.height() * (isUpper ? 0.25 : 0.75));
}

} // namespace

CabinetTextPlaces::CabinetTextPlaces(const PicturePort& port, double leastText, double growth)
    : m_leastText(leastText), m_growth(growth)
{
    if (!port.chain.empty())
        m_digits = FromOne(NumberOf(port, port.chain.back())).size();
    qint64 last = 0;
    for (const PictureCabinet& cabinet : port.cabinets)
        last = std::max(last, cabinet.firstReceiver + static_cast<qint64>(cabinet.receivers.size()));
    m_receiverDigits = QString::number(last).size();
}

double CabinetTextPlaces::NumberHeight(const QSizeF& room) const
{
    return std::min(room.height() * 0.27,
                    room.width() * 0.42 / (m_digits * kDigitWidth)); // left of the chain
}

double CabinetTextPlaces::ReceiverHeight(const QSizeF& card) const
{
    return std::min(card.height() * 0.3, card.width() * 0.45 / (m_receiverDigits * kDigitWidth));
}

QRectF CabinetTextPlaces::BoxOf(const TextPlace& text, int digits) const
{
    QRectF box(0, 0, digits * text.height * kDigitWidth, text.height);
    box.moveCenter(text.middle);
    return box;
}

TextPlace CabinetTextPlaces::Number(const QSizeF& room, int digits) const
{
    const double height = std::min(kMostNumber * m_growth, NumberHeight(room));
    if (height < m_leastText)
        return {};
    const double inset = ShorterOf(room) * kInset;
    return {QPointF(inset + digits * height * kDigitWidth / 2, inset + height / 2), height};
}

CabinetTexts CabinetTextPlaces::Place(const PictureCabinet& cabinet, const QSizeF& size) const
{
    const int digits = FromOne(cabinet.number).size();
    CabinetTexts texts{Number(size, digits), {}};
    if (cabinet.receivers.empty())
        return texts;
    const QRectF number = BoxOf(texts.number, digits);
    const QRectF& first = FirstPart(cabinet.receivers);
    bool isNumberFree = true;
    for (const QRectF& part : cabinet.receivers) {
        const double height =
            std::min({kMostReceiver * m_growth, ShorterOf(size) * 0.16, ReceiverHeight(SizeOf(part, size))});
        const QPointF middle = ReceiverPlace(part, &part == &first);
        const TextPlace place{QPointF(middle.x() * size.width(), middle.y() * size.height()),
                              height < m_leastText ? 0 : height};
        isNumberFree =
            isNumberFree && (place.height == 0 || !BoxOf(place, m_receiverDigits).intersects(number));
        texts.receivers.push_back(place);
    }
    if (!isNumberFree)
        texts.number = Number(SizeOf(first, size), digits);
    return texts;
}

double CabinetTextPlaces::ReadableScale(const PictureCabinet& cabinet, const QSizeF& size) const
{
    const std::vector<QRectF>& parts = cabinet.receivers;
    double least = NumberHeight(parts.empty() ? size : SizeOf(FirstPart(parts), size));
    if (!parts.empty())
        least = std::min(least, ShorterOf(size) * 0.16);
    for (const QRectF& part : parts)
        least = std::min(least, ReceiverHeight(SizeOf(part, size)));
    return least > 0 ? m_leastText * (1 + 1e-9) / least : 0;
}

} // namespace OrvanTools
