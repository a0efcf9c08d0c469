#include "orvantools/cabinetchain.h"

#include <OrvanData/orvandata.h>

#include <algorithm>
#include <tuple>

namespace OrvanTools {

std::vector<ChainLink> ChainOf(const CTileSet& tiles)
{
    std::vector<ChainLink> chain;
    for (int i = 0; i < tiles.GetCount(); ++i) {
        const CTile& tile = *tiles.GetTile(i);
        if (tile.HasSetConnectIndex())
            chain.push_back({tile.GetConnectionIndex(), i});
    }
    std::sort(chain.begin(), chain.end(), [](const ChainLink& a, const ChainLink& b) {
        return std::tie(a.number, a.cabinet) < std::tie(b.number, b.cabinet);
    });
    return chain;
}

int NumberedCount(const CTileSet& tiles)
{
    int numbered = 0;
    for (int i = 0; i < tiles.GetCount(); ++i)
        numbered += tiles.GetTile(i)->HasSetConnectIndex() ? 1 : 0;
    return numbered;
}

} // namespace OrvanTools
