#include "params/paramtext.h"

#include <QStringList>

#include <algorithm>
#include <cstring>

namespace paramtext {

std::string ToText(const PortGroupName& name)
{
    const auto length = static_cast<int>(strnlen(name.data(), name.size()));
    return ToText(QString::fromUtf8(name.data(), length));
}

std::string ToText(const PortGroupFlags& flags)
{
    const QByteArray bytes(reinterpret_cast<const char*>(flags.data()), static_cast<int>(flags.size()));
    return bytes.toHex(' ').toUpper().toStdString();
}

void FromText(const QString& text, PortGroupName& name)
{
    const QByteArray utf8 = text.toUtf8();
    int length = std::min(utf8.size(), static_cast<int>(name.size()) - 1);
    const auto continues = [&](int at) { return (static_cast<quint8>(utf8[at]) & 0xC0) == 0x80; };
    while (length > 0 && length < utf8.size() && continues(length))
        --length;
    name.fill('\0');
    std::copy_n(utf8.constData(), length, name.begin());
}

void FromText(const QString& text, PortGroupFlags& flags)
{
    flags.fill(0);
    const auto bytes = text.simplified().split(QLatin1Char(' '));
    const auto count = std::min(static_cast<size_t>(bytes.size()), flags.size());
    for (size_t i = 0; i < count; ++i)
        flags[i] = static_cast<quint8>(bytes[static_cast<int>(i)].toUInt(nullptr, 16));
}

void FromText(const QString& text, quint32& value)
{
    value = static_cast<quint32>(text.toLongLong());
}

} // namespace paramtext
