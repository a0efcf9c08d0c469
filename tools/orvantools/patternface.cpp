#include "orvantools/patternface.h"

#include <OrvanData/orvandata.h>

#include <algorithm>

namespace OrvanTools {

namespace {

constexpr int kBorder = 1;
constexpr int kMarginParts = 24;

/// Between the edge of a cabinet and its texts, so that they do not touch the border.
int MarginOf(const QSize& size)
{
    return kBorder + std::max(1, std::min(size.width(), size.height()) / kMarginParts);
}

/// Between two lines of text.
int GapOf(int size)
{
    return std::max(1, size);
}

} // namespace

PatternFace::PatternFace(const CTile& tile) : m_size(tile.GetSize())
{
    const int margin = MarginOf(m_size);
    const QSize room = m_size - QSize(2 * margin, 2 * margin);
    const QByteArray number =
        tile.HasSetConnectIndex() ? QByteArray::number(qint64(tile.GetConnectionIndex()) + 1) : QByteArray();
    const QByteArray across = QByteArray::number(tile.GetX()) + ',';
    const QByteArray down = QByteArray::number(tile.GetY());

    // The number takes at most the upper half where that leaves it readable.
    int size = PixelText::LargestSize(std::max(1, number.size()), QSize(room.width(), room.height() / 2));
    if (size == PixelText::kNoSize)
        size = PixelText::LargestSize(std::max(1, number.size()), room);
    const int most = (size + 1) / 3; // smaller than the number, so that the two are not mixed up
    int left = room.height();
    if (!number.isEmpty() && size != PixelText::kNoSize) {
        Add(number, size, 0);
        left -= m_labels[0].text.GetHeight() + 2 * GapOf(most);
    }

    const QSize half(room.width(), (left - GapOf(most)) / 2);
    const int inOne =
        std::min(most, PixelText::LargestSize(across.size() + down.size(), QSize(room.width(), left)));
    const int inTwo = std::min(most, PixelText::LargestSize(std::max(across.size(), down.size()), half));
    if (inOne < 1 && inTwo > inOne) {
        Add(across, inTwo, 2 * GapOf(most));
        Add(down, inTwo, GapOf(inTwo));
    } else if (inOne != PixelText::kNoSize) {
        Add(across + down, inOne, 2 * GapOf(most));
    }
    PutInTheMiddle();
}

/// Below the labels before it.
void PatternFace::Add(const QByteArray& text, int size, int gap)
{
    Label& label = m_labels[static_cast<size_t>(m_count)];
    label.text = PixelText(text, size);
    if (m_count > 0) {
        const Label& before = m_labels[static_cast<size_t>(m_count) - 1];
        label.leftTop.setY(before.leftTop.y() + before.text.GetHeight() + gap);
    }
    label.leftTop.setX((m_size.width() - label.text.GetWidth()) / 2);
    ++m_count;
}

void PatternFace::PutInTheMiddle()
{
    if (m_count == 0)
        return;
    const Label& last = m_labels[static_cast<size_t>(m_count) - 1];
    const int top = (m_size.height() - last.leftTop.y() - last.text.GetHeight()) / 2;
    for (Label& label : m_labels)
        label.leftTop.ry() += top;
}

PatternFace::Part PatternFace::At(int x, int y) const
{
    if (x < kBorder || y < kBorder || x >= m_size.width() - kBorder || y >= m_size.height() - kBorder)
        return Part::Border;
    for (int i = 0; i < m_count; ++i) {
        const Label& label = m_labels[static_cast<size_t>(i)];
        if (label.HasRow(y) && x >= label.leftTop.x() && x < label.Right() && label.IsInk(x, y))
            return Part::Text;
    }
    return Part::Ground;
}

void PatternFace::PaintRow(int y, int begin, int end, uchar* row, uchar border, uchar text) const
{
    if (y < kBorder || y >= m_size.height() - kBorder) {
        std::fill(row, row + (end - begin), border);
        return;
    }
    if (begin < kBorder)
        row[0] = border;
    if (end > m_size.width() - kBorder)
        row[end - begin - 1] = border;
    for (int i = 0; i < m_count; ++i) {
        const Label& label = m_labels[static_cast<size_t>(i)];
        if (!label.HasRow(y))
            continue;
        for (int x = std::max(begin, label.leftTop.x()); x < std::min(end, label.Right()); ++x) {
            if (label.IsInk(x, y))
                row[x - begin] = text;
        }
    }
}

} // namespace OrvanTools
