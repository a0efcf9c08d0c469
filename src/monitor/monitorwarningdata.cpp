#include "monitor/monitorwarningdata.h"

#include "common/debugline.h"

bool operator==(const SLoopbackError& a, const SLoopbackError& b)
{
    return a.backupPort == b.backupPort && a.lastReceiver == b.lastReceiver
           && a.firstReceiver == b.firstReceiver;
}

bool CMonitorWarningData::operator==(const CMonitorWarningData& other) const
{
    return m_warnings == other.m_warnings && m_fibers == other.m_fibers
           && m_loopbackErrors == other.m_loopbackErrors;
}

void CMonitorWarningData::SetPortWarning(unsigned int sender, int port, quint32 flags)
{
    if (port >= 0)
        m_warnings.Set({sender, port}, flags);
}

quint32 CMonitorWarningData::GetPortWarning(unsigned int sender, int port) const
{
    return port < 0 ? 0 : m_warnings.Get({sender, port});
}

void CMonitorWarningData::SetFiberWarning(unsigned int sender, int fiber, quint32 flags)
{
    if (fiber >= 0)
        m_fibers.Set({sender, fiber}, flags);
}

void CMonitorWarningData::SetRcvWarning(unsigned int sender, int port, int receiver, quint32 flags)
{
    if (port >= 0 && receiver >= 0)
        m_warnings.Set({sender, port, receiver}, flags);
}

quint32 CMonitorWarningData::GetRcvWarning(unsigned int sender, int port, int receiver) const
{
    return receiver < 0 ? 0 : m_warnings.Get({sender, port, receiver}); // none is kept for a negative port
}

void CMonitorWarningData::SetLoopbackError(unsigned int sender, int port, const SLoopbackError& error)
{
    if (port >= 0)
        m_loopbackErrors.Set({sender, port}, error);
}

SLoopbackError CMonitorWarningData::GetLoopbackError(unsigned int sender, int port) const
{
    return m_loopbackErrors.Get({sender, port});
}

bool CMonitorWarningData::HasWarning() const
{
    return !m_warnings.IsEmpty() || !m_fibers.IsEmpty() || !m_loopbackErrors.IsEmpty();
}

bool CMonitorWarningData::HasWarning(unsigned int sender) const
{
    return m_warnings.HasAnyBelow({sender}) || m_fibers.HasAnyBelow({sender})
           || m_loopbackErrors.HasAnyBelow({sender});
}

bool CMonitorWarningData::HasWarning(unsigned int sender, int port) const
{
    return port >= 0
           && (m_warnings.HasAnyBelow({sender, port}) || m_loopbackErrors.HasAnyBelow({sender, port}));
}

void CMonitorWarningData::ClearSender(unsigned int sender)
{
    m_warnings.ClearBelow({sender});
    m_fibers.ClearBelow({sender});
    m_loopbackErrors.ClearBelow({sender});
}

void CMonitorWarningData::SetToDefault()
{
    *this = CMonitorWarningData();
}

QDebug operator<<(QDebug debug, const SMonitorPlace& place)
{
    return DebugLine(debug, "SMonitorPlace(", place.sender, ':', place.port, ':', place.receiver, ')');
}

QDebug operator<<(QDebug debug, const SLoopbackError& error)
{
    return DebugLine(debug, "SLoopbackError(backup port ", error.backupPort, ", between ", error.lastReceiver,
                     " and ", error.firstReceiver, ')');
}
