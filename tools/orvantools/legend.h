#pragma once

#include "orvantools/wallpainter.h"

#include <QFont>
#include <QStringList>

namespace OrvanTools {

/// What stands below a wall: a table of the ports, the marks, what is not shown, and the printed form at the
/// right. Lengths in the painter's units.
class Legend
{
public:
    /// [ref] the picture. Text gets smaller from `text` to `leastText` until all ports fit into the size;
    /// those that do not are counted.
    Legend(const WallPicture& picture, const QFont& font, const QSizeF& most, double text, double leastText);

    double GetHeight() const { return m_height; }
    void Paint(QPainter& painter, const QPointF& leftTop, const Omissions& omissions) const;

private:
    /// A column of the table, but for the swatch at its left.
    struct Field
    {
        QString heading;
        QStringList texts; ///< one for each port
        bool isNumber;
        double width; ///< in parts of the text's height
    };

    void MakeFields(QFont font);
    void Arrange(double text, double mostHeight);
    bool Fits() const { return m_shown == static_cast<int>(m_picture.ports.size()); }
    void PaintPort(QPainter& painter, const PicturePort& port, const QRectF& row) const;
    void PaintFields(QPainter& painter, int port, const QRectF& row) const; ///< -1: the headings
    void PaintForm(QPainter& painter, const QPointF& leftTop) const;

    const WallPicture& m_picture;
    double m_width;
    std::vector<Field> m_fields;
    double m_needed = 0; ///< width of a table in parts of the text's height
    double m_form = 0;   ///< the same of the printed form
    double m_text = 0;
    double m_row = 0;
    double m_formWidth = 0;
    double m_tableWidth = 0;
    int m_columns = 1; ///< tables side by side
    int m_rows = 0;
    int m_shown = 0; ///< ports
    double m_height = 0;
};

/// What the marks on a wall mean, in one line. `text`: its height.
void PaintMarks(QPainter& painter, const QRectF& row, double text);

/// What has no readable place on a drawing, and how many ports its legend has no room for; empty: nothing.
QString OmissionText(const Omissions& omissions, size_t hiddenPorts = 0);

} // namespace OrvanTools
