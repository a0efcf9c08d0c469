#include "orvantools/testpattern.h"

#include "orvantools/backupmap.h"
#include "orvantools/patternface.h"
#include "orvantools/pngrows.h"
#include "orvantools/tileshape.h"
#include "orvantools/wallpaintertools.h"

#include <OrvanData/orvandata.h>

#include <QColor>

#include <algorithm>
#include <cmath>

namespace OrvanTools {

namespace {

constexpr int kBand = 64; ///< rows painted at once
constexpr int kGridStep = 16;
constexpr double kFarthest = 1 << 24; ///< pixels
constexpr double kRounding = 1e-6;    ///< of a corner that was turned

constexpr uchar kBlack = 0;
constexpr uchar kWhite = 1;
constexpr uchar kGridOnBlack = 2;
constexpr QRgb kFirstColors[] = {qRgb(0, 0, 0), qRgb(255, 255, 255), qRgb(90, 90, 90)};

/// The first pixel whose middle does not lie before `place`.
int PixelAt(double place)
{
    return static_cast<int>(std::ceil(std::clamp(place, -kFarthest, kFarthest) - 0.5));
}

QRect PixelRect(const QRectF& bound)
{
    return QRect(QPoint(PixelAt(bound.left()), PixelAt(bound.top())),
                 QPoint(PixelAt(bound.right()) - 1, PixelAt(bound.bottom()) - 1));
}

bool HasOwnCabinets(const CPort& port)
{
    return !port.IsBackupDest() && port.GetTileSet().GetCount() > 0;
}

std::vector<const CPort*> ShownPorts(const CProjectData& project, int index)
{
    const CSender& sender = *project.GetSender(index);
    std::vector<const CPort*> ports;
    for (int i = 0; i < sender.GetPortCount(); ++i) {
        if (HasOwnCabinets(*sender.GetPort(i)))
            ports.push_back(sender.GetPort(i));
    }
    if (!ports.empty())
        return ports;
    const BackupMap backups(project);
    for (int i = 0; i < sender.GetPortCount(); ++i) {
        const PortPlace original = backups.OriginalOf({index, i});
        const CPort* port = project.GetSender(original.sender)->GetPort(original.port);
        if (!port->IsBackupDest())
            ports.push_back(port);
    }
    return ports;
}

template <typename Visit> void ForEachCabinet(const std::vector<const CPort*>& ports, Visit visit)
{
    for (const CPort* port : ports) {
        const CTileSet& tiles = port->GetTileSet();
        for (int i = 0; i < tiles.GetCount(); ++i) {
            if (!tiles.GetTile(i)->GetSize().isEmpty())
                visit(*port, *tiles.GetTile(i));
        }
    }
}

/// The part of the cabinets' coordinates that the picture shows. A canvas in a file may have any size.
struct Area
{
    QPoint leftTop;
    QSize size;
};

Area AreaOf(const CSender& sender, const std::vector<const CPort*>& ports)
{
    if (!sender.GetCanvasSize().isEmpty())
        return {QPoint(PixelAt(-OffsetOf(sender).x()), PixelAt(-OffsetOf(sender).y())),
                sender.GetCanvasSize()};
    QRectF bound;
    ForEachCabinet(ports, [&bound](const CPort& /*port*/, const CTile& tile) {
        bound = bound.united(ShapeOf(tile).Bound());
    });
    const QRect pixels = PixelRect(bound);
    return {pixels.topLeft(), pixels.size()};
}

/// A third of the way to its text, so that the text stays readable upon it.
QRgb GridOn(QRgb ground, QRgb text)
{
    const auto mix = [](int from, int to) { return (2 * from + to) / 3; };
    return qRgb(mix(qRed(ground), qRed(text)), mix(qGreen(ground), qGreen(text)),
                mix(qBlue(ground), qBlue(text)));
}

/// Colours of one kind of cabinet, as indices into the palette.
struct Colors
{
    uchar ground = kBlack;
    uchar grid = kGridOnBlack;
    uchar text = kWhite;
};

struct PaintedCabinet
{
    const CTile* tile;
    QRect pixels; ///< of the picture, that it may cover
    Colors colors;
};

class PatternPainter
{
public:
    PatternPainter(const CProjectData& project, const PatternOptions& options);

