#include "monitor/monitorrcvshowdata.h"

void CMonitorRcvShowData::SetText(unsigned int sender, int port, int receiver, EMonitorRenderType type,
                                  const QString& text)
{
    auto& texts = m_texts[type];
    texts.Set({sender, port, receiver}, text);
    if (texts.IsEmpty())
        m_texts.remove(type);
}

QString CMonitorRcvShowData::GetText(unsigned int sender, int port, int receiver,
                                     EMonitorRenderType type) const
{
    const auto texts = m_texts.constFind(type);
    return texts == m_texts.constEnd() ? QString() : texts->Get({sender, port, receiver});
}

void CMonitorRcvShowData::ClearSender(unsigned int sender)
{
    for (auto it = m_texts.begin(); it != m_texts.end();) {
        it->ClearBelow({sender});
        it = it->IsEmpty() ? m_texts.erase(it) : std::next(it);
    }
}
