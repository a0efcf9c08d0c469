#pragma once

#include <QLockFile>

constexpr int kLockPatience = 30000; ///< milliseconds to wait for another program's work on the same files

/// Waits for a lock file that programs hold for a short time. A lock counts as stale before the wait ends:
/// a program may be killed before it wrote its name into the file.
inline bool LockInTurn(QLockFile& lock)
{
    lock.setStaleLockTime(kLockPatience * 2 / 3);
    return lock.tryLock(kLockPatience);
}
