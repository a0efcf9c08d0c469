#include "products/digestcache.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QThread>

namespace {

/// Counts how often it is asked and gives a digest made from that number.
struct DigestCacheTest : testing::Test
{
    SMD5 Hash(const QString& path)
    {
        ++hashed;
        if (ReadFile(path).isEmpty())
            return SMD5();
        return SMD5::FromString(QString::number(hashed).rightJustified(SMD5::kDigits, QLatin1Char('0')));
    }

    SMD5 Digest(const QString& path)
    {
        FileStamp stamp;
        ReadStamp(path, stamp);
        return cache.Digest(path, stamp);
    }

    QString WriteSettled(const QString& name, const QByteArray& content)
    {
        const QString path = folder.Write(name, content);
        QThread::msleep(150); // longer than the cache takes a file for fresh
        return path;
    }

    TestFolder folder;
    int hashed = 0;
    DigestCache cache{[this](const QString& path) { return Hash(path); }};
};

} // namespace

TEST_F(DigestCacheTest, OnlyChangedFilesAreHashedAgain)
{
    const QString path = WriteSettled("a"_s, "one");
    const SMD5 first = Digest(path);
    EXPECT_EQ(Digest(path), first);
    EXPECT_EQ(hashed, 1);

    WriteSettled("a"_s, "two"); // same size
    EXPECT_NE(Digest(path), first);
    EXPECT_EQ(hashed, 2);

    // Another file under the same name, with the old one's modification time.
    const QDateTime time = QFileInfo(path).lastModified();
    const QString other = folder.Write("b"_s, "six");
    ASSERT_TRUE(SetFileTime(other, time) && QFile::remove(path) && QFile::rename(other, path));
    Digest(path);
    EXPECT_EQ(hashed, 3);
}

TEST_F(DigestCacheTest, FreshOrUnreadableFilesAreNotRemembered)
{
    const QString path = folder.Write("a"_s, "one");
    // A time to come is fresh however slow the test runs.
    ASSERT_TRUE(SetFileTime(path, QDateTime::currentDateTime().addDays(1)));
    Digest(path);
    Digest(path);
    EXPECT_EQ(hashed, 2);

    const QString missing = folder.Path("missing"_s);
    EXPECT_TRUE(Digest(missing).IsNull());
    EXPECT_TRUE(Digest(missing).IsNull());
    EXPECT_EQ(hashed, 4);
}

TEST_F(DigestCacheTest, FilesNotAskedForInARoundAreForgotten)
{
    const QString kept = folder.Write("kept"_s, "one");
    const QString left = WriteSettled("left"_s, "two");
    Digest(kept);
    Digest(left);
    cache.BeginRound();
    Digest(kept);
    cache.EndRound();
    EXPECT_EQ(hashed, 2);
    Digest(kept);
    EXPECT_EQ(hashed, 2);
    Digest(left);
    EXPECT_EQ(hashed, 3);
}
