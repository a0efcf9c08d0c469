#include "orvantools/cabinettexts.h"

#include "orvantools/wallpaintertools.h"

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr double kMostNumber = 70;
constexpr double kMostReceiver = 40;
constexpr double kInset = 0.09;      ///< of a number, in parts of the shorter side
constexpr double kOfReceiver = 0.13; ///< height of the number of a receiving card, in the same parts

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

TextPlace CabinetTextPlaces::Number(double height, double inset, int digits) const
{
    if (height < m_leastText)
        return {};
    return {QPointF(inset + digits * height * kDigitWidth / 2, inset + height / 2), height};
}

CabinetTexts CabinetTextPlaces::Place(const PictureCabinet& cabinet, const QSizeF& size) const
{
    CabinetTexts texts;
    const int digits = FromOne(cabinet.number).size();
    double height = std::min(kMostNumber * m_growth, NumberHeight(size));
    const double inset = ShorterOf(size) * kInset;
    texts.number = Number(height, inset, digits);
    if (cabinet.receivers.empty())
        return texts;
    const QRectF& first = FirstPart(cabinet.receivers);
    for (const QRectF& part : cabinet.receivers) {
        const double wanted = std::min(
            {kMostReceiver * m_growth, ShorterOf(size) * kOfReceiver, ReceiverHeight(SizeOf(part, size))});
        const QPointF middle = ReceiverPlace(part, &part == &first);
        texts.receivers.push_back({QPointF(middle.x() * size.width(), middle.y() * size.height()),
                                   wanted < m_leastText ? 0 : wanted});
    }
    // The number gets smaller until it is beside those of the cards, at last so small that it fits on its
    // card.
    const auto isFree = [&] {
        const QRectF number = BoxOf(texts.number, digits);
        return std::none_of(texts.receivers.begin(), texts.receivers.end(), [&](const TextPlace& place) {
            return place.height > 0 && BoxOf(place, m_receiverDigits).intersects(number);
        });
    };
    const QSizeF card = SizeOf(first, size);
    const double least = std::max(m_leastText, NumberHeight(card));
    while (!isFree() && height > least) {
        height = std::max(least, height * 0.9);
        texts.number = Number(height, inset, digits);
    }
    if (!isFree())
        texts.number = Number(std::min(height, NumberHeight(card)), ShorterOf(card) * kInset, digits);
    return texts;
}

double CabinetTextPlaces::ReadableScale(const PictureCabinet& cabinet, const QSizeF& size) const
{
    const std::vector<QRectF>& parts = cabinet.receivers;
    double least = NumberHeight(parts.empty() ? size : SizeOf(FirstPart(parts), size));
    if (!parts.empty())
        least = std::min(least, ShorterOf(size) * kOfReceiver);
    for (const QRectF& part : parts)
        least = std::min(least, ReceiverHeight(SizeOf(part, size)));
    return least > 0 ? m_leastText * (1 + 1e-9) / least : 0;
}

} // namespace OrvanTools
