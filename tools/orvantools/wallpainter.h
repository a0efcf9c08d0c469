#pragma once

#include "orvantools/labelplacer.h"
#include "orvantools/wallpicture.h"

#include <QFont>
#include <QHash>
#include <QPen>
#include <QRectF>

class QPainter;

namespace OrvanTools {

/// Draws the cabinets of a picture into a rectangle: outlines and colours, groups, chains, numbers. Lengths
/// in the painter's units, tenths of a millimetre on a page of A3.
class WallPainter
{
public:
    /// [ref] both. Text smaller than `leastText` is left out, because nobody could read it.
    WallPainter(QPainter& painter, const WallPicture& picture, const QRectF& area, double leastText);

    void Paint();

    /// The line style of the chain of a port, because colours tell nothing in black and white.
    static QPen ChainPen(int port, double width);
    static QPen GroupPen();

private:
    QPointF Map(const QPointF& canvas) const { return canvas * m_scale + m_origin; }
    QPolygonF Map(const QPolygonF& canvas) const;
    double SideOf(const TileShape& shape) const; ///< the shorter side

    void PaintCanvas();
    void PaintCabinets(const PicturePort& port);
    void PaintCabinetsAsPixels(const PicturePort& port);
    void FillPixels(const QVector<QRect>& rects, const QColor& color);
    void PaintReceivers(const PicturePort& port);
    void PaintGroups(const PicturePort& port);
    void PaintChain(const PicturePort& port);
    void DrawLines(const std::vector<QPolygonF>& lines);
    void DrawArrows(const std::vector<QPolygonF>& arrows);
    void PaintEnds(const PicturePort& port);
    double EndRadius(const PicturePort& port) const;
    double NumberHeight(const PicturePort& port, const TileShape& shape) const; ///< below the least: none
    void PaintNumbers(const PicturePort& port);
    void PaintNumbersOfTurns(const PicturePort& port);
    void PaintReceiverNumbers(const PicturePort& port);
    void PaintBackups(const PicturePort& port);

    struct Label
    {
        QPointF place; ///< of its middle
        QString text;
        double height;
        double angle;
    };
    void PaintInside(const Label& label, const QColor& color);
    bool PaintTag(const Label& label); ///< with a light ground, where it is free
    bool PaintTagNear(const Label& label, const QPointF& aside, double distance); ///< `aside` comes first
    const QFont& Font(double height);

    QPainter& m_painter;
    const WallPicture& m_picture;
    QRectF m_area;
    double m_leastText;
    bool m_asPixels;
    double m_scale = 1;
    QPointF m_origin;
    LabelPlacer m_labels;
    QHash<int, QFont> m_fonts;
};

} // namespace OrvanTools
