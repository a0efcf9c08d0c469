#pragma once

#include "orvantools/walllabels.h"
#include "orvantools/wallview.h"

#include <QPen>

class QPainter;

namespace OrvanTools {

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

    double GetScale() const { return m_view.GetScale(); } ///< units to a pixel of the canvas

    static constexpr double kMargin = WallView::kMargin;

    /// The line style of the chain of a port. With the port's colour it is the same after 100 ports only.
    static QPen ChainPen(int port, double width);
    static QPen GroupPen();

private:
    double BorderWidth(const WallPart& part) const;
    void PaintCanvas();
    void PaintCabinets(const WallPart& part);
    void PaintCabinetsAsPixels(const WallPart& part);
    void PaintArea(const WallPart& part);
    QRect OnPixels(const QRectF& rect) const; ///< neighbours share no pixel and leave none between them
    void FillPixels(const QVector<QRect>& rects, const QColor& color);
    void PaintBorder(const WallPart& part);
    void PaintReceivers(const WallPart& part);
    void PaintGroups(const WallPart& part);
    bool IsChainSeen(const WallPart& part) const;
    void PaintChain(const WallPart& part);
    void DrawLines(const std::vector<QPolygonF>& lines);
    void DrawArrows(const std::vector<QPolygonF>& arrows);

    QPainter& m_painter;
    bool m_asPixels;
    QRectF m_canvas;
    bool m_isBare; ///< some of the canvas has no cabinets
    WallView m_view;
};

} // namespace OrvanTools
