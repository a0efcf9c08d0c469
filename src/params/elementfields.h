#pragma once

#include "common/fieldtext.h"
#include "common/xmlattributes.h"
#include "records/outputparams.h"

#include <QDomDocument>
#include <QDomElement>
#include <QHash>
#include <QPointF>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

/// Text forms of values in parameter files. Reading never fails: what is no number is 0, a number wider than
/// its field is taken modulo the width, a flag is any number but 0, longer texts are cut.
namespace paramtext {

QString ToText(const PortGroupName& name);
QString ToText(const PortGroupFlags& flags); ///< two upper-case hexadecimal digits a byte, by blanks
void FromText(const QString& text, PortGroupName& name);   ///< cut to 63 bytes between two characters
void FromText(const QString& text, PortGroupFlags& flags); ///< absent and faulty bytes are 0
void FromText(const QString& text, quint32& value);

template <class T> QString ToText(const T& value)
{
    std::string text;
    if constexpr (std::is_enum_v<T> || (std::is_integral_v<T> && sizeof(T) < sizeof(int)))
        fieldtext::Append(text, static_cast<std::conditional_t<std::is_same_v<T, bool>, bool, int>>(value));
    else if constexpr (std::is_floating_point_v<T>)
        fieldtext::Append(text, std::isfinite(value) ? value : T());
    else
        fieldtext::Append(text, value);
    return QString::fromStdString(text);
}

template <class T> void FromText(const QString& text, T& value)
{
    const std::string bytes = text.toStdString();
    if constexpr (std::is_enum_v<T> || (std::is_integral_v<T> && !std::is_same_v<T, bool>)) {
        int number = 0;
        fieldtext::Read(bytes, number);
        value = static_cast<T>(number);
    } else {
        value = T();
        fieldtext::Read(bytes, value);
    }
}

} // namespace paramtext

template <class T> constexpr bool kIsWalkedRecord = std::is_base_of_v<WalkedRecord<T>, T>;

/// Writes the walk of a record as child elements, each with one text, in the order of the walk.
class ElementWriter
{
public:
    ElementWriter(const QDomDocument& document, const QDomElement& parent, bool withSource = true);

    template <class T> void Field(const FieldName& name, const T& value, FieldUse = FieldUse::Both)
    {
        AppendText(name, paramtext::ToText(value));
    }
    template <class T> void Key(const FieldName& name, const T& value) { Field(name, value); }
    template <class T> void Repeated(const FieldName& name, int, const T& value) { Field(name, value); }
    void Negated(const FieldName& name, bool value) { Field(name, !value); }
    template <class T> void Unnamed(const T&) {}
    void Limit(int count) { m_limit = count; }
    bool WithSource() const { return m_withSource; }

    template <class Body> void Group(const FieldName& name, const Body& body)
    {
        const QDomElement outer = std::exchange(m_element, Append(name));
        body();
        m_element = outer;
    }
    template <class R> void Record(const FieldName& name, const R& record)
    {
        Group(name, [&] { R::Walk(*this, record); });
    }
    template <class R> void List(const FieldName& name, const QList<R>& records)
    {
        for (const R& record : records)
            Entry(name, record);
    }
    template <class T, size_t n>
    void Numbered(const FieldName& name, int first, const std::array<T, n>& values)
    {
        const int count = std::min(std::exchange(m_limit, kNoLimit), static_cast<int>(n));
        for (int i = 0; i < count; ++i)
            Entry(name + (first + i), values[static_cast<size_t>(i)]);
    }
    void Points(const FieldName& name, const QList<QPointF>& points);

private:
    static constexpr int kNoLimit = 0x7fffffff;

    template <class T> void Entry(const FieldName& name, const T& value)
    {
        if constexpr (kIsWalkedRecord<T>)
            Record(name, value);
        else
            Field(name, value);
    }
    QDomElement Append(const FieldName& name);
    void AppendText(const FieldName& name, const QString& text);

    QDomDocument m_document;
    QDomElement m_element;
    bool m_withSource;
    int m_limit = kNoLimit;
};

/// Reads the walk of a record from the texts of child elements, found by name; of equal names the first one.
/// An absent value reads as 0 unless it may be absent, an absent group keeps its fields as they are.
class ElementReader
{
public:
    explicit ElementReader(const QDomElement& element, bool withSource = true);

    QDomElement Child(const QString& name, int occurrence = 0) const; ///< null when there are fewer
    QVector<QDomElement> Children(const QString& name) const { return m_children.value(name); }
    /// The children that `base` and a decimal number from `first` to `first` + `count` - 1 name, by number.
    /// As many as there are, whatever a count in a file claims.
    QVector<QPair<int, QDomElement>> NumberedChildren(const QString& base, int first, int count) const;
    /// The numbers among those, in order, that close the names of children which begin with `base`.
    QVector<int> ChildNumbers(const QString& base, int first, int count) const;

    template <class T> void Field(const FieldName& name, T& value, FieldUse use = FieldUse::Both)
    {
        const QDomElement child = Child(name.Text());
        if (!child.isNull() || use == FieldUse::Both)
            paramtext::FromText(child.text(), value);
    }
    template <class T> T Value(const FieldName& name)
    {
        T value = T();
        Field(name, value);
        return value;
    }
    template <class T> void Key(const FieldName& name, T& value) { Field(name, value, FieldUse::IfPresent); }
    template <class T> void Repeated(const FieldName& name, int k, T& value)
    {
        // Some writers number the values of one name.
        const QDomElement child = Child(name.Text(), k);
        paramtext::FromText((child.isNull() ? Child((name + k).Text()) : child).text(), value);
    }
    void Negated(const FieldName& name, bool& value) { value = !Value<bool>(name); }
    template <class T> void Unnamed(T&) {}
    void Limit(int count) { m_limit = count; }
    bool WithSource() const { return m_withSource; }

    template <class Body> void Group(const FieldName& name, const Body& body)
    {
        const QDomElement child = Child(name.Text());
        if (!child.isNull())
            Inside(child, body);
    }
    /// A record that is there replaces all of the old one.
    template <class R> void Record(const FieldName& name, R& record)
    {
        Group(name, [&] {
            R fresh;
            R::Walk(*this, fresh);
            record = fresh;
        });
    }
    template <class R> void List(const FieldName& name, QList<R>& records)
    {
        records.clear();
        const QVector<QDomElement> children = Children(name.Text());
        for (const QDomElement& child : children) {
            R record = R();
            if constexpr (kIsWalkedRecord<R>)
                Inside(child, [&] { R::Walk(*this, record); });
            else
                paramtext::FromText(child.text(), record);
            records.append(record);
        }
    }
    template <class T, size_t n> void Numbered(const FieldName& name, int first, std::array<T, n>& values)
    {
        const int count = std::min(std::exchange(m_limit, kNoLimit), static_cast<int>(n));
        for (int i = 0; i < count; ++i) {
            T& value = values[static_cast<size_t>(i)];
            if constexpr (kIsWalkedRecord<T>)
                Record(name + (first + i), value);
            else
                Field(name + (first + i), value);
        }
    }
    void Points(const FieldName& name, QList<QPointF>& points);

private:
    static constexpr int kNoLimit = 0x7fffffff;
    using ChildIndex = QHash<QString, QVector<QDomElement>>;

    template <class Body> void Inside(const QDomElement& element, const Body& body)
    {
        const ChildIndex outer = std::exchange(m_children, Index(element));
        body();
        m_children = outer;
    }
    static ChildIndex Index(const QDomElement& element);

    ChildIndex m_children;
    bool m_withSource;
    int m_limit = kNoLimit;
};
