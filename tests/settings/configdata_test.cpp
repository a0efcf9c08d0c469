#include "settings/configdata.h"
#include "settings/settingslookup.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QLocale>
#include <QSettings>

#include <functional>
#include <limits>

namespace {

const QByteArray kOneItem = "<LedControlConfig><Config><Language>1041</Language><ShowGrid>0</ShowGrid>"
                            "</Config></LedControlConfig>";

struct ConfigDataTest : testing::Test
{
    TestFolder folder;
    CConfigData config;
};

} // namespace

TEST_F(ConfigDataTest, FileThatIsNoSettingsDocumentIsKeptBesideTheDefaults)
{
    for (const QByteArray& content : {QByteArray(), QByteArray("<Other/>"), kOneItem.left(60)}) {
        const QString path = folder.Write("SystemConfig.xml"_s, content);
        folder.Write("SystemConfig.xml.bak"_s, "an older one");
        config.SetShowGrid(false);
        EXPECT_FALSE(config.Load(path)) << content.left(40).constData();
        EXPECT_TRUE(config.IsShowGrid());
        EXPECT_EQ(ReadFile(path + ".bak"_s), content.isEmpty() ? "an older one" : content);
        EXPECT_TRUE(CConfigData().Load(path));
    }
}

TEST_F(ConfigDataTest, MissingItemsKeepTheirValuesOnReading)
{
    config.SetDetectStrategy(2);
    config.SetAttractionDis(50); // no file may say so
    EXPECT_TRUE(config.XmlLoad(folder.Write("a.xml"_s, kOneItem)));
    EXPECT_EQ(config.GetAttractionDis(), 50);
    EXPECT_FALSE(config.IsShowGrid());
    EXPECT_EQ(config.GetDetectStrategy(), 2);
}

TEST_F(ConfigDataTest, DefaultsWriteTheWatermarkBesideOtherKeys)
{
    const QString path = QDir::homePath() + "/Documents/Orvan/LedConfig/ProductList.ini"_s;
    QSettings(path, QSettings::IniFormat).setValue("ProductListInfo/Product1"_s, 1);
    EXPECT_TRUE(CConfigData().SetToDefault());
    const QSettings file(path, QSettings::IniFormat);
    EXPECT_EQ(file.value("Setup/PrintWatermark"_s).toString(), "Vantrel"_s);
    EXPECT_EQ(file.value("ProductListInfo/Product1"_s).toInt(), 1);
}

TEST_F(ConfigDataTest, FirstLanguageAfterEachLoadKeepsTheOneLoaded)
{
    const QString path = folder.Write("a.xml"_s, kOneItem);
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(config.Load(path));
        config.SetLanguage(LanguageChinese);
        EXPECT_EQ(config.GetLanguageType(), LanguageJapanese);
        EXPECT_TRUE(config.GetLanguageFilePath().endsWith("/Language/orvandata_ja.qm"_s));
        config.SetLanguage(LanguageChinese);
        EXPECT_EQ(config.GetLanguageType(), LanguageChinese);
        EXPECT_TRUE(config.GetLanguageFilePath().endsWith("/Language/orvandata_zh_CN.qm"_s));
    }
}

TEST_F(ConfigDataTest, LanguageFollowsTheLocaleWhenAsked)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Portuguese));
    EXPECT_EQ(CConfigData().GetLanguageType(), LanguagePortuguese);
    QByteArray content = kOneItem;
    content.replace("<Language>", "<AutoSelectLanguage>1</AutoSelectLanguage><Language>");
    ASSERT_TRUE(config.Load(folder.Write("a.xml"_s, content)));
    EXPECT_EQ(config.GetLanguageType(), LanguagePortuguese);
    QLocale::setDefault(QLocale(QLocale::Finnish));
    EXPECT_EQ(GetSystemLanguage(), LanguageEnglish);
    EXPECT_EQ(GetTranslationFileName(ELanguageType(0)), "orvandata_en.qm"_s);
    QLocale::setDefault(before);
}

TEST_F(ConfigDataTest, SavingWhileMonitoringWritesTheStatesFromBefore)
{
    struct Monitoring : SettingsLookup
    {
        bool IsMonitoring() const override { return true; }
        bool StoredReadOnly(int interface) const override { return interface == InterfaceControl; }
    } monitoring;
    const QString path = folder.Path("a.xml"_s);
    config.Load(path);
    for (int i = 0; i < kInterfaceCount; ++i)
        config.SetReadOnlyState(i, true);
    SetSettingsLookup(&monitoring);
    EXPECT_TRUE(config.Save());
    SetSettingsLookup(nullptr);
    EXPECT_TRUE(config.GetReadOnlyState(InterfaceDesign));

    ASSERT_TRUE(config.Load(path));
    for (int i = 0; i < kInterfaceCount; ++i)
        EXPECT_EQ(config.GetReadOnlyState(i), i == InterfaceControl) << i;
    EXPECT_FALSE(config.GetReadOnlyState(kInterfaceCount));
}

