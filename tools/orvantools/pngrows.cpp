#include "orvantools/pngrows.h"

#include <QIODevice>

#include <csetjmp>
#include <png.h>
#include <vector>

namespace OrvanTools {

namespace {

constexpr int kLevel = 1; ///< of 9: areas of one colour gain little from more
constexpr int kBitDepth = 8;
constexpr size_t kPiece = 1 << 16; ///< bytes between two writes to the device

bool WriteAll(QIODevice& device, const char* bytes, qint64 count)
{
    while (count > 0) {
        const qint64 taken = device.write(bytes, count);
        if (taken <= 0)
            return false;
        bytes += taken;
        count -= taken;
    }
    return true;
}

void WriteBytes(png_structp png, png_bytep bytes, png_size_t count)
{
    auto* device = static_cast<QIODevice*>(png_get_io_ptr(png));
    if (!WriteAll(*device, reinterpret_cast<const char*>(bytes), static_cast<qint64>(count)))
        png_error(png, "not taken");
}

void DoNotFlush(png_structp /*png*/)
{}

/// Without this the reason would be printed.
void Leave(png_structp png, png_const_charp /*why*/)
{
    png_longjmp(png, 1);
}

void PassOver(png_structp /*png*/, png_const_charp /*why*/)
{}

} // namespace

PngRows::PngRows(QIODevice& device)
    : m_png(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, Leave, PassOver))
{
    if (!m_png)
        return;
    m_info = png_create_info_struct(m_png);
    png_set_write_fn(m_png, &device, WriteBytes, DoNotFlush);
}

PngRows::~PngRows()
{
    png_destroy_write_struct(&m_png, &m_info);
}

/// libpng ends a call that fails by a jump to here. No object that has a destructor may live in between, so a
/// step is a handful of its calls and nothing else.
template <typename Step> bool PngRows::Try(Step step)
{
    if (m_failed || !m_info)
        return false;
    if (setjmp(png_jmpbuf(m_png)) != 0) {
        m_failed = true;
        return false;
    }
    step(m_png, m_info);
    return true;
}

bool PngRows::Begin(const QSize& size, const QVector<QRgb>& palette)
{
    std::vector<png_color> colors;
    for (const QRgb color : palette)
        colors.push_back({static_cast<png_byte>(qRed(color)), static_cast<png_byte>(qGreen(color)),
                          static_cast<png_byte>(qBlue(color))});
    m_width = size.width();
    return Try([&size, &colors](png_structp png, png_infop info) {
        png_set_IHDR(png, info, static_cast<png_uint_32>(size.width()),
                     static_cast<png_uint_32>(size.height()), kBitDepth, PNG_COLOR_TYPE_PALETTE,
                     PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        png_set_PLTE(png, info, colors.data(), static_cast<int>(colors.size()));
        png_set_compression_level(png, kLevel);
        png_set_compression_buffer_size(png, kPiece);
        png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP); // most rows are equal to those above them
        png_write_info(png, info);
    });
}

bool PngRows::Write(const uchar* rows, int count)
{
    const auto width = static_cast<size_t>(m_width);
    return Try([rows, count, width](png_structp png, png_infop /*info*/) {
        for (size_t i = 0; i < static_cast<size_t>(count); ++i)
            png_write_row(png, rows + i * width);
    });
}

bool PngRows::End()
{
    return Try([](png_structp png, png_infop info) { png_write_end(png, info); });
}

} // namespace OrvanTools
