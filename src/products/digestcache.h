#pragma once

#include "common/smd5.h"
#include "products/folderlisting.h"

#include <QHash>

#include <functional>

/// Remembers the digests of files by path, so that a file is hashed again only when its stamp changed.
class DigestCache
{
public:
    using Hasher = std::function<SMD5(const QString& path)>;

    explicit DigestCache(Hasher hasher);

    /// The digest of a file with this stamp. A file that cannot be read has no type, and that is not
    /// remembered.
    SMD5 Digest(const QString& path, const FileStamp& stamp);

    // Files that nobody asks for between the two are forgotten.
    void BeginRound();
    void EndRound();

private:
    struct Entry
    {
        FileStamp stamp;
        SMD5 md5;
        unsigned int round = 0; ///< the last one that asked for it
    };

    static bool IsSettled(const FileStamp& stamp);

    Hasher m_hasher;
    QHash<QString, Entry> m_entries;
    unsigned int m_round = 0;
};
