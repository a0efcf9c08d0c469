#include "designview.h"

#include "pantool.h"
#include "scenemodel.h"
#include "scenepainter.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int kWheelStep = 120;  ///< of an ordinary wheel's notch
constexpr int kShownAround = 40; ///< view pixels
constexpr int kHintMargin = 12;  ///< the same

} // namespace

DesignView::DesignView(const SceneModel& scene, QWidget* parent)
    : QAbstractScrollArea(parent), m_scene(scene), m_tool(std::make_unique<PanTool>(*this)),
      m_pan(std::make_unique<PanTool>(*this))
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(320, 240);
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Wall"));
    connect(&scene, &SceneModel::Renewed, this, [this] {
        SetScrollBars();
        viewport()->update();
    });
}

DesignView::~DesignView() = default;

void DesignView::SetTool(std::unique_ptr<ViewTool> tool)
{
    m_tool->Cancel();
    m_tool = std::move(tool);
    m_held = Qt::NoButton;
    m_panning = false;
    ShowTool();
    Redraw();
}

void DesignView::SetHint(const QString& text)
{
    m_hint = text;
    Redraw();
}

void DesignView::SetPreview(const QRect& bound, const QSize& cabinet)
{
    m_preview = bound;
    m_previewCabinet = cabinet;
    Redraw();
}

void DesignView::ShowTool()
{
    viewport()->setCursor(Tool().GetCursor());
    emit ToolHint(Tool().GetHint());
}

void DesignView::Redraw()
{
    viewport()->update();
}

// zoom and scroll

QPoint DesignView::Middle() const
{
    return viewport()->rect().center();
}

/// The canvas and all cabinets, as far as a view can show them.
QRect DesignView::Content() const
{
    return (m_scene.GetCanvas() | m_scene.GetBound() | QRect(0, 0, 1, 1))
        .intersected(QRect(0, 0, kMaxCanvasWidth, kMaxCanvasHeight));
}

void DesignView::ViewChanged()
{
    m_pictureRevision = 0;
    SetScrollBars();
    viewport()->update();
    emit Zoomed(m_map.GetScaling());
}

/// A view that was dragged beyond the wall can be scrolled back from there.
void DesignView::SetScrollBars()
{
    m_settingBars = true;
    const QPoint start = m_map.GetStart();
    const QSize page = m_map.GetShown().size();
    const QRect content = Content();
    const auto set = [](QScrollBar* bar, int value, int end, int pageStep) {
        bar->setRange(0, std::max({0, end - pageStep, value}));
        bar->setPageStep(pageStep);
        bar->setSingleStep(std::max(1, pageStep / 20));
        bar->setValue(value);
    };
    set(horizontalScrollBar(), start.x(), content.right() + 1, page.width());
    set(verticalScrollBar(), start.y(), content.bottom() + 1, page.height());
    m_settingBars = false;
}

void DesignView::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    if (!m_settingBars)
        ScrollTo(QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value()));
}

void DesignView::ScrollTo(const QPoint& start)
{
    if (m_map.ScrollTo(start))
        ViewChanged();
}

void DesignView::Show(const QRect& wall)
{
    const int around = static_cast<int>(kShownAround / m_map.GetScaling());
    const QRect wanted = wall.adjusted(-around, -around, around, around);
    const QRect shown = m_map.GetShown();
    QPoint start = m_map.GetStart();
    if (wanted.left() < shown.left() || wanted.right() > shown.right())
        start.setX(wall.center().x() - shown.width() / 2);
    if (wanted.top() < shown.top() || wanted.bottom() > shown.bottom())
        start.setY(wall.center().y() - shown.height() / 2);
    ScrollTo(start);
}

void DesignView::ZoomIn()
{
    if (m_map.ZoomStep(true, Middle()))
        ViewChanged();
}

void DesignView::ZoomOut()
{
    if (m_map.ZoomStep(false, Middle()))
        ViewChanged();
}

void DesignView::Fit()
{
    m_map.Fit(Content());
    ViewChanged();
}

void DesignView::ActualSize()
{
    if (m_map.ZoomTo(1, Middle()))
        ViewChanged();
}

void DesignView::ShowAs(double scaling, const QPoint& start)
{
    m_map.ZoomTo(scaling, Middle());
    m_map.ScrollTo(start);
    ViewChanged();
}

void DesignView::ShowGrid(bool shown)
{
    GetConfigData()->SetShowGrid(shown);
    m_pictureRevision = 0;
    Redraw();
}

/// Only now the size is known.
void DesignView::showEvent(QShowEvent* event)
{
    QAbstractScrollArea::showEvent(event);
    if (!std::exchange(m_wasShown, true))
        Fit();
}

void DesignView::resizeEvent(QResizeEvent* /*event*/)
{
    m_map.SetViewSize(viewport()->size());
    ViewChanged();
}

void DesignView::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() & (Qt::ShiftModifier | Qt::AltModifier)) {
        QAbstractScrollArea::wheelEvent(event); // scrolls
        return;
    }
    m_turned += event->angleDelta().y(); // touchpads send a notch in many parts
    const int steps = m_turned / kWheelStep;
    m_turned %= kWheelStep;
    for (int i = 0; i < std::abs(steps); ++i)
        m_map.ZoomStep(steps > 0, event->position().toPoint());
    ViewChanged();
    event->accept();
}

