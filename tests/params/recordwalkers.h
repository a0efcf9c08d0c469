#pragma once

#include "params/fieldname.h"
#include "params/paramtext.h"

#include <QColor>
#include <QList>
#include <QPointF>
#include <QVector>

#include <array>
#include <string>
#include <tuple>

/// The values of a record in the order in which it declares them, which no name in a file decides; "-" stands
/// for a record inside that is as it was made.
class ValuesInOrder
{
public:
    template <class R> static std::string Of(const R& record, const char* separator)
    {
        std::string text;
        const auto add = [&](const auto& value) { text += (text.empty() ? "" : separator) + Text(value); };
        std::apply([&](const auto&... values) { (add(values), ...); }, record.Values());
        return text;
    }

private:
    static std::string Text(const PortGroupName& name) { return name.data(); }
    static std::string Text(const QColor& color) { return color.name().toStdString(); }
    static std::string Text(const QPointF& point) { return Text(point.x()) + ',' + Text(point.y()); }
    template <class T, size_t n> static std::string Text(const std::array<T, n>& values)
    {
        return All(values);
    }
    template <class T> static std::string Text(const QList<T>& values) { return '[' + All(values) + ']'; }
    template <class T> static std::string Text(const QVector<T>& values) { return '[' + All(values) + ']'; }
    template <class T> static std::string Text(const T& value)
    {
        if constexpr (params::kIsRecord<T>)
            return value == T() ? "-" : Of(value, " ");
        else
            return paramtext::ToText(value);
    }
    template <class List> static std::string All(const List& values)
    {
        std::string text;
        for (const auto& value : values)
            text += (text.empty() ? "" : " ") + Text(value);
        return text;
    }
};

/// Finds the bytes of a record that its values do not reach and that alignment does not explain: a field that
/// was forgotten. Records inside are looked through on their own.
class CoverBytes
{
public:
    template <class R> static int Uncovered(const R& record, size_t base = 0)
    {
        CoverBytes cover;
        cover.m_start = reinterpret_cast<const char*>(&record);
        cover.m_fieldOf = QVector<int>(static_cast<int>(sizeof(R)), 0);
        for (size_t i = 0; i < base; ++i)
            cover.m_fieldOf[static_cast<int>(i)] = 1;
        std::apply([&](const auto&... values) { (cover.Visit(values), ...); }, record.Values());
        return cover.m_nested + cover.CountGaps(alignof(R));
    }

private:
    template <class T> void Visit(const T& value)
    {
        if constexpr (params::kIsRecord<T>)
            m_nested += Uncovered(value);
        const auto offset = reinterpret_cast<const char*>(&value) - m_start;
        for (size_t i = 0; i < sizeof(T); ++i)
            m_fieldOf[static_cast<int>(offset) + static_cast<int>(i)] = static_cast<int>(alignof(T));
    }
    template <class T, size_t n> void Visit(const std::array<T, n>& values)
    {
        for (const T& value : values)
            Visit(value);
    }
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
