#include "orvantools/portsheets.h"

#include "orvantools/chaintable.h"
#include "orvantools/sheettable.h"
#include "orvantools/textline.h"
#include "orvantools/wallpainter.h"
#include "orvantools/words.h"

#include <OrvanData/orvandata.h>

#include <QPainter>

#include <algorithm>
#include <utility>

namespace OrvanTools {

namespace {

constexpr double kLeastKey = 8;       ///< of a port on the key plan
constexpr double kLeastOwnKey = 14;   ///< the same of the page's own
constexpr double kLeastDrawing = 0.5; ///< of a page that holds the chain's table too

QString PortText(const PicturePort& port)
{
    return Tr("Port %1").arg(port.index + 1);
}

/// A picture for the page of one port.
WallPicture PictureOf(const WallPicture& wall, PicturePort port, const QRectF& bound)
{
    WallPicture picture;
    picture.isRear = wall.isRear;
    picture.canvas = wall.canvas;
    picture.bound = bound;
    picture.ports.push_back(std::move(port));
    return picture;
}

} // namespace

PortSheets::PortSheets(const CProjectData& project, const SheetWall& wall, Paper paper)
    : m_project(project), m_wall(wall), m_paper(paper), m_products(ProductNames(project))
{}

std::vector<SheetPage> PortSheets::Make(const PicturePort& port) const
{
    const CTileSet& tiles = m_project.GetSender(m_wall.sender)->GetPort(port.index)->GetTileSet();
    Chain chain{std::make_shared<ChainTable>(m_products, tiles, port, m_wall.picture.isRear), {}};
    chain.table = std::make_shared<SheetTable>(chain.source->Make());
    std::vector<SheetPage> pages;
    if (AddShort(pages, port, chain))
        return pages;
    const Drawing drawing = BestDrawing(port, [](double) { return 0.0; });
    for (const PanelPage& panels : drawing.pages)
        pages.push_back(DrawingPage(port, drawing, panels));
    AddChain(pages, port, chain);
    return pages;
}

/// The orientation that takes fewer pages, and then the one that draws larger. `below` gives the height, for
/// a width, that is left free.
PortSheets::Drawing PortSheets::BestDrawing(const PicturePort& port,
                                            const std::function<double(double)>& below) const
{
    Drawing best;
    double bestScale = 0;
    for (const bool landscape : {true, false}) {
        const QSizeF body = SheetBody(SheetSize(m_paper, landscape)).size();
        const double height = body.height() - below(body.width());
        if (height < body.height() * kLeastDrawing)
            continue;
        Drawing drawing{{}, LayOutPort(port, QSizeF(body.width(), height), kLeastSheetText), landscape};
        const Panel& first = drawing.pages.front().front();
        const double scale = first.area.width() / first.part.shown.width();
        if (best.pages.empty() || drawing.pages.size() < best.pages.size()
            || (drawing.pages.size() == best.pages.size() && scale > bestScale)) {
            best = std::move(drawing);
            bestScale = scale;
        }
    }
    best.pictures = std::make_shared<PartPictures>(port);
    return best;
}

/// Drawing and table on one page, where the drawing is large enough beside it.
bool PortSheets::AddShort(std::vector<SheetPage>& pages, const PicturePort& port, const Chain& chain) const
{
    const auto below = [table = chain.table](double width) {
        return kSheetGap + kSheetLine + table->HeightOn(width);
    };
    const Drawing drawing = BestDrawing(port, below);
    if (drawing.pages.size() != 1)
        return false;
    SheetPage page = DrawingPage(port, drawing, drawing.pages.front());
    page.body = [panels = page.body, below, chain](QPainter& painter, const QRectF& area) {
        panels(painter, area);
        const QPointF leftTop(area.left(), area.bottom() - below(area.width()) + kSheetGap);
        painter.setPen(Qt::black);
        painter.setFont(FontOf(painter, kSheetText));
        DrawLine(painter, QRectF(leftTop, QSizeF(area.width(), kSheetLine)), chain.source->CommonText());
        chain.table->Paint(painter, QRectF(leftTop + QPointF(0, kSheetLine), area.bottomRight()), 0);
    };
    pages.push_back(std::move(page));
    return true;
}

SheetPage PortSheets::DrawingPage(const PicturePort& port, const Drawing& drawing,
                                  const PanelPage& panels) const
{
    qint64 cabinets = 0;
    for (const Panel& panel : panels)
        cabinets += static_cast<qint64>(panel.part.places.size());
    SheetPage page;
    page.landscape = drawing.landscape;
    page.title = m_wall.picture.title;
    page.sender = m_wall.picture.senderName;
    page.heading = PortText(port);
    if (drawing.pages.size() > 1)
        page.heading =
            Joined({page.heading,
                    Tr("part %1 of %2").arg(&panels - drawing.pages.data() + 1).arg(drawing.pages.size())});
    page.figures = Joined({Counted(cabinets, "%1 cabinet", "%1 cabinets"), port.load, port.note});
    page.keyPlan = KeyPlan(port, panels);
    page.body = [&wall = m_wall, pictures = drawing.pictures, panels](QPainter& painter, const QRectF& area) {
        const bool isAlone = panels.size() == 1;
        for (const Panel& panel : panels) {
            const WallPicture picture = PictureOf(wall.picture, pictures->Make(panel.part), panel.part.bound);
            const QRectF place = panel.area.translated(area.topLeft());
            painter.setPen(Qt::black);
            painter.setFont(FontOf(painter, kCaptionHeight * 0.7));
            if (!isAlone)
                DrawLine(painter, QRectF(place.topLeft(), QSizeF(place.width(), kCaptionHeight)),
                         Tr("%1 of %2").arg(&panel - panels.data() + 1).arg(panels.size()));
            WallPainter(painter, picture, place.adjusted(0, isAlone ? 0 : kCaptionHeight, 0, 0),
                        kLeastSheetText, panel.part.shown)
                .Paint();
        }
    };
    return page;
}

void PortSheets::AddChain(std::vector<SheetPage>& pages, const PicturePort& port, const Chain& chain) const
{
    const QSizeF body = SheetBody(SheetSize(m_paper, false)).size();
    for (int first = 0; first < chain.table->RowCount(); first += chain.table->RowsOn(body)) {
        SheetPage page;
        page.title = m_wall.picture.title;
        page.sender = m_wall.picture.senderName;
        page.heading = Joined({PortText(port), Tr("chain")});
        page.figures = chain.source->CommonText();
        page.body = [chain, first](QPainter& painter, const QRectF& area) {
            chain.table->Paint(painter, area, first);
        };
        pages.push_back(std::move(page));
    }
}

/// Where on the wall the page lies: all ports' areas, the port's own in its colour, the page's parts in
/// frames.
SheetPage::Painting PortSheets::KeyPlan(const PicturePort& port, const PanelPage& panels) const
{
    const QRectF own = m_wall.bounds[static_cast<size_t>(&port - m_wall.picture.ports.data())];
    const QRectF all = m_wall.picture.bound;
    if (own == all && panels.size() == 1 && panels.front().part.bound == own)
        return {};
    size_t cabinets = 0;
    for (const Panel& panel : panels)
        cabinets += panel.part.places.size();
    const bool isWhole = cabinets == port.cabinets.size();
    return [&wall = m_wall, &port, own, panels, all, isWhole](QPainter& painter, const QRectF& area) {
        const double scale = std::min(area.width() / all.width(), area.height() / all.height());
        const QPointF origin =
            QPointF(area.right() - all.width() * scale, area.top()) - all.topLeft() * scale;
        const auto map = [&](const QRectF& rect) {
            return QRectF(rect.topLeft() * scale + origin, rect.size() * scale);
        };
        painter.setPen(QPen(QColor(120, 120, 120), 1));
        painter.setBrush(Qt::NoBrush);
        for (const QRectF& bound : wall.bounds) {
            const QRectF place = map(bound);
            if (std::min(place.width(), place.height()) >= kLeastKey)
                painter.drawRect(place);
        }
        const QSizeF beyond =
            (QSizeF(kLeastOwnKey, kLeastOwnKey) - own.size() * scale).expandedTo(QSizeF(0, 0)) / 2;
        painter.setPen(QPen(Qt::black, 2));
        painter.drawRect(map(all));
        painter.setBrush(port.color);
        painter.drawRect(map(own)
                         + QMarginsF(beyond.width(), beyond.height(), beyond.width(), beyond.height()));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Qt::black, 3));
        if (isWhole)
            return;
        for (const Panel& panel : panels)
            painter.drawRect(map(panel.part.bound) + QMarginsF(4, 4, 4, 4));
    };
}

} // namespace OrvanTools
