#include "monitor/monitordata.h"

#include "common/interfacedlg.h"
#include "monitor/monitorlookup.h"
#include "support/text.h"

#include <gtest/gtest.h>

#include <QSet>

#include <atomic>
#include <thread>
#include <vector>

namespace {

/// Settings that look back at the monitoring data while they are asked, as the application's do.
class CallingBack : public MonitorLookup
{
public:
    explicit CallingBack(CMonitorData& data) : m_data(data) { SetMonitorLookup(this); }
    ~CallingBack() override { SetMonitorLookup(nullptr); }

    bool IsInterfaceReadOnly(int index) const override
    {
        m_data.SetMonitoring(true);
        return readOnly.value(index);
    }
    void SetInterfaceReadOnly(int index, bool state) override
    {
        m_data.SetMonitoring(false);
        readOnly[index] = state;
    }

    QMap<int, bool> readOnly;

private:
    CMonitorData& m_data;
};

constexpr int kReceivers = 20;
constexpr int kRounds = 200;

CMonitorDetectData DetectedBy(unsigned int writer)
{
    CMonitorDetectData data;
    SDetectReceiverData record;
    record.firmwareVersion = QString::number(writer);
    for (int i = 0; i < kReceivers; ++i)
        data.AddRcvData(writer, 0, i, &record);
    return data;
}

/// Whether every record of a copy comes from one writer.
bool IsWhole(const CMonitorDetectData& data)
{
    QSet<QString> writers;
    for (int i = 0; i < data.GetRcvDataCount(); ++i)
        writers.insert(data.GetRcvDataByIndex(i)->firmwareVersion);
    return writers.size() < 2 && data.GetRcvDataCount() % kReceivers == 0;
}

} // namespace

TEST(MonitorDataTest, ReadersSeeWholeMembersWhileOthersWrite)
{
    CMonitorData data;
    std::atomic<int> mixed{0}; // copies that hold values of two writers
    const auto write = [&data](unsigned int writer) {
        for (int round = 0; round < kRounds; ++round) {
            data.SetDetectData(DetectedBy(writer));
            CMonitorTipsData tips = data.GetTipData();
            tips.SetTip(writer, 0, round, "hot"_s);
            data.SetTipData(tips);
            if (round % 16 == 0)
                data.SetToDefaultForVideo();
        }
    };
    const auto read = [&data, &mixed] {
        for (int round = 0; round < kRounds; ++round) {
            CMonitorDetectData detect;
            CMonitorInterfaceData settings;
            CMonitorWarningData warning;
            CMonitorRcvShowData rcvShow;
            CMonitorTipsData tips;
            data.GetAllData(detect, settings, warning, rcvShow, tips);
            mixed += IsWhole(detect) && IsWhole(data.GetDetectData()) ? 0 : 1;
        }
    };
    std::vector<std::thread> threads;
    for (unsigned int i = 0; i < 4; ++i) {
        threads.emplace_back(write, i);
        threads.emplace_back(read);
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(mixed, 0);
}

TEST(MonitorDataTest, EachMemberComesOutAsItWentIn)
{
    CMonitorData data;
    data.SetDetectData(DetectedBy(3));
    CMonitorInterfaceData settings;
    settings.SetIntervalTime(30);
    data.SetInterfaceData(settings);
    CMonitorWarningData warning;
    warning.SetPortWarning(1, 2, PortWarningCableError);
    data.SetWarningData(warning);
    CMonitorRcvShowData texts;
    texts.SetText(1, 0, 0, MonitorRenderFan, "900"_s);
    data.SetRcvShowData(texts);
    CMonitorTipsData tips;
    tips.SetTip(1, 2, -1, "cable"_s);
    data.SetTipData(tips);

    EXPECT_EQ(data.GetDetectData().GetRcvDataCount(3, 0), kReceivers);
    EXPECT_EQ(data.GetInterfaceData(), settings);
    EXPECT_EQ(data.GetWarningData(), warning);
    EXPECT_EQ(data.GetRcvShowData(), texts);
    EXPECT_EQ(data.GetTipData(), tips);
    CMonitorDetectData detect;
    CMonitorInterfaceData now;
    CMonitorWarningData warningNow;
    CMonitorRcvShowData textsNow;
    CMonitorTipsData tipsNow;
    data.GetAllData(detect, now, warningNow, textsNow, tipsNow);
    EXPECT_TRUE(detect.GetRcvDataCount(3, 0) == kReceivers && now == settings && warningNow == warning);
    EXPECT_TRUE(textsNow == texts && tipsNow == tips);
    data.SetToDefault();
    EXPECT_EQ(data.GetTipData(), CMonitorTipsData());
}

TEST(MonitorDataTest, ReadOnlyStatesComeBackWhileTheSettingsCallBack)
{
    CMonitorData data;
    CallingBack settings(data);
    settings.readOnly = {{InterfaceDesign, true}};
    data.RecoverInterfaceLockInfo(); // nothing stored yet: the settings stay as they are
    EXPECT_TRUE(settings.readOnly.value(InterfaceDesign));

    data.StoreInterfaceLockInfo();
    settings.readOnly = {{InterfaceDesign, false}, {InterfaceMonitoring, true}};
    EXPECT_TRUE(data.GetInterfaceReadOnly(InterfaceDesign));
    EXPECT_FALSE(data.GetInterfaceReadOnly(InterfaceMonitoring));
    data.RecoverInterfaceLockInfo();
    EXPECT_TRUE(settings.readOnly.value(InterfaceDesign));
    EXPECT_FALSE(settings.readOnly.value(InterfaceMonitoring));
    EXPECT_EQ(settings.readOnly.size(), kInterfaceCount);
}

TEST(MonitorDataTest, DefaultsEmptyEveryMemberAndKeepTheRunningState)
{
    CMonitorData data;
    data.SetMonitoring(true);
    data.SetDetectData(DetectedBy(1));
    CMonitorWarningData warning;
    warning.SetSenderWarning(1, SenderWarningFreeze);
    data.SetWarningData(warning);
    CMonitorRcvShowData texts;
    texts.SetText(1, 0, 0, MonitorRenderTemperature, "61"_s);
    data.SetRcvShowData(texts);

    data.SetToDefaultForVideo();
    EXPECT_TRUE(data.IsMonitoring() && data.IsVideoShow());
    EXPECT_EQ(data.GetDetectData().GetRcvDataCount(), 0);
    EXPECT_EQ(data.GetWarningData(), CMonitorWarningData());
    EXPECT_EQ(data.GetRcvShowData(), CMonitorRcvShowData());
    EXPECT_FALSE(data.GetInterfaceData().GetLineSetting().selfBackup);

    data.SetToDefault();
    data.SetMonitoring(false);
    EXPECT_FALSE(data.IsVideoShow() || data.IsMonitoring() || CMonitorData().IsVideoShow());
    EXPECT_EQ(data.GetInterfaceData(), CMonitorInterfaceData());
}
