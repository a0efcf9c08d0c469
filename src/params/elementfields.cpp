#include "params/elementfields.h"

#include "params/records/colorparams.h"

#include <cstring>

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
    for (auto child = m_children.constBegin(); child != m_children.constEnd(); ++child) {
        if (!child.key().startsWith(base))
            continue;
        const QString digits = child.key().mid(base.size());
        const int number = digits.toInt();
        if (number >= first && number - first < count && digits == QString::number(number))
            found.append({number, child->first()});
    }
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    return found;
}

void ElementReader::Points(const FieldName& name, QList<QPointF>& points)
{
    points.clear();
    Group(name, [&] {
        const int count = std::min(Value<int>("AdjPointCount"), kMaxCurvePoints);
        for (int i = 0; i < count; ++i) {
            const QDomElement x = Child((FieldName("PointX") + i).Text());
            const QDomElement y = Child((FieldName("PointY") + i).Text());
            if (x.isNull() && y.isNull())
                break;
            QPointF point;
            paramtext::FromText(x.text(), point.rx());
            paramtext::FromText(y.text(), point.ry());
            points.append(point);
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
