#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

struct zip;

/// The name of an entry as it is stored: in GBK if that can hold it, else in UTF-8 with the flag for it.
struct ArchiveName
{
    QByteArray bytes;
    bool utf8 = false;
};

bool HasArchiveCodec(); ///< false where this system lacks GBK: no archive can be made or read then
ArchiveName EncodeArchiveName(const QString& name);

/// The names of the entries of an open archive.
class ArchiveNames
{
public:
    ArchiveNames(zip* archive, const QString& path);

    /// With "/" between components. Empty for a name that cannot be decoded, holds a control character or
    /// would lead out of the folder: one that is absolute, has a drive, or has a component that is empty, "."
    /// or "..".
    QString Get(quint64 index) const;

private:
    zip* m_archive;
    QSet<QByteArray> m_withNul; ///< as libzip gives them, with a blank for each NUL
};
