#include "common/atomicfile.h"
#include "common/fileproblem.h"
#include "common/inputfile.h"
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
    EXPECT_EQ(ReadFile(folder.Path("a.txt"_s)), "new");
}

TEST(AtomicFileTest, PermissionsStayAndWhatLiesBesideIsNotTouched)
{
    TestFolder folder;
    const QString path = folder.Write("a.txt"_s, "old");
    const auto usual = QFile::permissions(path);
    const QString other = folder.Write("other"_s, "other");
    ASSERT_TRUE(QFile::link(other, folder.Path(".a.txt.part"_s)));
    const auto own = QFile::ReadOwner | QFile::ReadUser | QFile::WriteOwner | QFile::WriteUser;
    ASSERT_TRUE(QFile::setPermissions(path, own | QFile::ExeGroup));
    const auto given = QFile::permissions(path);
    EXPECT_TRUE(ReplaceFile(path, QByteArray("new")));
    EXPECT_EQ(QFile::permissions(path), given);
    EXPECT_EQ(ReadFile(other) + ReadFile(path), "othernew");

    const QString made = folder.Path("made.txt"_s);
    EXPECT_TRUE(ReplaceWorkFile(made, [](QIODevice& file) { return file.write("1") == 1; }));
    EXPECT_EQ(QFile::permissions(made), usual);
    folder.Write(".12345678-90ab-cdef-1234-567890abcdef.part"_s, "of a killed writer");
    folder.Write(".b.txt.part"_s, "of a save");
    RemoveUnfinished(folder.Path());
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files | QDir::Hidden).join(QLatin1Char(' ')),
              ".b.txt.part a.txt made.txt other"_s);
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
    EXPECT_EQ(error, NotRegular("/dev/null"_s));
    const QString missing = folder.Path("missing"_s);
    EXPECT_FALSE(ReplaceFile(missing + "/a"_s, QByteArray("new"), &error));
    EXPECT_TRUE(error.contains("No such file"_s)) << error.toStdString();
    EXPECT_EQ(WhyNotWritable(folder.Path()), CannotWrite(folder.Path(), QString()));
    EXPECT_TRUE(WhyNotWritable(missing).contains("No such file"_s));
    QFile notOurs(folder.Path());
    EXPECT_FALSE(OpenInput(notOurs, &error));
    EXPECT_EQ(error, NotRegular(folder.Path()));
}