    bool Write(QIODevice& device);

private:
    Colors ColorsOf(const CPort& port);
    void PaintBand(const QRect& band);
    void PaintStraight(const PaintedCabinet& cabinet, const QRect& pixels, int bandTop);
    void PaintTurned(const PaintedCabinet& cabinet, const TileShape& shape, const QRect& pixels, int bandTop);
    void PaintGround(int y, int begin, int end, uchar* row, const Colors& colors) const;
    uchar* RowAt(int y, int bandTop)
    {
        return m_rows.data() + static_cast<size_t>(y - bandTop) * static_cast<size_t>(m_area.size.width());
    }

    const PatternMode m_mode;
    Area m_area;
    QVector<QRgb> m_palette;
    std::vector<PaintedCabinet> m_cabinets; ///< later ones lie over earlier ones
    std::vector<size_t> m_byTop;
    size_t m_reached = 0;         ///< so many of those have been met by a band
    std::vector<size_t> m_active; ///< those of them that reach into the band, in the order of painting
    std::vector<uchar> m_rows;    ///< of the band
};

PatternPainter::PatternPainter(const CProjectData& project, const PatternOptions& options)
    : m_mode(options.mode), m_palette(std::begin(kFirstColors), std::end(kFirstColors))
{
    const auto ports = ShownPorts(project, options.sender);
    m_area = AreaOf(*project.GetSender(options.sender), ports);
    const QRect picture(QPoint(0, 0), m_area.size);
    ForEachCabinet(ports, [&](const CPort& port, const CTile& tile) {
        const TileShape shape = ShapeOf(tile);
        const int rounding = shape.IsTurned() ? 1 : 0;
        const QRectF bound = shape.Bound().translated(-QPointF(m_area.leftTop));
        const QRect pixels =
            PixelRect(bound).adjusted(-rounding, -rounding, rounding, rounding).intersected(picture);
        if (!pixels.isEmpty())
            m_cabinets.push_back({&tile, pixels, ColorsOf(port)});
    });
    for (size_t i = 0; i < m_cabinets.size(); ++i)
        m_byTop.push_back(i);
    std::stable_sort(m_byTop.begin(), m_byTop.end(), [this](size_t a, size_t b) {
        return m_cabinets[a].pixels.top() < m_cabinets[b].pixels.top();
    });
}

Colors PatternPainter::ColorsOf(const CPort& port)
{
    if (m_mode == PatternMode::Numbers)
        return {};
    const QRgb ground = CConstantData::GetColorByPort(port.GetPortIndex()).rgb();
    const uchar text = TextOn(ground) == Qt::black ? kBlack : kWhite;
    int index = m_palette.indexOf(ground);
    if (index < 0) {
        index = m_palette.size();
        m_palette.append({ground, GridOn(ground, kFirstColors[text])});
    }
    return {static_cast<uchar>(index), static_cast<uchar>(index + 1), text};
}

bool PatternPainter::Write(QIODevice& device)
{
    const QSize size = m_area.size;
    PngRows png(device);
    if (size.isEmpty() || size.width() > kMaxCanvasWidth || size.height() > kMaxCanvasHeight
        || !png.Begin(size, m_palette))
        return false;
    m_rows.resize(static_cast<size_t>(size.width()) * kBand);
    for (int top = 0; top < size.height(); top += kBand) {
        const QRect band(0, top, size.width(), std::min(kBand, size.height() - top));
        PaintBand(band);
        if (!png.Write(m_rows.data(), band.height()))
            return false;
    }
    return png.End();
}

void PatternPainter::PaintBand(const QRect& band)
{
    for (int y = band.top(); y <= band.bottom(); ++y)
        PaintGround(y, 0, band.width(), RowAt(y, band.top()), Colors());
    while (m_reached < m_byTop.size() && m_cabinets[m_byTop[m_reached]].pixels.top() <= band.bottom())
        m_active.push_back(m_byTop[m_reached++]);
    std::sort(m_active.begin(), m_active.end());
    for (const size_t i : m_active) {
        const PaintedCabinet& cabinet = m_cabinets[i];
        const TileShape shape = ShapeOf(*cabinet.tile);
        const QRect pixels = cabinet.pixels.intersected(band);
        if (shape.IsTurned())
            PaintTurned(cabinet, shape, pixels, band.top());
        else
            PaintStraight(cabinet, pixels, band.top());
    }
    const auto isDone = [&](size_t i) { return m_cabinets[i].pixels.bottom() <= band.bottom(); };
    m_active.erase(std::remove_if(m_active.begin(), m_active.end(), isDone), m_active.end());
}

void PatternPainter::PaintStraight(const PaintedCabinet& cabinet, const QRect& pixels, int bandTop)
{
    const PatternFace face(*cabinet.tile);
    const QPoint corner = QPoint(cabinet.tile->GetX(), cabinet.tile->GetY()) - m_area.leftTop;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        uchar* row = RowAt(y, bandTop) + pixels.left();
        PaintGround(y, pixels.left(), pixels.right() + 1, row, cabinet.colors);
        face.PaintRow(y - corner.y(), pixels.left() - corner.x(), pixels.right() + 1 - corner.x(), row,
                      kWhite, cabinet.colors.text);
    }
}

/// Each pixel of the picture shows that of the cabinet which its middle lies on.
void PatternPainter::PaintTurned(const PaintedCabinet& cabinet, const TileShape& shape, const QRect& pixels,
                                 int bandTop)
{
    const PatternFace face(*cabinet.tile);
    const QSize size = cabinet.tile->GetSize();
    const QPointF corner = shape.corners[0] - m_area.leftTop;
    const QPointF across = (shape.corners[1] - shape.corners[0]) / size.width();
    const QPointF down = (shape.corners[3] - shape.corners[0]) / size.height();
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        uchar* row = RowAt(y, bandTop);
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            const QPointF way = QPointF(x + 0.5, y + 0.5) - corner;
            const double u = QPointF::dotProduct(way, across) + kRounding;
            const double v = QPointF::dotProduct(way, down) + kRounding;
            if (!(u >= 0 && v >= 0 && u < size.width() && v < size.height()))
                continue;
            switch (face.At(static_cast<int>(u), static_cast<int>(v))) {
            case PatternFace::Part::Border:
                row[x] = kWhite;
                break;
            case PatternFace::Part::Text:
                row[x] = cabinet.colors.text;
                break;
            case PatternFace::Part::Ground:
                PaintGround(y, x, x + 1, row + x, cabinet.colors);
                break;
            }
        }
    }
}

/// The pixels of row y from column `begin` to before `end`; `row` is the first of them.
void PatternPainter::PaintGround(int y, int begin, int end, uchar* row, const Colors& colors) const
{
    const bool isGrid = m_mode == PatternMode::Grid;
    std::fill(row, row + (end - begin), isGrid && y % kGridStep == 0 ? colors.grid : colors.ground);
    const int first = (begin + kGridStep - 1) / kGridStep * kGridStep;
    for (int x = first; isGrid && x < end; x += kGridStep)
        row[x - begin] = colors.grid;
}

} // namespace

QSize PatternSize(const CProjectData& project, int sender)
{
    return AreaOf(*project.GetSender(sender), ShownPorts(project, sender)).size;
}

bool WritePattern(QIODevice& device, const CProjectData& project, const PatternOptions& options)
{
    return PatternPainter(project, options).Write(device);
}

} // namespace OrvanTools
