#pragma once

#include <QString>

/// The name of a field in a file; most are literals, a few are put together.
class FieldName
{
public:
    FieldName(const char* literal) : m_literal(literal) {} ///< [keep] ASCII
    FieldName(const QString& text) : m_text(text) {}
    QString Text() const { return m_literal ? QString::fromLatin1(m_literal) : m_text; }
    FieldName operator+(int number) const { return FieldName(Text() + QString::number(number)); }

private:
    const char* m_literal = nullptr;
    QString m_text;
};

/// Compares two records of a type by the walk of their fields. The other walkers (files, tests) answer the
/// same calls for one record:
///   Field     a value under its name; reading an absent one gives zero
///   Key       a value that is repeated in several places; an absent one is passed over
///   Negated   a flag whose file form is its opposite
///   Repeated  the k-th of several values of one name
///   Numbered  an array whose elements are named by their number from `first` on
///   Limit     how many elements of the next Numbered are in use
///   Record    a record in an element of its own
///   List      records in elements of one name
///   Points    the points of a curve in an element of their own
///   Group     fields in an element of their own
///   Unnamed   a value that this walk gives no name in a file
/// and WithSource(), whether the entries of an input carry their source index.
class RecordCompare
{
public:
    bool IsEqual() const { return m_equal; }

    template <class T> void Field(const FieldName&, const T& a, const T& b) { m_equal = m_equal && a == b; }
    template <class T> void Unnamed(const T& a, const T& b) { m_equal = m_equal && a == b; }
    template <class T> void Key(const FieldName&, const T& a, const T& b) { Unnamed(a, b); }
    template <class T> void Record(const FieldName&, const T& a, const T& b) { Unnamed(a, b); }
    template <class T> void List(const FieldName&, const T& a, const T& b) { Unnamed(a, b); }
    template <class T> void Numbered(const FieldName&, int, const T& a, const T& b) { Unnamed(a, b); }
    template <class T> void Repeated(const FieldName&, int, const T& a, const T& b) { Unnamed(a, b); }
    void Negated(const FieldName&, bool a, bool b) { Unnamed(a, b); }
    template <class T> void Points(const FieldName&, const T& a, const T& b) { Unnamed(a, b); }
    void Limit(int, int) {}
    bool WithSource() const { return true; }
    template <class Body> void Group(const FieldName&, const Body& body) { body(); }

private:
    bool m_equal = true;
};

/// Base of the plain parameter records. A record R describes itself once, in
///     template <class Fields, class... Records> static void Walk(Fields& f, Records&... r)
/// which hands every field to `f` in file order: of one record to read or write it, of two to compare them.
template <class R> struct WalkedRecord
{
    friend bool operator==(const R& a, const R& b)
    {
        RecordCompare compare;
        R::Walk(compare, a, b);
        return compare.IsEqual();
    }
    friend bool operator!=(const R& a, const R& b) { return !(a == b); }
};
