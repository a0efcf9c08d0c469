#pragma once

#include "common/fieldtext.h"

#include <cstring>
#include <optional>
#include <string_view>

/// The attributes of one element in document order, UTF-8. They are borrowed from a parser for the length of
/// a call. Finding them in their order costs one comparison each.
class XmlAttributes
{
public:
    /// [ref] Five pointers each: name, prefix (null for none), namespace, begin and end of the value. libxml2
    /// gives them so; nothing is copied.
    XmlAttributes(const unsigned char* const* fives, int count)
        : m_first(fives), m_end(fives + kPointers * count), m_next(fives)
    {}

    static constexpr int kPointers = 5;

    int GetCount() const { return static_cast<int>((m_end - m_first) / kPointers); }

    /// The value, nothing when there is no such attribute.
    std::optional<std::string_view> Find(const char* name)
    {
        for (auto at = m_next; at != m_end; at += kPointers)
            if (IsNamed(at, name))
                return Take(at);
        for (auto at = m_first; at != m_next; at += kPointers)
            if (IsNamed(at, name))
                return Take(at);
        return std::nullopt;
    }

private:
    static const char* Text(const unsigned char* text) { return reinterpret_cast<const char*>(text); }

    /// The first character rules out most names without a call. A name with a prefix matches none.
    static bool IsNamed(const unsigned char* const* attribute, const char* name)
    {
        const char* own = Text(attribute[0]);
        return *own == *name && !attribute[1] && std::strcmp(own, name) == 0;
    }

    std::string_view Take(const unsigned char* const* at)
    {
        m_next = at + kPointers;
        return {Text(at[3]), static_cast<size_t>(at[4] - at[3])};
    }

    const unsigned char* const* m_first;
    const unsigned char* const* m_end;
    const unsigned char* const* m_next;
};

/// How a field of a record takes part in its file; both ways unless its description says otherwise.
enum class FieldUse
{
    Both,
    NeverRead,    ///< written for others, derived again on reading
    NeverWritten, ///< read under a name of its own
    IfPresent,    ///< keeps its value when the file lacks it; other fields read as zero then
};

/// Reads the fields of a record description from an element's attributes.
class AttributeReader
{
public:
    explicit AttributeReader(XmlAttributes& attributes) : m_attributes(attributes) {}

    template <class T> void Field(const char* name, T& value, FieldUse use = FieldUse::Both)
    {
        if (use == FieldUse::NeverRead)
            return;
        if (const auto text = m_attributes.Find(name))
            fieldtext::Read(*text, value);
        else if (use != FieldUse::IfPresent)
            value = T();
    }

private:
    XmlAttributes& m_attributes;
};
