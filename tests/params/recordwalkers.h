#pragma once

#include "params/records/recordwalk.h"

#include <QColor>
#include <QList>
#include <QPointF>
#include <QSet>
#include <QVector>

#include <array>
#include <type_traits>

template <class T> constexpr bool kIsRecord = std::is_base_of_v<WalkedRecord<T>, T>;

/// Answers the calls of a record's walk and gives every field to `Self::Visit`.
template <class Self> class RecordVisitor
{
public:
    template <class T> void Field(const FieldName&, T& v) { self().Visit(v); }
    template <class T> void Key(const FieldName&, T& v) { self().Visit(v); }
    template <class T> void Negated(const FieldName&, T& v) { self().Visit(v); }
    template <class T> void Record(const FieldName&, T& v) { self().Visit(v); }
    template <class T> void Points(const FieldName&, T& v) { self().Visit(v); }
    template <class T> void Repeated(const FieldName&, int, T& v) { self().Visit(v); }
    template <class T> void Numbered(const FieldName&, int, T& v) { self().Visit(v); }
    template <class T> void Unnamed(T& v) { self().Visit(v); }
    template <class Body> void Group(const FieldName&, const Body& body) { body(); }
    void Limit(int) {}
    bool WithSource() const { return true; }

private:
    Self& self() { return static_cast<Self&>(*this); }
};

/// Gives every value of a record, however deep, a new one that no other value has (flags: the opposite). With
/// `only` set, the values before and after that one stay.
class ChangeValues : public RecordVisitor<ChangeValues>
{
public:
    explicit ChangeValues(int only = -1) : m_only(only) {}
    int Count() const { return m_count; } ///< values seen

    template <class T> void Visit(T& value)
    {
        if constexpr (kIsRecord<T>)
            T::Walk(*this, value);
        else if (const int n = m_count++; m_only < 0 || n == m_only)
            Change(value, n + 1);
    }
    template <class T, size_t n> void Visit(std::array<T, n>& values)
    {
        for (T& value : values)
            Visit(value);
    }
    template <class T> void Visit(QList<T>& values)
    {
        while (m_only < 0 && values.size() < 2)
            values.append(T());
        for (T& value : values)
            Visit(value);
    }

private:
    static void Change(bool& value, int) { value = !value; }
    static void Change(QString& value, int n) { value += QStringLiteral("名%1").arg(n); }
    static void Change(QColor& value, int n) { value.setRed(value.red() ^ (n % 255 + 1)); }
    static void Change(QPointF& value, int n) { value += QPointF(n, -n); }
    static void Change(QVector<float>& value, int n) { value.append(static_cast<float>(n)); }
    template <class T> static std::enable_if_t<std::is_enum_v<T>> Change(T& value, int n)
    {
        value = static_cast<T>(value + n);
    }
    template <class T> static std::enable_if_t<std::is_arithmetic_v<T>> Change(T& value, int n)
    {
        value = static_cast<T>(value + static_cast<T>(n % 100 + 1));
    }

    int m_only;
    int m_count = 0;
};

/// Finds the bytes of a record that its walk does not reach and that alignment does not explain: a field that
/// was forgotten. Records inside are looked through on their own.
class CoverBytes : public RecordVisitor<CoverBytes>
{
public:
    template <class R> static int Uncovered(R& record, size_t base = 0)
    {
        CoverBytes cover;
        cover.m_start = reinterpret_cast<const char*>(&record);
        cover.m_fieldOf = QVector<int>(static_cast<int>(sizeof(R)), 0);
        for (size_t i = 0; i < base; ++i)
            cover.m_fieldOf[static_cast<int>(i)] = 1;
        R::Walk(cover, record);
        return cover.m_nested + cover.CountGaps(alignof(R));
    }

    template <class T> void Visit(T& value)
    {
        if constexpr (kIsRecord<T>)
            m_nested += Uncovered(value);
        const auto offset = reinterpret_cast<const char*>(&value) - m_start;
        for (size_t i = 0; i < sizeof(T); ++i)
            m_fieldOf[static_cast<int>(offset) + static_cast<int>(i)] = static_cast<int>(alignof(T));
    }
    template <class T, size_t n> void Visit(std::array<T, n>& values)
    {
        for (T& value : values)
            Visit(value);
    }

private:
    int CountGaps(size_t recordAlignment) const
    {
        int uncovered = 0;
        for (int i = 0, gap = 0; i <= m_fieldOf.size(); ++i) {
            const int alignment = i < m_fieldOf.size() ? m_fieldOf[i] : static_cast<int>(recordAlignment);
            if (alignment == 0)
                ++gap;
            else if (gap >= alignment)
                uncovered += gap;
            if (alignment != 0)
                gap = 0;
        }
        return uncovered;
    }

    const char* m_start = nullptr;
    QVector<int> m_fieldOf; ///< for each byte the alignment of its field, 0: none
    int m_nested = 0;
};
