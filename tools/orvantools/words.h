#pragma once

#include <QString>
#include <QStringList>

namespace OrvanTools {

// Texts of drawings and sheets.

QString Tr(const char* text);                                      ///< translated
QString Counted(qint64 number, const char* one, const char* many); ///< "1 cabinet", "2 cabinets", translated
QString Joined(QStringList parts);                                 ///< in one line, without the empty ones

} // namespace OrvanTools
