#include "orvantools/chainturns.h"

#include "orvantools/wallview.h"

#include <algorithm>
#include <cmath>

namespace OrvanTools {

std::vector<size_t> ChainTurns(const WallPart& part, double scale, double leastRun)
{
    const std::vector<int>& chain = part.port->chain;
    const auto wayTo = [&](size_t at) {
        return at == 0 || at >= chain.size()
                   ? QPointF()
                   : (part.ShapeOf(chain[at]).Center() - part.ShapeOf(chain[at - 1]).Center()) * scale;
    };
    std::vector<size_t> turns;
    std::vector<double> runs; // from the turn before
    double run = 0;
    for (const int place : part.chain) {
        const auto at = static_cast<size_t>(place);
        const QPointF in = wayTo(at);
        const QPointF out = wayTo(at + 1);
        run += in.manhattanLength();
        const bool isEnd = at == 0 || at + 1 == chain.size();
        if (!isEnd && std::abs(in.x() * out.y() - in.y() * out.x()) <= 1e-6 * (1 + in.manhattanLength()))
            continue;
        turns.push_back(at);
        runs.push_back(run);
        run = 0;
    }
    std::vector<size_t> kept;
    for (size_t i = 0; i < turns.size(); ++i) {
        const double longer = i + 1 < turns.size() ? std::max(runs[i], runs[i + 1]) : runs[i];
        if (turns[i] == 0 || turns[i] + 1 == chain.size() || longer >= leastRun)
            kept.push_back(turns[i]);
    }
    return kept;
}

} // namespace OrvanTools
