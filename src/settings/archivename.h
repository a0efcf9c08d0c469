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

/// The first entry of an archive whose name holds a NUL, -1: none. libzip shows a NUL as a blank, as if it
/// had always been one.
qint64 FindNulInNames(const QString& zipPath);

/// Name of an entry with "/" between components. Empty when it cannot be decoded or would lead out of the
/// folder unpacked into: absolute, with a drive, "." or "..", an empty component or a control character.
QString GetArchiveEntryName(zip* archive, quint64 index);