TEST_F(ConfigDataTest, RecentProjectsAreFiveDifferentOnesNewestFirst)
{
    for (const char* path : {"a", "b", "c", "d", "e", "f", "c", "", "f"})
        config.AddProjectRecord(QLatin1String(path));
    QString all;
    for (int i = -1; i <= config.GetProjectRecordCount(); ++i)
        all += config.GetProjectRecordPath(i);
    EXPECT_EQ(all, "fcedb"_s);
}

TEST_F(ConfigDataTest, SettersKeepValuesThatAFileCanHold)
{
    const float inf = std::numeric_limits<float>::infinity();
    for (const auto& [set, got] : {std::pair(45.678f, 45.68f), std::pair(inf, 45.68f), std::pair(29.9f, 30.f),
                                   std::pair(30.25f, 30.25f), std::pair(70.1f, 70.f)}) {
        config.SetDeviceInformationLayoutSize(set);
        EXPECT_FLOAT_EQ(config.GetDeviceInformationLayoutSize(), got);
    }
    config.SetAttractionDis(7.5);
    config.SetAttractionDis(-double(inf));
    EXPECT_EQ(config.GetAttractionDis(), 7.5);
    for (const auto& [set, got] : {std::pair(0, 1), std::pair(2, 2), std::pair(1025, 1024)}) {
        config.SetCustomerTileSize(QSize(set, 7));
        EXPECT_EQ(config.GetCustomerTileSize(), QSize(got, 7));
        config.SetCustomerTileSize(QSize(7, set));
        EXPECT_EQ(config.GetCustomerTileSize(), QSize(7, got));
    }
    config.SetUiStyles({{"A"_s, QString()}, {"B"_s, QString()}, {"C"_s, QString()}});
    EXPECT_EQ(config.GetCurrentUiStyle(), 1);
    EXPECT_EQ(config.GetUiStyles().size(), 3);
    for (const int style : {0, 3, -1})
        config.SetCurrentUiStyle(style);
    EXPECT_EQ(config.GetCurrentUiStyle(), 0);
}

TEST_F(ConfigDataTest, WhatHasNoSuchNumberIsEmptyAndIsNotSet)
{
    const SHotkey free = {true, "a"_s, "F7"_s, "b"_s};
    for (const auto& [mode, index] : {std::pair(0, 0), std::pair(3, 0), std::pair(1, -1), std::pair(2, 20)}) {
        EXPECT_FALSE(config.SetHotkey(mode, index, free)) << mode << ' ' << index;
        EXPECT_EQ(config.GetHotkey(mode, index).operation, QString()) << mode << ' ' << index;
    }
    EXPECT_TRUE(config.SetHotkey(1, 0, free) && config.SetHotkey(2, 19, free));
    EXPECT_TRUE(config.FindHotkey(2, "F7"_s) == 19 && config.FindHotkey(3, "F7"_s) == -1);
}

TEST_F(ConfigDataTest, GainsAreOneAtFirstAndNeverOtherThanNumbers)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (int i = 0; i < kCurrentGains; ++i) {
        for (const SCurrentGain& gain : {SCurrentGain{nan, 2, 2, {}}, {2, nan, 2, {}}, {2, 2, nan, {}}})
            config.SetCurrentGain(i, gain);
        const SCurrentGain held = config.GetCurrentGain(i);
        EXPECT_TRUE(held.red == 1 && held.green == 1 && held.blue == 1) << i;
        EXPECT_EQ(held.tip, QString::number(i + 1));
    }
    config.SetCurrentGain(3, {0.5F, 2, 3, {}});
    EXPECT_EQ(config.GetCurrentGain(3).blue, 3);
}

TEST_F(ConfigDataTest, AddressesInNoNetworkOfOursAreToldAsSoonAsTheyAreListed)
{
    const QString far = "203.0.113.7"_s; // kept free for examples
    EXPECT_TRUE(config.AddSpecifiedIP(far));
    EXPECT_EQ(config.GetErrorIPList(), QStringList(far));
    EXPECT_TRUE(config.DeleteSpecifiedIP(far) && config.GetErrorIPList().isEmpty());
    EXPECT_TRUE(config.LoadSpecifiedIP(folder.Write("a.txt"_s, far.toLatin1())));
    EXPECT_EQ(config.GetErrorIPList(), QStringList(far));
    config.ClearSpecifiedIP();
    EXPECT_TRUE(config.GetErrorIPList().isEmpty() && config.GetSpecifiedIPList().isEmpty());
}

