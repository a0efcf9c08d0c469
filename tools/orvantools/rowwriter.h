#pragma once

#include "orvantools/projectlist.h"

#include <QByteArray>

#include <vector>

class QIODevice;
class QString;

namespace OrvanTools {

/// Writes rows of named fields. The fields of a row are added in the order of the names.
class RowWriter
{
public:
    RowWriter(QIODevice& device, ListForm form, const std::vector<QByteArray>& names); ///< [keep] the device

    void Add(qint64 number) { AddNumber(QByteArray::number(number)); }
    void AddAngle(double degrees); ///< six significant digits, as in project files
    void AddPixels(double pixels); ///< one decimal
    void AddText(const QString& text);
    void AddEmpty(int count = 1);

    bool EndRow(); ///< false when the device does not take it
    bool Finish(); ///< writes the names when there was no row

private:
    void BeginField();
    void AddNumber(const QByteArray& text);

    QIODevice& m_device;
    bool m_json;
    std::vector<QByteArray> m_leads; ///< what stands before each field
    QByteArray m_row;
    size_t m_field = 0;
};

} // namespace OrvanTools
