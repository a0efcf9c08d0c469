#pragma once

#include <QString>

#include <functional>

/// What an archive may hold, so that a hostile one fills neither the memory nor the disk.
constexpr int kMaxArchiveEntries = 65535;                   ///< also of the folders that their names make
constexpr qint64 kMaxArchiveEntrySize = qint64(256) << 20;  ///< bytes unpacked
constexpr qint64 kMaxArchiveTotalSize = qint64(1024) << 20; ///< bytes unpacked

/// The bytes unpacked of all entries but one, which is held to the limit of an entry alone.
struct ArchiveLimits
{
    qint64 total = kMaxArchiveTotalSize;
    QString apart;
};

/// Packs all that is below a folder, links left out, into an archive that replaces `zipPath` as one step.
/// Entries are named from the folder's own name on. The same content gives the same bytes. On failure the
/// old archive stays and `error` says why.
bool PackFolder(const QString& folder, const QString& zipPath, QString* error = nullptr,
                const ArchiveLimits& limits = {});

/// Unpacks an archive below a folder in the archive's order and stops at the first entry that is refused or
/// fails; what was unpacked before it stays. With `wanted`, which is told the names of entries, others are
/// skipped after their names were checked. A file of the same name is replaced once the entry is whole;
/// nothing is written through a link.
bool UnpackArchive(const QString& zipPath, const QString& folder,
                   const std::function<bool(const QString&)>& wanted = {}, QString* error = nullptr,
                   const ArchiveLimits& limits = {},
                   const std::function<void(const QString& name, const QString& why)>& leftOut = {});
