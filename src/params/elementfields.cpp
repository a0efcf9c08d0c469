#include "params/elementfields.h"

#include "records/colorparams.h"

#include <cstring>

namespace {

bool IsDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

} // namespace

namespace paramtext {

QString ToText(const PortGroupName& name)
{
    const auto length = static_cast<int>(strnlen(name.data(), name.size()));
    return ToText(QString::fromUtf8(name.data(), length));
}

QString ToText(const PortGroupFlags& flags)
{
    const QByteArray bytes(reinterpret_cast<const char*>(flags.data()), static_cast<int>(flags.size()));
    return QString::fromLatin1(bytes.toHex(' ').toUpper());
}

void FromText(const QString& text, PortGroupName& name)
{
    const QByteArray utf8 = text.toUtf8();
    int length = std::min(utf8.size(), static_cast<int>(name.size()) - 1);
    const auto continues = [&](int at) { return (static_cast<quint8>(utf8[at]) & 0xC0) == 0x80; };
    while (length > 0 && length < utf8.size() && continues(length))
        --length;
    name.fill('\0');
    std::copy_n(utf8.constData(), length, name.begin());
}

void FromText(const QString& text, PortGroupFlags& flags)
{
    flags.fill(0);
    const auto bytes = text.simplified().split(QLatin1Char(' '));
    const auto count = std::min(static_cast<size_t>(bytes.size()), flags.size());
    for (size_t i = 0; i < count; ++i)
        flags[i] = static_cast<quint8>(bytes[static_cast<int>(i)].toUInt(nullptr, 16));
}

void FromText(const QString& text, quint32& value)
{
    value = static_cast<quint32>(text.toLongLong());
}

} // namespace paramtext

ElementWriter::ElementWriter(const QDomDocument& document, const QDomElement& parent, bool withSource)
    : m_document(document), m_element(parent), m_withSource(withSource)
{}

void ElementWriter::Points(const FieldName& name, const QList<QPointF>& points)
{
    Group(name, [&] {
        Field("AdjPointCount", points.size());
        for (int i = 0; i < points.size(); ++i) {
            Field(FieldName("PointX") + i, points[i].x());
            Field(FieldName("PointY") + i, points[i].y());
        }
    });
}

QDomElement ElementWriter::Append(const FieldName& name)
{
    QDomElement child = m_document.createElement(name.Text());
    m_element.appendChild(child);
    return child;
}

void ElementWriter::AppendText(const FieldName& name, const QString& text)
{
    Append(name).appendChild(m_document.createTextNode(text));
}

ElementReader::ElementReader(const QDomElement& element, bool withSource)
    : m_children(Index(element)), m_withSource(withSource)
{}

QDomElement ElementReader::Child(const QString& name, int occurrence) const
{
    const auto found = m_children.constFind(name);
    return found == m_children.constEnd() ? QDomElement() : found->value(occurrence);
}

QVector<QPair<int, QDomElement>> ElementReader::NumberedChildren(const QString& base, int first,
                                                                 int count) const
{
    QVector<QPair<int, QDomElement>> found;
    const QVector<int> numbers = ChildNumbers(base, first, count);
    for (const int number : numbers) {
        const QDomElement child = Child(base + QString::number(number));
        if (!child.isNull())
            found.append({number, child});
    }
    return found;
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

void ElementReader::Points(const FieldName& name, QList<QPointF>& points)
{
    points.clear();
    Group(name, [&] {
        const auto numbers = ChildNumbers(QStringLiteral("Point"), 0, Value<int>("AdjPointCount"));
        for (const int number : numbers) {
            if (points.size() == kMaxCurvePoints)
                break;
            points.append(QPointF(Value<double>(FieldName("PointX") + number),
                                  Value<double>(FieldName("PointY") + number)));
        }
    });
}

ElementReader::ChildIndex ElementReader::Index(const QDomElement& element)
{
    ChildIndex children;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        children[child.tagName()].append(child);
    return children;
}
