#include "orvantools/cabinetmatch.h"

#include "orvantools/cabinetchange.h"

#include <OrvanData/orvandata.h>

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>
#include <unordered_set>
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

const CTileSet* TilesOf(const CSender& sender, int port)
{
    return port < sender.GetPortCount() ? &sender.GetPort(port)->GetTileSet() : nullptr;
}

void Append(std::vector<CabinetRef>& to, const std::vector<CabinetRef>& from)
{
    to.insert(to.end(), from.begin(), from.end());
}

/// What is left of each port goes both ways, and the better one is kept.
class SenderMatcher
{
public:
    SenderMatch Match(const CSender& a, const CSender& b);

private:
    void FindCrossing();
    std::vector<CabinetRef> TakeCrossing(std::vector<CabinetRef>& left) const;
    CabinetMatch MatchPort(const CabinetMatch& left, CabinetMatch byPlace) const;
    size_t CountDifferences(const CabinetMatch& match) const;

    std::vector<CabinetMatch> m_left;            ///< of each port, no pairs
    std::vector<CabinetMatch> m_byPlace;         ///< the same after the first pass by place
    std::unordered_set<const CTile*> m_crossing; ///< those that another port has at their place then, or had
};

SenderMatch SenderMatcher::Match(const CSender& a, const CSender& b)
{
    SenderMatch match;
    for (int port = 0; port < std::max(a.GetPortCount(), b.GetPortCount()); ++port) {
        CabinetMatch alike = MatchInOrder(port, TilesOf(a, port), TilesOf(b, port));
        PairLeft(alike, All);
        match.ports.push_back(std::move(alike.pairs));
        m_left.push_back({{}, std::move(alike.removed), std::move(alike.added)});
        m_byPlace.push_back(m_left.back());
        PairLeft(m_byPlace.back(), PlaceAndSize);
    }
    FindCrossing();
    for (size_t port = 0; port < m_left.size(); ++port) {
        const CabinetMatch best = MatchPort(m_left[port], std::move(m_byPlace[port]));
        match.ports[port].insert(match.ports[port].end(), best.pairs.begin(), best.pairs.end());
        Append(match.others.removed, best.removed);
        Append(match.others.added, best.added);
    }
    PairLeft(match.others, PlaceAndSize);
    return match;
}

void SenderMatcher::FindCrossing()
{
    CabinetMatch others;
    for (const CabinetMatch& port : m_byPlace) {
        Append(others.removed, port.removed);
        Append(others.added, port.added);
    }
    PairLeft(others, PlaceAndSize);
    for (const CabinetPair& pair : others.pairs) {
        m_crossing.insert(pair.a.tile);
        m_crossing.insert(pair.b.tile);
    }
}

std::vector<CabinetRef> SenderMatcher::TakeCrossing(std::vector<CabinetRef>& left) const
{
    std::vector<CabinetRef> staying;
    std::vector<CabinetRef> crossing;
    for (const CabinetRef& cabinet : left)
        (m_crossing.count(cabinet.tile) == 0 ? staying : crossing).push_back(cabinet);
    left = std::move(staying);
    return crossing;
}

CabinetMatch SenderMatcher::MatchPort(const CabinetMatch& left, CabinetMatch byPlace) const
{
    CabinetMatch byNumber = left;
    for (const KeyOf keyOf : {Number, PlaceAndSize, Place})
        PairLeft(byNumber, keyOf);
    const std::vector<CabinetRef> gone = TakeCrossing(byPlace.removed);
    const std::vector<CabinetRef> come = TakeCrossing(byPlace.added);
    for (const KeyOf keyOf : {Number, Place})
        PairLeft(byPlace, keyOf);
    Append(byPlace.removed, gone);
    Append(byPlace.added, come);
    return CountDifferences(byNumber) < CountDifferences(byPlace) ? byNumber : byPlace;
}

/// A cabinet that went to another port is counted there.
size_t SenderMatcher::CountDifferences(const CabinetMatch& match) const
{
    size_t count = match.added.size();
    for (const CabinetRef& cabinet : match.removed)
        count += m_crossing.count(cabinet.tile) == 0 ? 1U : 0U;
    for (const CabinetPair& pair : match.pairs) {
        const CabinetChange change(*pair.a.tile, *pair.b.tile);
        count +=
            (change.IsMoved() ? 1U : 0U) + (change.IsRenumbered() ? 1U : 0U) + (change.IsOther() ? 1U : 0U);
    }
    return count;
}

} // namespace

SenderMatch MatchCabinets(const CSender& a, const CSender& b)
{
    return SenderMatcher().Match(a, b);
}

} // namespace OrvanTools
