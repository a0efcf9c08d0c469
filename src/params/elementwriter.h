#pragma once

#include "common/xmlwriter.h"
#include "params/fieldname.h"
#include "params/paramtext.h"

#include <QList>

namespace params {

/// Writes the values of a description as elements with one text each.
class ElementWriter
{
public:
    template <class T> using Reference = const T&;
    static constexpr bool kReads = false;

    /// [ref] `withSource`: the entries of an input carry their source index.
    explicit ElementWriter(XmlWriter& writer, bool withSource = true)
        : m_writer(writer), m_withSource(withSource)
    {}
    bool WithSource() const { return m_withSource; }
    bool Has(const FieldName&) const { return true; }

    template <class T> void Field(const FieldName& name, const T& value, FieldUse = FieldUse::Both)
    {
        Group(name, [&] { m_writer.Text(paramtext::ToText(value)); });
    }
    void Negated(const FieldName& name, bool value) { Field(name, !value); }
    /// The k-th of several values of one name.
    template <class T> void Repeated(const FieldName& name, int, const T& value) { Field(name, value); }

    template <class Body> void Group(const FieldName& name, const Body& body)
    {
        m_writer.BeginElement(name.Utf8());
        body();
        m_writer.EndElement();
    }
    /// Values that stand here, though readers take them from a group of that name too.
    template <class Body> void OwnOrGroup(const FieldName&, const Body& body) { body(); }
    template <class R> void Whole(const R& record) { Describe(*this, record); }
    template <class R> void Record(const FieldName& name, const R& record)
    {
        Group(name, [&] { Whole(record); });
    }

    /// Elements of one name.
    template <class R, class Body> void Each(const FieldName& name, const QList<R>& list, const Body& body)
    {
        for (const R& entry : list)
            Group(name, [&] { body(entry); });
    }
    template <class R> void List(const FieldName& name, const QList<R>& list)
    {
        for (const R& entry : list)
            DescribeEntry(*this, name, entry);
    }
    /// Elements with a number from `first` on.
    template <class Body> void EachNumbered(const FieldName& name, int first, int count, const Body& body)
    {
        for (int number = first; number < first + count; ++number)
            Group(name + number, [&] { body(number); });
    }
    /// Numbered records behind their count.
    template <class R>
    void Counted(const FieldName& count, const FieldName& name, int first, const QList<R>& list)
    {
        Field(count, list.size());
        EachNumbered(name, first, list.size(), [&](int number) { Whole(list[number - first]); });
    }
    /// Numbered records in front of their count.
    template <class R>
    void CountedBehind(const FieldName& count, const FieldName& name, int first, const QList<R>& list)
    {
        EachNumbered(name, first, list.size(), [&](int number) { Whole(list[number - first]); });
        Field(count, list.size());
    }
    /// Values numbered from 0 on behind their count, all of whose names begin alike.
    template <class T, class Body>
    void Flat(const FieldName& count, const FieldName&, const QList<T>& list, const Body& body,
              int = kNoLimit)
    {
        Field(count, list.size());
        for (int i = 0; i < list.size(); ++i)
            body(i, list[i]);
    }

private:
    XmlWriter& m_writer;
    bool m_withSource;
};

} // namespace params
