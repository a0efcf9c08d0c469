#include "common/atomicfile.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QIODevice>

TEST(AtomicFileTest, FailedWriteKeepsTheOldFileAndLeavesNothingBeside)
{
    TestFolder folder;
    const QString path = folder.Write(QStringLiteral("a.txt"), "old");
    QString error;
    EXPECT_FALSE(ReplaceFile(
        path,
        [](QIODevice& file) {
            file.write("half");
            return false;
        },
        &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(ReadFile(path), "old");
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files).size(), 1);
}

TEST(AtomicFileTest, LinkStaysAndItsTargetIsReplaced)
{
    TestFolder folder;
    const QString target = folder.Write(QStringLiteral("target.txt"), "old");
    const QString link = folder.Path(QStringLiteral("link.txt"));
    ASSERT_TRUE(QFile::link(target, link));
    EXPECT_TRUE(ReplaceFile(link, QByteArray("new")));
    EXPECT_EQ(ReadFile(target), "new");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
}

TEST(AtomicFileTest, OnlyRegularFilesAreReplaced)
{
    TestFolder folder;
    QString error;
    EXPECT_FALSE(ReplaceFile(folder.Path(), QByteArray("new"), &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(ReplaceFile(QStringLiteral("/dev/null"), QByteArray("new"), &error));
}
