#pragma once

#include <QPointF>
#include <QSizeF>

#include <vector>

class QRectF;

namespace OrvanTools {

struct PictureCabinet;
struct PicturePort;

/// A text in a cabinet.
struct TextPlace
{
    QPointF middle;    ///< from the first corner, along the cabinet's own sides
    double height = 0; ///< 0: too small to be read
};

struct CabinetTexts
{
    TextPlace number;
    std::vector<TextPlace> receivers; ///< one for each of several receiving cards
};

/// Places the texts of the cabinets of one port beside the chain, which runs through their middles. All
/// numbers get room for as many digits as the longest has.
class CabinetTextPlaces
{
public:
    /// [ref] the port only while it is made. `growth` lets the largest texts grow with the page.
    CabinetTextPlaces(const PicturePort& port, double leastText, double growth = 1);

    CabinetTexts Place(const PictureCabinet& cabinet, const QSizeF& size) const;

    /// Painter units to a pixel of the canvas from which on all texts of the cabinet can be read; 0 for one
    /// without area. `size`: in pixels of the canvas.
    double ReadableScale(const PictureCabinet& cabinet, const QSizeF& size) const;

private:
    double NumberHeight(const QSizeF& room) const;
    double ReceiverHeight(const QSizeF& card) const;
    QRectF BoxOf(const TextPlace& text, int digits) const;
    TextPlace Number(double height, double inset, int digits) const; ///< `digits` of this number

    double m_leastText;
    double m_growth;
    int m_digits = 1;
    int m_receiverDigits = 1;
};

} // namespace OrvanTools
