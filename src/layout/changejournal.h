#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>

class CTile;

/// The last cabinets, of any set, to which something happened, so that whoever keeps findings about cabinets
/// catches up with writes that went past its set. Kept only while somebody reads it; several threads may
/// write. Each topic has a journal of its own.
template <class Topic> class TileJournal
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

        /// Hands each cabinet noted since the last time to `take`; false when more were than are kept.
        template <class Take> bool CatchUp(Take take)
        {
            if (CountUnread() == 0)
                return true;
            const std::lock_guard<std::mutex> lock(s_mutex);
            const std::uint64_t end = s_end.load(std::memory_order_relaxed);
            const bool complete = end - m_read <= kCapacity;
            for (; complete && m_read < end; ++m_read)
                take(s_tiles[m_read % kCapacity]);
            m_read = end;
            return complete;
        }

        std::uint64_t CountUnread() const { return s_end.load(std::memory_order_acquire) - m_read; }
        void SkipUnread() { m_read = s_end.load(std::memory_order_acquire); }

    private:
        std::uint64_t m_read;
    };

private:
    static void AppendEntry(const CTile* tile);

    static std::atomic<int> s_readers;
    static std::mutex s_mutex;               ///< of what follows
    static std::atomic<std::uint64_t> s_end; ///< entries appended so far; read without the lock as well
    static std::array<const CTile*, kCapacity> s_tiles;
};

/// Changes of place, size or rotation.
using ChangeJournal = TileJournal<struct PlaceChanges>;
/// Cabinets that left the record they shared with somebody. One that writes on to a record of its own is not
/// noted again, nor are writes behind a pointer that was handed out.
using RecordJournal = TileJournal<struct RecordChanges>;

extern template class TileJournal<struct PlaceChanges>;
extern template class TileJournal<struct RecordChanges>;
