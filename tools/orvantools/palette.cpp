#include "orvantools/palette.h"

#include <QVector>

#include <algorithm>
#include <limits>
#include <tuple>
#include <vector>

namespace OrvanTools {

namespace {

constexpr size_t kFrequent = 192; ///< of 256; the others cover all colours evenly
constexpr int kEvenSteps = 4;     ///< a channel
constexpr int kCountedRows = 3;   ///< every third one tells enough
constexpr size_t kBins = 1 << 15; ///< five bits a channel

size_t BinOf(QRgb color)
{
    return ((color >> 9) & 0x7C00U) | ((color >> 6) & 0x3E0U) | ((color >> 3) & 0x1FU);
}

/// Colours that differ little count as one.
struct Bin
{
    qint64 pixels = 0;
    QRgb color = 0; ///< that of an area where there is one
    bool fromArea = false;
};

void Count(const QImage& drawing, std::vector<Bin>& bins)
{
    const int width = drawing.width();
    for (int y = 0; y < drawing.height(); y += kCountedRows) {
        const auto* row = reinterpret_cast<const QRgb*>(drawing.constScanLine(y));
        int begin = 0;
        for (int x = 1; x <= width; ++x) {
            if (x < width && row[x] == row[begin])
                continue;
            Bin& bin = bins[BinOf(row[begin])];
            const bool isArea = x - begin >= 4;
            if (bin.pixels == 0 || (isArea && !bin.fromArea)) {
                bin.color = row[begin];
                bin.fromArea = isArea;
            }
            bin.pixels += x - begin;
            begin = x;
        }
    }
}

int Distance(QRgb a, QRgb b)
{
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

uchar NearestOf(const QVector<QRgb>& palette, QRgb color)
{
    int best = 0;
    int least = std::numeric_limits<int>::max();
    for (int i = 0; i < palette.size(); ++i) {
        const int distance = Distance(palette[i], color);
        if (distance < least) {
            least = distance;
            best = i;
        }
    }
    return static_cast<uchar>(best);
}

QVector<QRgb> ChoosePalette(const std::vector<Bin>& bins)
{
    std::vector<const Bin*> used;
    for (const Bin& bin : bins) {
        if (bin.pixels > 0)
            used.push_back(&bin);
    }
    // Areas come first: even a small one has a colour that means something.
    std::stable_sort(used.begin(), used.end(), [](const Bin* a, const Bin* b) {
        return std::tie(a->fromArea, a->pixels) > std::tie(b->fromArea, b->pixels);
    });
    QVector<QRgb> palette;
    for (size_t i = 0; i < used.size() && i < kFrequent; ++i)
        palette.append(used[i]->color);
    const auto step = [](int i) { return i * 255 / (kEvenSteps - 1); };
    for (int i = 0; i < kEvenSteps * kEvenSteps * kEvenSteps; ++i)
        palette.append(
            qRgb(step(i % kEvenSteps), step(i / kEvenSteps % kEvenSteps), step(i / kEvenSteps / kEvenSteps)));
    return palette;
}

} // namespace

QImage ReducedToPalette(const QImage& drawing)
{
    Q_ASSERT(drawing.format() == QImage::Format_RGB32);
    std::vector<Bin> bins(kBins);
    Count(drawing, bins);
    const QVector<QRgb> palette = ChoosePalette(bins);
    std::vector<short> indices(kBins, -1);
    const auto indexOf = [&](QRgb color) {
        const size_t bin = BinOf(color);
        if (indices[bin] < 0)
            indices[bin] = NearestOf(palette, bins[bin].pixels > 0 ? bins[bin].color : color);
        return static_cast<uchar>(indices[bin]);
    };

    QImage reduced(drawing.size(), QImage::Format_Indexed8);
    reduced.setColorTable(palette);
    const int width = drawing.width();
    for (int y = 0; y < drawing.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(drawing.constScanLine(y));
        uchar* to = reduced.scanLine(y);
        for (int x = 0; x < width;) {
            const int begin = x;
            while (x < width && from[x] == from[begin])
                ++x;
            std::fill(to + begin, to + x, indexOf(from[begin]));
        }
    }
    return reduced;
}

} // namespace OrvanTools
