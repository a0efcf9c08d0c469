#include "orvantools/tagreader.h"

#include <algorithm>

namespace OrvanTools {

namespace {

constexpr auto kNowhere = std::string_view::npos;
constexpr std::string_view kBlanks = " \t\r\n";

struct Aside
{
    std::string_view begin;
    std::string_view end;
};

constexpr Aside kAsides[] = {{"<?", "?>"}, {"<!--", "-->"}, {"<![CDATA[", "]]>"}};

bool StartsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

/// The place of the `>` that ends a tag. One in the value of an attribute does not.
size_t EndOfTag(std::string_view bytes)
{
    for (size_t i = 0; i < bytes.size(); ++i) {
        const char c = bytes[i];
        if (c == '>')
            return i;
        if (c == '"' || c == '\'') {
            i = bytes.find(c, i + 1);
            if (i == kNowhere)
                return kNowhere;
        }
    }
    return kNowhere;
}

} // namespace

void TagReader::Take(std::string_view bytes)
{
    m_rest += bytes;
    const std::string_view rest = m_rest;
    size_t at = 0;
    for (size_t passed = 1; passed > 0 && at < rest.size(); at += passed)
        passed = m_aside.empty() ? TakeTag(rest.substr(at)) : PassAside(rest.substr(at));
    m_rest.erase(0, at);
}

std::string_view TagReader::Attribute(std::string_view attributes, std::string_view name)
{
    for (size_t at = attributes.find_first_not_of(kBlanks); at != kNowhere;
         at = attributes.find_first_not_of(kBlanks, at)) {
        const size_t quote = attributes.find_first_of("\"'", at);
        const size_t end = quote == kNowhere ? kNowhere : attributes.find(attributes[quote], quote + 1);
        if (end == kNowhere)
            break;
        const std::string_view found = attributes.substr(at, attributes.find_first_of(" \t\r\n=", at) - at);
        if (found == name)
            return attributes.substr(quote + 1, end - quote - 1);
        at = end + 1;
    }
    return {};
}

/// How many bytes are done with; 0: more of them are needed.
size_t TagReader::PassAside(std::string_view bytes)
{
    const size_t end = bytes.find(m_aside);
    if (end == kNowhere) // its end may have begun
        return bytes.size() - std::min(bytes.size(), m_aside.size() - 1);
    const size_t passed = end + m_aside.size();
    m_aside = {};
    return passed;
}

/// The same, up to the end of the next tag.
size_t TagReader::TakeTag(std::string_view bytes)
{
    const size_t begin = std::min(bytes.find('<'), bytes.size());
    const std::string_view tag = bytes.substr(begin);
    for (const Aside& aside : kAsides) {
        if (StartsWith(tag, aside.begin)) {
            m_aside = aside.end;
            return begin + aside.begin.size();
        }
    }
    const size_t end = EndOfTag(tag);
    if (end == kNowhere)
        return begin;
    const std::string_view inside = tag.substr(1, end - 1);
    if (StartsWith(inside, "/")) {
        --m_depth;
    } else if (!StartsWith(inside, "!")) {
        const size_t name = std::min(inside.find_first_of(" \t\r\n/"), inside.size());
        m_depth += tag[end - 1] == '/' ? 0 : 1;
        m_hasRoot = true;
        m_found(inside.substr(0, name), inside.substr(name));
    }
    return begin + end + 1;
}

} // namespace OrvanTools
