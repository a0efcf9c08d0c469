#pragma once

#include <QIODevice>

class QFileDevice;

/// Writes in large pieces into a file that is open without a buffer. Fails, with the reason, at the first
/// byte that is not taken, and as soon as a signal waits that ends the program.
class OutputDevice : public QIODevice
{
public:
    explicit OutputDevice(QFileDevice& file); ///< [keep] for its own life

    bool Finish(); ///< writes what is left; whether all was taken
    QString Why() const { return m_failed ? errorString() : QString(); } ///< empty unless it failed

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    bool Drain();

    QFileDevice& m_file;
    QByteArray m_waiting;
    bool m_failed = false;
};
