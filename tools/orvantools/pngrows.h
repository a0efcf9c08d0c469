#pragma once

#include <QRgb>
#include <QSize>
#include <QVector>

class QIODevice;

struct png_struct_def;
struct png_info_def;

namespace OrvanTools {

/// Writes a picture of up to 256 colours as a PNG, some rows at a time, so that it need not be in memory as a
/// whole. What is written depends on the pixels alone. After a failure every further call fails.
class PngRows
{
public:
    explicit PngRows(QIODevice& device); ///< [keep] open for writing
    ~PngRows();
    PngRows(const PngRows&) = delete;
    PngRows& operator=(const PngRows&) = delete;

    bool Begin(const QSize& size, const QVector<QRgb>& palette);
    bool Write(const uchar* rows,
               int count); ///< indices into the palette; rows follow each other without gaps
    bool End();

private:
    template <typename Step> bool Try(Step step);

    png_struct_def* m_png;
    png_info_def* m_info = nullptr;
    int m_width = 0;
    bool m_failed = false;
};

} // namespace OrvanTools
