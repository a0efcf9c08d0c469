#include "support/testfolder.h"
#include "tools/runorvan.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QProcess>

#include <csignal>

namespace {

/// Objects may hold more than is expected of them.
void ExpectHolds(const QJsonValue& actual, const QJsonValue& expected, const QString& path)
{
    EXPECT_EQ(actual.type(), expected.type()) << qPrintable(path);
    if (!expected.isObject() && !expected.isArray()) {
        EXPECT_EQ(actual, expected) << qPrintable(path);
    }
    for (const QString& key : expected.toObject().keys())
        ExpectHolds(actual[key], expected[key], path + QLatin1Char('/') + key);
    EXPECT_EQ(actual.toArray().size(), expected.toArray().size()) << qPrintable(path);
    for (int i = 0; i < expected.toArray().size(); ++i)
        ExpectHolds(actual[i], expected[i], path + QLatin1Char('/') + QString::number(i));
}

int ErrorLines(const OrvanRun& run)
{
    return run.errors.count(QLatin1Char('\n'));
}

} // namespace

TEST(CommandTest, InfoGivesEveryValueOfTheSampleWalls)
{
    for (const char* sample : {"small-wall.prj", "small-wall.xml"}) {
        const QString file = SamplePath(sample);
        const OrvanRun run = RunOrvan({Arg("info"), file, Arg("--json"), Arg("--tiles")});
        ASSERT_EQ(run.status, 0) << qPrintable(run.errors);
        const QJsonObject expected = ReadJson(file + Arg(".json"));
        ASSERT_FALSE(expected.isEmpty());
        ExpectHolds(run.Json(), expected, file);
        EXPECT_TRUE(run.output.contains("\"groups\": 4")); // the nested ones too
        EXPECT_EQ(run.errors, QString());
    }
}

TEST(CommandTest, InfoTellsTheLoadOfAPort)
{
    const QStringList info{Arg("info"), SamplePath("small-wall.prj"), Arg("--port-pixels")};
    const auto load = [&](const QStringList& options) {
        const QJsonValue json = RunOrvan(info + options + Args({"--json"})).Json();
        return json[Arg("senders")][0][Arg("ports")][0][Arg("load")];
    };
    const QStringList more = Args({"196608", "--fps", "90", "--depth", "12"}); // of 12 cabinets of 128 x 128
    EXPECT_TRUE(RunOrvan(info + more).output.contains(" 12     225 %  512x384 at 0,0\n"));
    EXPECT_EQ(load(more), 2.25);
    EXPECT_EQ(load(Args({"0"})), QJsonValue());
}

TEST(CommandTest, UnreadableProjectsAreRefusedWithOneLineAndLeaveNothing)
{
    TestFolder folder;
    const QString evil = folder.Path(Arg("a/b/c"));
    QDir().mkpath(evil);
    const auto before = Snapshot(folder.Path());
    const struct
    {
        QString file;
        const char* reason;
    } cases[] = {
        {SamplePath("too-new.prj"), "7.0"}, {SamplePath("truncated.prj"), ""},
        {SamplePath("climbing.prj"), ""},   {SamplePath("absent.prj"), ""},
        {folder.Path(), "folder"},
    };
    for (const auto& c : cases) {
        const OrvanRun run = RunOrvan({Arg("info"), c.file}, QString(), {Arg("TMPDIR=") + evil});
        EXPECT_EQ(run.status, 3) << qPrintable(c.file);
        EXPECT_TRUE(run.errors.startsWith(Arg("orvan: ") + c.file + Arg(": "))) << qPrintable(run.errors);
        EXPECT_TRUE(run.errors.contains(Arg(c.reason))) << qPrintable(run.errors);
        EXPECT_EQ(ErrorLines(run), 1) << qPrintable(run.errors);
        EXPECT_TRUE(run.output.isEmpty());
    }
    EXPECT_EQ(Snapshot(folder.Path()), before);
}

TEST(CommandTest, AProjectReadInPartIsAWarning)
{
    TestFolder folder;
    QByteArray content = ReadFile(SamplePath("small-wall.xml"));
    content.replace("</LedSetting>", "<Whatever/></LedSetting>")
        .replace("TileCount=\"12\"", "TileCount=\"99\"");
    const QString file = folder.Write(Arg("partly.xml"), content);
    const OrvanRun run = RunOrvan({Arg("info"), file});
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(run.errors.startsWith(Arg("orvan: ") + file + Arg(": warning: "))) << qPrintable(run.errors);
    EXPECT_EQ(ErrorLines(run), 1);
}

