#include "common/atomicfile.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QThread>

#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

TEST(AtomicFileTest, LinkStaysAndItsTargetIsReplaced)
{
    TestFolder folder;
    const QString target = folder.Write("target.txt"_s, "old");
    const QString link = folder.Path("link.txt"_s);
    ASSERT_TRUE(QFile::link(target, link));
    EXPECT_TRUE(ReplaceFile(link, QByteArray("new")));
    EXPECT_EQ(ReadFile(target), "new");
    EXPECT_TRUE(QFileInfo(link).isSymLink());
}

TEST(AtomicFileTest, WaitingForAnotherSaveLeavesNoDescriptorOpen)
{
    const auto descriptors = [] {
        return QDir("/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size();
    };
    TestFolder folder;
    const QString part = folder.Write(".a.txt.part"_s, "of another save");
    const int before = descriptors();
    const int other = open(QFile::encodeName(part).constData(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(other, LOCK_EX), 0);
    std::thread ending([other] {
        QThread::msleep(100);
        close(other);
    });
    EXPECT_TRUE(ReplaceFile(folder.Path("a.txt"_s), QByteArray("new")));
    ending.join();
    EXPECT_EQ(descriptors(), before);
    EXPECT_FALSE(QFile::exists(part));
}

TEST(AtomicFileTest, RefusedWritesAndTargetsThatAreNoRegularFilesAreTold)
{
    TestFolder folder;
    const QString path = folder.Write("a.txt"_s, "old");
    QString error = "of an earlier file"_s;
    EXPECT_FALSE(ReplaceFile(
        path, [](QIODevice&) { return false; }, &error));
    EXPECT_TRUE(error.contains(path)) << error.toStdString();
    EXPECT_FALSE(ReplaceFile(
        path, [&error](QIODevice&) { return error = "why"_s, false; }, &error));
    EXPECT_EQ(error, "why"_s) << "the writer knows best";
    EXPECT_EQ(ReadFile(path), "old");
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files | QDir::Hidden), QStringList("a.txt"_s));
    EXPECT_TRUE(ReplaceFile(path, QByteArray("new"), &error));
    EXPECT_EQ(error, QString());
    QString why;
    EXPECT_FALSE(ReplaceFile(folder.Path(), QByteArray("new"), &why));
    EXPECT_FALSE(why.isEmpty());
    EXPECT_FALSE(ReplaceFile("/dev/null"_s, QByteArray("new"), &error));
}
