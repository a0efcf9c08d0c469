#pragma once

#include "customprogressbar.h"

#include <QElapsedTimer>
#include <QString>

/// Tells on standard error, when that is a terminal, how far a long work is: from the second second on.
class ProgressLine
{
public:
    explicit ProgressLine(const QString& work);
    ~ProgressLine();

    CCustomProgressbar* Bar() { return &m_bar; } ///< [ref] to advance
    void End();                                  ///< clears the line, so that others can be written

private:
    void Show(int percent);

    QString m_work;
    QElapsedTimer m_clock;
    qint64 m_next = 1000; ///< milliseconds
    bool m_terminal;
    bool m_shown = false;
    CCustomProgressbar m_bar;
};