TEST_F(ConfigDataTest, FileThatIsMissingOrBrokenLeavesNoValueOfTheOneBefore)
{
    const struct
    {
        QByteArray content;
        std::function<bool(const QString&)> load;
    } files[] = {{"[Other]\na=1\n", [this](const QString& path) { return config.Load_UI(path); }},
                 {"{\"a\": 1}", [this](const QString& path) { return config.LoadCustomizeConfig(path); }}};
    const QString path = folder.Path("a"_s);
    for (const auto& file : files) {
        for (const char* content : {"", "broken", "missing"}) {
            config.SetUIValue("key"_s, 1);
            config.SetCustomizeValue("key"_s, 1);
            EXPECT_EQ(config.GetUIValue("key"_s, 0).toInt() + config.GetCustomizeValue("key"_s, 0).toInt(),
                      2);
            const bool whole = *content == '\0';
            WriteFile(path, whole ? file.content : QByteArray(content));
            EXPECT_TRUE(*content != 'm' || QFile::remove(path));
            EXPECT_EQ(file.load(path), whole);
            EXPECT_EQ(config.GetUIValue("key"_s, 0).toInt() + config.GetCustomizeValue("key"_s, 0).toInt(), 1)
                << content;
            EXPECT_EQ(QFile::exists(path), whole);
            EXPECT_EQ(ReadFile(path + ".bak"_s), whole ? QByteArray() : QByteArray("broken"));
        }
        QFile::remove(path + ".bak"_s);
    }
    QJsonArray zeros;
    for (int i = 0; i < 2000000; ++i)
        zeros.append(0);
    config.SetCustomizeValue("zeros"_s, zeros);
    EXPECT_TRUE(config.SaveCustomizeConfig()) << "without blanks when it is long";
    EXPECT_TRUE(config.LoadCustomizeConfig(path));
    EXPECT_EQ(config.GetCustomizeValue("zeros"_s).toArray().size(), zeros.size());
}

TEST_F(ConfigDataTest, TranslationIsThatOfTheChosenLanguage)
{
    EXPECT_EQ(config.GetTranslationPath(), QString());
    const QString french =
        WriteFile(QCoreApplication::applicationDirPath() + "/Language/orvandata_fr.qm"_s, QByteArray());
    for (const auto& [language, path] : {std::pair(LanguageFrench, french), {LanguageChinese, QString()}}) {
        for (int i = 0; i < 2; ++i) // the first call takes what was loaded
            config.SetLanguage(language);
        EXPECT_EQ(config.GetTranslationPath(), path);
    }
    QFile::remove(french);
}

TEST_F(ConfigDataTest, HotkeyIsRefusedWhenItsKeyIsUnknownOrTaken)
{
    const SHotkey undo = config.GetHotkey(1, 4);
    EXPECT_EQ(config.FindHotkey(1, "ctrl+z"_s), 4);
    EXPECT_FALSE(config.SetHotkey(1, 5, undo));
    EXPECT_TRUE(config.SetHotkey(2, 5, undo));
    SHotkey changed = undo;
    changed.hotkey = "Ctrl+Nothing"_s;
    EXPECT_FALSE(config.SetHotkey(1, 4, changed));
    changed.enable = false;
    changed.hotkey = "F5"_s;
    EXPECT_TRUE(config.SetHotkey(1, 4, changed));
    EXPECT_EQ(config.FindHotkey(1, "F5"_s), -1);
    config.SetHotkeysToDefault();
    EXPECT_EQ(config.GetHotkey(1, 4).hotkey, undo.hotkey);
}

TEST_F(ConfigDataTest, BrokenFileIsNotOverwrittenBeforeItIsKeptBeside)
{
    const struct
    {
        const char* name;
        QByteArray broken;
        std::function<bool(CConfigData&, const QString&)> load;
        std::function<bool(CConfigData&)> save;
    } files[] = {
        {"a.xml", "no xml", &CConfigData::Load, &CConfigData::Save},
        {"a.ini", "[Function]\nEnableRotate\n\x01\x02\n", &CConfigData::Load_UI, &CConfigData::Save_UI},
        {"a.json", "{\"Logo\": ", &CConfigData::LoadCustomizeConfig, &CConfigData::SaveCustomizeConfig},
        {"a.txt", QByteArray((1 << 20) + 1, ' '), &CConfigData::LoadSpecifiedIP,
         &CConfigData::SaveSpecifiedIP},
    };
    for (const auto& file : files) {
        const QString path = folder.Write(QLatin1String(file.name), file.broken);
        const QString kept = path + ".bak"_s;
        QDir().mkpath(kept);
        config.SetEnableRotate(true);
        EXPECT_FALSE(file.load(config, path));
        EXPECT_EQ(config.IsEnableRotate(), !path.endsWith("ini"_s));
        config.SetEnableRotate(true);
        EXPECT_FALSE(file.save(config)) << file.name;
        EXPECT_FALSE(path.endsWith("xml"_s) && config.XmlSave(path));
        EXPECT_TRUE(ReadFile(path) == file.broken) << file.name;
        QDir().rmdir(kept);
        EXPECT_TRUE(file.save(config));
        EXPECT_TRUE(file.save(config)) << "what was written is not set aside";
        EXPECT_TRUE(ReadFile(kept) == file.broken) << file.name;
        EXPECT_TRUE(file.load(config, path));
    }
}
