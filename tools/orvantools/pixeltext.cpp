#include "orvantools/pixeltext.h"

#include <algorithm>

namespace OrvanTools {

namespace {

constexpr int kGlyphs = 12; ///< the digits, comma, minus
constexpr int kCommaGlyph = 10;
constexpr int kMinusGlyph = 11;

constexpr int kWidth = 5;
constexpr int kHeight = 7;
constexpr uchar kRows[kGlyphs][kHeight] = {
    {0b01110, 0b10001, 0b10011, 0b10101, 0b11001, 0b10001, 0b01110},
    {0b00100, 0b01100, 0b00100, 0b00100, 0b00100, 0b00100, 0b01110},
    {0b01110, 0b10001, 0b00001, 0b00110, 0b01000, 0b10000, 0b11111},
    {0b11111, 0b00010, 0b00100, 0b00110, 0b00001, 0b10001, 0b01110},
    {0b00010, 0b00110, 0b01010, 0b10010, 0b11111, 0b00010, 0b00010},
    {0b11111, 0b10000, 0b11110, 0b00001, 0b00001, 0b10001, 0b01110},
    {0b00110, 0b01000, 0b10000, 0b11110, 0b10001, 0b10001, 0b01110},
    {0b11111, 0b00001, 0b00010, 0b00100, 0b01000, 0b01000, 0b01000},
    {0b01110, 0b10001, 0b10001, 0b01110, 0b10001, 0b10001, 0b01110},
    {0b01110, 0b10001, 0b10001, 0b01111, 0b00001, 0b00010, 0b01100},
    {0b00000, 0b00000, 0b00000, 0b00000, 0b01100, 0b00100, 0b01000},
    {0b00000, 0b00000, 0b00000, 0b11111, 0b00000, 0b00000, 0b00000},
};

constexpr int kSmallWidth = 3;
constexpr int kSmallHeight = 5;
constexpr uchar kSmallRows[kGlyphs][kSmallHeight] = {
    {0b111, 0b101, 0b101, 0b101, 0b111}, {0b010, 0b110, 0b010, 0b010, 0b111},
    {0b111, 0b001, 0b111, 0b100, 0b111}, {0b111, 0b001, 0b111, 0b001, 0b111},
    {0b101, 0b101, 0b111, 0b001, 0b001}, {0b111, 0b100, 0b111, 0b001, 0b111},
    {0b111, 0b100, 0b111, 0b101, 0b111}, {0b111, 0b001, 0b010, 0b010, 0b010},
    {0b111, 0b101, 0b111, 0b101, 0b111}, {0b111, 0b101, 0b111, 0b001, 0b111},
    {0b000, 0b000, 0b000, 0b010, 0b100}, {0b000, 0b000, 0b111, 0b000, 0b000},
};

int GlyphOf(char character)
{
    if (character == ',')
        return kCommaGlyph;
    return character == '-' ? kMinusGlyph : character - '0';
}

/// With a pixel between two characters.
int Columns(int characters, int width)
{
    return characters * (width + 1) - 1;
}

} // namespace

int PixelText::LargestSize(int characters, const QSize& room)
{
    const int size = std::min(room.width() / Columns(characters, kWidth), room.height() / kHeight);
    if (size > 0)
        return size;
    const bool fits = Columns(characters, kSmallWidth) <= room.width() && kSmallHeight <= room.height();
    return fits ? 0 : kNoSize;
}

int PixelText::GetWidth() const
{
    return m_size == 0 ? Columns(m_text.size(), kSmallWidth) : Columns(m_text.size(), kWidth) * m_size;
}

int PixelText::GetHeight() const
{
    return m_size == 0 ? kSmallHeight : kHeight * m_size;
}

bool PixelText::IsInk(int x, int y) const
{
    const int scale = std::max(1, m_size);
    const int width = m_size == 0 ? kSmallWidth : kWidth;
    const int column = x / scale % (width + 1);
    if (column == width)
        return false;
    const int glyph = GlyphOf(m_text[x / scale / (width + 1)]);
    const int row = m_size == 0 ? kSmallRows[glyph][y] : kRows[glyph][y / scale];
    return (row >> (width - 1 - column) & 1) != 0;
}

} // namespace OrvanTools
