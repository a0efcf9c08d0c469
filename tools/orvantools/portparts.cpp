#include "orvantools/portparts.h"

#include "orvantools/cabinettexts.h"
#include "orvantools/wallpaintertools.h"
#include "orvantools/wallview.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace OrvanTools {

namespace {

constexpr double kAroundPart = 0.03; ///< of a part's width and height, to show where the chain goes on
constexpr double kPanelGap = 40;
constexpr double kRounding = 1e-9;
constexpr int kMostDepth = 64; ///< each level halves what is shown, unless cabinets lie on one another

class Splitter
{
public:
    Splitter(const PicturePort& port, const QSizeF& area, double leastText) : m_port(port), m_area(area)
    {
        const CabinetTextPlaces texts(port, leastText);
        m_wanted.reserve(port.cabinets.size());
        for (size_t i = 0; i < port.cabinets.size(); ++i)
            m_wanted.push_back(texts.ReadableScale(port.cabinets[i], port.shapes[i].Size()));
    }

    void Split(PortPart part, int depth)
    {
        const QSizeF size = part.bound.size();
        const double scale = std::min(m_area.width() / size.width(), m_area.height() / size.height());
        const bool across = size.width() * m_area.height() >= size.height() * m_area.width();
        if (scale * (1 + kRounding) >= part.scale || depth == kMostDepth
            || !(SplitAlong(part, across, depth) || SplitAlong(part, !across, depth))) {
            part.scale = std::min(part.scale, scale);
            m_parts.push_back(std::move(part));
        }
    }

    std::vector<PortPart> TakeParts() { return std::move(m_parts); }

    PortPart MakePart(std::vector<int> places) const
    {
        PortPart part;
        for (const int place : places) {
            part.bound = part.bound.united(m_port.shapes[static_cast<size_t>(place)].Bound());
            part.scale = std::max(part.scale, m_wanted[static_cast<size_t>(place)]);
        }
        part.bound.setSize(part.bound.size().expandedTo(QSizeF(1, 1)));
        part.places = std::move(places);
        return part;
    }

private:
    /// False when that gives no smaller parts.
    bool SplitAlong(const PortPart& part, bool across, int depth)
    {
        const double room = (across ? m_area.width() : m_area.height()) / part.scale;
        const double length = across ? part.bound.width() : part.bound.height();
        std::vector<Span> spans;
        double longest = 0;
        for (const int place : part.places) {
            const QRectF bound = m_port.shapes[static_cast<size_t>(place)].Bound();
            spans.push_back(across ? Span{bound.left(), bound.right(), place}
                                   : Span{bound.top(), bound.bottom(), place});
            longest = std::max(longest, spans.back().end - spans.back().begin);
        }
        std::sort(spans.begin(), spans.end(), [](const Span& a, const Span& b) {
            return std::tie(a.begin, a.place) < std::tie(b.begin, b.place);
        });
        std::vector<std::vector<int>> pieces = Cut(spans, room);
        if (pieces.size() == 1)
            return false;
        // As many pieces of about the same length, where that goes.
        std::vector<std::vector<int>> even =
            Cut(spans, std::min(room, length / static_cast<double>(pieces.size()) + longest));
        if (even.size() == pieces.size())
            pieces = std::move(even);
        for (std::vector<int>& piece : pieces)
            Split(MakePart(std::move(piece)), depth + 1);
        return true;
    }

    /// A cabinet along the side that is cut.
    struct Span
    {
        double begin;
        double end;
        int place;
    };

    /// Cuts sorted spans into pieces as long as `room` at most, but for single cabinets that are longer.
    static std::vector<std::vector<int>> Cut(const std::vector<Span>& spans, double room)
    {
        std::vector<std::vector<int>> pieces;
        double begin = 0;
        for (const Span& span : spans) {
            if (pieces.empty() || span.end - begin > room * (1 + kRounding)) {
                pieces.emplace_back();
                begin = span.begin;
            }
            pieces.back().push_back(span.place);
        }
        return pieces;
    }

    const PicturePort& m_port;
    QSizeF m_area;
    std::vector<double> m_wanted; ///< of each cabinet, page units a canvas pixel
    std::vector<PortPart> m_parts;
};

std::vector<PortPart> SplitPort(const PicturePort& port, const QSizeF& area, double leastText)
{
    std::vector<int> all(port.cabinets.size());
    for (size_t i = 0; i < all.size(); ++i)
        all[i] = static_cast<int>(i);
    Splitter splitter(port, area, leastText);
    splitter.Split(splitter.MakePart(std::move(all)), 0);
    return splitter.TakeParts();
}

/// Puts panels side by side in rows, and rows below one another, as long as there is room.
class PanelRows
{
public:
    explicit PanelRows(const QSizeF& body) : m_body(body) {}

