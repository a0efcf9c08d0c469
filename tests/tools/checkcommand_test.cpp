#include "support/testfolder.h"
#include "tools/runorvan.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QRegularExpression>

TEST(CheckCommandTest, FaultsAreLinesWithACountAndEndWithOne)
{
    const OrvanRun run = RunOrvan({Arg("check"), SamplePath("small-wall.prj")});
    EXPECT_EQ(run.status, 1);
    const QStringList lines = QString::fromUtf8(run.output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[0].startsWith(Arg("sender 2 port 1 cabinet 6: ")));
    EXPECT_EQ(lines[1], Arg("1 fault"));
    EXPECT_EQ(run.errors, QString());
}

TEST(CheckCommandTest, ABareDocumentLacksItsParameterFilesUnlessTheLibraryHasThem)
{
    TestFolder documents;
    const QStringList check{Arg("check"), SamplePath("small-wall.xml"), Arg("--json")};
    const auto kinds = [](const OrvanRun& run) {
        QStringList list;
        for (const QJsonValue& fault : run.Json()[Arg("faults")].toArray())
            list.append(fault.toObject()[Arg("kind")].toString());
        return list;
    };
    EXPECT_EQ(kinds(RunOrvan(check)),
              Args({"unnumbered", "missing-parameter-file", "missing-parameter-file"}));
    const QStringList with{Arg("--documents"), documents.Path()};
    ASSERT_EQ(RunOrvan(with + QStringList{Arg("info"), SamplePath("small-wall.prj")}).status, 0);
    EXPECT_EQ(kinds(RunOrvan(with + check)), Args({"unnumbered"}));
}

