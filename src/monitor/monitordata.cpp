#include "monitor/monitordata.h"

#include "common/interfacedlg.h"
#include "monitor/monitorlock.h"
#include "monitor/monitorlookup.h"

#include <mutex>
#include <shared_mutex>

namespace {

template <class Member> Member Read(MonitorLock& lock, const Member& member)
{
    const std::shared_lock<MonitorLock> guard(lock);
    return member;
}

template <class Member> void Write(MonitorLock& lock, Member& member, const Member& value)
{
    Member old = value; // freed only when the lock is released
    const std::unique_lock<MonitorLock> guard(lock);
    std::swap(member, old);
}

} // namespace

CMonitorData::CMonitorData() : m_lock(std::make_unique<MonitorLock>())
{}

CMonitorData::~CMonitorData() = default;

void CMonitorData::SetToDefault()
{
    Reset(false);
}

void CMonitorData::SetToDefaultForVideo()
{
    Reset(true);
}

bool CMonitorData::IsVideoShow() const
{
    return Read(*m_lock, m_videoShow);
}

void CMonitorData::SetMonitoring(bool monitoring)
{
    Write(*m_lock, m_monitoring, monitoring);
}

bool CMonitorData::IsMonitoring() const
{
    return Read(*m_lock, m_monitoring);
}

void CMonitorData::SetDetectData(const CMonitorDetectData& data)
{
    Write(*m_lock, m_detect, data);
}

CMonitorDetectData CMonitorData::GetDetectData() const
{
    return Read(*m_lock, m_detect);
}

void CMonitorData::SetInterfaceData(const CMonitorInterfaceData& data)
{
    Write(*m_lock, m_interface, data);
}

CMonitorInterfaceData CMonitorData::GetInterfaceData() const
{
    return Read(*m_lock, m_interface);
}

void CMonitorData::SetWarningData(const CMonitorWarningData& data)
{
    Write(*m_lock, m_warning, data);
}

CMonitorWarningData CMonitorData::GetWarningData() const
{
    return Read(*m_lock, m_warning);
}

void CMonitorData::SetRcvShowData(const CMonitorRcvShowData& data)
{
    Write(*m_lock, m_rcvShow, data);
}

CMonitorRcvShowData CMonitorData::GetRcvShowData() const
{
    return Read(*m_lock, m_rcvShow);
}

void CMonitorData::SetTipData(const CMonitorTipsData& data)
{
    Write(*m_lock, m_tips, data);
}

CMonitorTipsData CMonitorData::GetTipData() const
{
    return Read(*m_lock, m_tips);
}

void CMonitorData::GetAllData(CMonitorDetectData& detect, CMonitorInterfaceData& settings,
                              CMonitorWarningData& warning, CMonitorRcvShowData& rcvShow,
                              CMonitorTipsData& tips) const
{
    const std::shared_lock<MonitorLock> guard(*m_lock);
    detect = m_detect;
    settings = m_interface;
    warning = m_warning;
    rcvShow = m_rcvShow;
    tips = m_tips;
}

void CMonitorData::StoreInterfaceLockInfo()
{
    QMap<int, bool> states;
    for (int i = 0; i < kInterfaceCount; ++i)
        states.insert(i, GetMonitorLookup()->IsInterfaceReadOnly(i));
    Write(*m_lock, m_interfaceLocks, states);
}

void CMonitorData::RecoverInterfaceLockInfo()
{
    const QMap<int, bool> states = Read(*m_lock, m_interfaceLocks);
    for (auto it = states.begin(); it != states.end(); ++it)
        GetMonitorLookup()->SetInterfaceReadOnly(it.key(), it.value());
}

bool CMonitorData::GetInterfaceReadOnly(int interfaceIndex) const
{
    return Read(*m_lock, m_interfaceLocks).value(interfaceIndex);
}

void CMonitorData::Reset(bool videoShow)
{
    CMonitorInterfaceData settings;
    if (videoShow)
        settings.SetToDefaultForVideo();

    const std::unique_lock<MonitorLock> guard(*m_lock);
    m_detect.SetToDefault();
    m_interface = settings;
    m_warning.SetToDefault();
    m_rcvShow.SetToDefault();
    m_tips.SetToDefault();
    m_videoShow = videoShow;
}
