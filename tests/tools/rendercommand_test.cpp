#include "support/testfolder.h"
#include "tools/runorvan.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>

namespace {

OrvanRun Render(const QString& output, const QStringList& options = {})
{
    return RunOrvan(QStringList{Arg("render"), SamplePath("small-wall.prj"), output} + options);
}

} // namespace

TEST(RenderCommandTest, TheEndingChoosesTheFormat)
{
    TestFolder folder;
    const struct
    {
        const char* name;
        QByteArray start;
    } formats[] = {{"墙.png", "\x89PNG"}, {"wall.SVG", "<?xml"}, {"wall.pdf", "%PDF"}};
    for (const auto& format : formats) {
        const OrvanRun run = Render(folder.Path(Arg(format.name)));
        EXPECT_EQ(run.status, 0) << qPrintable(run.errors);
        EXPECT_EQ(run.errors, QString());
        EXPECT_TRUE(ReadFile(folder.Path(Arg(format.name))).startsWith(format.start)) << format.name;
    }
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files).size(), 3); // no scratch file is left
    EXPECT_EQ(QImage(folder.Path(Arg("墙.png"))).width(), 1920);
    EXPECT_EQ(Render(folder.Path(Arg("b.png")), Args({"--width", "640"})).status, 0);
    EXPECT_EQ(QImage(folder.Path(Arg("b.png"))).size(), QSize(640, 453)); // as A3
}

TEST(RenderCommandTest, TheSenderAskedForIsDrawn)
{
    TestFolder folder;
    const QString output = folder.Path(Arg("a.svg"));
    const auto shows = [&](const QStringList& options, const char* text) {
        EXPECT_EQ(Render(output, options).status, 0);
        return ReadFile(output).contains(text);
    };
    EXPECT_TRUE(shows({}, "Hall left")); // the current one
    EXPECT_TRUE(shows(Args({"--sender", "2"}), "Processor 2"));
    EXPECT_TRUE(shows({}, "<title>示例屏幕 &lt;1&gt; &amp; &quot;2&quot;</title>"));
    EXPECT_FALSE(shows({}, "rear view"));
    EXPECT_TRUE(shows(Args({"--rear", "--port", "2"}), "port 2  ·  rear view"));
    EXPECT_FALSE(shows(Args({"--port", "2"}), "Port 1"));
    EXPECT_TRUE(shows({}, "25 %"));
    EXPECT_TRUE(shows(Args({"--fps", "120"}), "50 %"));
}

TEST(RenderCommandTest, AFailedDrawingLeavesWhatIsThere)
{
    TestFolder folder;
    const QString output = folder.Write(Arg("wall.svg"), "precious");
    const QString broken = SamplePath("truncated.prj");
    EXPECT_EQ(RunOrvan({Arg("render"), broken, output}).status, 3);
    EXPECT_EQ(Render(output, Args({"--sender", "3"})).status, 2);
    EXPECT_EQ(Render(output, Args({"--sender", "0"})).status, 2);
    EXPECT_EQ(Render(output, Args({"--port", "0"})).status, 2);
    EXPECT_TRUE(Render(output, Args({"--port", "5"}))
                    .errors.endsWith(Arg("has no port 5; see orvan render --help\n")));
    EXPECT_EQ(Render(output, Args({"--width", "1"})).status, 2);
    EXPECT_EQ(Render(output, Args({"--width", "1000000"})).status, 2);
    EXPECT_EQ(ReadFile(output), QByteArray("precious"));
    EXPECT_EQ(Render(folder.Path(Arg("wall.gif"))).status, 2);
    const OrvanRun nowhere = Render(folder.Path(Arg("absent/wall.svg")));
    EXPECT_EQ(nowhere.status, 3);
    EXPECT_TRUE(nowhere.errors.startsWith(Arg("orvan: ") + folder.Path(Arg("absent/wall.svg: "))));
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), Args({"wall.svg"}));
}

TEST(RenderCommandTest, AnOutputThatLeadsToAnInputIsWrongUsage)
{
    TestFolder folder;
    const QByteArray project = ReadFile(SamplePath("small-wall.prj"));
    const QString input = folder.Write(Arg("wall.png"), project);
    QDir().mkpath(folder.Path(Arg("sub")));
    ASSERT_TRUE(QFile::link(input, folder.Path(Arg("link.png"))));
    for (const char* output : {"wall.png", "sub/../wall.png", "link.png"})
        EXPECT_EQ(RunOrvan({Arg("render"), Arg("wall.png"), Arg(output)}, folder.Path()).status, 2) << output;
    EXPECT_EQ(RunOrvan({Arg("render"), Arg("link.png"), Arg("wall.png")}, folder.Path()).status, 2);
    EXPECT_EQ(RunOrvan({Arg("new"), Arg("wall.png"), Arg("--force"), Arg("--product"), SamplePath("x"),
                        Arg("--product"), Arg("link.png")},
                       folder.Path())
                  .status,
              2);
    EXPECT_EQ(ReadFile(input), project);
}

TEST(RenderCommandTest, OutputThatIsNotTakenIsAnError)
{
    if (!QFile::exists(Arg("/dev/full")))
        GTEST_SKIP();
    const OrvanRun run = RunOrvan({Arg("-c"), Arg("\"$0\" info \"$1\" --json >/dev/full"), Arg(ORVAN_COMMAND),
                                   SamplePath("small-wall.prj")},
                                  QString(), {}, Arg("sh"));
    EXPECT_EQ(run.status, 3);
    EXPECT_TRUE(run.errors.contains(Arg("standard output")));
}
