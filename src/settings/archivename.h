#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

struct zip;

/// The name of an entry as it is stored: GBK where that can hold it, else UTF-8 with the flag that says so.
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

    /// With "/" between components. Empty when it cannot be decoded, holds a NUL or would lead out of the
    /// folder unpacked into: absolute, with a drive, "." or "..", an empty component or a control character.
    QString Get(quint64 index) const;

private:
    zip* m_archive;
    QSet<QByteArray> m_withNul; ///< as libzip gives them, with a blank for each NUL
};
