#include "settings/initypes.h"

#include <QByteArray>
#include <QMetaType>

#include <cstring>

namespace {

constexpr int kNone = -1;
constexpr int kQt4KeySequence = 76; // values are written as Qt 4 numbered the types
constexpr int kQt4Float = 135;

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

/// The byte that comes next of a value's content; kNone where it is not written as QSettings writes it, which
/// could read another one.
int NextByte(const QByteArray& ini, int* at, bool utf8)
{
    if (*at >= ini.size())
        return kNone;
    const int c = uchar(ini[(*at)++]);
    if (c == '\\') {
        const int value = Escaped(ini, at);
        return value > 0xff ? kNone : value;
    }
    if (utf8 && (c == 0xc2 || c == 0xc3) && *at < ini.size() && (uchar(ini[*at]) & 0xc0) == 0x80)
        return (c & 3) << 6 | (uchar(ini[(*at)++]) & 0x3f);
    return c >= ' ' && c < 0x7f && c != '"' ? c : kNone;
}

int NextNumber(const QByteArray& ini, int* at, bool utf8)
{
    quint32 number = 0;
    for (int i = 0; i < 4; ++i) {
        const int byte = NextByte(ini, at, utf8);
        if (byte == kNone)
            return kNone;
        number = number << 8 | quint32(byte);
    }
    return static_cast<int>(number);
}

bool Follows(const char* word, const QByteArray& ini, int* at)
{
    while (*word && NextVisible(ini, at) == *word)
        ++word;
    return *word == '\0';
}

bool IsHarmlessType(int type)
{
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
    case QMetaType::QUrl:
    case QMetaType::QRectF:
    case QMetaType::QSizeF:
    case QMetaType::QLine:
    case QMetaType::QLineF:
    case QMetaType::QPointF:
    case QMetaType::QColor:
    case kQt4KeySequence:
    case kQt4Float:
        return true;
    default:
        return false;
    }
}

/// A date with a time; one of a named time zone would have a file of that name read, or end the program.
bool IsHarmlessDateTime(const QByteArray& ini, int* at, bool utf8)
{
    constexpr int beforeZone = 13; ///< bytes: whether it is null, the date, the time
    if (NextNumber(ini, at, utf8) != QMetaType::QDateTime)
        return false;
    for (int i = 0; i < beforeZone; ++i)
        if (NextByte(ini, at, utf8) == kNone)
            return false;
    const int zone = NextByte(ini, at, utf8);
    return zone == Qt::LocalTime || zone == Qt::UTC || zone == Qt::OffsetFromUTC;
}

/// Of what follows "@": no value with a type, or one of a type that reads without harm.
bool IsHarmless(const QByteArray& ini, int at, bool utf8)
{
    int variant = at;
    if (Follows("Variant(", ini, &variant))
        return IsHarmlessType(NextNumber(ini, &variant, utf8));
    return !Follows("DateTime(", ini, &at) || IsHarmlessDateTime(ini, &at, utf8);
}

/// Whether a value could begin behind that character, or not if it could not before it: a line, an item of a
/// list or a quotation ends there, or QSettings drops what was read. Strings that begin with "@" are marked
/// by another one or by "@String(", so that theirs stands inside a value.
bool MayBeginBehind(const QByteArray& ini, int at, bool mayBeforeIt)
{
    const char c = ini[at];
    if (c == ' ' || c == '\t')
        return mayBeforeIt;
    const bool endsByteOrderMark = c == '\xbf' && ini.mid(at - 2, 3) == "\xef\xbb\xbf";
    return endsByteOrderMark || uchar(c) < ' ' || std::strchr("=,\"", c);
}

} // namespace

bool MayHoldHarmfulTypes(const QByteArray& ini, bool utf8)
{
    bool mayBegin = true;
    for (int at = 0; at < ini.size();) {
        const int first = at++;
        const bool isEscape = ini[first] == '\\';
        const int value = isEscape ? Escaped(ini, &at) : ini[first];
        if (value == '@' && mayBegin && !IsHarmless(ini, at, utf8))
            return true;
        if (!isEscape)
            mayBegin = MayBeginBehind(ini, first, mayBegin);
        else if (value != kNone)
            mayBegin = false;
    }
    return false;
}
