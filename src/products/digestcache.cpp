#include "products/digestcache.h"

#include <chrono>
#include <utility>

namespace {

// File systems count time in ticks of some milliseconds. A file that was written within this time may change
// once more without a change of its times, so its digest is not kept.
constexpr std::chrono::nanoseconds kSettlingTime = std::chrono::milliseconds(100);

} // namespace

DigestCache::DigestCache(Hasher hasher) : m_hasher(std::move(hasher))
{}

SMD5 DigestCache::Digest(const QString& path, const FileStamp& stamp)
{
    const auto known = m_entries.find(path);
    if (known != m_entries.end() && known->stamp == stamp) {
        known->round = m_round;
        return known->md5;
    }

    const bool settled = IsSettled(stamp);
    const SMD5 md5 = m_hasher(path);
    FileStamp after;
    if (settled && !md5.IsNull() && ReadStamp(path, after) && after == stamp)
        m_entries.insert(path, {stamp, md5, m_round});
    return md5;
}

void DigestCache::BeginRound()
{
    ++m_round;
}

void DigestCache::EndRound()
{
    for (auto it = m_entries.begin(); it != m_entries.end();)
        it = it->round == m_round ? std::next(it) : m_entries.erase(it);
}

bool DigestCache::IsSettled(const FileStamp& stamp)
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return now - std::chrono::nanoseconds(qMax(stamp.modified, stamp.changed)) > kSettlingTime;
}
