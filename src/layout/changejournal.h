#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>

class CTile;

/// The last changes of place, size or rotation of any cabinet, so that an index over cabinets catches up with
/// writes that went past its set. Kept only while somebody reads it; several threads may write.
class ChangeJournal
{
public:
    static constexpr std::uint64_t kCapacity = 1024; ///< older entries are overwritten

    static void Append(const CTile* tile)
    {
        if (s_readers.load(std::memory_order_relaxed) > 0)
            AppendEntry(tile);
    }

    /// Keeps the journal running from its construction on.
    class Reader
    {
    public:
        Reader();
        ~Reader();
        Reader(const Reader&) = delete;
        Reader& operator=(const Reader&) = delete;

        /// Hands each cabinet that changed since the last time to `take`; false when more changed than is
        /// kept.
        template <class Take> bool CatchUp(Take take)
        {
            const std::lock_guard<std::mutex> lock(s_mutex);
            const bool complete = s_end - m_read <= kCapacity;
            for (; complete && m_read < s_end; ++m_read)
                take(s_tiles[m_read % kCapacity]);
            m_read = s_end;
            return complete;
        }

    private:
        std::uint64_t m_read;
    };

private:
    static void AppendEntry(const CTile* tile);

    static std::atomic<int> s_readers;
    static std::mutex s_mutex;  ///< of what follows
    static std::uint64_t s_end; ///< entries appended so far
    static std::array<const CTile*, kCapacity> s_tiles;
};
