#include "params/elementreader.h"

#include <algorithm>

namespace params {

namespace {

bool IsDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

} // namespace

ElementReader::ElementReader(const QDomElement& element, bool withSource)
    : m_element(element), m_withSource(withSource)
{
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        m_children[child.tagName()].append(child);
}

QDomElement ElementReader::Child(const FieldName& name, int occurrence) const
{
    const auto found = m_children.constFind(name.Text());
    return found == m_children.constEnd() ? QDomElement() : found->value(occurrence);
}

QVector<int> ElementReader::ChildNumbers(const QString& base, int first, int count) const
{
    QVector<int> numbers;
    for (auto child = m_children.keyBegin(); child != m_children.keyEnd(); ++child) {
        int digits = 0;
        while (digits < child->size() - base.size() && IsDigit(child->at(child->size() - 1 - digits)))
            ++digits;
        const QString text = child->right(digits);
        const int number = text.toInt();
        if (number >= first && number - first < count && text == QString::number(number)
            && child->startsWith(base))
            numbers.append(number);
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

} // namespace params
