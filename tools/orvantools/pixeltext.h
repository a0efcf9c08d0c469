#pragma once

#include <QByteArray>
#include <QSize>

namespace OrvanTools {

/// One line of digits, commas and minus signs in whole pixels of its own. It is sharp at any size and the
/// same on every machine, as no font could be.
class PixelText
{
public:
    static constexpr int kNoSize = -1;

    PixelText() = default;
    PixelText(const QByteArray& text, int size) : m_text(text), m_size(size) {}

    /// The largest size at which so many characters fit. 0 is the smallest, 3 x 5 pixels a character; a size
    /// n above it has n times 5 x 7. kNoSize when not even the smallest fits.
    static int LargestSize(int characters, const QSize& room);

    int GetWidth() const;
    int GetHeight() const;
    bool IsInk(int x, int y) const; ///< of a pixel of this text, from its left top

private:
    QByteArray m_text;
    int m_size = 0;
};

} // namespace OrvanTools
