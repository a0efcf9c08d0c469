#pragma once

#include "common/fieldtext.h"
#include "records/outputparams.h"

#include <cmath>
#include <type_traits>

/// Text forms of values in parameter files. Reading never fails: what is no number is 0, a number wider than
/// its field is taken modulo the width, a flag is any number but 0, longer texts are cut.
namespace paramtext {

std::string ToText(const PortGroupName& name);
std::string ToText(const PortGroupFlags& flags); ///< two upper-case hexadecimal digits a byte, by blanks
void FromText(const QString& text, PortGroupName& name);   ///< cut to 63 bytes between two characters
void FromText(const QString& text, PortGroupFlags& flags); ///< absent and faulty bytes are 0
void FromText(const QString& text, quint32& value);

template <class T> std::string ToText(const T& value)
{
    std::string text;
    if constexpr (std::is_enum_v<T> || (std::is_integral_v<T> && sizeof(T) < sizeof(int)))
        fieldtext::Append(text, static_cast<std::conditional_t<std::is_same_v<T, bool>, bool, int>>(value));
    else if constexpr (std::is_floating_point_v<T>)
        fieldtext::Append(text, std::isfinite(value) ? value : T());
    else
        fieldtext::Append(text, value);
    return text;
}

template <class T> void FromText(const QString& text, T& value)
{
    const std::string bytes = text.toStdString();
    if constexpr (std::is_enum_v<T> || (std::is_integral_v<T> && !std::is_same_v<T, bool>)) {
        int number = 0;
        fieldtext::Read(bytes, number);
        value = static_cast<T>(number);
    } else {
        value = T();
        fieldtext::Read(bytes, value);
    }
}

} // namespace paramtext
