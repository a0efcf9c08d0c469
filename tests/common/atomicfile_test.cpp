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
    QString error;
    EXPECT_FALSE(ReplaceFile(
        folder.Path("a.txt"_s), [](QIODevice&) { return false; }, &error));
    EXPECT_FALSE(error.isEmpty());
    QString why;
    EXPECT_FALSE(ReplaceFile(folder.Path(), QByteArray("new"), &why));
    EXPECT_FALSE(why.isEmpty());
    EXPECT_FALSE(ReplaceFile("/dev/null"_s, QByteArray("new"), &error));
}
