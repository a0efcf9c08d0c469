#include "common/dottedaddress.h"

#include <QStringList>

#include <algorithm>

std::optional<quint32> ReadDottedAddress(const QString& text, int mostDigits)
{
    const QStringList octets = text.trimmed().split(QLatin1Char('.'));
    if (octets.size() != 4)
        return {};
    quint32 address = 0;
    for (const QString& octet : octets) {
        bool isNumber = false;
        const uint value = octet.toUInt(&isNumber);
        const bool isDecimal = std::all_of(octet.begin(), octet.end(), [](QChar c) {
            return c >= QLatin1Char('0') && c <= QLatin1Char('9');
        });
        if (!isNumber || !isDecimal || octet.size() > mostDigits || value > 255)
            return {};
        address = address << 8 | value;
    }
    return address;
}
