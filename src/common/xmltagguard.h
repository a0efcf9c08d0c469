#pragma once

#include <QtGlobal>

/// Looks at bytes of a UTF-8 document before a parser does, from the beginning of a tag, a comment or the
/// like on, for a tag of more attributes than are taken: parsers hold a tag whole and compare its attributes
/// with one another before they tell of it.
class XmlTagGuard
{
public:
    bool Accepts(const char* bytes, qint64 count); ///< the next ones; false at the first such tag

private:
    enum class Place
    {
        Text,
        Opening,
        Declaring,
        Commenting,
        Tag,
        Value,
        Aside
    };

    void BeginAside(const char* end);
    void LookAt(char c);

    Place m_place = Place::Text;
    char m_quote = 0;            ///< that ends the value
    const char* m_asideEnd = ""; ///< what ends the comment, instruction or CDATA section
    int m_matched = 0;           ///< characters of that
    int m_values = 0;            ///< in the tag
};
