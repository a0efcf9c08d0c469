#include "orvantools/cabinetmatch.h"

#include "orvantools/cabinetchange.h"

#include <OrvanData/orvandata.h>

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>
#include <utility>

namespace OrvanTools {

namespace {

using Key = std::array<int, 5>;
using KeyOf = std::optional<Key> (*)(const CTile& tile);

std::optional<Key> Place(const CTile& tile)
{
    return Key{tile.GetX(), tile.GetY()};
}

std::optional<Key> PlaceAndSize(const CTile& tile)
{
    return Key{tile.GetX(), tile.GetY(), tile.GetWidth(), tile.GetHeight()};
}

std::optional<Key> Number(const CTile& tile)
{
    return tile.HasSetConnectIndex() ? std::optional(Key{tile.GetConnectionIndex()}) : std::nullopt;
}

std::optional<Key> All(const CTile& tile)
{
    Key key = *PlaceAndSize(tile);
    key.back() = std::max(tile.GetConnectionIndex(), -1); // every negative number means none
    return key;
}

struct Keyed
{
    Key key;
    CabinetRef cabinet;
};

/// By key and then in the order of the ports, taken out of what is left.
std::vector<Keyed> TakeKeyed(std::vector<CabinetRef>& left, KeyOf keyOf)
{
    std::vector<Keyed> keyed;
    std::vector<CabinetRef> others;
    for (const CabinetRef& cabinet : left) {
        if (const std::optional<Key> key = keyOf(*cabinet.tile))
            keyed.push_back({*key, cabinet});
        else
            others.push_back(cabinet);
    }
    left = std::move(others);
    std::sort(keyed.begin(), keyed.end(), [](const Keyed& x, const Keyed& y) {
        return std::tie(x.key, x.cabinet.port, x.cabinet.cabinet)
               < std::tie(y.key, y.cabinet.port, y.cabinet.cabinet);
    });
    return keyed;
}

/// Pairs what is left on both sides and has equal keys.
void PairLeft(CabinetMatch& match, KeyOf keyOf)
{
    if (match.removed.empty() || match.added.empty())
        return;
    const std::vector<Keyed> a = TakeKeyed(match.removed, keyOf);
    const std::vector<Keyed> b = TakeKeyed(match.added, keyOf);
    auto first = a.begin();
    auto second = b.begin();
    while (first != a.end() || second != b.end()) {
        if (second == b.end() || (first != a.end() && first->key < second->key))
            match.removed.push_back((first++)->cabinet);
        else if (first == a.end() || second->key < first->key)
            match.added.push_back((second++)->cabinet);
        else
            match.pairs.push_back({(first++)->cabinet, (second++)->cabinet});
    }
}

size_t CountDifferences(const CabinetMatch& match, size_t fromPair)
{
    size_t count = match.removed.size() + match.added.size();
    for (size_t i = fromPair; i < match.pairs.size(); ++i) {
        const CabinetChange change(*match.pairs[i].a.tile, *match.pairs[i].b.tile);
        count +=
            (change.IsMoved() ? 1U : 0U) + (change.IsRenumbered() ? 1U : 0U) + (change.IsOther() ? 1U : 0U);
    }
    return count;
}

/// Most ports are alike in their order too, which spares the sorting.
CabinetMatch MatchInOrder(int port, const CTileSet* a, const CTileSet* b)
{
    CabinetMatch match;
    const int countA = a ? a->GetCount() : 0;
    const int countB = b ? b->GetCount() : 0;
    match.pairs.reserve(static_cast<size_t>(std::min(countA, countB)));
    for (int i = 0; i < std::max(countA, countB); ++i) {
        const CabinetRef first{i < countA ? a->GetTile(i) : nullptr, port, i};
        const CabinetRef second{i < countB ? b->GetTile(i) : nullptr, port, i};
        if (first.tile && second.tile && All(*first.tile) == All(*second.tile)) {
            match.pairs.push_back({first, second});
            continue;
        }
        if (first.tile)
            match.removed.push_back(first);
        if (second.tile)
            match.added.push_back(second);
    }
    return match;
}

} // namespace

CabinetMatch MatchCabinets(int port, const CTileSet* a, const CTileSet* b)
{
    CabinetMatch byPlace = MatchInOrder(port, a, b);
    PairLeft(byPlace, All);
    if (byPlace.removed.empty() || byPlace.added.empty())
        return byPlace;
    const size_t alike = byPlace.pairs.size();
    CabinetMatch byNumber = byPlace;
    for (const KeyOf keyOf : {PlaceAndSize, Number, Place})
        PairLeft(byPlace, keyOf);
    for (const KeyOf keyOf : {Number, PlaceAndSize, Place})
        PairLeft(byNumber, keyOf);
    return CountDifferences(byNumber, alike) < CountDifferences(byPlace, alike) ? byNumber : byPlace;
}

CabinetMatch MatchAcrossPorts(std::vector<CabinetRef> removed, std::vector<CabinetRef> added)
{
    CabinetMatch match{{}, std::move(removed), std::move(added)};
    PairLeft(match, PlaceAndSize);
    return match;
}

} // namespace OrvanTools
