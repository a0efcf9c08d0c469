#include "monitor/monitortipsdata.h"

bool CMonitorTipsData::operator==(const CMonitorTipsData& other) const
{
    return m_tips == other.m_tips;
}

void CMonitorTipsData::SetTip(unsigned int sender, int port, int receiver, const QString& text)
{
    m_tips.Set({sender, port, receiver}, text);
}

QString CMonitorTipsData::GetTip(unsigned int sender, int port, int receiver) const
{
    return m_tips.Get({sender, port, receiver});
}

QStringList CMonitorTipsData::GetAllTips() const
{
    return m_tips.Values();
}

void CMonitorTipsData::ClearSender(unsigned int sender)
{
    m_tips.ClearBelow({sender});
}

void CMonitorTipsData::SetToDefault()
{
    m_tips.Clear();
}
