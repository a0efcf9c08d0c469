#include "common/fieldtext.h"

#include <QByteArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

namespace fieldtext {

namespace {

constexpr std::string_view kBlanks = " \t\n\v\f\r";

std::string_view Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

template <class T> T NumberOr0(std::string_view text)
{
    text = Trimmed(text);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-')
        text.remove_prefix(1);
    T value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() ? value : T(0);
}

template <class T> void AppendNumber(std::string& out, T value)
{
    char buffer[16];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    out.append(buffer, result.ptr);
}

template <class T> void ReadFinite(std::string_view text, T& value)
{
    const auto number = NumberOr0<double>(text);
    if (std::isfinite(static_cast<T>(number)))
        value = static_cast<T>(number);
}

bool IsStorable(uint code)
{
    if (code < 0x20)
        return code == '\t' || code == '\n' || code == '\r';
    return code != 0xFFFE && code != 0xFFFF;
}

QString Storable(const QString& text)
{
    QString kept;
    kept.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            kept.append(c).append(text[++i]);
        else if (!c.isSurrogate() && IsStorable(c.unicode()))
            kept.append(c);
    }
    return kept;
}

} // namespace

void Append(std::string& out, int value)
{
    AppendNumber(out, value);
}

void Append(std::string& out, unsigned int value)
{
    AppendNumber(out, value);
}

void Append(std::string& out, unsigned char value)
{
    Append(out, int(value));
}

void Append(std::string& out, bool value)
{
    out.push_back(value ? '1' : '0');
}

void Append(std::string& out, double value)
{
    // Most fractions of a wall are whole numbers and need no rounding. The others are rounded as Qt does it,
    // a tie away from zero. The standard library would take the even digit.
    constexpr double firstRounded = 1e6;
    if (std::fabs(value) < firstRounded && std::trunc(value) == value) {
        AppendNumber(out, static_cast<int>(value));
        return;
    }
    const QByteArray text = QByteArray::number(value, 'g', 6);
    out.append(text.constData(), static_cast<size_t>(text.size()));
}

void Append(std::string& out, float value)
{
    Append(out, static_cast<double>(value));
}

void Append(std::string& out, const QUuid& value)
{
    const QByteArray text = value.toByteArray();
    out.append(text.constData(), static_cast<size_t>(text.size()));
}

void Append(std::string& out, const SMD5& value)
{
    if (value.IsNull())
        return;
    Append(out, value.ToString()); // a record filled by a host may hold anything
    out.push_back('\0');
}

void Append(std::string& out, const QString& value)
{
    const QByteArray text = Storable(value).toUtf8();
    out.append(text.constData(), static_cast<size_t>(text.size()));
}

void Read(std::string_view text, int& value)
{
    value = NumberOr0<int>(text);
}

void Read(std::string_view text, unsigned int& value)
{
    value = NumberOr0<unsigned int>(text);
}

void Read(std::string_view text, unsigned char& value)
{
    value = static_cast<unsigned char>(NumberOr0<int>(text));
}

void Read(std::string_view text, bool& value)
{
    value = NumberOr0<int>(text) != 0;
}

void Read(std::string_view text, double& value)
{
    ReadFinite(text, value);
}

void Read(std::string_view text, float& value)
{
    ReadFinite(text, value);
}

void Read(std::string_view text, QUuid& value)
{
    text = Trimmed(text);
    value = QUuid::fromString(QLatin1String(text.data(), static_cast<int>(text.size())));
}

void Read(std::string_view text, SMD5& value)
{
    const bool isAscii = std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
    if (!isAscii || (text.size() != SMD5::kDigits && text.size() != SMD5::kDigits + 1))
        return;
    value = SMD5();
    std::memcpy(value.digest, text.data(), SMD5::kDigits);
}

void Read(std::string_view text, QString& value)
{
    value = QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace fieldtext
