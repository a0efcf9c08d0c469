#include "settings/archive.h"
#include "settings/constantdata.h"
#include "settings/settingslookup.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

TEST(ConstantDataTest, FileNamesThatDoNotExistYetBecomeFolders)
{
    struct English : SettingsLookup
    {
        ELanguageType Language() const override { return LanguageEnglish; }
    } english;
    QStringList folders = {
        CConstantData::GetSysConfigDir(),         CConstantData::GetGamutDir(),
        CConstantData::GetProjectParamFileTemp(), CConstantData::GetMonitoringRecordPath(),
        CConstantData::GetBKImagePath(),          CConstantData::GetThirdPartyInfoTextPath()};
    SetSettingsLookup(&english);
    folders += CConstantData::GetLogPath();
    SetSettingsLookup(nullptr);
    EXPECT_TRUE(QFileInfo(folders.last()).isDir());
    const QString orvan = QDir::homePath() + "/Documents/Orvan/"_s;
    EXPECT_EQ(folders.join(QLatin1Char(' ')).remove(orvan),
              "SysConfig/ Gamut/ ProjectTemp/ MonitoringRecord/ BackgroundImage SysConfig/thirdparty.txt "
              "SysConfig/ReleaseNotesEN.txt"_s);
    EXPECT_EQ(CConstantData::GetLatestProjectDir(), orvan + "SysConfig/LatestProject.prj"_s);
    EXPECT_FALSE(QFileInfo::exists(CConstantData::GetLatestProjectDir()));
    const QString images = CConstantData::GetBKImagePath();
    EXPECT_TRUE(QFileInfo(images).isDir());
    EXPECT_EQ(CConstantData::GetSenderBKImgName(0, true), images + "/Sender_1.png"_s);
    EXPECT_EQ(CConstantData::GetSenderBKImgName(-1, false), "/Layout.png"_s);
}

TEST(ConstantDataTest, ColorsAndBrightnessKeepTheirOddRules)
{
    EXPECT_EQ(CConstantData::GetColorByPort(-20), QColor(204, 94, 16)) << "repeated also below 0";
    EXPECT_EQ(CConstantData::GetColorByPort(-1), QColor(65, 100, 150));
    const QColor half(1, 2, 3, 127); // only below half opacity a text reads back
    EXPECT_EQ(CConstantData::GetColorFromQString(CConstantData::GetColortoQString(half)), half);
    EXPECT_EQ(CConstantData::GetColortoQString(Qt::black), "4278190080"_s);
    EXPECT_EQ(CConstantData::GetColorFromQString("4278190080"_s), QColor(0, 0, 0, 0));
    EXPECT_EQ(CConstantData::GetBightnessFromPercent(50, true), 128) << "rounded half away from zero";
    EXPECT_EQ(CConstantData::GetBightnessFromPercent(-50, true), -128);
    EXPECT_EQ(CConstantData::GetBightnessFromPercent(50, false), 193); // 0.5 ^ 0.4 is 0.7579
    EXPECT_EQ(CConstantData::GetBightnessFromPercent(100, true), 255);
    EXPECT_EQ(CConstantData::GetBightnessFromPercent(-1, false), 0);
    EXPECT_EQ(CConstantData::GetColorByPort(39), QColor(139, 166, 164));
}

TEST(ConstantDataTest, FilesAreHashedWithAndWithoutTheScratchName)
{
    TestFolder folder;
    const QString empty = folder.Write("空.rcvbp"_s, QByteArray());
    const QString abc = folder.Write("abc.rcvbp"_s, "abc");
    const QString scratch = QDir::homePath() + "/Documents/tmpfile"_s;
    EXPECT_EQ(CConstantData::GetMD5FromFile(empty).ToString(), "d41d8cd98f00b204e9800998ecf8427e"_s);
    EXPECT_FALSE(QFileInfo::exists(scratch));

    for (const QByteArray& others : {QByteArray("somebody else's"), QByteArray()}) {
        WriteFile(scratch, others);
        EXPECT_EQ(CConstantData::GetMD5FromFile(abc).ToString(), "900150983cd24fb0d6963f7d28e17f72"_s);
        EXPECT_TRUE(CConstantData::GetMD5FromFile(folder.Path("missing"_s)).IsNull());
        EXPECT_TRUE(QFile::exists(scratch));
        EXPECT_EQ(ReadFile(scratch), others);
    }
    QFile::remove(scratch);
}

TEST(ConstantDataTest, TemporaryProjectNeverShowsAnEarlierOne)
{
    TestFolder folder;
    folder.Write("SaveProject/card.prj"_s, "first");
    const QString archive = folder.Path("a.prj"_s);
    CConstantData::ZipFile(folder.Path("SaveProject"_s), archive);
    CConstantData::UnZipFile(archive, folder.Path("out"_s));
    EXPECT_EQ(ReadFile(folder.Path("out/SaveProject/card.prj"_s)), "first");
    const QString document = CConstantData::GetTmpProjectDataPath(archive);
    EXPECT_EQ(ReadFile(document), "first");
    EXPECT_EQ(CConstantData::GetTmpProjectDataPath(folder.Path("missing"_s)), document);
    EXPECT_FALSE(QFileInfo::exists(document));
}

TEST(ConstantDataTest, ClearingLeavesALinkInTheTemporaryFoldersPlace)
{
    TestFolder folder;
    const QString kept = folder.Write("kept"_s, "1");
    const QString temporary = CConstantData::GetTmpFilePath();
    CConstantData::ClearTmpFilePath();
    EXPECT_FALSE(QFileInfo::exists(temporary));
    ASSERT_TRUE(QFile::link(folder.Path(), temporary));
    CConstantData::ClearTmpFilePath();
    EXPECT_TRUE(QFileInfo::exists(kept));
    QFile::remove(temporary);
}