    void Add(PortPart part, const QSizeF& size)
    {
        if (m_pages.empty() || !(FitsInRow(size) || BeginRow(size)))
            BeginPage();
        m_pages.back().push_back({std::move(part), QRectF(m_place, size)});
        m_rowHeight = std::max(m_rowHeight, size.height());
        m_place.rx() += size.width() + kPanelGap;
    }

    std::vector<PanelPage> TakePages() { return std::move(m_pages); }

private:
    bool FitsInRow(const QSizeF& size) const
    {
        return m_place.x() + size.width() <= m_body.width() && m_place.y() + size.height() <= m_body.height();
    }

    bool BeginRow(const QSizeF& size)
    {
        const double next = m_place.y() + m_rowHeight + kPanelGap;
        if (next + size.height() > m_body.height())
            return false;
        m_place = QPointF(0, next);
        m_rowHeight = 0;
        return true;
    }

    void BeginPage()
    {
        m_pages.emplace_back();
        m_place = QPointF();
        m_rowHeight = 0;
    }

    QSizeF m_body;
    std::vector<PanelPage> m_pages;
    QPointF m_place;
    double m_rowHeight = 0;
};

/// Makes the panels of a page larger, all by the same factor, as far as they have room, and puts them in the
/// middle.
void Enlarge(PanelPage& page, const QSizeF& body)
{
    QRectF taken;
    for (const Panel& panel : page)
        taken = taken.united(panel.area);
    const double factor = std::min(body.width() / taken.width(), body.height() / taken.height());
    const QPointF aside((body.width() - taken.width() * factor) / 2, 0);
    for (Panel& panel : page)
        panel.area = QRectF(panel.area.topLeft() * factor + aside, panel.area.size() * factor);
}

} // namespace

std::vector<PanelPage> LayOutPort(const PicturePort& port, const QSizeF& body, double leastText)
{
    const QSizeF frame(2 * WallView::kMargin, 2 * WallView::kMargin + kCaptionHeight);
    std::vector<PortPart> parts = SplitPort(port, (body - frame) / (1 + 2 * kAroundPart), leastText);
    const bool isWhole = parts.size() == 1;
    PanelRows rows(body);
    for (PortPart& part : parts) {
        part.shown = part.bound;
        if (!isWhole)
            part.shown += QMarginsF(part.bound.width() * kAroundPart, part.bound.height() * kAroundPart,
                                    part.bound.width() * kAroundPart, part.bound.height() * kAroundPart);
        const QSizeF size = part.shown.size() * part.scale * (1 + kRounding) + frame;
        rows.Add(std::move(part), size);
    }
    std::vector<PanelPage> pages = rows.TakePages();
    for (PanelPage& page : pages)
        Enlarge(page, body);
    return pages;
}

PartPictures::PartPictures(const PicturePort& port) : m_port(port), m_steps(port.cabinets.size(), -1)
{
    for (size_t i = 0; i < port.chain.size(); ++i)
        m_steps[static_cast<size_t>(port.chain[i])] = static_cast<int>(i);
}

PicturePort PartPictures::Make(const PortPart& part) const
{
    PicturePort picture;
    picture.index = m_port.index;
    picture.hidden = m_port.hidden;
    picture.color = m_port.color;
    if (part.places.size() == m_port.cabinets.size())
        picture.groups = m_port.groups; // the overview shows those that lie on several parts

    std::map<int, bool> steps; // in the chain: whether the cabinet is the part's own
    const int last = static_cast<int>(m_port.chain.size()) - 1;
    for (const int place : part.places) {
        const int step = m_steps[static_cast<size_t>(place)];
        if (step < 0) {
            Append(picture, place);
            continue;
        }
        steps[step] = true;
        steps.emplace(std::max(0, step - 1), false);
        steps.emplace(std::min(last, step + 1), false);
    }
    for (const auto& [step, isOwn] : steps) {
        picture.chain.push_back(static_cast<int>(picture.cabinets.size()));
        Append(picture, m_port.chain[static_cast<size_t>(step)]);
        if (!isOwn)
            picture.cabinets.back().receivers.clear(); // they are on its own page
    }
    picture.chainBegins = steps.empty() || steps.begin()->first == 0;
    picture.chainEnds = steps.empty() || steps.rbegin()->first == last;
    return picture;
}

void PartPictures::Append(PicturePort& picture, int place) const
{
    picture.shapes.push_back(m_port.shapes[static_cast<size_t>(place)]);
    picture.cabinets.push_back(m_port.cabinets[static_cast<size_t>(place)]);
}

} // namespace OrvanTools
