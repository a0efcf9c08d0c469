#pragma once

#include <vector>

class CTileSet;

namespace OrvanTools {

/// A numbered cabinet of a port. Both count from 0.
struct ChainLink
{
    int number;
    int cabinet; ///< place in the order of the port's cabinets
};

/// The numbered cabinets by number, those of one number in the order of the set.
std::vector<ChainLink> ChainOf(const CTileSet& tiles);

int NumberedCount(const CTileSet& tiles);

} // namespace OrvanTools
