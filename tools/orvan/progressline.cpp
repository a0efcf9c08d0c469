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
    // A line that the terminal breaks could not be written over, so it is cut.
    std::fprintf(stderr, "\r\033[?7lorvan: %d %%, %s\033[?7h", percent, m_work.toLocal8Bit().constData());
    std::fflush(stderr);
}

void ProgressLine::End()
{
    if (m_shown)
        std::fprintf(stderr, "\r\033[K");
    m_shown = false;
}
