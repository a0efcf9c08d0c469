#include "layout/tileset.h"

#include "common/interfacedlg.h"
#include "common/saturated.h"
#include "layout/corners.h"
#include "layout/tile.h"
#include "layout/tileindex.h"

#include <algorithm>

namespace {

/// Grows from nothing; right and bottom one past the last pixel.
class Outline
{
public:
    void Add(qint64 left, qint64 top, qint64 right, qint64 bottom)
    {
        m_left = m_empty ? left : qMin(m_left, left);
        m_top = m_empty ? top : qMin(m_top, top);
        m_right = m_empty ? right : qMax(m_right, right);
        m_bottom = m_empty ? bottom : qMax(m_bottom, bottom);
        m_empty = false;
    }

    QRect Bound() const ///< the null rectangle for nothing
    {
        return m_empty ? QRect() : SaturatedRect(m_left, m_top, m_right - m_left, m_bottom - m_top);
    }

private:
    bool m_empty = true;
    qint64 m_left = 0;
    qint64 m_top = 0;
    qint64 m_right = 0;
    qint64 m_bottom = 0;
};

bool IsAt(const CTile& tile, const QPoint& point)
{
    if (!tile.IsTileRotated())
        return tile.GetBound().contains(point);
    CPointEx<double> corners[4];
    tile.GetRotateArea(corners);
    return IsInQuadrilateral(corners, point.x(), point.y());
}

bool IsWithin(const CTile& tile, const QRect& rect)
{
    if (!tile.IsTileRotated())
        return tile.GetBound() == tile.GetBound().intersected(rect);
    // Corners lie one past the last pixel, so the far edges count: a turned tile is within its own bound.
    CPointEx<double> corners[4];
    tile.GetRotateArea(corners);
    return std::all_of(corners, corners + 4, [&](const CPointEx<double>& c) {
        return c.x >= rect.left() && c.x <= rect.right() + 1.0 && c.y >= rect.top()
               && c.y <= rect.bottom() + 1.0;
    });
}

bool Touches(const CTile& tile, const QRect& rect)
{
    if (!tile.IsTileRotated())
        return !tile.GetBound().intersected(rect).isEmpty();
    CPointEx<double> corners[4];
    tile.GetRotateArea(corners);
    return std::any_of(corners, corners + 4, [&](const CPointEx<double>& c) {
        return c.x >= rect.left() && c.x < rect.right() + 1.0 && c.y >= rect.top()
               && c.y < rect.bottom() + 1.0;
    });
}

bool IsOnGrid(int place, int origin, int step)
{
    return step != 0 && (qint64(place) - origin) % step == 0;
}

/// Where a tile on the grid from `origin` goes when that changes its step.
int OnNewGrid(int place, int origin, int oldStep, int newStep)
{
    return SaturatedInt(origin + (qint64(place) - origin) / oldStep * newStep);
}

} // namespace

/// What the test takes, the last first; it takes nothing outside `area`.
template <class Test> QList<CTile*> CTileSet::FindFromTop(const QRect& area, const Test& takes) const
{
    if (!m_index)
        m_index = std::make_unique<TileIndex>();
    return m_index->FindFromTop(m_tiles, area, takes);
}

bool CTileSet::GetTileSetAtPosition(CTileSet& out, int x, int y) const
{
    const QPoint point(x, y);
    out.SetResult(FindFromTop(QRect(point, point), [=](const CTile& tile) { return IsAt(tile, point); }));
    return out.GetCount() > 0;
}

bool CTileSet::GetTileSetAtRect(CTileSet& out, const QRect& rect, bool whole) const
{
    const QRect area = rect.normalized();
    out.SetResult(FindFromTop(
        area, [=](const CTile& tile) { return whole ? IsWithin(tile, area) : Touches(tile, area); }));
    return out.GetCount() > 0;
}

bool CTileSet::GetTileSetAtRectWithCenter(CTileSet& out, const QRect& rect) const
{
    out.SetResult(
        FindFromTop(rect.normalized(), [=](const CTile& tile) { return rect.contains(tile.GetCenter()); }));
    return out.GetCount() > 0;
}

bool CTileSet::IsRectIntersect(const QRect& a, const QRect& b, bool vertical)
{
    if (vertical)
        return a.top() < b.bottom() && b.top() < a.bottom();
    return a.left() < b.right() && b.left() < a.right();
}

QRect CTileSet::GetBound() const
{
    Outline outline;
    for (const CTile* tile : m_tiles) {
        if (!tile->IsTileRotated()) {
            outline.Add(tile->GetX(), tile->GetY(), tile->GetRight(), tile->GetBottom());
            continue;
        }
        const QRect bound = tile->GetBound();
        outline.Add(bound.left(), bound.top(), qint64(bound.right()) + 1, qint64(bound.bottom()) + 1);
    }
    return outline.Bound();
}

QRect CTileSet::GetBound(bool useOffset, const QSize& offset) const
{
    Outline outline;
    for (const CTile* tile : m_tiles) {
        const bool dragged = useOffset && tile->IsSelected(InterfaceDesign);
        const qint64 x = qint64(tile->GetX()) + (dragged ? offset.width() : 0);
        const qint64 y = qint64(tile->GetY()) + (dragged ? offset.height() : 0);
        outline.Add(x, y, x + tile->GetWidth(), y + tile->GetHeight());
    }
    return outline.Bound();
}

void CTileSet::SetOffset(int dx, int dy)
{
    for (CTile* tile : qAsConst(m_tiles))
        tile->Offset(dx, dy);
}

void CTileSet::SetWidthAuto(int width, bool keepGrid)
{
    if (width < 1)
        return;
    const int left = GetBound().left();
    for (CTile* tile : qAsConst(m_tiles)) {
        if (keepGrid && IsOnGrid(tile->GetX(), left, tile->GetWidth()))
            tile->SetX(OnNewGrid(tile->GetX(), left, tile->GetWidth(), width));
        tile->SetWidth(width);
    }
}

void CTileSet::SetHeightAuto(int height, bool keepGrid)
{
    if (height < 1)
        return;
    const int top = GetBound().top();
    for (CTile* tile : qAsConst(m_tiles)) {
        if (keepGrid && IsOnGrid(tile->GetY(), top, tile->GetHeight()))
            tile->SetY(OnNewGrid(tile->GetY(), top, tile->GetHeight(), height));
        tile->SetHeight(height);
    }
}
