#include "tools/runorvan.h"
#include "tools/toolsproject.h"

#include <orvantools/projectlist.h>

#include <QBuffer>

using namespace OrvanTools;

namespace {

template <class Write> QString Text(Write write, ListForm form)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(write(buffer, form, *GetProjectData()));
    return Arg(buffer.data()).section(Arg("\r\n"), form == ListForm::Csv ? 1 : 0); // without the names
}

} // namespace

TEST_F(ToolsTest, ListsOfCabinetsSkipBackupsAndCountFromOne)
{
    Build(QSize(3, 1), 3);
    Project().GetSender(0)->GetPort(1)->SetBeBackupDest(Project().GetSender(0)->GetId(), 0);
    CTile& tile = Tile(2, 0);
    tile.SetConnectionIndex(-1, nullptr);
    tile.SetMultiRcvsSize(QSize(2, 2));
    tile.Offset(-300, 7);
    tile.GetTileRotateParam()->rotated = true;
    tile.GetTileRotateParam()->angle = 12.3456789f;
    EXPECT_EQ(Text(WriteCabinetList, ListForm::Csv),
              Arg("1,1,1,1,1,1,0,0,128,128,0,,,\r\n1,3,1,,,4,-44,7,128,128,12.3457,,,\r\n"));
    EXPECT_TRUE(Text(WriteCabinetList, ListForm::JsonLines)
                    .endsWith(Arg("{\"sender\":1,\"port\":3,\"cabinet\":1,\"number\":null,\"receiver\":null,"
                                  "\"receivers\":4,\"x\":-44,\"y\":7,\"width\":128,\"height\":128,"
                                  "\"angle\":12.3457,\"type\":null,\"product\":null,\"group\":null}\n")));
}

TEST_F(ToolsTest, NoTextOfAListIsTakenForAFormula)
{
    Build(QSize(1, 1), 1);
    const std::pair<const char*, const char*> cases[] = {
        // a digest in a file may be any text of this length
        {"=HYPERLINK(\"http://a.b\",\"cc\")   ", "\"'=HYPERLINK(\"\"http://a.b\"\",\"\"cc\"\")   \""},
        {"+2345678901234567890123456789012", "'+2345678901234567890123456789012"},
        {"@2345678901234567890123456789012", "'@2345678901234567890123456789012"},
        {"\t2345678901234567890123456789012", "'\t2345678901234567890123456789012"},
        {"\r2345678901234567890123456789012", "\"'\r2345678901234567890123456789012\""},
        {"-2345678901234567890123456789+12", "'-2345678901234567890123456789+12"},
        {"-23456789012345678901234567890.2", "-23456789012345678901234567890.2"},
        {"a=3 56789012345678901234567890-2", "a=3 56789012345678901234567890-2"},
    };
    for (const auto& [type, field] : cases) {
        Tile(0, 0).SetType(SMD5::FromString(Arg(type)));
        EXPECT_EQ(Text(WriteCabinetList, ListForm::Csv),
                  Arg("1,1,1,1,1,1,0,0,128,128,0,") + Arg(field) + Arg(",,\r\n"));
    }
    Tile(0, 0).SetType(SMD5::FromString(Arg(cases[0].first)));
    EXPECT_TRUE(Text(WriteCabinetList, ListForm::JsonLines).contains(Arg(":\"=HYPERLINK(\\\"http")));
}

TEST_F(ToolsTest, CablesGoByNumberThenOrderBetweenTheCentersAsDrawn)
{
    Build(QSize(3, 1), 1);
    Tile(0, 0).SetConnectionIndex(5, nullptr);
    Tile(0, 2).SetConnectionIndex(5, nullptr);
    Tile(0, 1).SetWidth(127);
    SRotateParam& record = *Tile(0, 2).GetTileRotateParam(); // swung round its left top
    record.rotated = true;
    record.angle = 90;
    record.centerX = 256;
    record.centerY = 0;
    EXPECT_EQ(Text(WriteCableSchedule, ListForm::Csv), Arg("1,1,1,,2,,,191.5,64.0,\r\n"
                                                           "1,1,2,2,1,191.5,64.0,64.0,64.0,127.5\r\n"
                                                           "1,1,3,1,3,64.0,64.0,192.0,64.0,128.0\r\n"));
}
