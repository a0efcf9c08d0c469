#pragma once

#include <QtGlobal>

/// Finds a tag with more attributes than are taken, in the bytes of a UTF-8 document before they are parsed.
/// Parsers keep a tag whole and compare all its attributes before they tell of it. The first byte must begin
/// a tag, a comment or the like.
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
    char m_quote = 0;            ///< ends the value
    const char* m_asideEnd = ""; ///< what ends the comment, instruction or CDATA section
    int m_matched = 0;           ///< characters of it so far
    int m_values = 0;            ///< in the tag
};
