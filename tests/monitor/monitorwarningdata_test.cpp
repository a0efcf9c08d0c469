#include "monitor/monitorwarningdata.h"

#include <gtest/gtest.h>

TEST(MonitorWarningDataTest, WarningBelowShowsAboveButNotBeside)
{
    CMonitorWarningData data;
    data.SetRcvWarning(2, 1, 5, ReceiverWarningSmoke);
    EXPECT_TRUE(data.HasWarning(2) && data.HasWarning(2, 1));
    EXPECT_FALSE(data.HasWarning(2, 0) || data.HasWarning(2, -1));
    EXPECT_FALSE(data.HasWarning(1) || data.HasWarning(3));
    EXPECT_EQ(data.GetPortWarning(2, 1), 0U);
    EXPECT_EQ(data.GetSenderWarning(2), 0U);

    data.SetSenderWarning(1, SenderWarningFreeze);
    EXPECT_TRUE(data.HasWarning(1) && !data.HasWarning(1, 0));
    data.SetFiberWarning(3, 1, FiberWarningNoLight);
    EXPECT_TRUE(data.HasWarning(3));
    EXPECT_FALSE(data.HasWarning(3, 1)); // a fibre is not a port
    data.SetLoopbackError(4, 0, {1, 3, 4});
    EXPECT_TRUE(data.HasWarning(4, 0));

    CMonitorWarningData fiber;
    fiber.SetFiberWarning(3, 1, FiberWarningNoLight);
    CMonitorWarningData loopback;
    loopback.SetLoopbackError(4, 0, {1, 3, 4});
    EXPECT_TRUE(fiber != CMonitorWarningData() && loopback != CMonitorWarningData() && fiber != loopback);
}

TEST(MonitorWarningDataTest, WhatIsTakenBackLeavesNoTrace)
{
    CMonitorWarningData data;
    data.SetSenderWarning(0, SenderWarningOffline);
    data.SetPortWarning(0, 3, PortWarningSelfBackup);
    data.SetLoopbackError(0, 3, {4, 0, 1});
    data.SetRcvWarning(1, 3, 0, ReceiverWarningPower1);

    data.ClearSender(0);
    EXPECT_FALSE(data.HasWarning(0));
    EXPECT_EQ(data.GetRcvWarning(1, 3, 0), ReceiverWarningPower1);
    data.SetRcvWarning(1, 3, 0, 0);
    EXPECT_EQ(data, CMonitorWarningData());

    data.SetPortWarning(0, -1, PortWarningCableError); // would pass for the sender's own
    data.SetRcvWarning(0, 0, -1, ReceiverWarningFan);
    data.SetFiberWarning(0, -1, FiberWarningNoLight);
    EXPECT_FALSE(data.HasWarning());
}
