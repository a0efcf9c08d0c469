#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>

class CTile;

/// The last cabinets, of any set, to which something happened, so that whoever keeps findings about cabinets
/// catches up with writes that went past its set. Kept only while somebody reads it; several threads may
/// write.
class ChangeJournal
{
public:
    static constexpr std::uint64_t kCapacity = 1024; ///< older entries are overwritten

    static ChangeJournal places; ///< changes of place, size or rotation
    /// Cabinets that left the data they shared with somebody. One that writes on to data of its own is not
    /// noted again, nor are writes behind a pointer that was handed out.
    static ChangeJournal data;

    void Append(const CTile* tile)
    {
        if (m_readers.load(std::memory_order_relaxed) > 0)
            AppendEntry(tile);
    }

    /// Keeps the journal running from its construction on.
    class Reader
    {
    public:
        explicit Reader(ChangeJournal& journal);
        ~Reader();
        Reader(const Reader&) = delete;
        Reader& operator=(const Reader&) = delete;

        /// Hands each cabinet noted since the last time to `take`; false when more were than are kept.
        template <class Take> bool CatchUp(Take take)
        {
            if (CountUnread() == 0)
                return true;
            const std::lock_guard<std::mutex> lock(m_journal.m_mutex);
            const std::uint64_t end = m_journal.m_end.load(std::memory_order_relaxed);
            const bool complete = end - m_read <= kCapacity;
            for (; complete && m_read < end; ++m_read)
                take(m_journal.m_tiles[m_read % kCapacity]);
            m_read = end;
            return complete;
        }

        std::uint64_t CountUnread() const { return End() - m_read; }
        void SkipUnread() { m_read = End(); }

    private:
        std::uint64_t End() const { return m_journal.m_end.load(std::memory_order_acquire); }

        ChangeJournal& m_journal;
        std::uint64_t m_read;
    };

private:
    void AppendEntry(const CTile* tile);

    std::atomic<int> m_readers{0};
    std::mutex m_mutex;                  ///< of what follows
    std::atomic<std::uint64_t> m_end{0}; ///< entries appended so far; read without the lock as well
    std::array<const CTile*, kCapacity> m_tiles = {};
};
