#include "orvantools/textrows.h"

#include <QHash>

namespace OrvanTools {

namespace {

QHash<QString, QString> ByName(const TextRows& rows)
{
    QHash<QString, QString> values;
    for (const TextRow& row : rows)
        values.insert(row.name, row.value);
    return values;
}

} // namespace

QString Quoted(const QString& text)
{
    return text.isEmpty() ? QStringLiteral("none") : QLatin1Char('"') + text + QLatin1Char('"');
}

QString Counted(qint64 number, const char* noun)
{
    return QString::number(number) + QLatin1Char(' ') + QLatin1String(noun)
           + (number == 1 ? QString() : QStringLiteral("s"));
}

QStringList CompareRows(const TextRows& a, const TextRows& b)
{
    const QHash<QString, QString> before = ByName(a);
    const QHash<QString, QString> after = ByName(b);
    QStringList differences;
    for (const TextRow& row : a) {
        if (!after.contains(row.name))
            differences.append(row.name + QLatin1Char(' ') + row.value + QStringLiteral(" removed"));
    }
    for (const TextRow& row : b) {
        const auto was = before.constFind(row.name);
        if (was == before.constEnd())
            differences.append(row.name + QLatin1Char(' ') + row.value + QStringLiteral(" added"));
        else if (*was != row.value)
            differences.append(row.name + QLatin1Char(' ') + row.value + QStringLiteral(", was ") + *was);
    }
    return differences;
}

} // namespace OrvanTools
