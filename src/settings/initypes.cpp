#include "settings/initypes.h"

#include <QByteArray>
#include <QMetaType>
#include <QtEndian>

#include <cstring>

namespace {

constexpr int kNone = -1;
constexpr int kQt4Float = 135;
constexpr quint32 kMostKeys = 4; ///< of a key sequence; room is made for as many as a file says

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

int Digit(char c, int base)
{
    const int value = c >= '0' && c <= '9'   ? c - '0'
                      : c >= 'a' && c <= 'f' ? c - 'a' + 10
                      : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                             : base;
    return value < base ? value : kNone;
}

/// A number of any length, of which QSettings keeps the lowest 16 bits.
int Number(const QByteArray& ini, int* at, int base)
{
    unsigned value = 0;
    for (; *at < ini.size() && Digit(ini[*at], base) != kNone; ++*at)
        value = value * unsigned(base) + unsigned(Digit(ini[*at], base));
    return static_cast<int>(value & 0xffff);
}

/// The character that an escape stands for; kNone for one that stands for nothing, such as a line that goes
/// on. Begins behind the backslash and moves `at` along.
int Escaped(const QByteArray& ini, int* at)
{
    constexpr char codes[] = "abfnrtv\"?'\\";
    constexpr char characters[] = "\a\b\f\n\r\t\v\"?'\\";
    if (*at >= ini.size())
        return kNone;
    const char code = ini[*at];
    if (Digit(code, 8) != kNone)
        return Number(ini, at, 8);
    ++*at;
    const char next = *at < ini.size() ? ini[*at] : '\0';
    if (code == 'x' && Digit(next, 16) != kNone)
        return Number(ini, at, 16);
    if (IsLineEnd(code) && IsLineEnd(next) && code != next)
        ++*at;
    const char* found = code == '\0' ? nullptr : std::strchr(codes, code);
    return found ? characters[found - codes] : kNone;
}

/// The next ASCII character that shows. QSettings drops some of the others, depending on what stands around.
int NextVisible(const QByteArray& ini, int* at)
{
    while (*at < ini.size()) {
        const char c = ini[(*at)++];
        if (c == '\\') {
            const int escaped = Escaped(ini, at);
            if (escaped != kNone)
                return escaped;
        } else if (c > ' ' && c < 0x7f && c != '"') {
            return c;
        }
    }
    return kNone;
}

/// The bytes that follow, as a stream of Qt 4 takes them: a number in network order. False where they are
/// not written as QSettings writes them.
bool ReadNumber(const QByteArray& ini, int* at, quint32* number)
{
    uchar bytes[4];
    for (uchar& byte : bytes) {
        if (*at >= ini.size())
            return false;
        const char c = ini[(*at)++];
        const int value = c == '\\' ? Escaped(ini, at) : c > ' ' && c < 0x7f && c != '"' ? c : kNone;
        if (value == kNone || value > 0xff)
            return false;
        byte = static_cast<uchar>(value);
    }
    *number = qFromBigEndian<quint32>(bytes);
    return true;
}

/// Of what follows "@": no value with a type, or one of a type that reads without harm.
bool IsHarmless(const QByteArray& ini, int at)
{
    for (const char c : {'V', 'a', 'r', 'i', 'a', 'n', 't', '('})
        if (NextVisible(ini, &at) != c)
            return true;
    quint32 type = 0;
    quint32 keys = 0;
    if (!ReadNumber(ini, &at, &type))
        return false;
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QDateTime:
    case QMetaType::QColor:
    case kQt4Float:
        return true;
    case QMetaType::QKeySequence:
        return ReadNumber(ini, &at, &keys) && keys <= kMostKeys;
    default:
        return false;
    }
}

} // namespace

bool MayHoldHarmfulTypes(const QByteArray& ini)
{
    for (int i = 0; i < ini.size(); ++i) {
        int at = i + 1;
        const bool begins = ini[i] == '@' || (ini[i] == '\\' && Escaped(ini, &at) == '@');
        if (begins && !IsHarmless(ini, at))
            return true;
    }
    return false;
}
