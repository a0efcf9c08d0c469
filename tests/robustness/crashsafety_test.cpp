// What a save that is killed or fails may leave: the old file or the new one, and nothing beside it for ever.
#include "products/productdirectoryset.h"
#include "robustness/documents.h"
#include "robustness/failingcalls.h"
#include "settings/constantdata.h"
#include "support/library.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QProcess>
#include <QThread>
#include <QUuid>

#include <random>

namespace {

constexpr int kUsualKills = 40;
constexpr int kAllOthers = 1 << 30; ///< calls after the first that fails
constexpr int kLongestLife = 120;   ///< milliseconds; all documents were saved several times by then

std::string Names(const QString& folder)
{
    QStringList files;
    QDirIterator all(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (all.hasNext())
        files.append(QDir(folder).relativeFilePath(all.next()));
    files.sort();
    return files.join(QLatin1Char(' ')).toStdString();
}

struct CrashSafetyTest : testing::Test
{
    CrashSafetyTest() : folder(scratch.Path() + QLatin1Char('/')) { MakeProducts(); }

    void SaveAll(int version)
    {
        for (int document = 0; document < kDocuments; ++document)
            EXPECT_TRUE(SaveVersion(Document(document), folder, version)) << document;
    }

    /// After one more save of each document.
    void ExpectNothingLeft()
    {
        SaveAll(1);
        EXPECT_EQ(Names(folder),
                  "a.prj config.xml custom.json ips.txt layout.xml processor.xml sender.xml windows.ini");
        EXPECT_EQ(Names(CConstantData::GetProjectParamFileTemp()),
                  "cabinet.rcvbp project/0.rcvbp project/new.prj");
        EXPECT_EQ(Names(CProductDirectorySet::GetRootDir()), "ProductList.ini product1.rcvbp product2.rcvbp");
        EXPECT_FALSE(QFile::exists(CConstantData::GetProjectParamFileTemp().chopped(1) + ".lock"_s));
        EXPECT_EQ(QDir(QDir::homePath() + "/Documents"_s).entryList(QDir::Files | QDir::Hidden),
                  QStringList());
    }

    Library library;
    TestFolder scratch;
    QString folder;
};

TEST_F(CrashSafetyTest, KilledSaveLeavesTheOldFileOrTheNewOne)
{
    SaveAll(1);
    std::mt19937 random(8);
    std::uniform_int_distribution<int> life(0, kLongestLife);
    const int kills = qMax(kUsualKills, qEnvironmentVariableIntValue("ORVAN_KILLS"));
    for (int kill = 0; kill < kills; ++kill) {
        QProcess saver;
        saver.start(QStringLiteral(ORVAN_SAVER), {"loop"_s, folder});
        ASSERT_TRUE(saver.waitForReadyRead());
        QThread::msleep(static_cast<unsigned long>(life(random)));
        saver.kill();
        ASSERT_TRUE(saver.waitForFinished());
        for (int document = 0; document < kDocuments; ++document)
            ASSERT_NE(VersionOf(Document(document), folder), 0) << document << ", kill " << kill;
    }
    // Between two calls of the system; few kills hit it.
    QFile unfinished(CConstantData::GetProjectParamFileTemp() + "."_s
                     + QUuid::createUuid().toString(QUuid::WithoutBraces) + ".part"_s);
    ASSERT_TRUE(unfinished.open(QIODevice::WriteOnly));
    ExpectNothingLeft();
}

TEST_F(CrashSafetyTest, LockFileWithoutANameIsTakenOverBeforeTheWaitForItEnds)
{
    SaveAll(1);
    const QString lock = CConstantData::GetProjectParamFileTemp().chopped(1) + ".lock"_s;
    ASSERT_TRUE(SetFileTime(lock, QDateTime::currentDateTime().addSecs(-25)));
    EXPECT_EQ(VersionOf(Document::Project, folder), 1);
}

TEST_F(CrashSafetyTest, FailingCallLeavesTheOldFileAndIsToldOrTheNewOne)
{
    for (int document = 0; document < kDocuments; ++document) {
        SaveAll(1);
        const QString packed = CConstantData::GetProjectParamFileTemp() + "project/0.rcvbp"_s;
        const qint64 whole = QFileInfo(packed).size();
        for (const int more : {0, kAllOthers}) {
            int calls = 1;
            for (int failing = 1; failing <= calls + 1; ++failing) {
                ASSERT_TRUE(SaveVersion(Document(document), folder, 1));
                FailCalls(failing, failing + more);
                const bool saved = SaveVersion(Document(document), folder, 2);
                calls = CountCalls();
                FailCalls(0, -1);
                EXPECT_TRUE(!QFile::exists(packed) || QFileInfo(packed).size() == whole) << failing;
                const int version = VersionOf(Document(document), folder);
                EXPECT_EQ(version, saved ? 2 : qMax(version, 1)) << document << ", call " << failing;
            }
            EXPECT_EQ(VersionOf(Document(document), folder), 2) << document << ", no call failed";
            EXPECT_GE(calls, 4) << document << ": open, write, flush, rename";
        }
    }
    ExpectNothingLeft();
}

TEST_F(CrashSafetyTest, CopyThatFailsWhileHashingDoesNotChangeTheDigest)
{
    const QString file = scratch.Write("a"_s, QByteArray(300000, 'a'));
    const SMD5 digest = CConstantData::GetMD5FromFile(file);
    EXPECT_FALSE(digest.IsNull());
    for (int failing = 1, calls = 1; failing <= calls; ++failing) {
        FailCalls(failing, failing);
        EXPECT_EQ(CConstantData::GetMD5FromFile(file), digest) << failing;
        calls = CountCalls();
        FailCalls(0, -1);
    }
}

TEST_F(CrashSafetyTest, TwoProcessesWithOneWorkFolderDoNotMixTheirFiles)
{
    QProcess savers[2];
    for (int i = 0; i < 2; ++i) {
        const QString own = scratch.Path(QString::number(i)) + QLatin1Char('/');
        QDir().mkpath(own);
        savers[i].setProcessChannelMode(QProcess::ForwardedErrorChannel);
        savers[i].start(QStringLiteral(ORVAN_SAVER), {"project"_s, own, QString::number(i + 1), "25"_s});
    }
    for (QProcess& saver : savers) {
        ASSERT_TRUE(saver.waitForFinished(120000));
        EXPECT_EQ(saver.exitCode(), 0);
    }
}

} // namespace
