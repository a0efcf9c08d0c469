#pragma once

#include "orvantools/pixeltext.h"

#include <QPoint>

#include <array>

class CTile;

namespace OrvanTools {

/// What a test picture shows on one cabinet, in the cabinet's own pixels before it is turned: a border, its
/// number in the chain, and below it the place of its left top as the project states it.
class PatternFace
{
public:
    explicit PatternFace(const CTile& tile); ///< of one that has an area

    enum class Part
    {
        Ground,
        Border,
        Text,
    };
    Part At(int x, int y) const;

    /// Colours the border and texts of row y from column `begin` to before `end`; `row` is the first of them.
    void PaintRow(int y, int begin, int end, uchar* row, uchar border, uchar text) const;

private:
    struct Label
    {
        PixelText text;
        QPoint leftTop;

        bool HasRow(int y) const { return y >= leftTop.y() && y < leftTop.y() + text.GetHeight(); }
        int Right() const { return leftTop.x() + text.GetWidth(); }
        bool IsInk(int x, int y) const { return text.IsInk(x - leftTop.x(), y - leftTop.y()); }
    };

    void Add(const QByteArray& text, int size, int gap);
    void PutInTheMiddle();

    QSize m_size;
    std::array<Label, 3> m_labels;
    int m_count = 0;
};

} // namespace OrvanTools
