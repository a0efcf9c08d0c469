#include "common/canvaslimits.h"
#include "common/saturated.h"
#include "layout/tile.h"
#include "layout/tileset.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

/// How far a rectangle lies from the place that an arrow key starts at: first the gap, then the squared
/// distance of the centres in half pixels. Real numbers, since a host may move tiles anywhere.
using Distance = std::pair<double, double>;

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr Distance kTooFar{kInfinite, kInfinite};

double TwiceCentreX(const QRect& rect)
{
    return double(rect.left()) + rect.right();
}

double TwiceCentreY(const QRect& rect)
{
    return double(rect.top()) + rect.bottom();
}

/// Cabinets one pixel thick overlap too, which is why this is not IsRectIntersect.
bool ShareRow(const QRect& a, const QRect& b)
{
    return a.top() <= b.bottom() && b.top() <= a.bottom();
}

bool ShareColumn(const QRect& a, const QRect& b)
{
    return a.left() <= b.right() && b.left() <= a.right();
}

Distance DistanceFromOrigin(const QRect& to)
{
    const double dx = std::max({double(to.left()), -double(to.right()), 0.0});
    const double dy = std::max({double(to.top()), -double(to.bottom()), 0.0});
    const double cx = TwiceCentreX(to);
    const double cy = TwiceCentreY(to);
    return {dx * dx + dy * dy, cx * cx + cy * cy};
}

/// kTooFar unless `to` overlaps `from` on the cross axis and begins beyond its centre in the key's direction.
Distance DistanceAlongKey(const QRect& from, const QRect& to, unsigned long key)
{
    double gap = 0;
    bool ahead = false;
    switch (key) {
    case Qt::Key_Left:
        ahead = ShareRow(from, to) && 2.0 * to.right() < TwiceCentreX(from);
        gap = double(from.left()) - to.right();
        break;
    case Qt::Key_Right:
        ahead = ShareRow(from, to) && 2.0 * to.left() > TwiceCentreX(from);
        gap = double(to.left()) - from.right();
        break;
    case Qt::Key_Up:
        ahead = ShareColumn(from, to) && 2.0 * to.bottom() < TwiceCentreY(from);
        gap = double(from.top()) - to.bottom();
        break;
    case Qt::Key_Down:
        ahead = ShareColumn(from, to) && 2.0 * to.top() > TwiceCentreY(from);
        gap = double(to.top()) - from.bottom();
        break;
    }
    if (!ahead)
        return kTooFar;
    const double dx = TwiceCentreX(to) - TwiceCentreX(from);
    const double dy = TwiceCentreY(to) - TwiceCentreY(from);
    return {gap, dx * dx + dy * dy};
}

bool IsArrowKey(unsigned long key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

/// How many rectangles of a tile an arrow key can reach: its receiving cards, or the whole cabinet as one.
int StepCount(const CTile* tile, bool byReceiver)
{
    const int count = byReceiver && tile->IsMultiRcvTile() ? tile->GetMultiRcvsCount() : 1;
    return qMin(count, kMaxReceiversInTile);
}

QRect StepRect(CTile* tile, bool byReceiver, int index)
{
    return byReceiver && tile->IsMultiRcvTile() ? tile->GetMultiRcvRect(index) : tile->GetBound();
}

} // namespace

bool CTileSet::DirectionKeyConnection(unsigned long key)
{
    const CTile* end = GetEndIndexTile();
    const int current = end ? end->GetConnectionIndex() : -1;
    if (current == std::numeric_limits<int>::max())
        return false;
    CTile* next = GetDirectionTile(end ? end->GetBound() : QRect(), key, true, false);
    if (!next)
        return false;
    next->SetConnectionIndex(current + 1, nullptr);
    return true;
}

bool CTileSet::DirectionKeyDemarcateTile(unsigned long key, int& receiver)
{
    CTile* marked = nullptr;
    for (int i = 0; i < m_tiles.size() && !marked; ++i) {
        if (m_tiles.at(i)->GetMultiRcvDemarcateIndex() >= 0)
            marked = m_tiles.at(i);
    }
    const QRect from = marked ? StepRect(marked, true, marked->GetMultiRcvDemarcateIndex()) : QRect();
    CTile* next = GetDirectionTile(from, key, false, true);
    if (!next)
        return false;
    if (marked && marked != next)
        marked->SetMultiRcvDemarcateIndex(-1);
    const qint64 begin = next->GetBeginRcvCnnt();
    receiver = begin < 0 ? -1 : SaturatedInt(begin + next->GetMultiRcvDemarcateIndex());
    return true;
}

CTile* CTileSet::GetDirectionTile(const QRect& from, unsigned long key, bool onlyUnnumbered, bool byReceiver)
{
    if (!IsArrowKey(key))
        return nullptr;
    CTile* nearest = nullptr;
    int card = 0;
    Distance least = kTooFar;
    for (CTile* tile : qAsConst(m_tiles)) {
        if (onlyUnnumbered && tile->HasSetConnectIndex())
            continue;
        for (int i = 0; i < StepCount(tile, byReceiver); ++i) {
            const QRect rect = StepRect(tile, byReceiver, i);
            const Distance distance =
                from.isEmpty() ? DistanceFromOrigin(rect) : DistanceAlongKey(from, rect, key);
            if (distance >= least)
                continue;
            least = distance;
            nearest = tile;
            card = i;
        }
    }
    if (nearest && byReceiver)
        nearest->SetMultiRcvDemarcateIndex(card);
    return nearest;
}
