#pragma once

#include <QIODevice>

#include <functional>

class QFileDevice;

namespace OrvanTools {

/// Writes in large pieces into a file that is open without a buffer. Fails, with the reason, at the first
/// byte that is not taken, and as soon as it is to stop.
class OutputDevice : public QIODevice
{
public:
    using Stop = std::function<bool()>;

    explicit OutputDevice(QFileDevice& file, Stop isStopped = {}); ///< [keep] the file for its own life

    bool Finish(); ///< writes what is left; whether all was taken
    QString Why() const { return m_failed ? errorString() : QString(); } ///< empty unless it failed

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    bool Drain();

    QFileDevice& m_file;
    Stop m_isStopped;
    QByteArray m_waiting;
    bool m_failed = false;
};

} // namespace OrvanTools
