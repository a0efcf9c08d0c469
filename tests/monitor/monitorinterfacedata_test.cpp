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
    const SVideoInput input = {1, 2, 3, true};
    for (const SVideoInput& other :
         {SVideoInput{9, 2, 3, true}, {1, 9, 3, true}, {1, 2, 9, true}, {1, 2, 3, false}})
        EXPECT_FALSE(input == other);
    for (const SSenderSetting& other : {SSenderSetting{false, true, true, true, {}},
                                        {true, false, true, true, {}},
                                        {true, true, false, true, {}},
                                        {true, true, true, false, {}},
                                        {true, true, true, true, {input}}})
        EXPECT_FALSE(SSenderSetting() == other);
    EXPECT_FALSE((SLineSetting{true, true}) == SLineSetting()
                 || (SLineSetting{false, false}) == SLineSetting());
    const SMailReceiver ann = {"ann@example.test"_s, "Ann"_s};
    EXPECT_TRUE((ann == SMailReceiver{"ann@example.test"_s, "Ann"_s}));
    EXPECT_FALSE((ann == SMailReceiver{QString(), "Ann"_s} || ann == SMailReceiver{ann.address, QString()}));

    const CMonitorInterfaceData base;
    CMonitorInterfaceData others[5];
    others[0].SetSenderSetting({true, true, true, true, {input}});
    others[1].SetLineSetting({true, true});
    SRecevierSetting receiver;
    receiver.voltage[3].maximum = 12.5;
    others[2].SetReceiverSetting(receiver);
    SEmailSetting mail;
    mail.receivers = {ann};
    others[3].SetMailSetting(mail);
    others[4].SetIntervalTime(11);
    for (const CMonitorInterfaceData& other : others)
        EXPECT_TRUE(base != other && !(other != CMonitorInterfaceData(other)));
}

TEST(MonitorInterfaceDataTest, PollingNeverGoesBelowOneSecond)
{
    CMonitorInterfaceData data;
    for (const int seconds : {1, 0, 2, -5}) {
        data.SetIntervalTime(seconds);
        EXPECT_EQ(data.GetIntervalTime(), seconds > 0 ? seconds : 10);
    }
}
