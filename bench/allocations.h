#pragma once

#include <cstddef>

/// Bytes that are allocated and not yet freed, as the allocator rounds them, of the whole program.
namespace allocations {

size_t Live();
size_t Peak();    ///< the most that was live since ResetPeak
void ResetPeak(); ///< to what is live now

} // namespace allocations
