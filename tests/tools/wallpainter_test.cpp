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
    void ExpectTextsApart(const char* wall, bool rear = false)
    {
        for (const int width : {100, 250, 400, 700, 960, 1920, 5000, 20000}) {
            const QSizeF page = QSizeF(kPageWidth, kPageHeight) * std::max(1.0, width / 1920.0);
            const double leastText = 9 * page.width() / width;
            TextRecorder device;
            QPainter painter(&device);
            DrawingOptions options;
            options.rear = rear;
            PaintLayout(painter, Project(), options, page, leastText);
            painter.end();
            LabelPlacer placer(100);
            for (const TextRecorder::Text& text : device.texts) {
                const std::string where =
                    wall + (": " + text.text.toStdString()) + " at " + std::to_string(width);
                EXPECT_TRUE(QRectF(QPointF(), page).contains(text.box)) << where;
                EXPECT_TRUE(placer.Take(text.box)) << where;
            }
            EXPECT_GT(device.texts.size(), 0U) << wall;
        }
    }
};

TEST_F(WallPainterTest, NoTextLiesOnAnotherOrOffThePage)
{
    const struct
    {
        const char* name;
        QSize grid;
        int ports;
    } walls[] = {{"wall", {4, 3}, 2},
                 {"totem", {2, 60}, 1},
                 {"ribbon", {200, 1}, 4},
                 {"many ports", {160, 20}, 160},
                 {"large", {128, 64}, 16}};
    for (const auto& wall : walls) {
        Build(wall.grid, wall.ports).SetSenderName(QString(300, QLatin1Char('n')));
        ExpectTextsApart(wall.name);
        Project().DeleteSender(Project().GetSender(0)->GetId());
    }
    SampleWall sample([](const QString&) {});
    ASSERT_TRUE(sample.Build());
    SPrintFormData& form = *Project().GetPrintSetData();
    form.projectName = form.designer = form.approver = {true, QString(500, QChar(0x957F))};
    ExpectTextsApart("sample");
    ExpectTextsApart("sample", true);
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
        painter.end();
        const auto toCanvas = [&](const QPointF& place) {
            return (place - area.center()) / wall.GetScale() + picture.bound.center();
        };
        int numbers = 0;
        for (const TextRecorder::Text& text : device.texts) {
            const int port = text.text.toInt() / 100000 - 1;
            if (port < 0)
                continue; // the mark of a start
            ++numbers;
            const QRectF box(toCanvas(text.box.topLeft()), toCanvas(text.box.bottomRight()));
            for (const PicturePort& other : picture.ports) {
                for (const TileShape& shape : other.shapes)
                    ASSERT_TRUE(other.index == port || !box.intersects(shape.Bound()))
                        << text.text.toStdString();
            }
        }
        EXPECT_EQ(numbers + omitted.numbers, grid.width() * grid.height()) << grid.width();
        EXPECT_EQ(omitted.numbers == 0, grid.width() == 8);
        Project().DeleteSender(Project().GetSender(0)->GetId());
    }
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
    const auto light = [](const QColor& color) {
        double sum = 0;
        for (const auto& [channel, weight] :
             {std::pair(color.redF(), 0.2126), std::pair(color.greenF(), 0.7152),
              std::pair(color.blueF(), 0.0722)})
            sum += weight * (channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4));
        return sum + 0.05;
    };
    std::set<std::pair<QRgb, QVector<qreal>>> pairs;
    for (int index = 0; index < 100; ++index) {
        PicturePort port;
        port.color = CConstantData::GetColorByPort(index);
        pairs.insert({port.color.rgb(), WallPainter::ChainPen(index, 1).dashPattern()});
        for (port.hidden = false;; port.hidden = true) {
            const double ratio = light(FillOf(port)) / light(TextOn(FillOf(port)));
            EXPECT_GE(std::max(ratio, 1 / ratio), 4.5) << index;
            if (port.hidden)
                break;
        }
    }
    EXPECT_EQ(pairs.size(), 100U);
}
