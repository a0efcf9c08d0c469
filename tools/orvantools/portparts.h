#pragma once

#include "orvantools/wallpicture.h"

#include <QSizeF>

#include <vector>

namespace OrvanTools {

/// A part of a port's layout that is drawn by itself.
struct PortPart
{
    std::vector<int> places; ///< of its cabinets, in the order of the port
    QRectF bound;            ///< of these cabinets, canvas pixels
    QRectF shown;            ///< with a little around it
    double scale = 0;        ///< at least, page units to a canvas pixel
};

/// A part on a page.
struct Panel
{
    PortPart part;
    QRectF area; ///< from the left top of the page's body, the caption at its top; page units
};

using PanelPage = std::vector<Panel>;

constexpr double kCaptionHeight = 40; ///< of a panel

/// Splits a port's layout into parts, and lays them out on pages with bodies of this size, so that the
/// numbers of all cabinets and receiving cards can be read. A cabinet lies in one part alone. One that is too
/// narrow for a readable number even alone on a page is drawn without.
std::vector<PanelPage> LayOutPort(const PicturePort& port, const QSizeF& body, double leastText);

/// Makes the pictures of a port's parts.
class PartPictures
{
public:
    explicit PartPictures(const PicturePort& port); ///< [ref]

    /// The part's cabinets, and those before and behind them in the chain, so that the chain is seen to go
    /// on.
    PicturePort Make(const PortPart& part) const;

private:
    void Append(PicturePort& picture, int place) const;

    const PicturePort& m_port;
    std::vector<int> m_steps; ///< of each cabinet, its step in the chain; -1: none
};

} // namespace OrvanTools
