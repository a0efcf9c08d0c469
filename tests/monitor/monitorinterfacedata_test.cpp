#include "monitor/monitorinterfacedata.h"
#include "support/text.h"

#include <gtest/gtest.h>

#include <algorithm>

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
    CMonitorInterfaceData base;
    SEmailSetting mail;
    mail.receivers = {{"ann@example.test"_s, "Ann"_s}};
    base.SetMailSetting(mail);
    CMonitorInterfaceData other = base;
    EXPECT_FALSE(base != other);
    mail.receivers[0].name.clear();
    other.SetMailSetting(mail);
    EXPECT_TRUE(base != other);

    other = base;
    SRecevierSetting receiver;
    receiver.voltage[3].maximum = 12.5;
    other.SetReceiverSetting(receiver);
    EXPECT_TRUE(base != other);
}

TEST(MonitorInterfaceDataTest, PollingNeverGoesBelowOneSecond)
{
    CMonitorInterfaceData data;
    for (const int seconds : {1, 0, 2, -5}) {
        data.SetIntervalTime(seconds);
        EXPECT_EQ(data.GetIntervalTime(), seconds > 0 ? seconds : 10);
    }
}
