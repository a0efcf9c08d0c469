#include "orvantools/textrows.h"

#include <QHash>

namespace OrvanTools {

namespace {

/// The values of each name, in the order of the rows.
QHash<QString, QStringList> ByName(const TextRows& rows)
{
    QHash<QString, QStringList> values;
    for (const TextRow& row : rows)
        values[row.name].append(row.value);
    return values;
}

/// Takes the next value of that name. False when there is none left.
bool TakeValue(QHash<QString, QStringList>& values, const QString& name, QString* value)
{
    const auto found = values.find(name);
    if (found == values.end() || found->isEmpty())
        return false;
    *value = found->takeFirst();
    return true;
}

} // namespace

QString Quoted(const QString& text)
{
    return text.isEmpty() ? QStringLiteral("none") : QLatin1Char('"') + text + QLatin1Char('"');
}

QString SizeText(double width, double height)
{
    return QString::number(width) + QLatin1Char('x') + QString::number(height);
}

QString Counted(qint64 number, const char* noun)
{
    return QString::number(number) + QLatin1Char(' ') + QLatin1String(noun)
           + (number == 1 ? QString() : QStringLiteral("s"));
}

QStringList CompareRows(const TextRows& a, const TextRows& b)
{
    QHash<QString, QStringList> before = ByName(a);
    QHash<QString, QStringList> after = ByName(b);
    QStringList differences;
    QString was;
    for (const TextRow& row : a) {
        if (!TakeValue(after, row.name, &was))
            differences.append(row.name + QLatin1Char(' ') + row.value + QStringLiteral(" removed"));
    }
    for (const TextRow& row : b) {
        if (!TakeValue(before, row.name, &was))
            differences.append(row.name + QLatin1Char(' ') + row.value + QStringLiteral(" added"));
        else if (was != row.value)
            differences.append(row.name + QLatin1Char(' ') + row.value + QStringLiteral(", was ") + was);
    }
    return differences;
}

} // namespace OrvanTools
