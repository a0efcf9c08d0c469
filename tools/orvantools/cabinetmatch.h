#pragma once

#include <vector>

class CSender;
class CTile;

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

struct SenderMatch
{
    std::vector<std::vector<CabinetPair>> ports; ///< those that stayed on their port
    CabinetMatch others;                         ///< those that went to another one, that left and that came
};

/// Pairs the cabinets of each port by place and size first, or by number first, whichever leaves fewer
/// differences; by place when both leave as many. What is left then goes by the other of the two, by place
/// alone and at last by place and size on other ports. Ports that a sender does not use are empty.
SenderMatch MatchCabinets(const CSender& a, const CSender& b);

} // namespace OrvanTools
