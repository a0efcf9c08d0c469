#include "progressline.h"

#include <orvantools/printable.h>

#include <cstdio>
#include <unistd.h>

ProgressLine::ProgressLine(const QString& work)
    : m_work(OrvanTools::Printable(work)), m_terminal(isatty(STDERR_FILENO) != 0),
      m_bar([this](int percent) { Show(percent); })
{
    m_clock.start();
}

ProgressLine::~ProgressLine()
{
    End();
}

void ProgressLine::Show(int percent)
{
    if (!m_terminal || m_clock.elapsed() < m_next)
        return;
    m_next = m_clock.elapsed() + 100;
    m_shown = true;
    std::fprintf(stderr, "\rorvan: %s: %d %%", m_work.toLocal8Bit().constData(), percent);
    std::fflush(stderr);
}

void ProgressLine::End()
{
    if (m_shown)
        std::fprintf(stderr, "\r\033[K");
    m_shown = false;
}
