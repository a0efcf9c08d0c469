#pragma once

#include "common/export.h"
#include "monitor/monitordetectdata.h"
#include "monitor/monitorinterfacedata.h"
#include "monitor/monitorrcvshowdata.h"
#include "monitor/monitortipsdata.h"
#include "monitor/monitorwarningdata.h"

#include <memory>

class MonitorLock;

/// Everything that the windows share about monitoring: settings, detected values, warnings and texts. Any
/// thread may call any member. Whole members are copied in and out, so that nobody holds a reference to
/// locked data. Owned by the library, one for the process.
class ORVANDATA_EXPORT CMonitorData
{
public:
    CMonitorData();
    ~CMonitorData();
    CMonitorData(const CMonitorData&) = delete;
    CMonitorData& operator=(const CMonitorData&) = delete;

    // state; both resets keep the running state and the stored read-only states
    void SetToDefault();
    void SetToDefaultForVideo(); ///< the variant for video processors
    bool IsVideoShow() const;    ///< whether that variant is in force
    void SetMonitoring(bool monitoring);
    bool IsMonitoring() const;

    // whole members
    void SetDetectData(const CMonitorDetectData& data);
    CMonitorDetectData GetDetectData() const;
    void SetInterfaceData(const CMonitorInterfaceData& data);
    CMonitorInterfaceData GetInterfaceData() const;
    void SetWarningData(const CMonitorWarningData& data);
    CMonitorWarningData GetWarningData() const;
    void SetRcvShowData(const CMonitorRcvShowData& data);
    CMonitorRcvShowData GetRcvShowData() const;
    void SetTipData(const CMonitorTipsData& data);
    CMonitorTipsData GetTipData() const;
    void GetAllData(CMonitorDetectData& detect, CMonitorInterfaceData& settings, CMonitorWarningData& warning,
                    CMonitorRcvShowData& rcvShow, CMonitorTipsData& tips) const; ///< all of one moment

    // read-only states of the interfaces, which monitoring locks. The lock of the data is not held while the
    // settings are called: they may call back, and writing within reading waits for ever.
    void StoreInterfaceLockInfo();
    void RecoverInterfaceLockInfo();                     ///< does nothing when nothing was stored
    bool GetInterfaceReadOnly(int interfaceIndex) const; ///< as stored; false when nothing was

private:
    void Reset(bool videoShow);

    std::unique_ptr<MonitorLock> m_lock; ///< guards everything below
    bool m_videoShow = false;
    bool m_monitoring = false;
    QMap<int, bool> m_interfaceLocks;
    CMonitorDetectData m_detect;
    CMonitorInterfaceData m_interface;
    CMonitorWarningData m_warning;
    CMonitorRcvShowData m_rcvShow;
    CMonitorTipsData m_tips;
};
