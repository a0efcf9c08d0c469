#include "orvantools/portload.h"

#include <OrvanData/orvandata.h>

#include <cmath>
#include <limits>

namespace OrvanTools {

namespace {

constexpr int kFramesPerSecond = 60;
constexpr int kColorBits = 8;

} // namespace

qint64 PortCapacity::Carried() const
{
    return pixels * kFramesPerSecond * kColorBits / (qint64(framesPerSecond) * colorBits);
}

double PortCapacity::LoadOf(qint64 wanted) const
{
    if (wanted <= 0)
        return 0;
    if (pixels <= 0)
        return std::numeric_limits<double>::infinity();
    return double(wanted) / double(pixels) * framesPerSecond / kFramesPerSecond * colorBits / kColorBits;
}

QString PortCapacity::PercentText(qint64 wanted) const
{
    const double percent = LoadOf(wanted) * 100;
    if (std::isinf(percent))
        return QStringLiteral("∞ %");
    return QString::number(std::ceil(percent - 1e-9), 'f', 0) + QStringLiteral(" %");
}

qint64 PixelsOf(const CTile& tile)
{
    return tile.GetSize().isEmpty() ? 0 : qint64(tile.GetWidth()) * tile.GetHeight();
}

qint64 PixelsOf(const CTileSet& tiles)
{
    qint64 pixels = 0;
    for (int i = 0; i < tiles.GetCount(); ++i)
        pixels += PixelsOf(*tiles.GetTile(i));
    return pixels;
}

PortCapacity CapacityOf(const CSender& sender, const PortCapacity& capacity)
{
    PortCapacity own = capacity;
    if (sender.GetSignalFreq() > 0)
        own.framesPerSecond = sender.GetSignalFreq();
    if (sender.GetColorDepth() > 0)
        own.colorBits = sender.GetColorDepth();
    return own;
}

} // namespace OrvanTools
