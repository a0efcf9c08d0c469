#include "orvantools/edgelines.h"

#include <algorithm>
#include <tuple>

namespace OrvanTools {

void EdgeLines::Add(const QRectF& rect)
{
    m_horizontal.push_back({rect.top(), rect.left(), rect.right(), true});
    m_horizontal.push_back({rect.bottom(), rect.left(), rect.right(), false});
    m_vertical.push_back({rect.left(), rect.top(), rect.bottom(), true});
    m_vertical.push_back({rect.right(), rect.top(), rect.bottom(), false});
}

std::vector<EdgeLines::Edge> EdgeLines::Bordering(const std::vector<Edge>& edges)
{
    struct Event
    {
        double at;
        double place;
        int opening; // how many rectangles begin or end their edge here, by the side they lie on
        int closing;
    };
    std::vector<Event> events;
    for (const Edge& edge : edges) {
        events.push_back({edge.at, edge.from, edge.opens ? 1 : 0, edge.opens ? 0 : 1});
        events.push_back({edge.at, edge.to, edge.opens ? -1 : 0, edge.opens ? 0 : -1});
    }
    std::sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
        return std::tie(a.at, a.place) < std::tie(b.at, b.place);
    });
    std::vector<Edge> border;
    int opening = 0;
    int closing = 0;
    for (size_t i = 0; i + 1 < events.size(); ++i) {
        opening += events[i].opening;
        closing += events[i].closing;
        const Edge piece{events[i].at, events[i].place, events[i + 1].place, opening > 0};
        if ((opening > 0) == (closing > 0) || piece.from == piece.to)
            continue;
        Edge* last = border.empty() ? nullptr : &border.back();
        if (last && last->at == piece.at && last->to == piece.from && last->opens == piece.opens)
            last->to = piece.to;
        else
            border.push_back(piece);
    }
    return border;
}

std::vector<BorderLine> EdgeLines::GetBorder() const
{
    std::vector<BorderLine> lines;
    for (const Edge& edge : Bordering(m_horizontal))
        lines.push_back({QLineF(edge.from, edge.at, edge.to, edge.at), QPointF(0, edge.opens ? 1 : -1)});
    for (const Edge& edge : Bordering(m_vertical))
        lines.push_back({QLineF(edge.at, edge.from, edge.at, edge.to), QPointF(edge.opens ? 1 : -1, 0)});
    return lines;
}

} // namespace OrvanTools
