#include "monitor/monitorrcvshowdata.h"
#include "support/text.h"

#include <gtest/gtest.h>

TEST(MonitorRcvShowDataTest, ClearingASenderOrAKindLeavesTheOthers)
{
    const QString text = "61 °C"_s;
    CMonitorRcvShowData data;
    data.SetText(0, 0, 0, MonitorRenderTemperature, text);
    data.SetText(1, 0, 0, MonitorRenderTemperature, text);
    data.SetText(1, 0, 0, MonitorRenderFan, text);

    data.ClearSender(0);
    EXPECT_EQ(data.GetText(0, 0, 0, MonitorRenderTemperature), QString());
    EXPECT_EQ(data.GetText(1, 0, 0, MonitorRenderTemperature), text);
    data.ClearType(MonitorRenderTemperature);
    EXPECT_EQ(data.GetText(1, 0, 0, MonitorRenderFan), text);
    data.SetText(1, 0, 0, MonitorRenderFan, QString());
    EXPECT_EQ(data, CMonitorRcvShowData());
}
