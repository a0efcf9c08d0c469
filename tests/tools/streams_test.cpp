#include "support/testfolder.h"
#include "tools/runorvan.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>

namespace {

/// Runs a line of the shell, in which "orvan" is the command, in a folder.
OrvanRun Shell(const QString& folder, const char* line)
{
    return RunOrvan({Arg("-c"), Arg("orvan() { \"$0\" \"$@\"; }; ") + Arg(line), Arg(ORVAN_COMMAND)}, folder,
                    {Arg("TMPDIR=") + folder}, Arg("sh"));
}

} // namespace

TEST(StreamsTest, ADashIsStandardInputAndOutput)
{
    TestFolder folder;
    folder.Write(Arg("wall.prj"), ReadFile(SamplePath("small-wall.prj")));
    const QByteArray check = Shell(folder.Path(), "orvan check wall.prj").output;
    EXPECT_EQ(Shell(folder.Path(), "cat wall.prj | orvan check -").output, check);
    EXPECT_TRUE(
        Shell(folder.Path(), "orvan info - <wall.prj").output.startsWith("standard input (archive)\n"));
    const QByteArray drawn =
        Shell(folder.Path(), "orvan render wall.prj a.svg; orvan render - - --format svg <wall.prj").output;
    EXPECT_EQ(drawn, ReadFile(folder.Path(Arg("a.svg"))));
    EXPECT_EQ(QImage::fromData(Shell(folder.Path(), "orvan render wall.prj - --format png").output).width(),
              1920);
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              Args({"a.svg", "wall.prj"}));
}

TEST(StreamsTest, WhatAStreamCannotBeIsTold)
{
    TestFolder folder;
    const QByteArray project = ReadFile(SamplePath("small-wall.prj"));
    folder.Write(Arg("wall.prj"), project);
    const struct
    {
        const char* line;
        int status;
        const char* reason;
    } cases[] = {
        {"orvan render wall.prj -", 2, "--format takes png or svg"},
        {"orvan render wall.prj - --format pdf", 2, "--format takes png or svg"},
        {"orvan render wall.prj a.svg --format svg", 2, "goes with -"},
        {"orvan new -", 2, "no file"},
        {"orvan render - - --format svg <wall.prj 1<>wall.prj", 2, "standard output: is one of the files"},
        {"orvan info wall.prj >>wall.prj", 2, "standard output: is one of the files"},
        {"orvan info - </dev/null", 3, "standard input: "},
        {"orvan info - <&-", 3, "standard input: "},
        {"orvan params - <.", 3, "standard input: "},
        {"head -c 269000000 /dev/zero | orvan info -", 3, "standard input: gives more than 256 MiB"},
        {"orvan export wall.prj a.txt", 2, ".csv or .jsonl"},
        {"orvan export absent.prj a.csv", 3, "absent.prj: "},
        {"orvan export wall.prj - --format csv >/dev/full", 3, "standard output: "},
        {"orvan render wall.prj - --format svg >&-", 3, "standard output: "},
        {"orvan render wall.prj - --format svg | head -c 1 >a.svg; rm a.svg", 0, ""},
        {"ln -s /dev/full full.svg; orvan render wall.prj full.svg", 3, "no regular file"},
    };
    for (const auto& c : cases) {
        const OrvanRun run = Shell(folder.Path(), c.line);
        EXPECT_EQ(run.status, c.status) << c.line;
        EXPECT_TRUE(run.errors.contains(Arg(c.reason))) << qPrintable(run.errors);
        EXPECT_LE(run.errors.count(QLatin1Char('\n')), 1) << qPrintable(run.errors);
    }
    EXPECT_EQ(ReadFile(folder.Path(Arg("wall.prj"))), project);
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
              Args({"full.svg", "wall.prj"}));
}
