#include "common/atomicfile.h"

#include "common/fileproblem.h"
#include "common/texts.h"
#include "common/turnlock.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QRegularExpression>
#include <QThread>
#include <QUuid>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr unsigned long kPause = 10;              ///< milliseconds between two looks
constexpr int kMaxTargetNameBytes = 200;          ///< leaves room for what is put around it
constexpr char kDescriptors[] = "/proc/self/fd/"; ///< where an open file without a name has one

/// Follows a link; any other path stays as it is.
QString Resolved(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists())
        return info.canonicalFilePath();
    return info.isSymLink() ? info.symLinkTarget() : info.absoluteFilePath();
}

/// Whether an open file is the one at its path, and empty. Removes it when it is ours, by its lock, but holds
/// what an interrupted save left.
bool IsFresh(int file, const char* path)
{
    struct stat opened = {};
    struct stat named = {};
    if (fstat(file, &opened) != 0 || lstat(path, &named) != 0 || opened.st_ino != named.st_ino
        || opened.st_dev != named.st_dev)
        return false; // renamed or removed by who held the lock before
    if (S_ISREG(opened.st_mode) && opened.st_size == 0 && opened.st_nlink == 1)
        return true;
    unlink(path);
    return false;
}

/// An open file that is written to. It has no buffer and remembers the first failure. So none is lost when a
/// writer goes on, or asks for the size or place in between.
class NewFileDevice : public QIODevice
{
public:
    ~NewFileDevice() override { NewFileDevice::close(); }

    void Open(int file)
    {
        m_file = file;
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }

    void close() override
    {
        if (isOpen())
            ::close(m_file);
        QIODevice::close();
    }

    qint64 size() const override
    {
        struct stat status = {};
        return fstat(m_file, &status) == 0 ? status.st_size : 0;
    }

    bool seek(qint64 position) override
    {
        return QIODevice::seek(position) && (lseek(m_file, position, SEEK_SET) == position || Fail());
    }

    int Handle() const { return m_file; }
    bool Flush() { return m_error == 0 && (fsync(m_file) == 0 || Fail()); }
    int Error() const { return m_error; } ///< as errno, 0: none

protected:
    qint64 readData(char*, qint64) override { return -1; }

    qint64 writeData(const char* data, qint64 size) override
    {
        for (qint64 done = 0; m_error == 0 && done < size;) {
            const ssize_t now = ::write(m_file, data + done, static_cast<size_t>(size - done));
            if (now >= 0)
                done += now;
            else if (errno != EINTR)
                Fail();
        }
        return m_error == 0 ? size : -1;
    }

private:
    bool Fail()
    {
        m_error = errno;
        return false;
    }

    int m_file = -1;
    int m_error = 0;
};

/// The new file beside a target.
class NewFile
{
public:
    explicit NewFile(const QString& target)
        : m_target(QFile::encodeName(target)), m_folder(m_target.left(m_target.lastIndexOf('/') + 1))
    {}

    ~NewFile()
    {
        if (m_device.isOpen() && !m_renamed)
            unlink(m_path.constData());
    }

    /// Each target has one name for this, locked while it is written. So a save finds and removes what an
    /// interrupted one left, and waits for another program.
    bool OpenInTurn()
    {
        m_path = m_folder + '.' + m_target.mid(m_folder.size()).left(kMaxTargetNameBytes) + ".part";
        QElapsedTimer waited;
        waited.start();
        do {
            const int file =
                open(m_path.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666);
            if (file < 0 && errno == ELOOP) {
                unlink(m_path.constData()); // a link is not ours
                continue;
            }
            if (file < 0)
                return FailWithErrno();
            // A file system without locks fails otherwise; then there is nothing to wait for.
            const bool busy = flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
            if (!busy && IsFresh(file, m_path.constData()))
                return Take(file);
            close(file);
            if (busy)
                QThread::msleep(kPause);
        } while (waited.elapsed() < kLockPatience);
        m_error = Texts::tr("另一个程序正在写入该文件。");
        return false;
    }

