#pragma once

#include "common/xmlattributes.h"
#include "params/fieldname.h"
#include "params/paramtext.h"

#include <QDomElement>
#include <QHash>
#include <QList>
#include <QVector>

namespace params {

/// Answers the calls of ElementWriter by reading. Finds elements by name; of equal names the first one. An
/// absent value reads as 0 unless it may be absent, an absent group keeps its fields as they are. Counts are
/// believed as far as there are elements.
class ElementReader
{
public:
    template <class T> using Reference = T&;
    static constexpr bool kReads = true;

    explicit ElementReader(const QDomElement& element, bool withSource = true);
    bool WithSource() const { return m_withSource; }

    bool Has(const FieldName& name) const { return m_children.contains(name.Text()); }
    template <class T> T Value(const FieldName& name)
    {
        T value = T();
        Field(name, value);
        return value;
    }
    template <class T> void Field(const FieldName& name, T& value, FieldUse use = FieldUse::Both)
    {
        const QDomElement child = Child(name);
        if (!child.isNull() || use == FieldUse::Both)
            paramtext::FromText(child.text(), value);
    }
    void Negated(const FieldName& name, bool& value) { value = !Value<bool>(name); }
    template <class T> void Repeated(const FieldName& name, int k, T& value)
    {
        // Some writers number the values of one name.
        const QDomElement child = Child(name, k);
        paramtext::FromText((child.isNull() ? Child(name + k) : child).text(), value);
    }

    template <class Body> void Group(const FieldName& name, const Body& body)
    {
        const QDomElement child = Child(name);
        if (!child.isNull())
            Inside(child, body);
    }
    template <class Body> void OwnOrGroup(const FieldName& name, const Body& body)
    {
        Has(name) ? Group(name, body) : body();
    }
    /// Replaces all of the old record.
    template <class R> void Whole(R& record)
    {
        R fresh;
        Describe(*this, fresh);
        record = fresh;
    }
    template <class R> void Record(const FieldName& name, R& record)
    {
        Group(name, [&] { Whole(record); });
    }

    /// All elements, whatever their names.
    template <class Body> void EachChild(const Body& body)
    {
        for (QDomElement child = m_element.firstChildElement(); !child.isNull();
             child = child.nextSiblingElement())
            Inside(child, [&] { body(child.tagName()); });
    }
    template <class R, class Body> void Each(const FieldName& name, QList<R>& list, const Body& body)
    {
        list.clear();
        const QVector<QDomElement> children = m_children.value(name.Text());
        for (const QDomElement& child : children) {
            list.append(R());
            Inside(child, [&] { body(list.last()); });
        }
    }
    template <class R> void List(const FieldName& name, QList<R>& list)
    {
        Each(name, list, [&](R& entry) {
            if constexpr (kIsRecord<R>)
                Describe(*this, entry);
            else
                paramtext::FromText(m_element.text(), entry);
        });
    }
    template <class Body> void EachNumbered(const FieldName& name, int first, int count, const Body& body)
    {
        const QVector<int> numbers = ChildNumbers(name.Text(), first, count);
        for (const int number : numbers)
            Group(name + number, [&] { body(number); });
    }
    template <class R> void Counted(const FieldName& count, const FieldName& name, int first, QList<R>& list)
    {
        list.clear();
        EachNumbered(name, first, Value<int>(count), [&](int) {
            list.append(R());
            Describe(*this, list.last());
        });
    }
    template <class R>
    void CountedBehind(const FieldName& count, const FieldName& name, int first, QList<R>& list)
    {
        Counted(count, name, first, list);
    }
    template <class T, class Body>
    void Flat(const FieldName& count, const FieldName& base, QList<T>& list, const Body& body,
              int most = kNoLimit)
    {
        list.clear();
        for (const int number : ChildNumbers(base.Text(), 0, Value<int>(count)).mid(0, most)) {
            list.append(T());
            body(number, list.last());
        }
    }

private:
    using ChildIndex = QHash<QString, QVector<QDomElement>>;

    template <class Body> void Inside(const QDomElement& element, const Body& body)
    {
        const ElementReader outer = std::exchange(*this, ElementReader(element, m_withSource));
        body();
        *this = outer;
    }
    QDomElement Child(const FieldName& name, int occurrence = 0) const; ///< null when there are fewer
    /// The numbers from `first` to `first` + `count` - 1, in order, that close names which begin with `base`.
    QVector<int> ChildNumbers(const QString& base, int first, int count) const;

    QDomElement m_element;
    ChildIndex m_children;
    bool m_withSource;
};

} // namespace params
