#include "support/testfolder.h"
#include "tools/runorvan.h"
#include "tools/textrecorder.h"
#include "tools/toolsproject.h"

#include <orvantools/labelplacer.h>
#include <orvantools/portparts.h>
#include <orvantools/sheetpage.h>
#include <orvantools/sheettable.h>
#include <orvantools/wallpainter.h>

#include <QBuffer>

using namespace OrvanTools;

class SheetSetTest : public ToolsTest
{
protected:
    QByteArray Draw(const SheetOptions& options = {})
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(WriteSheets(buffer, Project(), options));
        return buffer.data();
    }

    int Pages(const SheetOptions& options = {}) { return Draw(options).count("/Type /Page\n"); }

    /// On the pages of a port each cabinet is drawn once, and everything that is written on it can be read.
    void ExpectReadable(int port, const QSizeF& body)
    {
        const WallPicture wall = MakeWallPicture(Project(), 0, {port, false, {}});
        const PicturePort& picture = wall.ports.at(0);
        const PartPictures pictures(picture);
        std::vector<int> drawn(picture.cabinets.size(), 0);
        for (const PanelPage& page : LayOutPort(picture, body, 20)) {
            QRectF taken;
            for (const Panel& panel : page) {
                EXPECT_TRUE(QRectF(QPointF(), body).contains(panel.area.adjusted(1, 1, -1, -1)));
                EXPECT_FALSE(std::any_of(page.begin(), page.end(), [&panel](const Panel& other) {
                    return &other != &panel && other.area.intersects(panel.area);
                }));
                for (const int place : panel.part.places)
                    ++drawn[static_cast<size_t>(place)];
                WallPicture part;
                part.bound = panel.part.bound;
                part.ports.push_back(pictures.Make(panel.part));
                TextRecorder device;
                QPainter painter(&device);
                const QRectF area = panel.area.adjusted(0, kCaptionHeight, 0, 0);
                const Omissions omitted = WallPainter(painter, part, area, 20, panel.part.shown).Paint();
                EXPECT_EQ(omitted.numbers + omitted.receivers, 0) << page.size();
                EXPECT_GE(device.texts.size(), panel.part.places.size());
            }
        }
        EXPECT_EQ(std::count(drawn.begin(), drawn.end(), 1), static_cast<int>(drawn.size()));
    }
};

TEST_F(SheetSetTest, EveryCabinetOfAPortIsDrawnOnceAndItsNumbersCanBeRead)
{
    const std::pair<QSize, int> walls[] = {
        {{4, 3}, 1}, {{2, 60}, 1}, {{200, 1}, 2}, {{80, 40}, 1}, {{60, 30}, 20}};
    for (const auto& [grid, ports] : walls) {
        Build(grid, ports, 2);
        ExpectReadable(0, QSizeF(1900, 2500));
        ExpectReadable(ports - 1, QSizeF(2700, 1600));
        Project().DeleteSender(Project().GetSender(0)->GetId());
    }
    const unsigned char wiring[] = {0, 1, 2, 3, 4, 5};
    Build(QSize(12, 12), 1); // of many sizes, with many cards, then turned
    for (int i = 0; i < 144; ++i) {
        CTile& tile = Tile(0, i);
        tile.SetWidth(32 + i * 7 % 96);
        tile.SetHeight(64 + i * 5 % 64);
        tile.SetBeMultiRcvsTile(i % 5 == 0);
        tile.SetMultiRcvsSize(QSize(2, 1 + i % 3));
        tile.SetMultiRcvsLine(wiring);
    }
    Tiles(0).TileSetNormalization();
    ExpectReadable(0, QSizeF(1900, 2500));
    Turn(0, 33);
    ExpectReadable(0, QSizeF(1900, 2500));
}

TEST_F(SheetSetTest, AHeaderKeepsThePortBesideLongNames)
{
    const QString name(200, QLatin1Char('n'));
    for (const QSizeF& size : {SheetSize(Paper::A4, false), SheetSize(Paper::Letter, true)}) {
        TextRecorder device;
        QPainter painter(&device);
        PaintSheetHeader(painter, {false, name, name, QStringLiteral("Port 7"), name, {}, {}}, size,
                         {QStringLiteral("page 1 of 9"), name});
        LabelPlacer placer(100);
        for (const auto& [text, box] : device.texts)
            EXPECT_TRUE(QRectF(QPointF(), size).contains(box) && placer.Take(box)) << qPrintable(text);
        EXPECT_TRUE(device.texts.at(3).first.endsWith(QStringLiteral("Port 7")));
    }
    EXPECT_EQ(SheetTable::Lines({name, name}, 500), (QStringList{name + QStringLiteral(", "), name}));
}

TEST_F(SheetSetTest, TheSetHoldsWhatIsInUse)
{
    CSender& sender = Build(QSize(8, 3), 4);
    EXPECT_EQ(Pages(), 2 + 4); // cover, overview, and the chain below each drawing
    SheetOptions options;
    options.port = 2;
    EXPECT_EQ(Pages(options), 3);
    Tiles(3).DeleteAllTiles();
    sender.GetPort(3)->SetBeBackupDest(sender.GetId(), 0);
    Project().NewSender();
    EXPECT_EQ(Pages(), 3 + 3) << "a backup has no page, a sender without cabinets its overview";
    options = {};
    options.sender = 0;
    const QByteArray front = Draw(options);
    options.rear = true;
    EXPECT_NE(Draw(options), front);
    options.paper = Paper::A3;
    EXPECT_TRUE(Draw(options).contains("/MediaBox [0 0 842"));
}

TEST(SheetCommandTest, TheSameProjectGivesTheSameBytes)
{
    TestFolder folder;
    const auto draw = [&folder](const char* name, const char* zone, const QStringList& options) {
        const QStringList arguments{Arg("render"), SamplePath("small-wall.prj"), folder.Path(Arg(name))};
        return RunOrvan(arguments + options, {}, {Arg(zone)}).status;
    };
    EXPECT_EQ(draw("a.pdf", "TZ=UTC-1", Args({"--sheets"})), 0);
    EXPECT_EQ(draw("b.pdf", "TZ=UTC+2", Args({"--sheets"})), 0);
    EXPECT_EQ(ReadFile(folder.Path(Arg("a.pdf"))), ReadFile(folder.Path(Arg("b.pdf"))));
    EXPECT_EQ(draw("c.png", "A=B", Args({"--sheets"})), 2);
    EXPECT_EQ(draw("c.pdf", "A=B", Args({"--paper", "A3"})), 2);
    EXPECT_EQ(draw("c.pdf", "A=B", Args({"--sheets", "--paper", "A5"})), 2);
    EXPECT_EQ(draw("c.pdf", "A=B", Args({"--sheets", "--width", "900"})), 2);
    EXPECT_EQ(draw("absent/c.pdf", "A=B", Args({"--sheets"})), 3);
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files), Args({"a.pdf", "b.pdf"}));
}
