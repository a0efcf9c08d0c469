#include "tools/toolsproject.h"

#include <orvantools/layoutdrawing.h>

#include <QBuffer>
#include <QImage>
#include <QXmlStreamReader>

using OrvanTools::DrawingFormat;
using OrvanTools::DrawingOptions;

class LayoutDrawingTest : public ToolsTest
{
protected:
    QByteArray Draw(DrawingFormat format, int width = 0, int sender = 0)
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        DrawingOptions options;
        options.sender = sender;
        options.width = width;
        EXPECT_TRUE(OrvanTools::WriteLayout(buffer, format, Project(), options));
        return buffer.data();
    }

    QImage DrawPng(int width = 0) { return QImage::fromData(Draw(DrawingFormat::Png, width), "PNG"); }

    /// The texts of the drawing, each run of letters that has a place of its own.
    QStringList DrawTexts()
    {
        QXmlStreamReader xml(Draw(DrawingFormat::Svg));
        QStringList texts;
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("text"))
                texts.append(xml.readElementText().trimmed());
        }
        EXPECT_FALSE(xml.hasError());
        return texts;
    }

    static qint64 PixelsOf(const QImage& image, const QColor& color)
    {
        qint64 count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixelColor(x, y) == color ? 1 : 0;
        }
        return count;
    }
};

TEST_F(LayoutDrawingTest, EveryPortIsFilledWithTheColourOfItsIndex)
{
    Build(QSize(24, 12), 20);
    const QImage image = DrawPng(1200);
    const qint64 first = PixelsOf(image, CConstantData::GetColorByPort(0));
    for (int port = 0; port < 20; ++port) {
        const qint64 pixels = PixelsOf(image, CConstantData::GetColorByPort(port));
        EXPECT_GT(pixels, first / 4) << port; // the first ports have two columns, the others one
    }
    EXPECT_LT(PixelsOf(image, CConstantData::GetColorByPort(-1)), 5);
}

TEST_F(LayoutDrawingTest, HiddenPortsAreThereButPale)
{
    CSender& sender = Build(QSize(4, 3), 2);
    const qint64 shown = PixelsOf(DrawPng(800), CConstantData::GetColorByPort(1));
    sender.GetPort(1)->SetVisible(false);
    EXPECT_GT(shown, 1000);
    EXPECT_LT(PixelsOf(DrawPng(800), CConstantData::GetColorByPort(1)), shown / 4); // the legend's
    EXPECT_TRUE(DrawTexts().contains(QStringLiteral("hidden")));
    EXPECT_TRUE(DrawTexts().contains(QStringLiteral("6")));
}

TEST_F(LayoutDrawingTest, TheLegendCountsAndThePrintedFieldsStand)
{
    CSender& sender = Build(QSize(6, 2), 2);
    sender.SetCanvasSize(QSize(1234, 567));
    SPrintFormData& form = *Project().GetPrintSetData();
    form.projectName = {true, QStringLiteral("Stage <1> & more")};
    form.designer = {true, QStringLiteral("D. Signer")};
    form.approver = {false, QStringLiteral("nobody")};
    const QString all = DrawTexts().join(QLatin1Char('|'));
    EXPECT_TRUE(all.contains(QStringLiteral("Stage <1> & more")));
    EXPECT_TRUE(all.contains(QStringLiteral("Designer: D. Signer")));
    EXPECT_FALSE(all.contains(QStringLiteral("nobody")));
    EXPECT_TRUE(all.contains(QStringLiteral("1234")));
    EXPECT_TRUE(all.contains(QString::number(6 * 128 * 128)));
}

TEST_F(LayoutDrawingTest, TurnedCabinetsAreDrawnWhereTheyAre)
{
    Build(QSize(2, 2), 1);
    const QColor color = CConstantData::GetColorByPort(0);
    const qint64 straight = PixelsOf(DrawPng(1000), color);
    Turn(0, 45); // its bound, which fills the drawing's height, has twice the area
    const qint64 turned = PixelsOf(DrawPng(1000), color);
    EXPECT_GT(turned, straight * 4 / 10);
    EXPECT_LT(turned, straight * 6 / 10);
}

TEST_F(LayoutDrawingTest, EmptyAndOddSendersCanBeDrawnInEveryFormat)
{
    Build(QSize(3, 1), 1);
    Project().NewSender(); // nothing on it, no canvas
    CSender& odd = *Project().NewSender();
    SAddTileInfo block;
    block.width = 0; // covers nothing
    block.height = 0;
    odd.GetPort(0)->GetPortProject()->AddTile(block);
    odd.SetSenderName(QString(5000, QChar(0x957F)));
    odd.SetPortCount(160);
    for (int port = 1; port < 160; ++port)
        odd.GetPort(port)->SetBeBackupDest(odd.GetId(), 0);
    for (int sender = 0; sender < 3; ++sender) {
        EXPECT_TRUE(Draw(DrawingFormat::Png, 300, sender).startsWith("\x89PNG"));
        EXPECT_TRUE(Draw(DrawingFormat::Pdf, 0, sender).startsWith("%PDF"));
        QXmlStreamReader xml(Draw(DrawingFormat::Svg, 500, sender));
        while (!xml.atEnd())
            xml.readNext();
        EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    }
}

TEST_F(LayoutDrawingTest, AFullDeviceIsTold)
{
    /// Takes a little and then nothing more.
    class FullDevice : public QBuffer
    {
    protected:
        qint64 writeData(const char* data, qint64 size) override
        {
            return pos() + size > 4000 ? -1 : QBuffer::writeData(data, size);
        }
    };
    Build(QSize(20, 10), 2);
    for (const DrawingFormat format : {DrawingFormat::Png, DrawingFormat::Svg, DrawingFormat::Pdf}) {
        FullDevice device;
        device.open(QIODevice::WriteOnly);
        EXPECT_FALSE(OrvanTools::WriteLayout(device, format, Project(), {}));
    }
}
