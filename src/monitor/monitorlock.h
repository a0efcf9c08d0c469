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

/// A recursive read-write lock: reads within reads and writes within writes. A write within a read waits for
/// ever. ThreadSanitizer does not see into the locks of Qt, so in its builds each step is announced to it.
/// The members have the names that std::shared_lock and std::unique_lock call.
class MonitorLock
{
public:
    MonitorLock() { ORVAN_ANNOUNCE(__tsan_mutex_create(this, __tsan_mutex_write_reentrant)); }
    ~MonitorLock() { ORVAN_ANNOUNCE(__tsan_mutex_destroy(this, 0)); }
    Q_DISABLE_COPY(MonitorLock)

    void lock_shared()
    {
        ORVAN_ANNOUNCE(__tsan_mutex_pre_lock(this, __tsan_mutex_read_lock));
        m_lock.lockForRead();
        ORVAN_ANNOUNCE(__tsan_mutex_post_lock(this, __tsan_mutex_read_lock, 0));
    }
    void unlock_shared()
    {
        ORVAN_ANNOUNCE(__tsan_mutex_pre_unlock(this, __tsan_mutex_read_lock));
        m_lock.unlock();
        ORVAN_ANNOUNCE(__tsan_mutex_post_unlock(this, __tsan_mutex_read_lock));
    }
    void lock()
    {
        ORVAN_ANNOUNCE(__tsan_mutex_pre_lock(this, 0));
        m_lock.lockForWrite();
        ORVAN_ANNOUNCE(__tsan_mutex_post_lock(this, 0, 0));
    }
    void unlock()
    {
        ORVAN_ANNOUNCE(__tsan_mutex_pre_unlock(this, 0));
        m_lock.unlock();
        ORVAN_ANNOUNCE(__tsan_mutex_post_unlock(this, 0));
    }

private:
    QReadWriteLock m_lock{QReadWriteLock::Recursive};
};

#undef ORVAN_ANNOUNCE
