#pragma once

#include <QLockFile>

constexpr int kLockPatience = 30000; ///< milliseconds to wait for another program's work on the same files

/// Waits for a lock file that programs hold for a short work. A program that is killed before it writes its
/// name into the file costs the others a wait: no work takes as long as the time after which the lock counts
/// as stale.
inline bool LockInTurn(QLockFile& lock)
{
    lock.setStaleLockTime(kLockPatience * 2 / 3);
    return lock.tryLock(kLockPatience);
}
