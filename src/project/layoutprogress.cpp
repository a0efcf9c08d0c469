#include "project/layoutprogress.h"

#include <QtGlobal>

#include <utility>

LayoutProgress::LayoutProgress(std::function<void(int)> tell) : m_tell(std::move(tell))
{}

void LayoutProgress::Start(int senders)
{
    m_senders = senders;
    m_begun = 0;
    m_told = 0;
}

void LayoutProgress::NextSender()
{
    TellSenders();
    ++m_begun;
    m_ports = 0;
}

void LayoutProgress::NextPort(int count)
{
    const qint64 done = qint64(m_begun - 1) * count + m_ports;
    const auto percent = static_cast<int>(100 * done / (qint64(m_senders) * count));
    ++m_ports;
    if (percent > m_told)
        Tell(percent);
}

void LayoutProgress::End()
{
    TellSenders();
}

void LayoutProgress::TellSenders()
{
    if (m_begun > 0)
        Tell(static_cast<int>(qint64(100) * m_begun / m_senders));
}

void LayoutProgress::Tell(int percent)
{
    m_told = percent;
    if (m_tell)
        m_tell(percent);
}
