#include "common/safefilename.h"

namespace {

bool IsForbidden(QChar c)
{
    return c.category() == QChar::Other_Control || QStringLiteral("/\\:*?\"<>|").contains(c);
}

QString CutToBytes(QString text)
{
    text.truncate(kMaxFileNameBytes + 1); // keeps a huge text from being converted over and over
    while (text.toUtf8().size() > kMaxFileNameBytes)
        text.chop(text.at(text.size() - 1).isLowSurrogate() ? 2 : 1);
    return text;
}

} // namespace

QString SafeFileName(const QString& text, const QString& fallback)
{
    int dots = 0;
    while (dots < text.size() && text[dots] == QLatin1Char('.'))
        ++dots;
    QString name = CutToBytes(text.mid(dots));
    for (QChar& c : name)
        if (IsForbidden(c))
            c = QLatin1Char('_');
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
