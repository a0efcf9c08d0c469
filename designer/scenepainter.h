#pragma once

#include "viewmap.h"

#include <QPalette>
#include <QTransform>
#include <QVector>

class QPainter;
class SceneModel;
struct SceneCabinet;
struct ScenePort;

/// Draws what is visible of a scene, with as much detail as can be seen at the view's zoom.
class ScenePainter
{
public:
    enum class Detail
    {
        Areas,   ///< cabinets of a few pixels: colour alone
        Cells,   ///< outlines, and chains as lines
        Numbers, ///< all there is
    };

    ScenePainter(QPainter& painter, const SceneModel& scene, const ViewMap& map, const QPalette& palette);

    void Paint(const QRect& view);
    /// The selected cabinets where that would bring them; of too many to be drawn at once, the bound alone.
    void PaintMoved(const QTransform& moved);

    /// By the mean shorter side of cabinets, view pixels.
    static Detail DetailFor(double side);
    static QColor TextOn(const QColor& ground); ///< black or white, whichever has more contrast

private:
    struct Fills
    {
        QVector<QRect> plain;
        QVector<QRect> selected;
    };

    void PaintCanvas(const QRect& view);
    void PaintGrid(const QRect& view);
    void PaintPort(const ScenePort& port, int index);
    void PaintAreas(const ScenePort& port, const QColor& color);
    void PaintCells(const ScenePort& port, const QColor& color);
    void PaintTurned(const ScenePort& port, const SceneCabinet& cabinet, const QColor& color);
    void PaintCards(const ScenePort& port, const SceneCabinet& cabinet);
    void PaintGroups(const ScenePort& port);
    void PaintChain(const ScenePort& port);
    void PaintStart(const ScenePort& port);
    void PaintNumbers(const ScenePort& port, const QColor& color);
    static QPolygonF CornersOf(const ScenePort& port, const SceneCabinet& cabinet);
    QRectF NumberCell(const ScenePort& port, const SceneCabinet& cabinet) const; ///< view pixels
    QColor Selected(const QColor& color) const;

    QPainter& m_painter;
    const SceneModel& m_scene;
    const ViewMap& m_map;
    QPalette m_palette;
    QRect m_shown; ///< wall pixels
    Detail m_detail = Detail::Numbers;
};
