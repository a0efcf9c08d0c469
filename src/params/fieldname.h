#pragma once

#include "records/comparedrecord.h"

#include <QString>

#include <algorithm>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>

/// The name of an element; of some it ends in a number.
class FieldName
{
public:
    FieldName(const char* name) : m_text(name) {}
    FieldName(std::string name) : m_text(std::move(name)) {}
    FieldName operator+(int number) const { return m_text + std::to_string(number); }
    const std::string& Utf8() const { return m_text; }
    QString Text() const { return QString::fromStdString(m_text); }

private:
    std::string m_text;
};

/// Parameter files keep values in the texts of elements. A record, or a part of a sender, is described once,
/// in
///     template <class F> void Describe(F& f, Ref<F, Record> record)
/// which hands its values in file order to an ElementWriter or an ElementReader.
namespace params {

/// How F takes a T: to write it, or to read into it.
template <class F, class T> using Ref = typename F::template Reference<T>;

template <class T> constexpr bool kIsRecord = std::is_base_of_v<ComparedRecord<T>, T>;
constexpr int kNoLimit = std::numeric_limits<int>::max();

/// A record in an element of its own, or one value.
template <class F, class T> void DescribeEntry(F& f, const FieldName& name, T& value)
{
    if constexpr (kIsRecord<std::remove_const_t<T>>)
        f.Record(name, value);
    else
        f.Field(name, value);
}

/// The elements of an array that are in use, numbered from `first` on.
template <class F, class Array>
void DescribeArray(F& f, const FieldName& name, int first, Array& values, int used = kNoLimit)
{
    const int count = std::min(used, static_cast<int>(values.size()));
    for (int i = 0; i < count; ++i)
        DescribeEntry(f, name + (first + i), values[static_cast<size_t>(i)]);
}

} // namespace params