TEST(CheckCommandTest, TwentyFaultsOfAKindAreToldUnlessAllAreWantedOrTheKindIsIgnored)
{
    TestFolder folder; // 21 unnumbered cabinets beyond the canvas
    RunOrvan(Args({"new", "a.prj", "--grid", "7x3", "--ports", "1", "--canvas", "10x10"}), folder.Path());
    const auto told = [&](std::initializer_list<const char*> options) {
        const OrvanRun run = RunOrvan(Args({"check", "a.prj"}) + Args(options), folder.Path());
        const QStringList lines = QString::fromUtf8(run.output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        const QStringList counts = lines.filter(QRegularExpression(Arg("^…|faults")));
        return Arg("%1 %2 ").arg(run.status).arg(lines.size()) + counts.join(QLatin1Char('|'));
    };
    EXPECT_EQ(told({}), Arg("1 43 … and 1 more|… and 1 more|42 faults"));
    EXPECT_EQ(told({"--all"}), Arg("1 43 42 faults"));
    EXPECT_EQ(told({"--ignore", "unnumbered"}), Arg("1 22 … and 1 more|21 faults, 21 ignored"));
    EXPECT_EQ(told({"--ignore", "unnumbered", "--ignore", "off-canvas"}), Arg("0 1 0 faults, 42 ignored"));
    EXPECT_EQ(told({"--ignore", "overlap,unnumbered"}), Arg("2 0 "));
}

TEST(CheckCommandTest, PortPixelsCanBeSet)
{
    const QString wall = SamplePath("small-wall.prj");
    const auto faults = [&](const char* pixels) {
        return RunOrvan({Arg("check"), wall, Arg("--json"), Arg("--port-pixels"), Arg(pixels)})
            .Json()[Arg("faults")]
            .toArray()
            .size();
    };
    EXPECT_EQ(faults("196608"), 1); // 12 cabinets of 128 x 128 on the fullest port
    EXPECT_EQ(faults("196607"), 2);
    EXPECT_EQ(RunOrvan({Arg("check"), wall, Arg("--port-pixels"), Arg("many")}).status, 2);
    EXPECT_EQ(RunOrvan({Arg("check"), SamplePath("too-new.prj")}).status, 3);
}

TEST(DiffCommandTest, DifferencesEndWithOneAndNothingIsPrintedWithoutAny)
{
    TestFolder folder;
    const QString wall = SamplePath("small-wall.prj");
    const QByteArray text = ReadFile(SamplePath("small-wall.xml"));
    const QString same = folder.Write(Arg("same.xml"), text);
    const QString other = folder.Write(Arg("b.xml"), QByteArray(text).replace("\"Hall left\"", "\"a\x7F\""));
    EXPECT_EQ(RunOrvan({Arg("diff"), wall, same}).output, "");
    EXPECT_EQ(RunOrvan({Arg("diff"), wall, same}).status, 0);
    const OrvanRun run = RunOrvan({Arg("diff"), wall, other});
    EXPECT_EQ(run.status, 1);
    EXPECT_TRUE(run.output.endsWith("\nsender 1: name \"a\uFFFD\", was \"Hall left\"\n"));
    const QJsonValue json = RunOrvan({Arg("diff"), wall, other, Arg("--json")}).Json();
    EXPECT_EQ(json[Arg("differences")][0][Arg("kind")], QJsonValue(Arg("sender")));
    const auto odd = [&](const char* id) { // two rows of one type, and a group without cabinets
        QByteArray content = QByteArray(text).replace("{b4ab3746-1f28-4f9a-a8ca-e28a881dc396}\" Rotate", id);
        content.replace("bbc0857749a0c47936bd918f0819549e", "6a68bac7e613028bb11b40c35340e863");
        return folder.Write(Arg(id).left(9), content);
    };
    EXPECT_EQ(RunOrvan({Arg("diff"), odd("{c4ab3746-1f28-4f9a-a8ca-e28a881dc396}\" Rotate"),
                        odd("{d4ab3746-1f28-4f9a-a8ca-e28a881dc396}\" Rotate")})
                  .output,
              "");
    const OrvanRun failed = RunOrvan({Arg("diff"), wall, SamplePath("too-new.prj")});
    EXPECT_EQ(failed.status, 3);
    EXPECT_TRUE(failed.errors.startsWith(Arg("orvan: ") + SamplePath("too-new.prj")));
}

TEST(ParamsCommandTest, AParameterFileIsPrintedUnderItsElementNames)
{
    const OrvanRun json = RunOrvan({Arg("params"), SamplePath("device-params.xml"), Arg("--json")});
    ASSERT_EQ(json.status, 0) << qPrintable(json.errors);
    EXPECT_EQ(json.Json(), ReadJson(SamplePath("device-params.xml.json")));
    const OrvanRun text = RunOrvan({Arg("params"), SamplePath("device-params.xml")});
    EXPECT_TRUE(text.output.startsWith("DeviceParams\n"));
    EXPECT_TRUE(text.output.contains("\n    SenderType: 17\n"));
    for (const QString& wrong : {SamplePath("small-wall.xml"), SamplePath("absent.xml")}) {
        const OrvanRun run = RunOrvan({Arg("params"), wrong});
        EXPECT_EQ(run.status, 3);
        EXPECT_TRUE(run.errors.startsWith(Arg("orvan: ") + wrong + Arg(": ")));
    }
}

TEST(ProductsCommandTest, ADoubleIsLeftOutAndLeftWhereItIs)
{
    TestFolder folder;
    folder.Write(Arg("a.rcvbp"), "one");
    folder.Write(Arg("b/箱体.rcvp"), "two");
    folder.Write(Arg("b/double.rcvbp"), "one");
    folder.Write(Arg("b/other.RCVBP"), "three");
    const auto before = Snapshot(folder.Path());
    const OrvanRun run = RunOrvan(Args({"products", ".", "--json"}), folder.Path());
    ASSERT_EQ(run.status, 0);
    const QJsonArray products = run.Json()[Arg("products")].toArray();
    ASSERT_EQ(products.size(), 2);
    const QJsonObject second = products[1].toObject();
    EXPECT_EQ(second[Arg("name")].toString(), Arg("箱体"));
    EXPECT_EQ(second[Arg("path")].toString(), folder.Path(Arg("b/箱体.rcvp")));
    EXPECT_EQ(second[Arg("menuId")].toInt(), 8193);
    EXPECT_EQ(second[Arg("type")].toString(), Arg("b8a9f715dbb64fd5c56e7783c6820a61"));
    EXPECT_EQ(Snapshot(folder.Path()), before);
    EXPECT_EQ(RunOrvan({Arg("products"), folder.Path(Arg("absent"))}).status, 3);
}
