#include "layout/changejournal.h"

template <class Topic> std::atomic<int> TileJournal<Topic>::s_readers{0};
template <class Topic> std::mutex TileJournal<Topic>::s_mutex;
template <class Topic> std::atomic<std::uint64_t> TileJournal<Topic>::s_end{0};
template <class Topic> std::array<const CTile*, TileJournal<Topic>::kCapacity> TileJournal<Topic>::s_tiles{};

template <class Topic> void TileJournal<Topic>::AppendEntry(const CTile* tile)
{
    const std::lock_guard<std::mutex> lock(s_mutex);
    const std::uint64_t end = s_end.load(std::memory_order_relaxed);
    s_tiles[end % kCapacity] = tile;
    s_end.store(end + 1, std::memory_order_release);
}

template <class Topic> TileJournal<Topic>::Reader::Reader()
{
    s_readers.fetch_add(1, std::memory_order_relaxed);
    SkipUnread();
}

template <class Topic> TileJournal<Topic>::Reader::~Reader()
{
    s_readers.fetch_sub(1, std::memory_order_relaxed);
}

template class TileJournal<struct PlaceChanges>;
template class TileJournal<struct RecordChanges>;
