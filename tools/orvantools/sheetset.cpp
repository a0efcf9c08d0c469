#include "orvantools/sheetset.h"

#include "orvantools/chaintable.h"
#include "orvantools/legend.h"
#include "orvantools/pdfdocument.h"
#include "orvantools/portparts.h"
#include "orvantools/textline.h"
#include "orvantools/wallpainter.h"

#include <OrvanData/orvandata.h>

#include <QCoreApplication>

#include <algorithm>
#include <memory>
#include <utility>

namespace OrvanTools {

namespace {

constexpr double kMargin = 100;
constexpr double kHeaderHeight = 190;
constexpr double kKeyPlanWidth = 300;
constexpr double kGap = 30;
constexpr double kTitleHeight = 52;
constexpr double kTextHeight = 34;
constexpr double kLine = 52;
constexpr double kLeastText = 20;     ///< of the numbers on the wall: two millimetres
constexpr double kLeastKey = 8;       ///< of a port on the key plan
constexpr double kLeastDrawing = 0.5; ///< of a page that holds the chain's table too

QString Tr(const char* text)
{
    return QCoreApplication::translate("OrvanTools", text);
}

QSizeF SizeOf(Paper paper, bool landscape)
{
    const QSizeF size = paper == Paper::A4   ? QSizeF(2100, 2970)
                        : paper == Paper::A3 ? QSizeF(2970, 4200)
                                             : QSizeF(2159, 2794);
    return landscape ? size.transposed() : size;
}

QRectF BodyOf(const QSizeF& page)
{
    return QRectF(QPointF(), page).adjusted(kMargin, kMargin + kHeaderHeight + kGap, -kMargin, -kMargin);
}

QRectF BoundOf(const PicturePort& port)
{
    QRectF bound;
    for (const TileShape& shape : port.shapes)
        bound = bound.united(shape.Bound());
    return bound;
}

QString Joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  ·  "));
}

QString Counted(qint64 number, const char* one, const char* many)
{
    return Tr(number == 1 ? one : many).arg(number);
}

QString PortText(const PicturePort& port)
{
    return Tr("Port %1").arg(port.index + 1);
}

bool HasPages(const PicturePort& port)
{
    return !port.cabinets.empty() && port.backupOf.isEmpty();
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

class SheetSet
{
public:
    SheetSet(const CProjectData& project, const SheetOptions& options);

    QByteArray Paint() const;

private:
    using Painting = std::function<void(QPainter&, const QRectF&)>;

    struct Sheet
    {
        bool landscape = false;
        QString heading;
        QString figures;
        Painting body;
        Painting keyPlan; ///< none: no place is left for it
    };

    /// A sender that gets sheets.
    struct Wall
    {
        int sender;
        WallPicture picture;
        std::vector<QRectF> bounds; ///< of the ports of the picture
    };

    /// A port on its pages.
    struct Drawing
    {
        std::shared_ptr<PartPictures> pictures;
        std::vector<PanelPage> pages;
        bool landscape = false;
    };

    /// A row of the contents: a sender, or one of its ports.
    struct Entry
    {
        const Wall* wall;
        const PicturePort* port; ///< null: the sender itself
        size_t page = 0;         ///< counted from 1; 0: it has none
    };

    void ListContents();
    void AddCover();
    void AddOverview(const WallPicture& picture);
    void AddPort(const Wall& wall, const PicturePort& port);
    bool AddShortPort(const Wall& wall, const PicturePort& port, const std::shared_ptr<ChainTable>& chain,
                      const std::shared_ptr<SheetTable>& table);
    void AddPanels(const Wall& wall, const PicturePort& port, const Drawing& drawing, const PanelPage& page);
    void AddChain(const Wall& wall, const PicturePort& port, const std::shared_ptr<ChainTable>& chain,
                  const std::shared_ptr<SheetTable>& table);
    Drawing BestDrawing(const PicturePort& port, const std::function<double(double)>& below) const;
    Painting KeyPlan(const Wall& wall, const PicturePort& port, const PanelPage& page) const;
    QString Title() const;
    void PaintHeader(QPainter& painter, const Sheet& sheet, size_t page) const;
    QString EntryText(const Entry& entry, int column) const;
    QStringList CoverLines() const;

    const CProjectData& m_project;
    const SheetOptions& m_options;
    std::vector<Wall> m_walls;
    std::vector<Entry> m_contents;
    std::vector<Sheet> m_sheets;
};

SheetSet::SheetSet(const CProjectData& project, const SheetOptions& options)
    : m_project(project), m_options(options)
{
    for (int i = 0; i < project.GetSenderCount(); ++i) {
        if (options.sender >= 0 && options.sender != i)
            continue;
        m_walls.push_back(
            {i, MakeWallPicture(project, i, {options.port, options.rear, options.capacity}), {}});
        for (const PicturePort& port : m_walls.back().picture.ports)
            m_walls.back().bounds.push_back(BoundOf(port));
    }
    ListContents();
    AddCover();
    auto entry = m_contents.begin();
    for (const Wall& wall : m_walls) {
        (entry++)->page = m_sheets.size() + 1;
        AddOverview(wall.picture);
        for (const PicturePort& port : wall.picture.ports) {
            if (HasPages(port)) {
                entry->page = m_sheets.size() + 1;
                AddPort(wall, port);
            }
            ++entry;
        }
    }
}

QString SheetSet::Title() const
{
    return m_walls.empty() ? QString() : m_walls.front().picture.title;
}

void SheetSet::ListContents()
{
    for (const Wall& wall : m_walls) {
        m_contents.push_back({&wall, nullptr});
        for (const PicturePort& port : wall.picture.ports)
            m_contents.push_back({&wall, &port});
    }
}

QStringList SheetSet::CoverLines() const
{
    qint64 cabinets = 0;
    qint64 cards = 0;
    qint64 pixels = 0;
    int ports = 0;
    for (const Wall& wall : m_walls) {
        for (const PicturePort& port : wall.picture.ports) {
            if (!HasPages(port))
                continue;
            ++ports;
            cabinets += static_cast<qint64>(port.cabinets.size());
            cards += port.receivers;
            pixels += port.pixels;
        }
    }
    QStringList lines{Joined(
        {Counted(static_cast<qint64>(m_walls.size()), "%1 sender", "%1 senders"),
         Counted(ports, "%1 port in use", "%1 ports in use"), Counted(cabinets, "%1 cabinet", "%1 cabinets"),
         Counted(cards, "%1 receiver", "%1 receivers"), Counted(pixels, "%1 pixel", "%1 pixels")})};
    if (!m_walls.empty())
        lines += m_walls.front().picture.form;
    return lines;
}

QString SheetSet::EntryText(const Entry& entry, int column) const
{
    const PicturePort* port = entry.port;
    switch (column) {
    case 0:
        return port ? QString() : entry.wall->picture.senderName;
    case 1:
        return port ? QString::number(port->index + 1) : QString();
    case 2:
        return port ? QString::number(port->cabinets.size()) : QString();
    case 3:
        return port ? QString::number(port->receivers) : QString();
    case 4:
        return port ? QString::number(port->pixels) : QString();
    case 5:
        return port ? port->load : QString();
    case 6:
        return port ? port->note : Tr("overview");
    default:
        return entry.page > 0 ? QString::number(entry.page) : QString();
    }
}

void SheetSet::AddCover()
{
    const auto text = [this](int row, int column) {
        return EntryText(m_contents[static_cast<size_t>(row)], column);
    };
    const auto table = std::make_shared<SheetTable>(std::vector<SheetColumn>{{Tr("sender"), 410, false},
                                                                             {Tr("port"), 80, true},
                                                                             {Tr("cabinets"), 150, true},
                                                                             {Tr("receivers"), 155, true},
                                                                             {Tr("pixels"), 170, true},
                                                                             {Tr("load"), 100, true},
                                                                             {QString(), 540, false},
                                                                             {Tr("page"), 90, true}},
                                                    static_cast<int>(m_contents.size()), text);
    const QStringList lines = CoverLines();
    const double above = (lines.size() + 1) * kLine + 2 * kGap;
    const QSizeF body = BodyOf(SizeOf(m_options.paper, false)).size();
    int row = 0;
    do {
        const int first = row;
        const double taken = first == 0 ? above : 0;
        row += table->RowsOn(body - QSizeF(0, taken));
        Sheet sheet;
        sheet.heading = first == 0 ? Tr("Sheets of the wall") : Tr("Contents");
        sheet.body = [table, lines, first, taken](QPainter& painter, const QRectF& area) {
            painter.setFont(FontOf(painter, kTextHeight));
            QRectF line(area.topLeft(), QSizeF(area.width(), kLine));
            for (int i = 0; first == 0 && i < lines.size(); ++i, line.translate(0, kLine))
                DrawLine(painter, line, lines[i]);
            if (first == 0)
                PaintMarks(painter, line, kTextHeight);
            table->Paint(painter, area.adjusted(0, taken, 0, 0), first);
        };
        m_sheets.push_back(std::move(sheet));
    } while (row < table->RowCount());
}

void SheetSet::AddOverview(const WallPicture& picture)
{
    const auto scaleOn = [&picture](const QSizeF& body) {
        return std::min(body.width() / std::max(1.0, picture.bound.width()),
                        body.height() / std::max(1.0, picture.bound.height()));
    };
    Sheet sheet;
    sheet.landscape = scaleOn(BodyOf(SizeOf(m_options.paper, true)).size())
                      > scaleOn(BodyOf(SizeOf(m_options.paper, false)).size());
    sheet.heading = Joined({picture.senderName, Tr("overview")});
    sheet.figures = picture.figures;
    sheet.body = [&picture](QPainter& painter, const QRectF& area) {
        const Omissions omitted =
            WallPainter(painter, picture, area.adjusted(0, 0, 0, -2 * kLine), kLeastText).Paint();
        QRectF line(area.left(), area.bottom() - 2 * kLine, area.width(), kLine);
        PaintMarks(painter, line, kTextHeight);
        line.translate(0, kLine);
        DrawLine(painter, line, OmissionText(omitted));
    };
    m_sheets.push_back(std::move(sheet));
}

void SheetSet::AddPort(const Wall& wall, const PicturePort& port)
{
    const CTileSet& tiles = m_project.GetSender(wall.sender)->GetPort(port.index)->GetTileSet();
    const auto chain = std::make_shared<ChainTable>(m_project, tiles, port);
    const auto table = std::make_shared<SheetTable>(chain->Make());
    if (AddShortPort(wall, port, chain, table))
        return;
    const Drawing drawing = BestDrawing(port, [](double) { return 0.0; });
    for (const PanelPage& page : drawing.pages)
        AddPanels(wall, port, drawing, page);
    AddChain(wall, port, chain, table);
}

/// The orientation that takes fewer pages, and then the one that draws larger. `below` gives the height, for
/// a width, that is left free.
SheetSet::Drawing SheetSet::BestDrawing(const PicturePort& port,
                                        const std::function<double(double)>& below) const
{
    Drawing best;
    double bestScale = 0;
    for (const bool landscape : {true, false}) {
        const QSizeF body = BodyOf(SizeOf(m_options.paper, landscape)).size();
        const double height = body.height() - below(body.width());
        if (height < body.height() * kLeastDrawing)
            continue;
        Drawing drawing{{}, LayOutPort(port, QSizeF(body.width(), height), kLeastText), landscape};
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
bool SheetSet::AddShortPort(const Wall& wall, const PicturePort& port,
                            const std::shared_ptr<ChainTable>& chain,
                            const std::shared_ptr<SheetTable>& table)
{
    const auto below = [table](double width) { return table->HeightOn(width) + 2 * kGap; };
    const Drawing drawing = BestDrawing(port, below);
    if (drawing.pages.size() != 1)
        return false;
    AddPanels(wall, port, drawing, drawing.pages.front());
    Sheet& sheet = m_sheets.back();
    sheet.figures = Joined({sheet.figures, chain->CommonText()});
    sheet.body = [panels = sheet.body, table, below, chain](QPainter& painter, const QRectF& area) {
        panels(painter, area);
        table->Paint(painter, area.adjusted(0, area.height() - below(area.width()) + 2 * kGap, 0, 0), 0);
    };
    return true;
}

void SheetSet::AddPanels(const Wall& wall, const PicturePort& port, const Drawing& drawing,
                         const PanelPage& page)
{
    qint64 cabinets = 0;
    for (const Panel& panel : page)
        cabinets += static_cast<qint64>(panel.part.places.size());
    Sheet sheet;
    sheet.landscape = drawing.landscape;
    sheet.heading = Joined({wall.picture.senderName, PortText(port)});
    if (drawing.pages.size() > 1)
        sheet.heading =
            Joined({sheet.heading,
                    Tr("part %1 of %2").arg(&page - drawing.pages.data() + 1).arg(drawing.pages.size())});
    sheet.figures = Joined({Counted(cabinets, "%1 cabinet", "%1 cabinets"), port.load});
    sheet.keyPlan = KeyPlan(wall, port, page);
    sheet.body = [&wall, pictures = drawing.pictures, page](QPainter& painter, const QRectF& area) {
        const bool isAlone = page.size() == 1;
        for (const Panel& panel : page) {
            const WallPicture picture = PictureOf(wall.picture, pictures->Make(panel.part), panel.part.bound);
            const QRectF place = panel.area.translated(area.topLeft());
            painter.setPen(Qt::black);
            painter.setFont(FontOf(painter, kCaptionHeight * 0.7));
            if (!isAlone)
                DrawLine(painter, QRectF(place.topLeft(), QSizeF(place.width(), kCaptionHeight)),
                         Tr("%1 of %2").arg(&panel - page.data() + 1).arg(page.size()));
            WallPainter(painter, picture, place.adjusted(0, isAlone ? 0 : kCaptionHeight, 0, 0), kLeastText,
                        panel.part.shown)
                .Paint();
        }
    };
    m_sheets.push_back(std::move(sheet));
}

void SheetSet::AddChain(const Wall& wall, const PicturePort& port, const std::shared_ptr<ChainTable>& chain,
                        const std::shared_ptr<SheetTable>& table)
{
    const QSizeF body = BodyOf(SizeOf(m_options.paper, false)).size();
    for (int first = 0; first < table->RowCount(); first += table->RowsOn(body)) {
        Sheet sheet;
        sheet.heading = Joined({wall.picture.senderName, PortText(port), Tr("chain")});
        sheet.figures = chain->CommonText();
        sheet.body = [chain, table, first](QPainter& painter, const QRectF& area) {
            table->Paint(painter, area, first);
        };
        m_sheets.push_back(std::move(sheet));
    }
}

/// Where on the wall the page lies: all ports' areas, the port's own in its colour, the page's part in a
/// frame.
SheetSet::Painting SheetSet::KeyPlan(const Wall& wall, const PicturePort& port, const PanelPage& page) const
{
    const QRectF own = wall.bounds[static_cast<size_t>(&port - wall.picture.ports.data())];
    const QRectF all = wall.picture.bound;
    if (own == all && page.size() == 1 && page.front().part.bound == own)
        return {};
    size_t cabinets = 0;
    for (const Panel& panel : page)
        cabinets += panel.part.places.size();
    const bool isWhole = cabinets == port.cabinets.size();
    return [&wall, &port, own, page, all, isWhole](QPainter& painter, const QRectF& area) {
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
            (QSizeF(kLeastKey, kLeastKey) - own.size() * scale).expandedTo(QSizeF(0, 0)) / 2;
        painter.fillRect(map(own)
                             + QMarginsF(beyond.width(), beyond.height(), beyond.width(), beyond.height()),
                         port.color);
        painter.setPen(QPen(Qt::black, 1));
        painter.drawRect(map(all));
        painter.setPen(QPen(Qt::black, 3));
        for (const Panel& panel : page)
            if (!isWhole)
                painter.drawRect(map(panel.part.bound) + QMarginsF(4, 4, 4, 4));
    };
}

void SheetSet::PaintHeader(QPainter& painter, const Sheet& sheet, size_t page) const
{
    QRectF header(QPointF(kMargin, kMargin), BodyOf(SizeOf(m_options.paper, sheet.landscape)).size());
    header.setHeight(kHeaderHeight);
    if (sheet.keyPlan) {
        painter.save();
        sheet.keyPlan(painter,
                      QRectF(header.right() - kKeyPlanWidth, header.top(), kKeyPlanWidth - 5, kHeaderHeight));
        painter.restore();
        header.setRight(header.right() - kKeyPlanWidth - kGap);
    }
    const QString view = m_options.rear ? Tr("REAR VIEW, mirrored") : Tr("front view");
    const QString number = Tr("page %1 of %2").arg(page + 1).arg(m_sheets.size());
    constexpr double kAside = 480; // for the view and the number of the page
    QRectF line(header.topLeft(), QSizeF(header.width(), kTitleHeight * 1.3));
    painter.setPen(Qt::black);
    painter.setFont(FontOf(painter, kTextHeight));
    DrawLine(painter, line, number, Qt::AlignRight);
    painter.setFont(FontOf(painter, kTitleHeight, true));
    DrawLine(painter, line.adjusted(0, 0, -kAside, 0), Title());
    line = QRectF(line.bottomLeft(), QSizeF(line.width(), kLine));
    painter.setFont(FontOf(painter, kTextHeight, m_options.rear));
    DrawLine(painter, line, view, Qt::AlignRight);
    painter.setFont(FontOf(painter, kTextHeight, true));
    DrawLine(painter, line.adjusted(0, 0, -kAside, 0), sheet.heading);
    line.translate(0, kLine);
    painter.setFont(FontOf(painter, kTextHeight));
    DrawLine(painter, line, sheet.figures);
}

QByteArray SheetSet::Paint() const
{
    PdfDocument document(Title());
    for (size_t i = 0; i < m_sheets.size(); ++i) {
        const Sheet& sheet = m_sheets[i];
        const QSizeF size = SizeOf(m_options.paper, sheet.landscape);
        QPainter& painter = document.BeginPage(size);
        PaintHeader(painter, sheet, i);
        sheet.body(painter, BodyOf(size));
        if (m_options.progress)
            m_options.progress(static_cast<int>((i + 1) * 100 / m_sheets.size()));
    }
    return document.Finish();
}

} // namespace

bool WriteSheets(QIODevice& device, const CProjectData& project, const SheetOptions& options)
{
    const QByteArray pdf = SheetSet(project, options).Paint();
    return !pdf.isEmpty() && device.write(pdf) == pdf.size();
}

} // namespace OrvanTools
