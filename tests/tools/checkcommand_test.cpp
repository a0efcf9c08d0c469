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
    ASSERT_EQ(
        RunOrvan(Args({"new", "a.prj", "--grid", "7x3", "--ports", "1", "--canvas", "10x10"}), folder.Path())
            .status,
        0);
    const struct
    {
        QStringList options;
        int status;
        int lines;
        QStringList more; // and the last line
    } cases[] = {
        {{}, 1, 43, Args({"… and 1 more", "… and 1 more", "42 faults"})},
        {Args({"--all"}), 1, 43, Args({"42 faults"})},
        {Args({"--ignore", "unnumbered"}), 1, 22, Args({"… and 1 more", "21 faults, 21 ignored"})},
        {Args({"--ignore", "unnumbered", "--ignore", "off-canvas"}), 0, 1, Args({"0 faults, 42 ignored"})},
        {Args({"--ignore", "unnumbered,overlap"}), 2, 0, {}},
    };
    for (const auto& c : cases) {
        const OrvanRun run = RunOrvan(Args({"check", "a.prj"}) + c.options, folder.Path());
        EXPECT_EQ(run.status, c.status);
        const QStringList lines = QString::fromUtf8(run.output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        EXPECT_EQ(lines.size(), c.lines);
        EXPECT_EQ(lines.filter(QRegularExpression(Arg("^…|faults"))), c.more);
        EXPECT_EQ(run.errors.contains(Arg("missing-parameter-file")), c.status == 2);
    }
    const auto listed = [&](const QStringList& options) {
        const QStringList check = Args({"check", "a.prj", "--json"}) + options;
        return RunOrvan(check, folder.Path()).Json()[Arg("faults")].toArray().size();
    };
    EXPECT_EQ(listed({}), 42);
    EXPECT_EQ(listed(Args({"--ignore", "unnumbered"})), 21);
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
    QByteArray text = ReadFile(SamplePath("small-wall.xml"));
    text.replace("Name=\"Hall left\"", "Name=\"Hall\x7F\"")
        .replace("RefreshDisTime=\"15\"", "RefreshDisTime=\"20\"");
    const QString edited = folder.Write(Arg("edited.xml"), text);
    for (const QString& other : {wall, SamplePath("small-wall.xml")}) {
        const OrvanRun same = RunOrvan({Arg("diff"), wall, other});
        EXPECT_EQ(same.status, 0);
        EXPECT_EQ(same.output + same.errors.toUtf8(), QByteArray());
    }
    const OrvanRun run = RunOrvan({Arg("diff"), wall, edited});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(QString::fromUtf8(run.output), Arg("2 differences: senders changed 1, settings 1\n"
                                                 "monitoring every 20 s, was 15 s\n"
                                                 "sender 1: name \"Hall\uFFFD\", was \"Hall left\"\n"));
    const QJsonArray list =
        RunOrvan({Arg("diff"), wall, edited, Arg("--json")}).Json()[Arg("differences")].toArray();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0][Arg("kind")], QJsonValue(Arg("settings")));
    EXPECT_EQ(list[1][Arg("sender")], QJsonValue(1));
    const QString bad = SamplePath("too-new.prj");
    for (const QStringList& files : {QStringList{wall, bad}, QStringList{bad, wall}}) {
        const OrvanRun failed = RunOrvan(QStringList{Arg("diff")} + files);
        EXPECT_EQ(failed.status, 3);
        EXPECT_TRUE(failed.errors.startsWith(Arg("orvan: ") + bad + Arg(": "))) << qPrintable(failed.errors);
    }
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
    const OrvanRun run = RunOrvan({Arg("products"), folder.Path(), Arg("--json")});
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
