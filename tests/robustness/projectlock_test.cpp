#include "project/projectlock.h"

#include "common/fileproblem.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>

TEST(ProjectLockTest, LockOfAnotherProgramIsRespectedUntilThatDies)
{
    TestFolder folder;
    const QString project = folder.Write("a.prj"_s, "PK");
    QProcess other;
    other.start(QStringLiteral(ORVAN_SAVER), {"lock"_s, project});
    ASSERT_TRUE(other.waitForReadyRead());

    const QString link = folder.Path("link.prj"_s);
    ASSERT_TRUE(QFile::link(project, link));
    CProjectLock lock(link);
    QString holder;
    EXPECT_FALSE(lock.Lock(&holder));
    EXPECT_TRUE(holder.contains(QString::number(other.processId()))) << holder.toStdString();

    other.kill();
    ASSERT_TRUE(other.waitForFinished());
    EXPECT_TRUE(lock.Lock(&holder));
    EXPECT_FALSE(CProjectLock(project).Lock());
    lock.Unlock();
    EXPECT_TRUE(CProjectLock(project).Lock());
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files | QDir::System).size(), 2);
}

TEST(ProjectLockTest, LockFileWithoutAHolderIsTakenOverOnceItIsOld)
{
    TestFolder folder;
    const QString project = folder.Path("a.prj"_s);
    const QString abandoned = folder.Write("a.prj.lock"_s, QByteArray());
    CProjectLock lock(project);
    QString holder;
    EXPECT_FALSE(lock.Lock(&holder) || lock.IsLocked());
    EXPECT_EQ(holder, "无法在项目文件旁创建锁文件。"_s);
    ASSERT_TRUE(SetFileTime(abandoned, QDateTime::currentDateTime().addSecs(-60)));
    EXPECT_TRUE(lock.Lock() && lock.IsLocked());
    EXPECT_FALSE(CProjectLock(folder.Path("missing/a.prj"_s)).Lock(&holder));
    EXPECT_EQ(holder, WhyNotWritable(folder.Path("missing"_s)));
}
