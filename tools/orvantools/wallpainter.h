#pragma once

#include "orvantools/cabinettexts.h"
#include "orvantools/labelplacer.h"
#include "orvantools/portareas.h"
#include "orvantools/wallpicture.h"

#include <QFont>
#include <QHash>
#include <QPen>
#include <QRectF>

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
};

/// Draws the cabinets of a picture into a rectangle: outlines and colours, groups, chains, numbers. What is
/// written about a port lies on its own cabinets or beside the wall. Lengths in the painter's units, tenths
/// of a millimetre on paper.
class WallPainter
{
public:
    /// [ref] both. Text smaller than `leastText` is left out, because nobody could read it. `shown` is the
    /// part of the picture's coordinates to draw, as large as fits and clipped; all of the wall when it is
    /// null.
    WallPainter(QPainter& painter, const WallPicture& picture, const QRectF& area, double leastText,
                const QRectF& shown = QRectF());

    Omissions Paint(); ///< tells what is missing of the cabinets whose middle is drawn

    double GetScale() const { return m_scale; } ///< units to a pixel of the canvas

    static constexpr double kMargin = 30; ///< around the wall, for marks beside it

    /// The line style of the chain of a port. With the port's colour it is the same after 100 ports only.
    static QPen ChainPen(int port, double width);
    static QPen GroupPen();

private:
    /// What is drawn of a port.
    struct Part
    {
        const PicturePort* port = nullptr;
        std::vector<int> cabinets;   ///< places of those that show
        std::vector<int> chain;      ///< places in the chain of cabinets that show, or the one before does
        std::vector<bool> isWritten; ///< of every cabinet: its number
        double side = 0;             ///< of its cabinets, the mean of their shorter sides
        QRectF bound;                ///< of its cabinets
        bool isSmall = false;        ///< the cabinets are too small to draw each
    };

    QPointF Map(const QPointF& canvas) const { return canvas * m_scale + m_origin; }
    QRectF Map(const QRectF& canvas) const { return QRectF(Map(canvas.topLeft()), canvas.size() * m_scale); }
    QPolygonF Map(const QPolygonF& canvas) const;
    double SideOf(const TileShape& shape) const; ///< the shorter side
    void CollectParts();
    void Fit(const QRectF& shown);
    double RoomBeside() const; ///< for the marks that do not fit on their port's cabinets
    double BorderWidth(const Part& part) const;
    bool IsShown(const TileShape& shape) const; ///< its middle

    void PaintCanvas();
    void PaintCabinets(const Part& part);
    void PaintCabinetsAsPixels(const Part& part);
    void PaintArea(const Part& part);
    QRect OnPixels(const QRectF& rect) const; ///< neighbours share no pixel and leave none between them
    void FillPixels(const QVector<QRect>& rects, const QColor& color);
    void PaintBorder(const Part& part);
    void PaintReceivers(const Part& part);
    void PaintGroups(const Part& part);
    void PaintChain(const Part& part);
    void DrawLines(const std::vector<QPolygonF>& lines);
    void DrawArrows(const std::vector<QPolygonF>& arrows);

    struct Label
    {
        QPointF place; ///< of its middle
        QString text;
        double height;
        double angle;
        bool isEnd = false; ///< framed as the end of a chain
    };
    void PaintTexts(Part& part);                             ///< numbers and receiving cards in the cabinets
    bool PaintText(const Label& label, const QColor& color); ///< where it is free
    struct Start
    {
        QPointF middle; ///< of the cabinet
        QPointF place;
        QString text;
        double height; ///< of the text
    };
    QSizeF StartSize(const QString& text, double height) const;
    void PaintStarts();
    void PaintEnd(Part& part);
    std::optional<QPointF> PlaceOnCabinet(const Part& part, const TileShape& shape, const QSizeF& size);
    std::optional<QPointF> PlaceBeside(const Part& part, const QPointF& middle, const QSizeF& size);
    void PaintLeader(const QPointF& from, const QPointF& to);
    void PaintPortNumber(const Part& part); ///< where single cabinets cannot be seen
    QPointF WayTo(const PicturePort& port, size_t at) const;
    std::vector<size_t> Turns(const Part& part) const;
    void PaintTags(Part& part);      ///< numbers where the chain begins, ends and turns
    void PaintInnerTags(Part& part); ///< the others
    void PaintBackups(const Part& part);
    /// Where it is free; `isInside`: of other ports' cabinets in any case.
    bool PaintTag(const Part& part, const Label& label, const QColor& ground, bool isInside = false);
    /// On the cabinet, or close to it beside the wall.
    bool PaintNumberTag(const Part& part, const TileShape& shape, const Label& label);
    QRectF TagBox(const Label& label);
    bool IsFree(int port, const QRectF& box); ///< of other ports' cabinets, and inside the drawing
    PortAreas& Areas();
    void PaintInside(const Label& label, const QColor& color);
    const QFont& Font(double height);

    QPainter& m_painter;
    const WallPicture& m_picture;
    QRectF m_around; ///< with the margin
    QRectF m_area;
    QRectF m_shown; ///< null: all
    double m_leastText;
    double m_growth; ///< of lines and texts on a large page
    bool m_asPixels;
    double m_scale = 1;
    QPointF m_origin;
    std::vector<Part> m_parts;
    LabelPlacer m_labels;
    std::unique_ptr<PortAreas> m_areas; ///< made when it is first needed
    Omissions m_omitted;
    QHash<int, QFont> m_fonts;
};

} // namespace OrvanTools
