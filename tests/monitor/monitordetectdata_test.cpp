#include "monitor/monitordetectdata.h"

#include <gtest/gtest.h>

TEST(MonitorDetectDataTest, ReceiversAreFoundByPlaceAndByOrderOfDetection)
{
    CMonitorDetectData data;
    SDetectReceiverData record;
    for (const int receiver : {7, 3}) {
        record.temperature = receiver;
        data.AddRcvData(0, 1, receiver, &record);
    }
    data.AddRcvData(1, 1, 3, &record);
    record.temperature = 70;
    data.AddRcvData(0, 1, 7, &record); // seen again: replaced where it stands

    EXPECT_EQ(data.GetRcvDataCount(), 3);
    EXPECT_EQ(data.GetRcvDataCount(0, 1), 2);
    EXPECT_EQ(data.GetRcvDataByIndex(0)->temperature, 70);
    EXPECT_EQ(data.GetRcvDataByIndex(1)->place.receiver, 3);
    EXPECT_EQ(data.GetRcvDataByIndex(2)->place.sender, 1U);
    EXPECT_EQ(data.GetRcvDataByIndex(3), nullptr);
    EXPECT_EQ(data.GetRcvData(1, 1, 7), nullptr);

    data.AddRcvData(0, -1, 0, &record);
    data.AddRcvData(0, 0, -1, &record);
    EXPECT_EQ(data.GetRcvDataCount(), 3);
    const SDetectSenderData sender;
    data.AddSenderData(2, &sender);
    data.AddSenderData(3, nullptr);
    EXPECT_TRUE(data.GetSenderData(2) && !data.GetSenderData(3));
    data.SetToDefault();
    EXPECT_TRUE(!data.GetSenderData(2) && data.GetRcvDataCount() == 0);
}

TEST(MonitorDetectDataTest, RecordStaysInReachWhileACopyChangesAndGoes)
{
    CMonitorDetectData data;
    SDetectReceiverData record;
    record.humidity = 40;
    data.AddRcvData(0, 0, 0, &record);
    const SDetectReceiverData* held = data.GetRcvData(0, 0, 0);
    {
        CMonitorDetectData copy(data);
        record.humidity = 90;
        copy.AddRcvData(0, 0, 0, &record);
        copy.AddRcvData(0, 0, 1, &record);
    }
    data.AddRcvData(0, 0, 2, &record);
    EXPECT_EQ(held, data.GetRcvData(0, 0, 0));
    EXPECT_EQ(held->humidity, 40);
    EXPECT_EQ(data.GetRcvDataCount(), 2);
}
