// Hit tests, beside linear scans of contiguous rectangles.
#include "figures.h"

#include "layout/tile.h"

#include <random>

namespace {

constexpr int kQueries = 1000;

struct PlainRect
{
    int left;
    int top;
    int right; ///< one past the last pixel, as the bottom
    int bottom;
};

/// One wall as the sets that are asked and as rectangles, and places to ask for.
class QueryBench
{
public:
    explicit QueryBench(const WallKind& kind, bool owning) : m_sender(MakeBenchWall(kind))
    {
        if (kind.ports > 1)
            SpreadPorts(kind.ports);
        m_sender->GetTileSet(m_all);
        m_set = owning ? &TilesOf(*m_sender) : &m_all;
        for (const CTile* tile : m_set->GetTiles())
            m_rects.push_back({tile->GetX(), tile->GetY(), tile->GetRight(), tile->GetBottom()});
        m_bound = m_set->GetBound();
    }

    /// Of a 1000 queries; a rectangle takes 1 % of the wall, a null size asks for points.
    Pair Queries(bool rectangles)
    {
        const QSize size = rectangles ? m_bound.size() / 10 : QSize(1, 1);
        return Interleaved([&] { return Seconds([&] { AskFloor(kQueries, size); }); },
                           [&] {
                               m_set->ExchangeTile(0, 1); // leaves no index
                               m_set->ExchangeTile(0, 1);
                               return Seconds([&] { Ask(kQueries, size); });
                           });
    }

    Pair QueryAfterMove()
    {
        Ask(2, QSize(1, 1));
        return Interleaved([&] { return Seconds([&] { MoveAndAskFloor(); }) / kMoves; },
                           [&] { return Seconds([&] { MoveAndAsk(); }) / kMoves; });
    }

private:
    static constexpr int kMoves = 20;

    /// The ports of a sender side by side, in one row.
    void SpreadPorts(int ports)
    {
        const int width = TilesOf(*m_sender).GetBound().width();
        for (int i = 0; i < ports; ++i)
            TilesOf(*m_sender, i).SetOffset(i * width, 0);
    }

    QPoint Place(const QSize& size)
    {
        const auto below = [this](int end) {
            return static_cast<int>(m_random() % static_cast<unsigned>(end));
        };
        return QPoint(below(m_bound.width() - size.width() + 1), below(m_bound.height() - size.height() + 1));
    }

    void AskFloor(int queries, const QSize& size)
    {
        for (int i = 0; i < queries; ++i) {
            const QPoint at = Place(size);
            const int right = at.x() + size.width();
            const int bottom = at.y() + size.height();
            m_found.clear();
            for (size_t n = m_rects.size(); n-- > 0;) {
                const PlainRect& rect = m_rects[n];
                if (rect.left < right && rect.right > at.x() && rect.top < bottom && rect.bottom > at.y())
                    m_found.push_back(m_set->GetTiles().at(static_cast<int>(n)));
            }
        }
    }

    void Ask(int queries, const QSize& size)
    {
        CTileSet out;
        for (int i = 0; i < queries; ++i) {
            const QPoint at = Place(size);
            if (size == QSize(1, 1))
                m_set->GetTileSetAtPosition(out, at.x(), at.y());
            else
                m_set->GetTileSetAtRect(out, QRect(at, size), false);
        }
    }

    void MoveAndAskFloor()
    {
        for (int i = 0; i < kMoves; ++i) {
            PlainRect& rect = m_rects[m_random() % m_rects.size()];
            rect.left ^= 1;
            AskFloor(1, QSize(1, 1));
        }
    }

    void MoveAndAsk()
    {
        for (int i = 0; i < kMoves; ++i) {
            CTile* tile = m_set->GetTile(static_cast<int>(m_random() % m_rects.size()));
            tile->SetX(tile->GetX() ^ 1);
            Ask(1, QSize(1, 1));
        }
    }

    std::unique_ptr<CSender> m_sender;
    CTileSet m_all;
    CTileSet* m_set = nullptr;
    std::vector<PlainRect> m_rects;
    std::vector<CTile*> m_found;
    QRect m_bound;
    std::mt19937 m_random{1};
};

} // namespace

void QueryFigures()
{
    // On 160 ports the owning set of one holds a part only, so there the sender's set is asked.
    const auto ask = [](const char* what, bool rectangles) {
        OnWalls({what, "ms", 1.5, 0.1},
                [=](const WallKind& kind) { return QueryBench(kind, kind.ports == 1).Queries(rectangles); });
    };
    ask("1000 queries at a point, with their index", false);
    ask("1000 queries in a rectangle of 1 %, with their index", true);
    OnWalls({"1000 queries in a rectangle of 1 %, set that refers", "ms", 1.5, 0.1},
            [](const WallKind& kind) { return QueryBench(kind, false).Queries(true); });
    OnWalls({"one query after moving one cabinet", "ms", 1.5, 0.1},
            [](const WallKind& kind) { return QueryBench(kind, kind.ports == 1).QueryAfterMove(); });
}
