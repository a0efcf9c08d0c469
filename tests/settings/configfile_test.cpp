#include "settings/configfile.h"
#include "settings/hotkeys.h"
#include "support/testfolder.h"

#include <gtest/gtest.h>

#include <QSize>

namespace {

SConfigItems Read(const QByteArray& items)
{
    TestFolder folder;
    const QByteArray document = "<LedControlConfig><Config>" + items + "</Config></LedControlConfig>";
    SConfigItems read;
    EXPECT_TRUE(ReadConfigFile(folder.Write("c.xml"_s, document), &read));
    return read;
}

} // namespace

TEST(ConfigFileTest, ValuesOutOfBoundsArePutRight)
{
    const SConfigItems kept = Read("<BeaconNoBorder>1</BeaconNoBorder><AttractionDis>30</AttractionDis>"
                                   "<DeviceInformationLayoutSize>3312</DeviceInformationLayoutSize>");
    EXPECT_TRUE(kept.beaconNoBorder == 1 && kept.attractionDis == 30);
    EXPECT_EQ(kept.deviceInformationLayoutSize, 33.12f);
    const SConfigItems repaired =
        Read("<BeaconNoBorder>0</BeaconNoBorder><AttractionDis>7</AttractionDis>"
             "<DeviceInformationLayoutSize>1000</DeviceInformationLayoutSize>"
             "<CustomerTileSize><Width>-4</Width><Height>5000</Height></CustomerTileSize>"
             "<CurrenGain><CurrenGain_2 Red='nan' Green='0.5'/></CurrenGain>");
    EXPECT_TRUE(repaired.beaconNoBorder == 2 && repaired.attractionDis == 20);
    EXPECT_EQ(repaired.deviceInformationLayoutSize, 30);
    EXPECT_EQ(QSize(repaired.customerTileWidth, repaired.customerTileHeight), QSize(1, 1024));
    EXPECT_TRUE(repaired.currentGains[1].red == 1 && repaired.currentGains[1].green == 0.5f);
}

TEST(ConfigFileTest, BoundsOfAFileAreTheNearestThatItCanSay)
{
    const auto read = [](const char* name, int value) {
        return Read('<' + QByteArray(name) + '>' + QByteArray::number(value) + "</" + name + '>');
    };
    for (const auto& [value, taken] : {std::pair(7, 20), {8, 8}, {30, 30}, {31, 20}})
        EXPECT_EQ(read("AttractionDis", value).attractionDis, taken) << value;
    for (const auto& [value, taken] : {std::pair(2999, 30.), {3001, 30.01}, {6999, 69.99}, {7001, 70.}})
        EXPECT_FLOAT_EQ(read("DeviceInformationLayoutSize", value).deviceInformationLayoutSize, float(taken));
    for (const auto& [value, taken] : {std::pair(0, 2), {1, 1}, {2, 2}, {3, 2}})
        EXPECT_EQ(read("BeaconNoBorder", value).beaconNoBorder, taken) << value;
    for (const auto& [value, taken] : {std::pair(0, 1), {2, 2}, {1023, 1023}, {1025, 1024}}) {
        const QByteArray number = QByteArray::number(value);
        const SConfigItems items = Read("<CustomerTileSize><Width>" + number + "</Width><Height>" + number
                                        + "</Height></CustomerTileSize>");
        EXPECT_EQ(QSize(items.customerTileWidth, items.customerTileHeight), QSize(taken, taken));
    }
}

TEST(ConfigFileTest, RecordsThatDoNotHoldTogetherAreRepaired)
{
    const SConfigItems records = Read("<ProjectRecord1/><ProjectRecord2>b</ProjectRecord2>"
                                      "<ProjectRecord3>b</ProjectRecord3><ProjectRecord5>c</ProjectRecord5>");
    EXPECT_EQ(records.projectRecords[0], "b"_s);
    EXPECT_EQ(records.projectRecords[1], "c"_s);

    const SConfigItems styles = Read("<UiStyleEx><UiCount>2000000000</UiCount><UiCurrent>7</UiCurrent>"
                                     "<UiStyle1 Path='StyleDark' Name='Style A'/><UiStyle2 Path=''/>"
                                     "<UiStyle3 Path='C'/><UiStyle4 Path='D'/></UiStyleEx>");
    ASSERT_EQ(styles.uiStyles.size(), 3);
    EXPECT_EQ(styles.uiStyles[0].name, "Style Dark"_s);
    EXPECT_EQ(styles.uiStyles[1].name, "C"_s);
    const TestFolder folder;
    ASSERT_TRUE(WriteConfigFile(folder.Path("c.xml"_s), styles));
    EXPECT_FALSE(ReadFile(folder.Path("c.xml"_s)).contains("Name="));
    EXPECT_EQ(styles.currentUiStyle, 0);
    EXPECT_EQ(Read("<UiStyleEx/>").uiStyles.size(), 2) << "those from before";
    EXPECT_EQ(Read("<UiStyleEx><UiStyle1 Path='A'/></UiStyleEx>").uiStyles.size(), 1);
    for (const auto& [current, taken] :
         {std::pair(0, 0), std::pair(1, 1), std::pair(2, 1), std::pair(-1, 1)}) {
        const SConfigItems two =
            Read("<UiStyleEx><UiCount>2</UiCount><UiCurrent>" + QByteArray::number(current)
                 + "</UiCurrent><UiStyle1 Path='A'/><UiStyle2 Path='B'/></UiStyleEx>");
        EXPECT_EQ(two.currentUiStyle, taken) << current;
    }

    const SConfigItems hotkeys = Read("<HotkeyQT><Item1 Enable='true' HotKeyValue='ctrl+shift+q'/>"
                                      "<Item2 Enable='no' HotKeyValue='no key'/></HotkeyQT>");
    EXPECT_TRUE(hotkeys.hotkeys[0][0].enable);
    EXPECT_EQ(hotkeys.hotkeys[0][0].hotkey, "Ctrl+Shift+Q"_s);
    EXPECT_FALSE(hotkeys.hotkeys[0][1].enable);
    EXPECT_EQ(hotkeys.hotkeys[0][1].hotkey, SConfigItems().hotkeys[0][1].hotkey);
}

TEST(ConfigFileTest, DefaultHotkeysAreKeysAndNoneIsTwiceInAMode)
{
    for (const auto& mode : GetDefaultHotkeys()) {
        QStringList keys;
        for (const SHotkey& standard : mode) {
            QString key = standard.hotkey;
            EXPECT_TRUE(NormalizeHotkey(&key)) << qPrintable(key);
            EXPECT_EQ(key, standard.hotkey);
            EXPECT_FALSE(keys.contains(key)) << qPrintable(key);
            keys << key;
        }
    }
}
