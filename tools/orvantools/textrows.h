#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace OrvanTools {

/// A value of a project in words. Of rows with one name the first is compared with the first, and so on.
struct TextRow
{
    QString name;
    QString value;
};

using TextRows = std::vector<TextRow>;

QString Quoted(const QString& text);              ///< "none" when it is empty
QString SizeText(double width, double height);    ///< "1920x1080"
QString Counted(qint64 number, const char* noun); ///< "1 cabinet", "2 cabinets"

/// "NAME value, was value", "NAME value added", "NAME value removed", in the order of b, what was removed
/// first.
QStringList CompareRows(const TextRows& a, const TextRows& b);

} // namespace OrvanTools
