#include "layout/changejournal.h"

ChangeJournal ChangeJournal::places;
ChangeJournal ChangeJournal::data;

void ChangeJournal::AppendEntry(const CTile* tile)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const std::uint64_t end = m_end.load(std::memory_order_relaxed);
    m_tiles[end % kCapacity] = tile;
    m_end.store(end + 1, std::memory_order_release);
}

ChangeJournal::Reader::Reader(ChangeJournal& journal) : m_journal(journal), m_read(End())
{
    m_journal.m_readers.fetch_add(1, std::memory_order_relaxed);
}

ChangeJournal::Reader::~Reader()
{
    m_journal.m_readers.fetch_sub(1, std::memory_order_relaxed);
}
