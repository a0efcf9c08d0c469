#include "orvantools/sheetset.h"

#include "orvantools/legend.h"
#include "orvantools/pdfdocument.h"
#include "orvantools/portsheets.h"
#include "orvantools/sheetpage.h"
#include "orvantools/sheettable.h"
#include "orvantools/textline.h"
#include "orvantools/wallpainter.h"
#include "orvantools/words.h"

#include <OrvanData/orvandata.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

namespace OrvanTools {

namespace {

constexpr double kNoteWidth = 540; ///< of the last column but one of the contents

/// Says it of a sender that shows another one's wall.
QString OverviewText(const WallPicture& picture)
{
    return picture.isBackup ? Tr("overview of a backup") : Tr("overview");
}

QRectF BoundOf(const PicturePort& port)
{
    QRectF bound;
    for (const TileShape& shape : port.shapes)
        bound = bound.united(shape.Bound());
    return bound;
}

bool HasPages(const PicturePort& port)
{
    return !port.cabinets.empty() && port.backupOf.isEmpty();
}

class SheetSet
{
public:
    SheetSet(const CProjectData& project, const SheetOptions& options);

    QByteArray Paint() const;

private:
    /// A row of the contents: a sender, one of its ports, or more of a port's note.
    struct Entry
    {
        const SheetWall* wall;
        const PicturePort* port; ///< null: the sender itself
        QString note;
        bool goesOn = false; ///< the row above
        size_t page = 0;     ///< counted from 1; 0: it has none
    };

    void ListContents();
    void AddCover();
    void AddOverview(const WallPicture& picture);
    QString Title() const;
    QString EntryText(const Entry& entry, int column) const;
    QStringList CoverLines() const;

    const SheetOptions& m_options;
    std::vector<SheetWall> m_walls;
    std::vector<Entry> m_contents;
    std::vector<SheetPage> m_pages;
};

SheetSet::SheetSet(const CProjectData& project, const SheetOptions& options) : m_options(options)
{
    for (int i = 0; i < project.GetSenderCount(); ++i) {
        if (options.sender >= 0 && options.sender != i)
            continue;
        m_walls.push_back(
            {i,
             MakeWallPicture(project, i, {options.port, options.rear, options.capacity, options.atOwnRate}),
             {}});
        for (const PicturePort& port : m_walls.back().picture.ports)
            m_walls.back().bounds.push_back(BoundOf(port));
    }
    ListContents();
    AddCover();
    auto entry = m_contents.begin();
    for (const SheetWall& wall : m_walls) {
        const PortSheets sheets(project, wall, options.paper);
        (entry++)->page = m_pages.size() + 1;
        AddOverview(wall.picture);
        for (const PicturePort& port : wall.picture.ports) {
            if (HasPages(port)) {
                entry->page = m_pages.size() + 1;
                std::vector<SheetPage> pages = sheets.Make(port);
                std::move(pages.begin(), pages.end(), std::back_inserter(m_pages));
            }
            do {
                ++entry;
            } while (entry != m_contents.end() && entry->goesOn);
        }
    }
}

QString SheetSet::Title() const
{
    return m_walls.empty() ? QString() : m_walls.front().picture.title;
}

void SheetSet::ListContents()
{
    for (const SheetWall& wall : m_walls) {
        m_contents.push_back({&wall, nullptr, OverviewText(wall.picture)});
        for (const PicturePort& port : wall.picture.ports) {
            const QStringList notes = SheetTable::Lines(port.note.split(QStringLiteral(", ")), kNoteWidth);
            for (const QString& note : notes)
                m_contents.push_back({&wall, &port, note, &note != &notes.first()});
        }
    }
}

QStringList SheetSet::CoverLines() const
{
    qint64 cabinets = 0;
    qint64 cards = 0;
    qint64 pixels = 0;
    int ports = 0;
    for (const SheetWall& wall : m_walls) {
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
    const PicturePort* port = entry.goesOn ? nullptr : entry.port;
    switch (column) {
    case 0:
        return port           ? Tr("Sender %1").arg(entry.wall->sender + 1)
               : entry.goesOn ? QString()
                              : entry.wall->picture.senderName;
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
        return entry.note;
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
                                                                             {QString(), kNoteWidth, false},
                                                                             {Tr("page"), 90, true}},
                                                    static_cast<int>(m_contents.size()), text);
    const QStringList lines = CoverLines();
    const double above = (lines.size() + 1) * kSheetLine + 2 * kSheetGap;
    const QSizeF body = SheetBody(SheetSize(m_options.paper, false)).size();
    int row = 0;
    do {
        const int first = row;
        const double taken = first == 0 ? above : 0;
        row += table->RowsOn(body - QSizeF(0, taken));
        SheetPage page;
        page.title = Title();
        page.heading = first == 0 ? Tr("Sheets of the wall") : Tr("Contents");
        page.body = [table, lines, first, taken](QPainter& painter, const QRectF& area) {
            painter.setFont(FontOf(painter, kSheetText));
            QRectF line(area.topLeft(), QSizeF(area.width(), kSheetLine));
            for (int i = 0; first == 0 && i < lines.size(); ++i, line.translate(0, kSheetLine))
                DrawLine(painter, line, lines[i]);
            if (first == 0)
                PaintMarks(painter, line, kSheetText);
            table->Paint(painter, area.adjusted(0, taken, 0, 0), first);
        };
        m_pages.push_back(std::move(page));
    } while (row < table->RowCount());
}

void SheetSet::AddOverview(const WallPicture& picture)
{
    const auto scaleOn = [&picture](const QSizeF& body) {
        return std::min(body.width() / std::max(1.0, picture.bound.width()),
                        body.height() / std::max(1.0, picture.bound.height()));
    };
    SheetPage page;
    page.landscape = scaleOn(SheetBody(SheetSize(m_options.paper, true)).size())
                     > scaleOn(SheetBody(SheetSize(m_options.paper, false)).size());
    page.title = picture.title;
    page.sender = picture.senderName;
    page.heading = OverviewText(picture);
    page.figures = picture.figures;
    page.body = [&picture](QPainter& painter, const QRectF& area) {
        const Omissions omitted =
            WallPainter(painter, picture, area.adjusted(0, 0, 0, -2 * kSheetLine), kLeastSheetText).Paint();
        QRectF line(area.left(), area.bottom() - 2 * kSheetLine, area.width(), kSheetLine);
        PaintMarks(painter, line, kSheetText);
        line.translate(0, kSheetLine);
        DrawLine(painter, line, OmissionText(omitted));
    };
    m_pages.push_back(std::move(page));
}

QByteArray SheetSet::Paint() const
{
    PdfDocument document(Title());
    const QString view = m_options.rear ? Tr("REAR VIEW, mirrored") : Tr("front view");
    for (size_t i = 0; i < m_pages.size(); ++i) {
        const SheetPage& page = m_pages[i];
        const QSizeF size = SheetSize(m_options.paper, page.landscape);
        QPainter& painter = document.BeginPage(size);
        PaintSheetHeader(painter, page, size, {Tr("page %1 of %2").arg(i + 1).arg(m_pages.size()), view});
        page.body(painter, SheetBody(size));
        if (m_options.progress)
            m_options.progress(static_cast<int>((i + 1) * 100 / m_pages.size()));
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
