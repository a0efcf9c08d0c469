#include "snaplines.h"

#include "scenemodel.h"

#include <algorithm>
#include <cstdlib>

namespace {

void Sort(std::vector<int>& edges)
{
    std::sort(edges.begin(), edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
}

} // namespace

SnapLines::SnapLines(const SceneModel& scene)
{
    const auto add = [this](const QRect& rect) {
        for (const int x : {rect.left(), rect.right() + 1}) {
            if (m_x.empty() || m_x.back() != x)
                m_x.push_back(x);
        }
        for (const int y : {rect.top(), rect.bottom() + 1}) {
            if (m_y.empty() || m_y.back() != y)
                m_y.push_back(y);
        }
    };
    if (!scene.GetCanvas().isNull())
        add(scene.GetCanvas());
    for (const ScenePort& port : scene.GetPorts()) {
        for (size_t i = 0; port.visible && i < port.cabinets.size(); ++i) {
            if (!port.cabinets[i].selected)
                add(port.cabinets[i].place);
        }
    }
    Sort(m_x);
    Sort(m_y);
}

/// How far to move so that one of the two meets an edge; 0 when none is near.
int SnapLines::Nearest(const std::vector<int>& edges, int first, int last, int reach)
{
    int best = 0;
    int least = reach + 1;
    for (const int side : {first, last}) {
        auto edge = std::lower_bound(edges.begin(), edges.end(), side - reach);
        for (; edge != edges.end() && *edge <= side + reach; ++edge) {
            if (std::abs(*edge - side) < least) {
                least = std::abs(*edge - side);
                best = *edge - side;
            }
        }
    }
    return best;
}

void SnapLines::Meet(const std::vector<int>& edges, int at, std::vector<int>& met)
{
    if (std::binary_search(edges.begin(), edges.end(), at))
        met.push_back(at);
}

SnapLines::Snapped SnapLines::Snap(const QRect& bound, const QPoint& by, int reach) const
{
    const QRect wanted = bound.translated(by);
    const QPoint drawn(Nearest(m_x, wanted.left(), wanted.right() + 1, reach),
                       Nearest(m_y, wanted.top(), wanted.bottom() + 1, reach));
    const QRect place = wanted.translated(drawn);
    Snapped snapped;
    snapped.moved = by + drawn;
    for (const int x : {place.left(), place.right() + 1})
        Meet(m_x, x, snapped.uprightAt);
    for (const int y : {place.top(), place.bottom() + 1})
        Meet(m_y, y, snapped.levelAt);
    return snapped;
}
