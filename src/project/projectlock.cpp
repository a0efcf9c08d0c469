#include "project/projectlock.h"

#include "common/fileproblem.h"
#include "common/texts.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLockFile>

namespace {

constexpr int kTimeToWriteName = 30; ///< seconds

QString LockPath(const QString& projectPath)
{
    const QFileInfo info(projectPath);
    return (info.exists() ? info.canonicalFilePath() : info.absoluteFilePath()) + QStringLiteral(".lock");
}

QString Reason(const QLockFile& lock, const QString& path)
{
    if (lock.error() != QLockFile::LockFailedError)
        return WhyNotWritable(QFileInfo(path).path());
    qint64 process = 0;
    QString host;
    QString program;
    if (!lock.getLockInfo(&process, &host, &program))
        return Texts::tr("无法在项目文件旁创建锁文件。");
    return Texts::tr("项目正在被“%1”（%2，进程%3）编辑。").arg(program, host, QString::number(process));
}

/// Whether a program was killed before it could write its name into the lock file.
bool IsAbandoned(const QLockFile& lock, const QString& path)
{
    qint64 process = 0;
    QString host;
    QString program;
    const QFileInfo info(path);
    return info.exists() && !lock.getLockInfo(&process, &host, &program)
           && info.lastModified().secsTo(QDateTime::currentDateTime()) > kTimeToWriteName;
}

} // namespace

CProjectLock::CProjectLock(const QString& projectPath)
    : m_path(LockPath(projectPath)), m_lock(std::make_unique<QLockFile>(m_path))
{
    m_lock->setStaleLockTime(0); // a project may stay open for days; only a dead holder makes its lock stale
}

CProjectLock::~CProjectLock() = default;

bool CProjectLock::Lock(QString* holder)
{
    const bool locked =
        m_lock->isLocked() || m_lock->tryLock(0)
        || (IsAbandoned(*m_lock, m_path) && m_lock->removeStaleLockFile() && m_lock->tryLock(0));
    if (!locked && holder)
        *holder = Reason(*m_lock, m_path);
    return locked;
}

void CProjectLock::Unlock()
{
    if (m_lock->isLocked())
        m_lock->unlock();
}

bool CProjectLock::IsLocked() const
{
    return m_lock->isLocked();
}
