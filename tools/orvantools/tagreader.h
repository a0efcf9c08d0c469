#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace OrvanTools {

/// Finds the start tags in a document that the library reads too, in one pass over its bytes. Text, comments,
/// instructions and CDATA sections are passed over, however long. Of the rules of XML it only looks whether
/// all elements are closed.
class TagReader
{
public:
    using Found = std::function<void(std::string_view name, std::string_view attributes)>;

    explicit TagReader(Found found) : m_found(std::move(found)) {}

    void Take(std::string_view bytes); ///< the next ones, of an encoding that leaves ASCII as it is
    bool IsComplete() const { return m_hasRoot && m_depth == 0 && m_rest.empty(); } ///< no element is open

    /// The value of an attribute as it stands, empty when there is none of that name.
    static std::string_view Attribute(std::string_view attributes, std::string_view name);

private:
    size_t PassAside(std::string_view bytes);
    size_t TakeTag(std::string_view bytes);

    Found m_found;
    std::string m_rest;       ///< not passed over yet: a tag without its end
    std::string_view m_aside; ///< what ends the comment, instruction or section that is passed over
    int m_depth = 0;          ///< elements open
    bool m_hasRoot = false;
};

} // namespace OrvanTools
