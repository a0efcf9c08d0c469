#pragma once

#include "common/texts.h"
#include "common/xmlreader.h"
#include "project/readreport.h"

#include <QSet>

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The numbered children of an element ("Tile_1", "Tile_2" …), collected as they come and given out by their
/// numbers: the first of equal ones, and none beyond the count that the element states. A file that holds
/// more than can be saved again is refused, so that the next save cannot cost the rest.
template <class Item> class NumberedChildren
{
public:
    NumberedChildren(std::string prefix, ReadReport& report) : m_prefix(std::move(prefix)), m_report(report)
    {}

    /// `most`: how many there may be, whatever the count says.
    void Start(int count, int most)
    {
        m_count = std::max(count, 0);
        m_most = most;
        m_items.clear();
        m_numbers.clear();
    }
    int GetCount() const { return m_count; }

    /// Whether a child of this name is wanted, which it is once. The next item added has its number.
    bool Expect(std::string_view name)
    {
        if (m_report.IsRefused())
            return false;
        if (name.substr(0, m_prefix.size()) != m_prefix)
            return Skip(name);
        const std::string_view digits = name.substr(m_prefix.size());
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), m_number);
        const bool isNumber =
            error == std::errc() && end == digits.data() + digits.size() && digits[0] != '0';
        const bool isWanted =
            isNumber && m_number >= 1 && m_number <= m_count && !m_numbers.contains(m_number);
        if (!isWanted)
            return Skip(name);
        if (m_numbers.size() >= m_most)
            return Overflow();
        m_numbers.insert(m_number);
        return true;
    }

    int GetNumber() const { return m_number; } ///< of the child last expected

    void Add(Item item) { m_items.emplace_back(m_number, std::move(item)); }

    /// The items in the order of their numbers.
    std::vector<Item> Take()
    {
        const auto before = [](const auto& a, const auto& b) { return a.first < b.first; };
        if (!std::is_sorted(m_items.begin(), m_items.end(), before))
            std::sort(m_items.begin(), m_items.end(), before);
        if (static_cast<int>(m_items.size()) < m_count)
            ReportMissing();

        std::vector<Item> items;
        items.reserve(m_items.size());
        for (auto& numbered : m_items)
            items.push_back(std::move(numbered.second));
        m_items.clear();
        return items;
    }

private:
    bool Skip(std::string_view name)
    {
        m_report.AddElement(name);
        return false;
    }

    bool Overflow()
    {
        m_report.Refuse(TooManyToRead(m_prefix, m_most));
        return false;
    }

    void ReportMissing()
    {
        m_report.Add(
            Texts::tr("%1：文件声明%2个，实有%3个")
                .arg(ChildrenName(m_prefix), QString::number(m_count), QString::number(m_items.size())));
    }

    std::string m_prefix;
    ReadReport& m_report;
    int m_count = 0;
    int m_most = 0;
    int m_number = 0;
    QSet<int> m_numbers; ///< of the children expected so far
    std::vector<std::pair<int, Item>> m_items;
};
