#include "tools/runorvan.h"
#include "tools/textrecorder.h"
#include "tools/toolsproject.h"

#include <orvantools/cabinettexts.h>
#include <orvantools/labelplacer.h>
#include <orvantools/layoutdrawing.h>
#include <orvantools/samplewall.h>
#include <orvantools/wallpainter.h>
#include <orvantools/wallpaintertools.h>

#include <set>

using namespace OrvanTools;

class WallPainterTest : public ToolsTest
{
protected:
    /// Paints the page of a PNG of each width and looks at every text.
    void ExpectTextsApart(int wall, bool rear = false)
    {
        for (const int width : {100, 250, 400, 700, 960, 1920, 5000, 20000}) {
            const QSizeF page = QSizeF(kPageWidth, kPageHeight) * std::max(1.0, width / 1920.0);
            TextRecorder device;
            QPainter painter(&device);
            PaintLayout(painter, Project(), {0, 0, -1, rear, {}}, page, 9 * page.width() / width);
            LabelPlacer placer(100);
            for (const auto& [text, box] : device.texts) {
                EXPECT_TRUE(QRectF(QPointF(), page).contains(box))
                    << wall << ", " << width << ": " << qPrintable(text);
                EXPECT_TRUE(placer.Take(box)) << wall << ", " << width << ": " << qPrintable(text);
            }
            const auto isFigures = [](const auto& text) { return text.first.startsWith(Arg("canvas")); };
            EXPECT_EQ(std::any_of(device.texts.begin(), device.texts.end(), isFigures), width >= 700) << wall;
        }
    }
};

TEST_F(WallPainterTest, NoTextLiesOnAnotherOrOffThePage)
{
    const std::pair<QSize, int> walls[] = {
        {{4, 3}, 2}, {{2, 60}, 1}, {{200, 1}, 4}, {{160, 20}, 160}, {{128, 64}, 16}};
    for (const auto& [grid, ports] : walls) {
        Build(grid, ports).SetSenderName(QString(300, QLatin1Char('n')));
        ExpectTextsApart(ports);
        Project().DeleteSender(Project().GetSender(0)->GetId());
    }
    SampleWall sample([](const QString&) {});
    ASSERT_TRUE(sample.Build());
    SPrintFormData& form = *Project().GetPrintSetData();
    form.projectName = form.designer = form.approver = {true, QString(500, QChar(0x957F))};
    ExpectTextsApart(0);
    ExpectTextsApart(0, true);
}

TEST_F(WallPainterTest, ANumberLiesOnItsOwnCabinetsOrBesideTheWallAndWhatIsMissingIsCounted)
{
    const QRectF area(0, 0, 4000, 2500);
    for (const QSize& grid : {QSize(8, 5), QSize(40, 20), QSize(90, 60), QSize(200, 100), QSize(100, 2)}) {
        Build(grid, 4);
        WallPicture picture = MakeWallPicture(Project(), 0);
        picture.canvas = QRectF();
        for (PicturePort& port : picture.ports) {
            for (PictureCabinet& cabinet : port.cabinets)
                cabinet.number += (port.index + 1) * 100000; // tells the port
        }
        TextRecorder device;
        QPainter painter(&device);
        WallPainter wall(painter, picture, area, 16);
        const Omissions omitted = wall.Paint();
        const auto toCanvas = [&](const QPointF& place) {
            return (place - area.center()) / wall.GetScale() + picture.bound.center();
        };
        int numbers = 0;
        for (const auto& [text, place] : device.texts) {
            const int port = text.toInt() / 100000 - 1; // -1: the mark of a start
            numbers += port >= 0 ? 1 : 0;
            const QRectF box(toCanvas(place.topLeft()), toCanvas(place.bottomRight()));
            for (const PicturePort& other : picture.ports) {
                for (size_t i = 0; port >= 0 && other.index != port && i < other.shapes.size(); ++i)
                    ASSERT_FALSE(box.intersects(other.shapes[i].Bound())) << qPrintable(text);
            }
        }
        EXPECT_EQ(numbers + omitted.numbers, grid.width() * grid.height()) << grid.width();
        EXPECT_EQ(omitted.numbers == 0, grid.width() == 8);
        Project().DeleteSender(Project().GetSender(0)->GetId());
    }
}

TEST_F(WallPainterTest, EveryPortIsToldHoweverNarrow)
{
    Build(QSize(256, 4), 160, 4);
    TextRecorder device;
    QPainter painter(&device);
    const WallPicture picture = MakeWallPicture(Project(), 0);
    const Omissions omitted = WallPainter(painter, picture, QRectF(0, 0, 2700, 1500), 20).Paint();
    EXPECT_EQ(omitted.chains, 160) << "they would hide the colours";
    std::set<QString> texts;
    for (const auto& text : device.texts)
        texts.insert(text.first);
    for (int port = 1; port <= 160; ++port)
        EXPECT_EQ(texts.count(QString::number(port)), 1U) << port;
}

TEST_F(WallPainterTest, AtTheReadableScaleEveryNumberIsWritten)
{
    Build(QSize(12, 1), 1);
    const QSize cards[] = {{2, 1}, {1, 2}, {2, 2}, {3, 3}, {1, 10}, {10, 1}, {5, 2}};
    for (size_t i = 0; i < std::size(cards); ++i) {
        CTile& tile = Tile(0, static_cast<int>(i));
        const unsigned char line[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
        tile.SetBeMultiRcvsTile(true);
        tile.SetMultiRcvsSize(cards[i]);
        tile.SetMultiRcvsLine(line);
    }
    for (const bool rear : {false, true}) {
        const WallPicture picture = MakeWallPicture(Project(), 0, {-1, rear, {}});
        const CabinetTextPlaces places(picture.ports[0], 16);
        double scale = 0;
        for (const PictureCabinet& cabinet : picture.ports[0].cabinets)
            scale = std::max(scale, places.ReadableScale(cabinet, QSizeF(128, 128)));
        const QRectF page(0, 0, scale * 640 + 60, scale * 128 + 60);
        for (int part = 0; part < 3; ++part) { // five cabinets a page
            const QRectF shown(picture.bound.left() + part * 512, 0, 640, 128);
            TextRecorder device;
            QPainter painter(&device);
            const Omissions omitted = WallPainter(painter, picture, page, 16, shown).Paint();
            EXPECT_EQ(omitted.numbers + omitted.receivers + omitted.marks, 0) << part << rear;
            EXPECT_GE(device.texts.size(), 4U);
        }
    }
}

TEST(WallPainterStyleTest, PortsAreToldApartAndTextsCanBeRead)
{
    const auto light = [](const QColor& color) { // near enough
        return 0.2126 * std::pow(color.redF(), 2.2) + 0.7152 * std::pow(color.greenF(), 2.2)
               + 0.0722 * std::pow(color.blueF(), 2.2) + 0.05;
    };
    std::set<std::pair<QRgb, QVector<qreal>>> pairs;
    for (int i = 0; i < 200; ++i) {
        PicturePort port;
        port.hidden = i >= 100;
        port.color = CConstantData::GetColorByPort(i);
        pairs.insert({port.color.rgb(), WallPainter::ChainPen(i, 1).dashPattern()});
        const double ratio = light(FillOf(port)) / light(TextOn(FillOf(port)));
        EXPECT_GE(std::max(ratio, 1 / ratio), 4.4) << i;
    }
    EXPECT_EQ(pairs.size(), 100U);
}