TEST(CommandTest, NothingThatATerminalObeysIsPrinted)
{
    TestFolder folder;
    QByteArray content = ReadFile(SamplePath("small-wall.xml"));
    content.replace("\"Hall left\"", "\"a&#10;  b\xC2\x9B\x7F\xE2\x80\xAE屏\"");
    const QString file = folder.Write(Arg("wall\n\x1B[2J.xml"), content);
    const OrvanRun info = RunOrvan({Arg("info"), file});
    EXPECT_TRUE(info.output.contains("wall\uFFFD\uFFFD[2J.xml (xml)\n"));
    EXPECT_TRUE(info.output.contains("Sender 1        a\uFFFD  b\uFFFD\uFFFD\uFFFD屏, canvas"));
    const OrvanRun json = RunOrvan({Arg("info"), file, Arg("--json")});
    EXPECT_TRUE(json.output.contains("\"a\\n  b\\u009b\\u007f\\u202e屏\""));
    EXPECT_EQ(json.Json()[Arg("senders")].toArray()[0].toObject()[Arg("name")].toString(),
              Arg("a\n  b\xC2\x9B\x7F\xE2\x80\xAE屏"));
    const OrvanRun failed = RunOrvan({Arg("info"), folder.Path(Arg("no\n\x1B[2J"))});
    EXPECT_TRUE(failed.errors.contains(Arg("/no \uFFFD[2J: "))) << qPrintable(failed.errors);
    EXPECT_EQ(ErrorLines(failed), 1);
}

TEST(CommandTest, WrongUsageEndsWithTwo)
{
    const QStringList wrong[] = {
        Args({}),
        Args({"paint"}),
        Args({"--frobnicate"}),
        Args({"info"}),
        Args({"info", "a", "b"}),
        Args({"info", ""}),
        Args({"info", "a", "--tiles"}),
        Args({"info", "a", "--fps", "0"}),
        Args({"info", "a", "--documents", ""}),
        Args({"new", "a.prj", "--ports", "5"}),
        Args({"new", "a.prj", "--grid", "4x"}),
    };
    TestFolder folder;
    for (const QStringList& arguments : wrong) {
        const OrvanRun run = RunOrvan(arguments, folder.Path());
        EXPECT_EQ(run.status, 2) << qPrintable(arguments.join(QLatin1Char(' ')));
        const bool isNew = arguments.value(0) == Arg("new");
        EXPECT_TRUE(run.errors.endsWith(Arg(isNew ? "; see orvan new --help\n" : " --help\n")));
        EXPECT_EQ(ErrorLines(run), 1) << qPrintable(run.errors);
    }
    EXPECT_TRUE(Snapshot(folder.Path()).isEmpty());
}

TEST(CommandTest, TheUsersFoldersStayAsTheyAreUnlessADocumentsFolderIsGiven)
{
    TestFolder home;
    const QStringList environment{Arg("HOME=") + home.Path(), Arg("XDG_CONFIG_HOME="), Arg("XDG_DATA_HOME="),
                                  Arg("TMPDIR=") + home.Path(Arg("tmp"))};
    home.Write(Arg("Documents/Orvan/LedConfig/own.rcvbp"), "own");
    home.Write(Arg("Documents/Orvan/LedConfig/sub/double.rcvbp"), "own");
    QDir().mkpath(home.Path(Arg("tmp")));
    const auto before = Snapshot(home.Path());
    const QString file = SamplePath("small-wall.prj");
    EXPECT_EQ(RunOrvan({Arg("info"), file}, QString(), environment).status, 0);

    const QJsonArray products =
        RunOrvan({Arg("products"), Arg("--json")}, QString(), environment).Json()[Arg("products")].toArray();
    ASSERT_EQ(products.size(), 1);
    EXPECT_EQ(products[0].toObject()[Arg("path")].toString(),
              home.Path(Arg("Documents/Orvan/LedConfig/own.rcvbp")));
    EXPECT_EQ(Snapshot(home.Path()), before);

    const QString documents = home.Path(Arg("elsewhere 屏"));
    for (const QStringList& arguments : {QStringList{Arg("--documents"), documents, Arg("info"), file},
                                         QStringList{Arg("info"), Arg("--documents=") + documents, file}}) {
        EXPECT_EQ(RunOrvan(arguments, QString(), environment).status, 0);
        EXPECT_TRUE(QFile::exists(documents + Arg("/Orvan/LedConfig/箱体A128.rcvbp")));
        EXPECT_TRUE(QDir(documents).removeRecursively());
    }
    EXPECT_EQ(Snapshot(home.Path()), before);
}

