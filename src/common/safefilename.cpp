#include "common/safefilename.h"

namespace {

constexpr int kMaxBytes = 120;

bool IsForbidden(QChar c)
{
    return c.unicode() < 0x20 || c.unicode() == 0x7f || QStringLiteral("/\\:*?\"<>|").contains(c);
}

QString CutToBytes(QString text)
{
    while (text.toUtf8().size() > kMaxBytes)
        text.chop(text.at(text.size() - 1).isLowSurrogate() ? 2 : 1);
    return text;
}

} // namespace

QString SafeFileName(const QString& text, const QString& fallback)
{
    QString name = text.left(kMaxBytes);
    for (QChar& c : name)
        if (IsForbidden(c))
            c = QLatin1Char('_');
    int dots = 0;
    while (dots < name.size() && name[dots] == QLatin1Char('.'))
        ++dots;
    name = CutToBytes(name.mid(dots));
    while (name.endsWith(QLatin1Char('.')) || name.endsWith(QLatin1Char(' ')))
        name.chop(1);
    return name.isEmpty() ? fallback : name;
}

QString UniqueNames::Take(const QString& name)
{
    int& number = m_numbers[name.toCaseFolded()];
    QString unique = name;
    while (m_taken.contains(unique.toCaseFolded())) {
        number = qMax(number + 1, 2);
        unique = name + QLatin1Char('_') + QString::number(number);
    }
    m_taken.insert(unique.toCaseFolded());
    return unique;
}
