#include "orvantools/outputdevice.h"

#include <QFileDevice>

namespace OrvanTools {

namespace {

constexpr int kPiece = 1 << 18;

} // namespace

OutputDevice::OutputDevice(QFileDevice& file, Stop isStopped)
    : m_file(file), m_isStopped(std::move(isStopped))
{
    m_waiting.reserve(2 * kPiece);
    open(QIODevice::WriteOnly);
}

bool OutputDevice::Finish()
{
    return Drain();
}

qint64 OutputDevice::readData(char* /*data*/, qint64 /*size*/)
{
    return -1;
}

qint64 OutputDevice::writeData(const char* data, qint64 size)
{
    for (qint64 done = 0; done < size;) {
        const qint64 part = qMin<qint64>(size - done, kPiece);
        m_waiting.append(data + done, static_cast<int>(part));
        done += part;
        if (m_failed || (m_waiting.size() >= kPiece && !Drain()))
            return -1;
    }
    return size;
}

/// A full disk takes a part of the bytes first. Only a second write tells the reason.
bool OutputDevice::Drain()
{
    qint64 done = 0;
    while (!m_failed && done < m_waiting.size()) {
        const bool stopped = m_isStopped && m_isStopped();
        const qint64 taken =
            stopped ? -1 : m_file.write(m_waiting.constData() + done, m_waiting.size() - done);
        m_failed = taken <= 0;
        done += taken;
    }
    if (m_failed)
        setErrorString(m_file.errorString());
    m_waiting.resize(0);
    return !m_failed;
}

} // namespace OrvanTools
