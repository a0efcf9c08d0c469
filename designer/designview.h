#pragma once

#include "viewmap.h"
#include "viewtool.h"

#include <QAbstractScrollArea>
#include <QPixmap>

#include <memory>

class SceneModel;

/// Shows the wall of a scene, zoomed and scrolled by the library's view scaling, and hands mouse and keys to
/// the tool at work. Panning by the middle button or with the space bar held is always there.
class DesignView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit DesignView(const SceneModel& scene, QWidget* parent = nullptr); ///< [keep] the scene
    ~DesignView() override;

    const SceneModel& GetScene() const { return m_scene; }
    const ViewMap& GetMap() const { return m_map; }
    void SetTool(std::unique_ptr<ViewTool> tool);
    void SetHint(const QString& text); ///< shown while there are no cabinets
    /// Shows where a block of cabinets would lie; a null bound shows none.
    void SetPreview(const QRect& bound, const QSize& cabinet);
    void ScrollTo(const QPoint& start); ///< wall pixels at the left top
    void Show(const QRect& wall);       ///< scrolls so that it can be seen
    void ZoomIn();
    void ZoomOut();
    void Fit(); ///< the canvas, and what lies beyond it
    void ActualSize();
    void ShowAs(double scaling, const QPoint& start); ///< as another view showed it
    void ShowGrid(bool shown);                        ///< kept in the settings
    void Redraw();                                    ///< what lies over the wall
    void ShowTool();                                  ///< its cursor and hint, which change while it works

signals:
    void Zoomed(double scaling);
    void PointedAt(const QPoint& wall);
    void ToolHint(const QString& text);

protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    ViewTool& Tool() const { return m_spaceHeld || m_panning ? *m_pan : *m_tool; }
    QPoint Middle() const;
    QRect Content() const;
    void ViewChanged();
    void SetScrollBars();
    void RenewPicture();
    void PaintHint(QPainter& painter) const;
    void PaintPreview(QPainter& painter) const;

    const SceneModel& m_scene;
    ViewMap m_map;
    std::unique_ptr<ViewTool> m_tool;
    std::unique_ptr<ViewTool> m_pan;
    Qt::MouseButton m_held = Qt::NoButton; ///< that the tool was told of
    int m_turned = 0;                      ///< of the wheel, since the last whole notch
    bool m_spaceHeld = false;
    bool m_panning = false;
    bool m_settingBars = false;
    bool m_wasShown = false;
    QPixmap m_picture;             ///< the wall as it was last drawn
    quint64 m_pictureRevision = 0; ///< of the scene; 0: to be drawn anew
    QString m_hint;
    QRect m_preview;
    QSize m_previewCabinet;
};
