#pragma once

#include "common/export.h"

#include <QHash>
#include <QMetaType>
#include <QString>

#include <cstring>
#include <type_traits>

class QDebug;

/// MD5 digest (RFC 1321) of a file as 32 lower-case hexadecimal characters and a closing zero byte.
/// Identifies a cabinet product type by its receiver parameter file; all zero means "no type".
struct SMD5
{
    static constexpr int kDigits = 32;

    char digest[kDigits + 1] = {};

    bool IsNull() const { return digest[0] == '\0'; }

    /// The digits up to the first zero byte, empty for no type.
    QString ToString() const
    {
        const auto length = static_cast<int>(strnlen(digest, kDigits));
        return QString::fromLatin1(digest, length);
    }

    /// Takes the first 32 characters of a text of 32 or 33; any other length gives no type.
    static SMD5 FromString(const QString& text)
    {
        SMD5 md5;
        if (text.size() == kDigits || text.size() == kDigits + 1)
            std::memcpy(md5.digest, text.toLatin1().constData(), kDigits);
        return md5;
    }
};

static_assert(sizeof(SMD5) == 33, "the record is copied byte by byte by hosts");
static_assert(std::is_trivially_copyable_v<SMD5>, "the record is copied byte by byte by hosts");

inline bool operator==(const SMD5& a, const SMD5& b)
{
    return std::memcmp(a.digest, b.digest, SMD5::kDigits) == 0;
}

inline bool operator!=(const SMD5& a, const SMD5& b)
{
    return !(a == b);
}

inline bool operator<(const SMD5& a, const SMD5& b)
{
    return std::memcmp(a.digest, b.digest, SMD5::kDigits) < 0;
}

inline uint qHash(const SMD5& md5, uint seed = 0)
{
    return qHashBits(md5.digest, SMD5::kDigits, seed);
}

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SMD5& md5);

Q_DECLARE_METATYPE(SMD5)