TEST(CommandTest, NoEndLeavesItsPrivateFolder)
{
    TestFolder folder;
    const QString wall = folder.Path(Arg("wall.prj"));
    ASSERT_EQ(RunOrvan({Arg("new"), wall, Arg("--grid"), Arg("40x20")}).status, 0);
    const QDir tmp(folder.Path(Arg("tmp")));
    QDir().mkpath(tmp.filePath(Arg("OrvanCommand-backup"))); // the user's
    const auto leaves = [&](int signal) {
        QProcess process;
        process.setProcessEnvironment(EnvironmentWith({Arg("TMPDIR=") + tmp.path()}));
        process.start(Arg(ORVAN_COMMAND), {Arg("info"), wall, Arg("--json"), Arg("--tiles")});
        process.waitForReadyRead(); // it writes, and more than a pipe holds
        EXPECT_EQ(tmp.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2);
        kill(static_cast<pid_t>(process.processId()), signal);
        process.waitForFinished();
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(process.exitCode(), signal);
        return tmp.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() - 1;
    };
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        EXPECT_EQ(leaves(signal), 0) << signal;
    const QString closed = Arg("\"$0\" info \"$1\" --json --tiles | head -c 1");
    EXPECT_EQ(
        RunOrvan({Arg("-c"), closed, Arg(ORVAN_COMMAND), wall}, {}, {Arg("TMPDIR=") + tmp.path()}, Arg("sh"))
            .errors,
        QString());
    EXPECT_EQ(tmp.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
    EXPECT_EQ(leaves(SIGKILL), 1);
    EXPECT_EQ(leaves(SIGTERM), 0); // the killed run's too
}

TEST(CommandTest, NewAlternatesTheTypesOfTheColumnsAndReplacesNoFileUnasked)
{
    TestFolder folder;
    const QString a = folder.Write(Arg("箱 A.rcvbp"), "a");
    const QString b = folder.Write(Arg("b.dat"), "b");
    // In the C locale, where file names beyond ASCII are easily lost.
    const QStringList locale{Arg("LC_ALL=C")};
    const QStringList make =
        Args({"new", "墙.prj", "--grid", "7x2", "--ports", "3", "--order", "5", "--name", "舞台"})
        + QStringList{Arg("--product"), a, Arg("--product"), b};
    ASSERT_EQ(RunOrvan(make, folder.Path(), locale).status, 0);
    const QJsonObject info =
        RunOrvan({Arg("info"), Arg("墙.prj"), Arg("--json"), Arg("--tiles")}, folder.Path(), locale).Json();
    const QJsonObject sender = info[Arg("senders")].toArray()[0].toObject();
    EXPECT_EQ(sender[Arg("name")].toString(), Arg("舞台"));
    const QJsonArray ports = sender[Arg("ports")].toArray();
    ASSERT_EQ(ports.size(), 4);
    const QJsonArray files = info[Arg("parameterFiles")].toArray();
    ASSERT_EQ(files.size(), 2);
    for (int i = 0; i < 3; ++i) {
        for (const QJsonValue& tile : ports[i].toObject()[Arg("tiles")].toArray()) {
            const int column = tile.toObject()[Arg("x")].toInt() / 128;
            EXPECT_EQ(tile.toObject()[Arg("type")], files[column % 2].toObject()[Arg("type")]);
        }
    }

    const QByteArray first = ReadFile(folder.Path(Arg("墙.prj")));
    EXPECT_EQ(RunOrvan(make, folder.Path(), locale).status, 3);
    EXPECT_EQ(ReadFile(folder.Path(Arg("墙.prj"))), first);
    EXPECT_EQ(RunOrvan({Arg("new"), Arg("墙.prj"), Arg("--force")}, folder.Path(), locale).status, 0);
    EXPECT_NE(ReadFile(folder.Path(Arg("墙.prj"))), first);
}

TEST(CommandTest, DemoEndsWithAProjectThatIsThere)
{
    TestFolder folder;
    for (int i = 0; i < 2; ++i) { // over the files of the first run the second time
        const OrvanRun run = RunOrvan({Arg("demo"), Arg("here")}, folder.Path());
        ASSERT_EQ(run.status, 0) << qPrintable(run.errors);
        EXPECT_TRUE(QFile::exists(folder.Path(Arg("here/sample-wall.prj"))));
    }
    EXPECT_EQ(RunOrvan({Arg("check"), Arg("here/sample-wall.prj")}, folder.Path()).output, "0 faults\n");
}
