#pragma once

#include "common/fieldtext.h"

#include <cstring>
#include <string_view>

/// The attributes of one element in document order, UTF-8, borrowed from a parser for the length of a call.
/// Looking them up in the order in which they stand costs one comparison each.
class XmlAttributes
{
public:
    /// [ref] Names and values in turn, closed by a null pointer.
    explicit XmlAttributes(const char* const* pairs) : m_pairs(pairs), m_next(pairs) {}

    int GetCount() const
    {
        int count = 0;
        for (const char* const* at = m_pairs; *at; at += 2)
            ++count;
        return count;
    }

    /// The value, null when there is no such attribute.
    const char* Find(const char* name)
    {
        for (const char* const* at = m_next; *at; at += 2)
            if (IsNamed(*at, name))
                return Take(at);
        for (const char* const* at = m_pairs; at != m_next; at += 2)
            if (IsNamed(*at, name))
                return Take(at);
        return nullptr;
    }

private:
    /// The first character tells most names apart without a call.
    static bool IsNamed(const char* attribute, const char* name)
    {
        return *attribute == *name && std::strcmp(attribute, name) == 0;
    }

    const char* Take(const char* const* at)
    {
        m_next = at + 2;
        return at[1];
    }

    const char* const* m_pairs;
    const char* const* m_next;
};

/// How a field of a record takes part in its file; both ways unless its description says otherwise.
enum class FieldUse
{
    Both,
    NeverRead,    ///< written for others, derived again on reading
    NeverWritten, ///< read under a name of its own
    IfPresent,    ///< absent on reading: keeps its value, where another field reads as zero
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
        const char* text = m_attributes.Find(name);
        if (text)
            fieldtext::Read(text, value);
        else if (use != FieldUse::IfPresent)
            value = T();
    }

private:
    XmlAttributes& m_attributes;
};
