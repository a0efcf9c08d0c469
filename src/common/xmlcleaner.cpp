#include "common/xmlcleaner.h"

#include <algorithm>
#include <array>

namespace {

bool IsControl(char c)
{
    return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r';
}

/// The bytes that need no closer look. It is a table because every byte of every file is looked up.
const std::array<bool, 256>& PlainBytes()
{
    static const std::array<bool, 256> plain = [] {
        std::array<bool, 256> table = {};
        for (int c = 0; c < 256; ++c)
            table[static_cast<size_t>(c)] = c != '&' && !IsControl(static_cast<char>(c));
        return table;
    }();
    return plain;
}

} // namespace

void XmlCleaner::Take(const char* bytes, qint64 count, QByteArray& clean)
{
    const std::array<bool, 256>& plain = PlainBytes();
    const char* const end = bytes + count;
    while (bytes != end) {
        if (m_part == Part::None) {
            const char* const begin = bytes;
            bytes =
                std::find_if_not(bytes, end, [&](char c) { return plain[static_cast<unsigned char>(c)]; });
            clean.append(begin, static_cast<int>(bytes - begin));
            if (bytes == end)
                return;
        }
        const char c = *bytes;
        if (IsControl(c) || TakeAsReference(c))
            ++bytes;
        else
            GiveBack(clean);
    }
}

void XmlCleaner::Finish(QByteArray& clean)
{
    GiveBack(clean);
}

bool XmlCleaner::TakeAsReference(char c)
{
    switch (m_part) {
    case Part::None: // the caller stops at an ampersand alone
        m_part = Part::Ampersand;
        return true;
    case Part::Ampersand:
        if (c != '#')
            return false;
        m_part = Part::Hash;
        return true;
    case Part::Hash:
        if (c != 'x' && c != '0')
            return false;
        m_part = Part::Digits;
        m_hexadecimal = c == 'x';
        m_zeros = c == '0' ? 1 : 0;
        return true;
    case Part::Digits:
        if (c == ';' && m_zeros > 0)
            m_part = Part::None;
        else if (c == '0')
            ++m_zeros;
        else
            return false;
        return true;
    }
    return false;
}

void XmlCleaner::GiveBack(QByteArray& clean)
{
    if (m_part >= Part::Ampersand)
        clean.append('&');
    if (m_part >= Part::Hash)
        clean.append('#');
    if (m_part == Part::Digits) {
        if (m_hexadecimal)
            clean.append('x');
        clean.append(m_zeros, '0');
    }
    m_part = Part::None;
}
