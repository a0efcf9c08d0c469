#pragma once

#include "params/elementfields.h"

#include <QColor>
#include <QList>
#include <QPointF>
#include <QVector>

#include <array>
#include <map>
#include <string>
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

/// The values of a record in the order in which it declares them, which no walk and no name of a file
/// decides;
/// "-" stands for a record inside that is as it was made.
class ValuesInOrder : public RecordVisitor<ValuesInOrder>
{
public:
    template <class R> static std::string Of(R& record, const char* separator)
    {
        ValuesInOrder values;
        R::Walk(values, record);
        std::string text;
        for (const auto& value : values.m_texts)
            text += (text.empty() ? "" : separator) + value.second;
        return text;
    }

    template <class T> void Visit(T& value) { m_texts[&value] = Text(value); }

private:
    static std::string Text(PortGroupName& name) { return name.data(); }
    static std::string Text(QColor& color) { return color.name().toStdString(); }
    static std::string Text(QPointF& point) { return Text(point.rx()) + ',' + Text(point.ry()); }
    template <class T, size_t n> static std::string Text(std::array<T, n>& values) { return All(values); }
    template <class T> static std::string Text(QList<T>& values) { return '[' + All(values) + ']'; }
    template <class T> static std::string Text(QVector<T>& values) { return '[' + All(values) + ']'; }
    template <class T> static std::string Text(T& value)
    {
        if constexpr (kIsRecord<T>)
            return value == T() ? "-" : Of(value, " ");
        else
            return paramtext::ToText(value).toStdString();
    }
    template <class List> static std::string All(List& values)
    {
        std::string text;
        for (auto& value : values)
            text += (text.empty() ? "" : " ") + Text(value);
        return text;
    }

    std::map<const void*, std::string> m_texts; ///< by address; a key is walked in several places
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
