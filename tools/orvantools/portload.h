#pragma once

#include <QString>

class CSender;
class CTile;
class CTileSet;

namespace OrvanTools {

/// What one output port carries. More frames a second or more bits a colour leave room for proportionally
/// fewer pixels.
struct PortCapacity
{
    qint64 pixels = 655360; ///< at 60 frames a second and 8 bits a colour
    int framesPerSecond = 60;
    int colorBits = 8;

    qint64 Carried() const;             ///< pixels at these frames and bits, whole ones
    double LoadOf(qint64 wanted) const; ///< 1: full; of no pixels 0; infinite when none are carried
    /// The load in per cent, "62 %". Rounded up, so that more than fits is never told as 100 %.
    QString PercentText(qint64 wanted) const;
};

/// The same at the frames and bits that the sender is set to, where it is.
PortCapacity CapacityOf(const CSender& sender, const PortCapacity& capacity = PortCapacity());

/// What a cabinet takes of it, turned or not.
qint64 PixelsOf(const CTile& tile);
qint64 PixelsOf(const CTileSet& tiles); ///< of all of them, covered twice or not

} // namespace OrvanTools
