#include "monitor/monitorinterfacedata.h"
#include "support/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iterator>

TEST(MonitorInterfaceDataTest, VideoDefaultsKeepSenderChecksAndDropReceiverChecks)
{
    CMonitorInterfaceData data;
    SSenderSetting sender;
    sender.freeze = false;
    sender.videoInputs = {{1, 2, 3, true}};
    data.SetSenderSetting(sender);
    data.SetToDefaultForVideo();

    EXPECT_EQ(data.GetSenderSetting(), SSenderSetting());
    EXPECT_FALSE(data.GetLineSetting().selfBackup);
    SRecevierSetting receiver;
    receiver.temperatureEnable = 0;
    receiver.humidityEnable = 0;
    std::fill(std::begin(receiver.power), std::end(receiver.power), false);
    EXPECT_EQ(data.GetReceiverSetting(), receiver);

    data.SetToDefault();
    EXPECT_FALSE(data != CMonitorInterfaceData());
}

TEST(MonitorInterfaceDataTest, OneDifferentMemberMakesUnequal)
{
    struct Settings
    {
        SSenderSetting sender;
        SLineSetting line;
        SRecevierSetting receiver;
        SEmailSetting mail;
        int interval = 10;
    };
    const auto all = [](const Settings& settings) {
        CMonitorInterfaceData data;
        data.SetSenderSetting(settings.sender);
        data.SetLineSetting(settings.line);
        data.SetReceiverSetting(settings.receiver);
        data.SetMailSetting(settings.mail);
        data.SetIntervalTime(settings.interval);
        return data;
    };
    const auto make = [] {
        Settings settings;
        settings.sender.videoInputs = {{1, 2, 3, true}};
        settings.mail.receivers = {{"ann@example.test"_s, "Ann"_s}};
        return settings;
    };
    const Settings base = make();
    const std::function<void(Settings&)> changes[] = {
        [](Settings& s) { s.sender.videoUnmatch = false; },
        [](Settings& s) { s.sender.freeze = false; },
        [](Settings& s) { s.sender.blackout = false; },
        [](Settings& s) { s.sender.brightnessZero = false; },
        [](Settings& s) { s.sender.videoInputs[0].slot = 9; },
        [](Settings& s) { s.sender.videoInputs[0].sourceType = 9; },
        [](Settings& s) { s.sender.videoInputs[0].sourceIndex = 9; },
        [](Settings& s) { s.sender.videoInputs[0].enable = false; },
        [](Settings& s) { s.line.cableError = true; },
        [](Settings& s) { s.line.selfBackup = false; },
        [](Settings& s) { s.receiver.temperatureEnable = 0; },
        [](Settings& s) { s.receiver.cableDetection = 1; },
        [](Settings& s) { s.receiver.power[0] = false; },
        [](Settings& s) { s.receiver.power[4] = false; },
        [](Settings& s) { s.receiver.voltage[0].enable = 1; },
        [](Settings& s) { s.receiver.voltage[3].maximum = 12.5; },
        [](Settings& s) { s.mail.notifyRecovery = false; },
        [](Settings& s) { s.mail.receivers[0].address.clear(); },
        [](Settings& s) { s.mail.receivers[0].name.clear(); },
        [](Settings& s) { s.interval = 11; },
    };
    EXPECT_FALSE(all(base) != all(make()));
    for (size_t i = 0; i < std::size(changes); ++i) {
        Settings other = base;
        changes[i](other);
        EXPECT_TRUE(all(base) != all(other)) << i;
    }
}

TEST(MonitorInterfaceDataTest, PollingNeverGoesBelowOneSecond)
{
    CMonitorInterfaceData data;
    for (const int seconds : {1, 0, 2, -5}) {
        data.SetIntervalTime(seconds);
        EXPECT_EQ(data.GetIntervalTime(), seconds > 0 ? seconds : 10);
    }
}
