#include "orvantools/words.h"

#include <QCoreApplication>

namespace OrvanTools {

QString Tr(const char* text)
{
    return QCoreApplication::translate("OrvanTools", text);
}

QString Counted(qint64 number, const char* one, const char* many)
{
    return Tr(number == 1 ? one : many).arg(number);
}

QString Joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(QStringLiteral("  ·  "));
}

} // namespace OrvanTools
