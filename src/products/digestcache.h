#pragma once

#include "common/smd5.h"

#include <QHash>

#include <functional>

/// Remembers the digests of files, so that a file is hashed again only when it changed. A file counts as
/// unchanged while size, modification and status times (nanoseconds), inode and device all stay.
class DigestCache
{
public:
    using Hasher = std::function<SMD5(const QString& path)>;

    explicit DigestCache(Hasher hasher);

    SMD5 Digest(const QString& path); ///< no type when the file cannot be read, which is not remembered

    // Between the two, files that are not asked for are forgotten.
    void BeginRound();
    void EndRound();

private:
    struct Stamp
    {
        qint64 size = 0;
        qint64 modified = 0; ///< nanoseconds since 1970
        qint64 changed = 0;  ///< nanoseconds since 1970; unlike the above, no program can set it back
        quint64 inode = 0;
        quint64 device = 0;

        bool operator==(const Stamp& other) const;
    };
    struct Entry
    {
        Stamp stamp;
        SMD5 md5;
    };

    static bool ReadStamp(const QString& path, Stamp& stamp);
    static bool IsSettled(const Stamp& stamp);

    Hasher m_hasher;
    QHash<QString, Entry> m_entries;
    QHash<QString, Entry> m_lastRound; ///< what the round under way has not asked for yet
};
