#pragma once

#include <vector>

class CTile;
class CTileSet;

namespace OrvanTools {

/// A cabinet of a sender, counted from 0.
struct CabinetRef
{
    const CTile* tile; ///< [ref]
    int port;
    int cabinet; ///< place in the order of the port's cabinets
};

/// The same cabinet in two projects.
struct CabinetPair
{
    CabinetRef a;
    CabinetRef b;
};

struct CabinetMatch
{
    std::vector<CabinetPair> pairs;
    std::vector<CabinetRef> removed; ///< without a partner in b
    std::vector<CabinetRef> added;   ///< without one in a
};

/// Pairs the cabinets of a port by place and size first, or by number first, whichever leaves fewer
/// differences; by place when both leave as many. What is left then goes by the other of the two, and at last
/// by place alone. Null stands for a port that one of the projects does not use.
CabinetMatch MatchCabinets(int port, const CTileSet* a, const CTileSet* b);

/// Pairs by place and size what is left on the ports of a sender.
CabinetMatch MatchAcrossPorts(std::vector<CabinetRef> removed, std::vector<CabinetRef> added);

} // namespace OrvanTools