    /// Without a name, so that an interrupted save leaves nothing. With a fresh name when the file system has
    /// no such files.
    bool OpenUnseen()
    {
        int file = -1;
        if (access(kDescriptors, X_OK) == 0)
            file = open(m_folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0666);
        if (file < 0) {
            m_path = FreshPath();
            file = open(m_path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        }
        return file < 0 ? FailWithErrno() : Take(file);
    }

    bool Commit(bool flush)
    {
        if (m_device.Error() != 0 || (flush && !m_device.Flush()))
            return false;
        if (m_path.isEmpty() && !GiveName())
            return FailWithErrno();
        m_renamed = rename(m_path.constData(), m_target.constData()) == 0;
        if (!m_renamed)
            return FailWithErrno();
        if (flush)
            FlushFolder();
        return true;
    }

    QIODevice& Device() { return m_device; }

    /// Why the system refused; empty when it did not.
    QString Error() const { return m_device.Error() != 0 ? qt_error_string(m_device.Error()) : m_error; }

private:
    QByteArray FreshPath() const
    {
        return m_folder + '.' + QUuid::createUuid().toByteArray(QUuid::WithoutBraces) + ".part";
    }

    bool GiveName()
    {
        const QByteArray unnamed = kDescriptors + QByteArray::number(m_device.Handle());
        m_path = FreshPath();
        return linkat(AT_FDCWD, unnamed.constData(), AT_FDCWD, m_path.constData(), AT_SYMLINK_FOLLOW) == 0;
    }

    bool Take(int file)
    {
        struct stat replaced = {};
        if (lstat(m_target.constData(), &replaced) == 0 && S_ISREG(replaced.st_mode))
            fchmod(file, replaced.st_mode & 07777);
        m_device.Open(file);
        return true;
    }

    bool FailWithErrno()
    {
        m_error = qt_error_string(errno);
        return false;
    }

    /// Makes the new name survive a power cut. The file is replaced by now, so a failure is not told.
    void FlushFolder() const
    {
        const int folder = open(m_folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (folder < 0)
            return;
        fsync(folder);
        close(folder);
    }

    QByteArray m_target;
    QByteArray m_folder;
    QByteArray m_path; ///< empty while it has no name
    NewFileDevice m_device;
    QString m_error;
    bool m_renamed = false;
};

bool Replace(const QString& target, bool flush, const std::function<bool(QIODevice&)>& write, QString* error)
{
    if (error)
        error->clear();
    NewFile file(target);
    if ((flush ? file.OpenInTurn() : file.OpenUnseen()) && write(file.Device()) && file.Commit(flush))
        return true;
    const QString system = file.Error();
    if (error && (error->isEmpty() || !system.isEmpty()))
        *error = CannotWrite(target, system);
    return false;
}

} // namespace

bool ReplaceFile(const QString& path, const std::function<bool(QIODevice&)>& write, QString* error)
{
    const QFileInfo target(path);
    if (path.isEmpty() || (target.exists() && !target.isFile())) // a device or a folder is not ours
        return Fail(error, NotRegular(path));
    return Replace(Resolved(path), true, write, error);
}

bool ReplaceFile(const QString& path, const QByteArray& content, QString* error)
{
    return ReplaceFile(
        path, [&content](QIODevice& file) { return file.write(content) == content.size(); }, error);
}

bool ReplaceWorkFile(const QString& path, const std::function<bool(QIODevice&)>& write, QString* error)
{
    return Replace(QFileInfo(path).absoluteFilePath(), false, write, error);
}

void RemoveUnfinished(const QString& folder)
{
    static const QRegularExpression fresh(QStringLiteral("\\A\\.[0-9a-f-]{36}\\.part\\z"));
    const QDir there(folder);
    for (const QString& name : there.entryList({QStringLiteral(".*.part")}, QDir::Files | QDir::Hidden))
        if (fresh.match(name).hasMatch())
            QFile::remove(there.filePath(name));
}
