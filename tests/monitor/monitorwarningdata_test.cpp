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

    data.SetFiberWarning(0, 1, FiberWarningBitErrors);
    EXPECT_TRUE(data.HasWarning());
    data.ClearSender(0);
    EXPECT_EQ(data, CMonitorWarningData());
    data.SetLoopbackError(0, 1, {4, 0, 1});
    EXPECT_TRUE(data.HasWarning());
    data.SetToDefault();
    EXPECT_FALSE(data.HasWarning());
}

TEST(MonitorWarningDataTest, EachPlaceHasItsOwnAndNegativeNumbersNameNone)
{
    CMonitorWarningData data;
    data.SetSenderWarning(0, 1);
    for (const quint32 port : {0U, 3U}) {
        const auto index = static_cast<int>(port);
        data.SetPortWarning(0, index, 10 + port);
        data.SetFiberWarning(0, index, 20 + port);
        data.SetLoopbackError(0, index, {index, 1, 2});
        data.SetRcvWarning(0, index, 0, 30 + port);
        EXPECT_TRUE(data.GetPortWarning(0, index) == 10 + port
                    && data.GetFiberWarning(0, index) == 20 + port);
        EXPECT_EQ(data.GetLoopbackError(0, index), (SLoopbackError{index, 1, 2}));
        EXPECT_EQ(data.GetRcvWarning(0, index, 0), 30 + port);
    }
    const CMonitorWarningData before = data;
    data.SetPortWarning(0, -1, 9); // would pass for the sender's own
    data.SetFiberWarning(0, -1, 9);
    data.SetRcvWarning(0, 0, -1, 9);
    data.SetRcvWarning(0, -1, 0, 9);
    data.SetLoopbackError(0, -1, {1, 2, 3});
    EXPECT_EQ(data, before);
    EXPECT_EQ(data.GetPortWarning(0, -1) | data.GetRcvWarning(0, 0, -1) | data.GetRcvWarning(0, -1, -1), 0U);
}
