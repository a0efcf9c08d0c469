#include "privatefolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr const char* kName = "OrvanCommand-";
constexpr const char* kLockName = "/in-use.lock";
constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGPIPE};

char g_folder[4096]; ///< what a signal has to remove; empty: nothing

sigset_t EndingSignals()
{
    sigset_t ending;
    sigemptyset(&ending);
    for (const int signal : kSignals)
        sigaddset(&ending, signal);
    return ending;
}

/// Only calls that are allowed in a signal handler: another program does the work.
void RemoveAndEnd(int signal)
{
    const pid_t child = g_folder[0] != '\0' ? _Fork() : -1;
    if (child == 0) {
        execl("/bin/rm", "rm", "-rf", "--", g_folder, static_cast<char*>(nullptr));
        _exit(127);
    }
    while (child > 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR)
        continue;
    raise(signal); // waits until the handler returns, and then ends the program
}

void EndBySignals()
{
    struct sigaction action = {};
    action.sa_handler = RemoveAndEnd;
    action.sa_mask = EndingSignals();
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int signal : kSignals) {
        struct sigaction before = {};
        if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler == SIG_DFL)
            sigaction(signal, &action, nullptr); // a program started with nohup goes on
    }
}

/// An open file with a lock on it, or -1 and errno.
int Lock(const QByteArray& path, int flags)
{
    const int file = open(path.constData(), O_RDWR | O_NOFOLLOW | O_CLOEXEC | flags, 0600);
    if (file < 0 || flock(file, LOCK_EX | LOCK_NB) == 0)
        return file;
    const int why = errno;
    close(file);
    errno = why;
    return -1;
}

/// The lock tells a folder in use from one that a killed run left. It is locked before it gets its name, so
/// that no other run takes it for one of these.
int LockNew(const QByteArray& folder)
{
    const QByteArray fresh = folder + "/new.lock";
    const int lock = Lock(fresh, O_CREAT | O_EXCL);
    if (lock < 0 || rename(fresh.constData(), (folder + kLockName).constData()) == 0)
        return lock;
    const int why = errno;
    close(lock);
    errno = why;
    return -1;
}

void RemoveAbandoned()
{
    const QFileInfoList folders =
        QDir(QDir::tempPath())
            .entryInfoList({QLatin1String(kName) + QStringLiteral("??????")}, QDir::Dirs | QDir::NoSymLinks);
    for (const QFileInfo& folder : folders) {
        const bool own = folder.ownerId() == geteuid();
        const int lock = own ? Lock(QFile::encodeName(folder.filePath()) + kLockName, 0) : -1;
        if (lock < 0)
            continue;
        QDir(folder.filePath()).removeRecursively();
        close(lock);
    }
}

} // namespace

PrivateFolder::PrivateFolder()
{
    RemoveAbandoned();
    const QString place = QDir(QDir::tempPath()).absolutePath();
    const QByteArray form = QFile::encodeName(place) + '/' + kName + "XXXXXX";
    const SignalsHeld held;
    if (static_cast<size_t>(form.size()) >= sizeof g_folder) {
        m_error = qt_error_string(ENAMETOOLONG);
        return;
    }
    std::memcpy(g_folder, form.constData(), static_cast<size_t>(form.size()) + 1);
    if (!mkdtemp(g_folder)) {
        m_error = place + QStringLiteral(": ") + qt_error_string(errno);
        g_folder[0] = '\0';
        return;
    }
    EndBySignals();
    m_lock = LockNew(g_folder);
    if (m_lock < 0)
        m_error = QFile::decodeName(g_folder) + QStringLiteral(": ") + qt_error_string(errno);
}

PrivateFolder::~PrivateFolder()
{
    if (g_folder[0] == '\0')
        return;
    QDir(QFile::decodeName(g_folder)).removeRecursively();
    if (m_lock >= 0)
        close(m_lock);
    g_folder[0] = '\0';
}

QString PrivateFolder::Path(const char* name) const
{
    return QFile::decodeName(g_folder) + QLatin1Char('/') + QLatin1String(name);
}

SignalsHeld::SignalsHeld()
{
    const sigset_t ending = EndingSignals();
    sigprocmask(SIG_BLOCK, &ending, &m_before);
}

SignalsHeld::~SignalsHeld()
{
    sigprocmask(SIG_SETMASK, &m_before, nullptr);
}

bool IsSignalWaiting()
{
    sigset_t waiting;
    sigpending(&waiting);
    for (const int signal : kSignals) {
        struct sigaction action = {};
        if (sigismember(&waiting, signal) == 1 && sigaction(signal, nullptr, &action) == 0
            && action.sa_handler != SIG_IGN)
            return true;
    }
    return false;
}
