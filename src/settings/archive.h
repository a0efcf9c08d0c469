#pragma once

#include <QString>

#include <functional>

/// Limits of an archive, so that a hostile one fills neither memory nor disk.
constexpr int kMaxArchiveEntries = 65535;                   ///< also of the folders that their names make
constexpr qint64 kMaxArchiveEntrySize = qint64(256) << 20;  ///< bytes unpacked
constexpr qint64 kMaxArchiveTotalSize = qint64(1024) << 20; ///< bytes unpacked

/// The unpacked bytes of all entries together. The entry `apart` is not counted; it has only the limit of one
/// entry.
struct ArchiveLimits
{
    qint64 total = kMaxArchiveTotalSize;
    QString apart;
};

/// Packs all that is below a folder, without links, into an archive that replaces `zipPath` as one step. The
/// names of entries begin with the name of the folder. The same content gives the same bytes. On failure the
/// old archive stays and `error` says why.
bool PackFolder(const QString& folder, const QString& zipPath, QString* error = nullptr,
                const ArchiveLimits& limits = {});

/// Unpacks an archive below a folder, in the order of the archive. Stops at the first entry that fails, and
/// what was unpacked before stays; with `leftOut` it goes on and tells of such entries. `wanted` says by its
/// name whether an entry is unpacked. A file of the same name is replaced when the entry is whole. Nothing is
/// written through a link.
bool UnpackArchive(const QString& zipPath, const QString& folder,
                   const std::function<bool(const QString&)>& wanted = {}, QString* error = nullptr,
                   const ArchiveLimits& limits = {},
                   const std::function<void(const QString& name, const QString& why)>& leftOut = {});
