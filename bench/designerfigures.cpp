// Frames of the desktop program's window, beside the same rectangles and numbers drawn by a plain painter.
#include "figure.h"
#include "runfigures.h"

#include "designview.h"
#include "mainwindow.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr QSize kView(1600, 1000);
constexpr int kPorts = 4;
constexpr int kSide = 64;         ///< of a cabinet
constexpr double kCells = 0.08;   ///< zoom at which cabinets begin to be drawn one by one
constexpr double kReadable = 0.8; ///< zoom from which numbers of five digits can be read

/// What is drawn, with nothing to look after: each visible rectangle, and its number where that can be read.
class PlainView : public QWidget
{
public:
    PlainView(QSize grid, double scaling) : m_grid(grid), m_side(kSide * scaling)
    {
        resize(kView);
        show();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        const int columns = std::min(m_grid.width(), static_cast<int>(kView.width() / m_side) + 1);
        const int rows = std::min(m_grid.height(), static_cast<int>(kView.height() / m_side) + 1);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                const QRectF place(column * m_side, row * m_side, m_side, m_side);
                painter.fillRect(place.toRect(), Qt::cyan);
                if (m_side >= 22)
                    painter.drawText(place, Qt::AlignCenter,
                                     QString::number(row * m_grid.width() + column + 1));
            }
        }
    }

private:
    QSize m_grid;
    double m_side;
};

/// The window with a full canvas, on four ports, numbered.
struct Wall
{
    explicit Wall(const QSize& size) : grid(size)
    {
        CSender& sender = *window.GetDocument().GetSender();
        sender.SetCanvasSize(grid * kSide);
        SAddTileInfo block;
        block.senderId = sender.GetId();
        block.columns = grid.width() / kPorts;
        block.rows = grid.height();
        block.width = block.height = kSide;
        for (block.portIndex = 0; block.portIndex < kPorts; ++block.portIndex) {
            block.left = block.portIndex * block.columns * kSide;
            window.GetDocument().AddBlock(block);
            window.GetDocument().NumberAll(AutoNumberRowsTopLeft);
        }
        window.resize(kView + QSize(400, 400));
        window.show();
        view.setFixedSize(kView);
        QApplication::processEvents();
        view.Fit();
        QApplication::processEvents();
    }

    void ZoomTo(double scaling)
    {
        for (int i = 0; i < 60 && view.GetMap().GetScaling() < scaling; ++i)
            view.ZoomIn();
        QApplication::processEvents();
    }
    double Frame() ///< seconds of a frame that is drawn anew
    {
        return Seconds([this] {
            QEvent event(QEvent::PaletteChange);
            QApplication::sendEvent(&view, &event);
            view.viewport()->update();
            QApplication::processEvents();
        });
    }
    void Mouse(QEvent::Type type, const QPoint& place)
    {
        const bool isMove = type == QEvent::MouseMove;
        const bool isUp = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, place, isMove ? Qt::NoButton : Qt::LeftButton,
                          isUp ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &event);
    }

    QSize grid;
    DocumentController document;
    MainWindow window{document};
    DesignView& view = window.GetView();
};

Pair FrameBesidePlain(double scaling)
{
    Wall wall(QSize(512, 256));
    wall.ZoomTo(scaling);
    PlainView plain(wall.grid, wall.view.GetMap().GetScaling());
    return Interleaved(
        [&] {
            return Seconds([&] {
                plain.update();
                QApplication::processEvents();
            });
        },
        [&] { return wall.Frame(); });
}

Pair Drag()
{
    Wall wall(QSize(256, 128));
    const QPoint cabinet = wall.view.viewport()->rect().center();
    wall.Mouse(QEvent::MouseButtonPress, cabinet);
    wall.Mouse(QEvent::MouseMove, cabinet + QPoint(30, 30));
    QApplication::processEvents();
    int moved = 30;
    const Pair pair = Interleaved([&] { return wall.Frame(); },
                                  [&] {
                                      moved += 3;
                                      return Seconds([&] {
                                          wall.Mouse(QEvent::MouseMove, cabinet + QPoint(moved, moved));
                                          QApplication::processEvents();
                                      });
                                  });
    wall.Mouse(QEvent::MouseButtonRelease, cabinet);
    return pair;
}

/// To the finished frame.
Pair Click()
{
    Wall wall(QSize(512, 256));
    int column = 0;
    return Interleaved([] { return 0; },
                       [&] {
                           const QPoint place(100 + 20 * ++column, 200);
                           return Seconds([&] {
                               wall.Mouse(QEvent::MouseButtonPress, place);
                               wall.Mouse(QEvent::MouseButtonRelease, place);
                               QApplication::processEvents();
                           });
                       });
}

} // namespace

int main(int argc, char** argv)
{
    return RunFigures(argc, argv, [](const QString& /*home*/) {
        const auto frame = [](double scaling) { return [=] { return FrameBesidePlain(scaling); }; };
        Once({"a frame of 131072 cabinets, the whole wall", "ms", 3, 2}, frame(0));
        Once({"a frame of 131072 cabinets, half of them as cells", "ms", 3, 2}, frame(kCells));
        Once({"a frame of 131072 cabinets, zoomed in to numbers", "ms", 3, 2}, frame(kReadable));
        Once({"a click on one of 131072 cabinets", "ms", 50, 25, true}, Click);
        Once({"dragging one of 32768 cabinets, beside a whole frame", "ms", 2, 1}, Drag);
    });
}
