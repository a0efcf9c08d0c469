#include "monitor/monitorinterfacedata.h"

#include <gtest/gtest.h>

namespace {

template <class Change> CMonitorInterfaceData ChangedMail(Change change)
{
    CMonitorInterfaceData data;
    SEmailSetting mail = data.GetMailSetting();
    mail.receivers = {{QStringLiteral("ann@example.test"), QStringLiteral("Ann")}};
    change(mail);
    data.SetMailSetting(mail);
    return data;
}

} // namespace

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
    for (bool& power : receiver.power)
        power = false;
    EXPECT_EQ(data.GetReceiverSetting(), receiver);

    data.SetToDefault();
    EXPECT_FALSE(data != CMonitorInterfaceData());
}

TEST(MonitorInterfaceDataTest, OneDifferentMemberMakesUnequal)
{
    const CMonitorInterfaceData base = ChangedMail([](SEmailSetting&) {});
    EXPECT_FALSE(base != ChangedMail([](SEmailSetting&) {}));
    EXPECT_TRUE(base != ChangedMail([](SEmailSetting& m) { m.receivers[0].name.clear(); }));
    EXPECT_TRUE(base != ChangedMail([](SEmailSetting& m) { m.receivers.clear(); }));
    EXPECT_TRUE(base != ChangedMail([](SEmailSetting& m) { m.notifyRecovery = false; }));

    CMonitorInterfaceData other = base;
    SRecevierSetting receiver;
    receiver.voltage[3].maximum = 12.5;
    other.SetReceiverSetting(receiver);
    EXPECT_TRUE(base != other);
}

TEST(MonitorInterfaceDataTest, PollingNeverGoesBelowOneSecond)
{
    CMonitorInterfaceData data;
    for (const int seconds : {0, -5}) {
        data.SetIntervalTime(1);
        EXPECT_EQ(data.GetIntervalTime(), 1);
        data.SetIntervalTime(seconds);
        EXPECT_EQ(data.GetIntervalTime(), 10);
    }
}
