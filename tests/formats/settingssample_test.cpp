#include "formats/samplexml.h"
#include "settings/configdata.h"
#include "settings/configfile.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

TEST(SettingsSampleTest, FileIsReadByTheValueAndWrittenByTheByte)
{
    const QByteArray sample = FullSample("system-config.xml");
    TestFolder folder;
    CConfigData c;
    ASSERT_TRUE(c.XmlLoad(SamplePath("full/system-config.xml")));
    EXPECT_EQ(Row(c.IsAutoSelectLanguage(), static_cast<int>(c.GetLanguageType()), c.IsShowGrid(),
                  c.IsShowTileSort(), c.IsSoftEdgeSheet(), c.IsSetEdgePixel(), c.GetDisTime(),
                  c.IsEnableAttraction(), c.GetAttractionDis(), c.IsEnableFahrenheit(), c.IsEnableGamutRGB(),
                  c.IsEnableGamutAutoCalculate(), c.IsOpenBackupProject(), c.IsSendAfterModify(),
                  c.IsSupportMutiTileType(), c.IsShowPowerSupply(), c.GetDeviceInformationLayoutSize(),
                  c.GetBeaconNoBorder(), c.GetDetectStrategy(), c.GetCustomerTileSize().width(),
                  c.GetCustomerTileSize().height(), c.IsVisableAutoBrightAdjust()),
              "1|1041|0|1|1|1|11|0|21|1|0|1|0|1|0|1|45.67|2|2|192|96|1|");
    for (int i = 0; i < 4; ++i) {
        const SCurrentGain gain = c.GetCurrentGain(i);
        const double tenth = 0.1 * (i + 1);
        EXPECT_EQ(Row(gain.red, gain.green, gain.blue, gain.tip),
                  Row(tenth + 0.01, tenth + 0.02, tenth + 0.03, "增益 %1"_s.arg(i + 1)));
    }
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(c.GetProjectRecordPath(i), "/home/屏/%1 & a.prj"_s.arg(i + 1));
    const SBrightTableInfo table = c.GetBrightTableInfo();
    EXPECT_EQ(Row(table.gamma, table.sensitivity, table.sensorMin, table.sensorMax, table.yStart, table.yEnd),
              "2.85|51|1.5|99|2.5|98|");
    const QList<SUiStyle> styles = c.GetUiStyles();
    ASSERT_EQ(styles.size(), 3);
    EXPECT_EQ(Row(c.GetCurrentUiStyle(), styles[0].key, styles[1].key, styles[2].key),
              "2|StyleDark|StyleBlue|StyleLight|");
    for (int i = 0; i < 40; ++i) {
        const SHotkey hotkey = c.GetHotkey(1 + i / 20, i % 20);
        EXPECT_EQ(Row(hotkey.enable, hotkey.operation, hotkey.hotkey, hotkey.description),
                  Row(false, "operation %1"_s.arg(i + 1), "Ctrl+Alt+"_s + QChar('A' + i % 20),
                      "动作 %1"_s.arg(i + 1)));
    }
    for (int i = 0; i < kInterfaceCount; ++i)
        EXPECT_TRUE(c.GetReadOnlyState(i)) << i;

    const QString path = folder.Path("c.xml"_s);
    ASSERT_TRUE(c.XmlSave(path));
    EXPECT_EQ(FirstDifference(ReadFile(path), sample), "");
    ASSERT_TRUE(WriteConfigFile(path, SConfigItems()));
    EXPECT_EQ(NamesWithoutOwnValue(sample, ReadFile(path), QRegularExpression("^$a"_s)), "");
}

TEST(SettingsSampleTest, FilesBesideItAreReadByTheValueAndWrittenByTheByte)
{
    TestFolder folder;
    const auto copy = [&folder](const char* name) {
        return folder.Write(QLatin1String(name), FullSample(name));
    };
    const QString ui = copy("SystemConfigUI.ini");
    const QString edition = copy("CustomizeConfig.json");
    const QString addresses = copy("SpecifiedIPs.txt");
    CConfigData c;
    EXPECT_TRUE(c.Save_UI());
    EXPECT_FALSE(c.SaveCustomizeConfig());
    ASSERT_TRUE(c.Load_UI(ui));
    ASSERT_TRUE(c.LoadCustomizeConfig(edition));
    ASSERT_TRUE(c.LoadSpecifiedIP(addresses));
    EXPECT_EQ(Row(c.IsEnableRotate(), c.GetUIValue("Window/Title"_s).toString(),
                  c.GetUIValue("Window/State"_s).toByteArray() == QByteArray("\0\xff", 2)),
              "1|屏 “A”|1|");
    EXPECT_EQ(Row(c.GetCustomizeValue("Logo"_s).toInt(), c.GetCustomizeValue("Missing"_s, 3).toInt(),
                  c.GetCustomizeValue("Pages"_s)["深"_s][1].toString()),
              "2|3|b|");
    EXPECT_EQ(c.GetSpecifiedIPList().join(QLatin1Char(' ')).toStdString(), "192.0.2.9 10.1.2.3 203.0.113.1");

    c.SetEnableRotate(false);
    c.SetCustomizeValue("Logo"_s, 5);
    ASSERT_TRUE(c.Save_UI() && c.SaveCustomizeConfig() && c.SaveSpecifiedIP());
    EXPECT_EQ(FirstDifference(ReadFile(ui), FullSample("SystemConfigUI.ini").replace("Rotate=1", "Rotate=0")),
              "");
    EXPECT_EQ(FirstDifference(ReadFile(edition),
                              FullSample("CustomizeConfig.json").replace("\"Logo\": 2", "\"Logo\": 5")),
              "");
    EXPECT_EQ(FirstDifference(ReadFile(addresses), FullSample("SpecifiedIPs.txt")), "");
}
