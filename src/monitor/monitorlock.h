#pragma once

#include <QReadWriteLock>

#if defined(__SANITIZE_THREAD__)
#define ORVAN_THREAD_SANITIZER
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define ORVAN_THREAD_SANITIZER
#endif
#endif

#if defined(ORVAN_THREAD_SANITIZER)
#include <sanitizer/tsan_interface.h>
#define ORVAN_ANNOUNCE(call) call
#else
#define ORVAN_ANNOUNCE(call) static_cast<void>(0)
#endif

/// A recursive read-write lock. ThreadSanitizer does not see into Qt's locks, so in its builds every step is
/// announced to it. Recursive means reads within reads and writes within writes; a write within a read waits
/// for ever.
class MonitorLock
{
public:
    MonitorLock() { ORVAN_ANNOUNCE(__tsan_mutex_create(this, __tsan_mutex_write_reentrant)); }
    ~MonitorLock() { ORVAN_ANNOUNCE(__tsan_mutex_destroy(this, 0)); }
    Q_DISABLE_COPY(MonitorLock)

    void LockForRead()
    {
        ORVAN_ANNOUNCE(__tsan_mutex_pre_lock(this, __tsan_mutex_read_lock));
        m_lock.lockForRead();
        ORVAN_ANNOUNCE(__tsan_mutex_post_lock(this, __tsan_mutex_read_lock, 0));
    }
    void UnlockRead()
    {
        ORVAN_ANNOUNCE(__tsan_mutex_pre_unlock(this, __tsan_mutex_read_lock));
        m_lock.unlock();
        ORVAN_ANNOUNCE(__tsan_mutex_post_unlock(this, __tsan_mutex_read_lock));
    }
    void LockForWrite()
    {
        ORVAN_ANNOUNCE(__tsan_mutex_pre_lock(this, 0));
        m_lock.lockForWrite();
        ORVAN_ANNOUNCE(__tsan_mutex_post_lock(this, 0, 0));
    }
    void UnlockWrite()
    {
        ORVAN_ANNOUNCE(__tsan_mutex_pre_unlock(this, 0));
        m_lock.unlock();
        ORVAN_ANNOUNCE(__tsan_mutex_post_unlock(this, 0));
    }

private:
    QReadWriteLock m_lock{QReadWriteLock::Recursive};
};

#undef ORVAN_ANNOUNCE

/// Holds the lock for reading as long as it lives.
class MonitorReadGuard
{
public:
    explicit MonitorReadGuard(MonitorLock& lock) : m_lock(lock) { m_lock.LockForRead(); }
    ~MonitorReadGuard() { m_lock.UnlockRead(); }
    Q_DISABLE_COPY(MonitorReadGuard)

private:
    MonitorLock& m_lock;
};

/// Holds the lock for writing as long as it lives.
class MonitorWriteGuard
{
public:
    explicit MonitorWriteGuard(MonitorLock& lock) : m_lock(lock) { m_lock.LockForWrite(); }
    ~MonitorWriteGuard() { m_lock.UnlockWrite(); }
    Q_DISABLE_COPY(MonitorWriteGuard)

private:
    MonitorLock& m_lock;
};
