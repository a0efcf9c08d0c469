#include "common/xmltagguard.h"

#include "common/xmlreader.h"

#include <cstring>

bool XmlTagGuard::Accepts(const char* at, qint64 count)
{
    const char* const end = at + count;
    while (at != end) {
        if (m_place == Place::Text || m_place == Place::Value) {
            const char sought = m_place == Place::Text ? '<' : m_quote;
            at = static_cast<const char*>(std::memchr(at, sought, static_cast<size_t>(end - at)));
            if (!at)
                return true;
        }
        LookAt(*at++);
        if (m_values > kMaxXmlAttributes)
            return false;
    }
    return true;
}

void XmlTagGuard::LookAt(char c)
{
    switch (m_place) {
    case Place::Text:
        m_place = Place::Opening;
        break;
    case Place::Opening:
        m_values = 0;
        m_place = c == '!' ? Place::Declaring : Place::Tag;
        if (c == '?')
            BeginAside("?>");
        break;
    case Place::Declaring:
        m_place = Place::Commenting;
        if (c != '-')
            BeginAside(c == '[' ? "]]>" : ">");
        break;
    case Place::Commenting: // the second dash does not count for the end of the comment
        BeginAside("-->");
        break;
    case Place::Tag:
        if (c == '>')
            m_place = Place::Text;
        if (c != '"' && c != '\'')
            break;
        m_quote = c;
        ++m_values;
        m_place = Place::Value;
        break;
    case Place::Value:
        m_place = Place::Tag;
        break;
    case Place::Aside:
        if (c == m_asideEnd[m_matched])
            ++m_matched;
        else if (c != m_asideEnd[0]) // a dash more, as in "--->", ends it too
            m_matched = 0;
        if (m_asideEnd[m_matched] == '\0')
            m_place = Place::Text;
        break;
    }
}

void XmlTagGuard::BeginAside(const char* end)
{
    m_place = Place::Aside;
    m_asideEnd = end;
    m_matched = 0;
}
