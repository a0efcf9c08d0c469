#include "common/xmlcleaner.h"

namespace {

bool IsControl(char c)
{
    return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r';
}

} // namespace

void XmlCleaner::Take(const char* bytes, qint64 count, QByteArray& clean)
{
    const char* const end = bytes + count;
    while (bytes != end) {
        if (m_part == Part::None) {
            const char* const begin = bytes;
            while (bytes != end && *bytes != '&' && !IsControl(*bytes))
                ++bytes;
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
        m_hexadecimal = false;
        m_zeros = 0;
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