// drawing

void DesignView::RenewPicture()
{
    const double ratio = devicePixelRatioF();
    const QSize size = viewport()->size() * ratio;
    if (m_pictureRevision == m_scene.GetRevision() && m_picture.size() == size)
        return;
    if (m_picture.size() != size)
        m_picture = QPixmap(size);
    m_picture.setDevicePixelRatio(ratio);
    QPainter painter(&m_picture);
    painter.setFont(font());
    ScenePainter(painter, m_scene, m_map, palette()).Paint(viewport()->rect());
    m_pictureRevision = m_scene.GetRevision();
}

void DesignView::paintEvent(QPaintEvent* /*event*/)
{
    RenewPicture();
    QPainter painter(viewport());
    painter.drawPixmap(0, 0, m_picture);
    if (m_scene.GetBound().isNull() && !m_hint.isEmpty())
        PaintHint(painter);
    PaintPreview(painter);
    Tool().Paint(painter);
}

/// In a box, which keeps grid and canvas from running through the text.
void DesignView::PaintHint(QPainter& painter) const
{
    const auto grown = [](const QRect& rect, int by) { return rect.adjusted(-by, -by, by, by); };
    const QRect room = grown(viewport()->rect(), -2 * kHintMargin);
    const int flags = Qt::AlignCenter | Qt::TextWordWrap;
    painter.setPen(palette().color(QPalette::Text));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(grown(painter.boundingRect(room, flags, m_hint), kHintMargin));
    painter.drawText(room, flags, m_hint);
}

/// With the lines between cabinets where these can be told apart.
void DesignView::PaintPreview(QPainter& painter) const
{
    if (m_preview.isEmpty())
        return;
    QColor color = palette().color(QPalette::Highlight);
    painter.setPen(QPen(color, 1, Qt::DashLine));
    color.setAlpha(60);
    painter.setBrush(color);
    painter.drawRect(m_map.ToView(m_preview));
    const QRect shown = m_preview.intersected(m_map.GetShown());
    const QPoint first = shown.topLeft() - m_preview.topLeft();
    const QRect inView = m_map.ToView(shown);
    const auto places = [](int start, int skip, int step, int end, auto draw) {
        for (int at = start + (skip / step + 1) * step; at < end; at += step)
            draw(at);
    };
    if (m_previewCabinet.width() * m_map.GetScaling() > 4)
        places(m_preview.left(), first.x(), m_previewCabinet.width(), shown.right(), [&](int x) {
            const int at = m_map.ToView(QPoint(x, 0)).x();
            painter.drawLine(at, inView.top(), at, inView.bottom());
        });
    if (m_previewCabinet.height() * m_map.GetScaling() > 4)
        places(m_preview.top(), first.y(), m_previewCabinet.height(), shown.bottom(), [&](int y) {
            const int at = m_map.ToView(QPoint(0, y)).y();
            painter.drawLine(inView.left(), at, inView.right(), at);
        });
}

void DesignView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        m_pictureRevision = 0;
    QAbstractScrollArea::changeEvent(event);
}

// mouse and keys

/// A window of another size or theme may come with a viewport of its own.
bool DesignView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave)
        emit PointedAt(QPoint(-1, -1));
    return QAbstractScrollArea::viewportEvent(event);
}

void DesignView::mousePressEvent(QMouseEvent* event)
{
    if (m_held != Qt::NoButton)
        return;
    m_panning = event->button() == Qt::MiddleButton;
    if (event->button() != Qt::LeftButton && !m_panning)
        return;
    m_held = event->button();
    Tool().Press(*event);
    ShowTool();
}

void DesignView::mouseMoveEvent(QMouseEvent* event)
{
    emit PointedAt(m_map.ToWallPixel(event->pos()));
    if (m_held != Qt::NoButton)
        Tool().Move(*event);
}

void DesignView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != m_held)
        return;
    m_held = Qt::NoButton;
    Tool().Release(*event);
    m_panning = false;
    ShowTool();
}

void DesignView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_held == Qt::NoButton)
        Tool().DoubleClick(*event);
}

void DesignView::keyPressEvent(QKeyEvent* event)
{
    const bool isSpace = event->key() == Qt::Key_Space;
    if (isSpace && m_held == Qt::NoButton && !event->isAutoRepeat()) {
        m_spaceHeld = true;
        ShowTool();
    }
    if (event->key() == Qt::Key_Escape && m_held != Qt::NoButton) {
        m_held = Qt::NoButton;
        m_tool->Cancel();
        ShowTool();
        return;
    }
    if (!isSpace && !Tool().Key(*event))
        QAbstractScrollArea::keyPressEvent(event);
}

void DesignView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || event->isAutoRepeat() || !m_spaceHeld) {
        QAbstractScrollArea::keyReleaseEvent(event);
        return;
    }
    m_spaceHeld = false;
    m_held = Qt::NoButton;
    ShowTool();
}

void DesignView::focusOutEvent(QFocusEvent* event)
{
    if (std::exchange(m_spaceHeld, false))
        m_held = Qt::NoButton;
    ShowTool();
    QAbstractScrollArea::focusOutEvent(event);
}
