#pragma once

#include <QByteArray>
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

/// Name of an entry with "/" between components. Empty when it cannot be decoded or would lead out of the
/// folder unpacked into: absolute, with a drive, "." or "..", an empty component or a control character.
QString GetArchiveEntryName(zip* archive, quint64 index);
