#include "tools/toolsproject.h"

#include <orvantools/testpattern.h>

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <tuple>

using OrvanTools::PatternMode;

class TestPatternTest : public ToolsTest
{
protected:
    QByteArray Bytes(PatternMode mode = PatternMode::Ports, int sender = 0)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        return OrvanTools::WritePattern(buffer, Project(), {sender, mode}) ? buffer.data() : QByteArray();
    }
    QImage Draw(PatternMode mode = PatternMode::Ports)
    {
        return QImage::fromData(Bytes(mode), "PNG").convertToFormat(QImage::Format_RGB32);
    }
};

TEST_F(TestPatternTest, BordersColoursAndGridLieOnTheirPixelsOfTheCanvas)
{
    CSender& sender = Build(QSize(3, 2), 3); // of 128 x 128
    sender.SetCanvasSize(QSize(300, 300));
    sender.SetOffset(QSize(20, 10));
    const auto first = CConstantData::GetColorByPort(0), second = CConstantData::GetColorByPort(1);
    const std::tuple<int, int, QColor> pixels[] = {
        {19, 12, Qt::black},  {20, 10, Qt::white},
        {21, 11, first},      {146, 12, first},
        {147, 12, Qt::white}, {148, 12, Qt::white},
        {149, 12, second},    {60, 137, Qt::white},
        {60, 266, Qt::black}, {299, 12, CConstantData::GetColorByPort(2)}};
    const QImage ports = Draw();
    const QImage numbers = Draw(PatternMode::Numbers);
    ASSERT_EQ(ports.size(), QSize(300, 300));
    for (const auto& [x, y, color] : pixels) {
        EXPECT_EQ(ports.pixelColor(x, y), color) << x << ',' << y;
        EXPECT_EQ(numbers.pixelColor(x, y), color == Qt::white ? color : Qt::black) << x << ',' << y;
    }
    const QImage grid = Draw(PatternMode::Grid);
    EXPECT_NE(grid.pixelColor(32, 12), first); // counted from the canvas
    EXPECT_EQ(grid.pixelColor(36, 12), first);
    EXPECT_EQ(Bytes(PatternMode::Grid), Bytes(PatternMode::Grid));
}

TEST_F(TestPatternTest, TurnedByAQuarterItIsTheStraightPictureTurned)
{
    Build(QSize(1, 1), 1).SetCanvasSize(QSize(128, 128));
    const QImage straight = Draw();
    Turn(0, 90);
    EXPECT_EQ(Draw(), straight.transformed(QTransform().rotate(90)));
}

TEST_F(TestPatternTest, WithoutACanvasItIsTheWallAndASpareShowsWhatItBacksUp)
{
    CSender& sender = Build(QSize(2, 1), 2);
    Tile(1, 0).SetX(300);
    sender.SetCanvasSize(QSize(-1, -1));
    EXPECT_EQ(OrvanTools::PatternSize(Project(), 0), QSize(428, 128));
    CSender& spare = *Project().NewSender();
    spare.SetCanvasSize(QSize(-1, -1));
    EXPECT_EQ(Bytes(PatternMode::Ports, 1), QByteArray()); // neither canvas nor cabinets
    for (int port = 0; port < 2; ++port)
        spare.GetPort(port)->SetBeBackupDest(sender.GetId(), port);
    EXPECT_EQ(Bytes(PatternMode::Ports, 1), Bytes());
    sender.SetCanvasSize(QSize(kMaxCanvasWidth + 1, 10));
    EXPECT_EQ(Bytes(), QByteArray());
    QFile full(QStringLiteral("/dev/full"));
    EXPECT_FALSE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
                 && OrvanTools::WritePattern(full, Project(), {1, PatternMode::Ports}));
}
