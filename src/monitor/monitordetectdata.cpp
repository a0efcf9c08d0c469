#include "monitor/monitordetectdata.h"

void CMonitorDetectData::SetToDefault()
{
    *this = CMonitorDetectData();
}

void CMonitorDetectData::AddSenderData(unsigned int sender, const SDetectSenderData* data)
{
    if (data)
        m_senders.insert(sender, std::make_shared<const SDetectSenderData>(*data));
}

const SDetectSenderData* CMonitorDetectData::GetSenderData(unsigned int sender) const
{
    return m_senders.value(sender).get();
}

void CMonitorDetectData::AddRcvData(unsigned int sender, int port, int receiver,
                                    const SDetectReceiverData* data)
{
    if (!data || port < 0 || receiver < 0)
        return;
    auto record = std::make_shared<SDetectReceiverData>(*data);
    record->place = {sender, port, receiver};

    const auto known = m_receiverIndex.constFind(record->place);
    if (known != m_receiverIndex.constEnd()) {
        m_receivers[known.value()] = std::move(record);
        return;
    }
    m_receiverIndex.insert(record->place, m_receivers.size());
    ++m_portCounts[{sender, port}];
    m_receivers.append(std::move(record));
}

const SDetectReceiverData* CMonitorDetectData::GetRcvData(unsigned int sender, int port, int receiver) const
{
    return GetRcvDataByIndex(m_receiverIndex.value({sender, port, receiver}, -1));
}

const SDetectReceiverData* CMonitorDetectData::GetRcvDataByIndex(int index) const
{
    return index >= 0 && index < m_receivers.size() ? m_receivers.at(index).get() : nullptr;
}
