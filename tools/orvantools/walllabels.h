#pragma once

#include "orvantools/labelplacer.h"
#include "orvantools/portareas.h"
#include "orvantools/textbatch.h"
#include "orvantools/wallview.h"

#include <QFont>
#include <QHash>
#include <QSet>

#include <array>
#include <map>
#include <memory>
#include <optional>

class QPainter;

namespace OrvanTools {

/// How much of what there is to write had no readable place.
struct Omissions
{
    int numbers = 0;   ///< of cabinets
    int receivers = 0; ///< numbers of receiving cards
    int marks = 0;     ///< starts and ends of chains
    int ports = 0;     ///< numbers of ports
    int chains = 0;    ///< lines of chains
};

/// Writes the numbers and marks of a wall, each on its own port's cabinets or beside the wall, and none on
/// another.
class WallLabels
{
public:
    WallLabels(QPainter& painter, const WallView& view); ///< [ref] both

    Omissions Paint();

private:
    struct Label
    {
        QPointF place; ///< of its middle
        QString text;
        double height;
        double angle;
        bool isEnd = false; ///< framed as the end of a chain
    };
    void PaintTexts(const WallPart& part);                   ///< numbers and receiving cards in the cabinets
    bool PaintText(const Label& label, const QColor& color); ///< where it is free
    struct Start
    {
        QPointF middle; ///< of the cabinet, or close to it
        QPointF place;
        QString text;
        double height; ///< of the text
    };
    void PaintStarts();
    void PaintEnd(const WallPart& part);
    std::optional<QPointF> PlaceOnCabinet(const WallPart& part, const TileShape& shape, const QSizeF& size);
    std::optional<QPointF> PlaceBeside(const WallPart& part, const QPointF& middle, const QSizeF& size);
    QPointF InsidePort(const WallPart& part, const QPointF& place) const;
    void PaintLeader(const QPointF& from, const QPointF& to);
    void PaintPortNumber(const WallPart& part);
    bool IsPortNumberPainted(const WallPart& part);
    void PaintTags(const WallPart& part);      ///< numbers where the chain begins, ends and turns
    void PaintInnerTags(const WallPart& part); ///< the others
    void PaintBackups(const WallPart& part);
    /// Where it is free; `isInside`: of other ports' cabinets in any case.
    bool PaintTag(const WallPart& part, const Label& label, const QColor& ground, bool isInside = false);
    /// On the cabinet, or close to it beside the wall.
    bool PaintNumberTag(const WallPart& part, const TileShape& shape, const Label& label);
    bool IsBesidePort(const WallPart& part, const QRectF& box, bool isBelow) const;
    QRectF TagBox(const Label& label);
    bool IsFree(int port, const QRectF& box); ///< of other ports' cabinets, and inside the drawing
    PortAreas& Areas();
    void PaintInside(const Label& label, const QColor& color);
    /// A font, and what measuring each number anew would take as long as painting it.
    struct Face
    {
        QFont font;
        double capHeight;
        std::array<double, 10> digits; ///< their widths
    };

    const Face& FaceOf(double height);
    double WidthOf(const QString& text, double height);

    QPainter& m_painter;
    const WallView& m_view;
    double m_leastText;
    LabelPlacer m_labels;
    std::unique_ptr<PortAreas> m_areas;                  ///< made when it is first needed
    QHash<const WallPart*, std::vector<bool>> m_written; ///< for every cabinet whether its number is there
    QSet<const WallPart*> m_named;                       ///< those with a mark that says their port
    Omissions m_omitted;
    QHash<int, Face> m_faces; ///< by the pixels of their height
    bool m_inBatches;         ///< in a PDF, where single texts take most of the time; an SVG would lose them
    std::map<std::pair<int, QRgb>, TextBatch> m_batches; ///< by height and colour
};

} // namespace OrvanTools
