#include "support/testfolder.h"
#include "tools/runorvan.h"

#include <gtest/gtest.h>

TEST(ConvertCommandTest, ThereAndBackGivesTheSameBytes)
{
    TestFolder folder;
    const auto convert = [&folder](const char* from, const char* to) {
        return RunOrvan(Args({"convert", from, to, "--documents", "docs"}), folder.Path());
    };
    ASSERT_EQ(RunOrvan(Args({"demo", ".", "--documents", "docs"}), folder.Path()).status, 0);
    const OrvanRun there = convert("sample-wall.prj", "wall.xml");
    EXPECT_EQ(there.status, 0);
    EXPECT_TRUE(
        there.errors.startsWith(Arg("orvan: sample-wall.prj: warning: the parameter file 'sample-A128'")));
    EXPECT_EQ(there.errors.count(QLatin1Char('\n')), 2);
    const auto before = Snapshot(folder.Path(Arg("docs")));
    const OrvanRun back = convert("wall.xml", "back.prj");
    EXPECT_EQ(back.errors, QString()); // the product folder has the files
    EXPECT_EQ(ReadFile(folder.Path(Arg("back.prj"))), ReadFile(folder.Path(Arg("sample-wall.prj"))));
    EXPECT_EQ(Snapshot(folder.Path(Arg("docs"))), before);

    const OrvanRun alone = RunOrvan(Args({"convert", "wall.xml", "alone.prj"}), folder.Path());
    EXPECT_EQ(alone.errors.count(Arg("'sample-B256' does not come along")), 1);
    EXPECT_EQ(convert("alone.prj", "again.xml").status, 0);
    EXPECT_EQ(ReadFile(folder.Path(Arg("again.xml"))), ReadFile(folder.Path(Arg("wall.xml"))));

    // The first row's type once more: files are stored by rows, though a type is listed once.
    QByteArray twice = ReadFile(folder.Path(Arg("wall.xml")));
    const int row = twice.indexOf("<File1"), end = twice.indexOf("<File2");
    twice.replace("<File2", "<File3").insert(end, twice.mid(row, end - row).replace("File1", "File2"));
    folder.Write(Arg("twice.xml"), twice.replace("File Count=\"2\"", "File Count=\"3\""));
    EXPECT_EQ(convert("twice.xml", "twice.prj").errors, QString());
    EXPECT_EQ(RunOrvan(Args({"check", "twice.prj"}), folder.Path()).output, "0 faults\n");

    folder.Write(Arg("broken.xml"), "<?xml version=\"1.0\"?><LedSetting>");
    const std::pair<const char*, const char*> wrong[] = {
        {"wall.xml", "wall.xml"}, {"wall.xml", "other.xml"}, {"back.prj", "other.prj"}, {"back.prj", "-"}};
    for (const auto& [from, to] : wrong)
        EXPECT_EQ(convert(from, to).status, 2) << from << " " << to;
    EXPECT_EQ(convert("broken.xml", "other.prj").status, 3);
    EXPECT_EQ(convert("wall.xml", "absent/other.prj").status, 3);
    EXPECT_FALSE(Snapshot(folder.Path()).keys().join(QLatin1Char(' ')).contains(Arg("other")));
}
