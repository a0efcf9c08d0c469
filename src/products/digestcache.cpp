#include "products/digestcache.h"

#include <QFile>

#include <ctime>
#include <tuple>
#include <utility>

#include <sys/stat.h>

namespace {

constexpr qint64 kNanoseconds = 1'000'000'000;

// File systems count time in ticks of some milliseconds. A file that was written within this time may be
// written once more without its times telling, so its digest is not kept yet.
constexpr qint64 kSettlingTime = 100'000'000;

qint64 Nanoseconds(const timespec& time)
{
    return static_cast<qint64>(time.tv_sec) * kNanoseconds + time.tv_nsec;
}

} // namespace

DigestCache::DigestCache(Hasher hasher) : m_hasher(std::move(hasher))
{}

SMD5 DigestCache::Digest(const QString& path)
{
    Stamp before;
    if (!ReadStamp(path, before))
        return m_hasher(path);

    for (QHash<QString, Entry>* entries : {&m_entries, &m_lastRound}) {
        const auto known = entries->constFind(path);
        if (known == entries->constEnd() || !(known->stamp == before))
            continue;
        const Entry entry = *known;
        m_entries.insert(path, entry);
        return entry.md5;
    }

    const bool settled = IsSettled(before);
    const SMD5 md5 = m_hasher(path);
    Stamp after;
    if (settled && !md5.IsNull() && ReadStamp(path, after) && after == before)
        m_entries.insert(path, {after, md5});
    return md5;
}

void DigestCache::BeginRound()
{
    m_lastRound = std::exchange(m_entries, {});
}

void DigestCache::EndRound()
{
    m_lastRound.clear();
}

bool DigestCache::Stamp::operator==(const Stamp& other) const
{
    return std::tie(size, modified, changed, inode, device)
           == std::tie(other.size, other.modified, other.changed, other.inode, other.device);
}

bool DigestCache::ReadStamp(const QString& path, Stamp& stamp)
{
    struct stat status = {};
    if (lstat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    stamp = {status.st_size, Nanoseconds(status.st_mtim), Nanoseconds(status.st_ctim), status.st_ino,
             status.st_dev};
    return true;
}

bool DigestCache::IsSettled(const Stamp& stamp)
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    return Nanoseconds(now) - qMax(stamp.modified, stamp.changed) > kSettlingTime;
}
