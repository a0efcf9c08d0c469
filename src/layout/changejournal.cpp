#include "layout/changejournal.h"

std::atomic<int> ChangeJournal::s_readers{0};
std::mutex ChangeJournal::s_mutex;
std::uint64_t ChangeJournal::s_end = 0;
std::array<const CTile*, ChangeJournal::kCapacity> ChangeJournal::s_tiles{};

void ChangeJournal::AppendEntry(const CTile* tile)
{
    const std::lock_guard<std::mutex> lock(s_mutex);
    s_tiles[s_end++ % kCapacity] = tile;
}

ChangeJournal::Reader::Reader()
{
    s_readers.fetch_add(1, std::memory_order_relaxed);
    const std::lock_guard<std::mutex> lock(s_mutex);
    m_read = s_end;
}

ChangeJournal::Reader::~Reader()
{
    s_readers.fetch_sub(1, std::memory_order_relaxed);
}
