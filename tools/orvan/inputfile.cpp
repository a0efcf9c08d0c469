#include "inputfile.h"

#include "command.h"
#include "console.h"
#include "privatefolder.h"

#include <orvantools/outputdevice.h>

#include <QDir>
#include <QFile>

#include <cerrno>
#include <unistd.h>

namespace {

constexpr int kMebibyte = 1 << 20;
constexpr int kMostOfArchive = 1024; ///< MiB, the most that the library unpacks
constexpr int kMostOfDocument = 256; ///< MiB, the most that it parses

/// Fills a buffer as far as standard input goes. -1 and errno when it fails.
qint64 ReadBlock(QByteArray& block)
{
    qint64 size = 0;
    while (size < block.size()) {
        const ssize_t got = read(STDIN_FILENO, block.data() + size, static_cast<size_t>(block.size() - size));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        size += got;
    }
    return size;
}

/// Copies standard input into a file. When it cannot, says why.
QString Spool(QFile& file)
{
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return file.errorString();
    OrvanTools::OutputDevice device(file, IsSignalWaiting);
    QByteArray block(kMebibyte, Qt::Uninitialized);
    int most = 0;
    for (int blocks = 0;; ++blocks) {
        const qint64 size = ReadBlock(block);
        if (size < 0)
            return qt_error_string(errno);
        if (size == 0)
            return device.Finish() ? QString() : device.errorString();
        if (blocks == 0)
            most = block.startsWith("PK") ? kMostOfArchive : kMostOfDocument;
        if (blocks == most)
            return QStringLiteral("gives more than %1 MiB").arg(most);
        if (device.write(block.constData(), size) != size)
            return device.errorString();
    }
}

} // namespace

bool IsStream(const QString& argument)
{
    return argument == QLatin1String("-");
}

QString InputName(const QString& argument)
{
    return IsStream(argument) ? QStringLiteral("standard input") : argument;
}

QString InputPath(const QString& argument)
{
    if (!IsStream(argument))
        return argument;
    // Temporary files of a session are its own.
    QFile file(QDir::tempPath() + QStringLiteral("/standard-input"));
    const QString why = file.exists() ? QString() : Spool(file);
    if (why.isEmpty())
        return file.fileName();
    Fail(StatusFile, argument, why);
    return {};
}
