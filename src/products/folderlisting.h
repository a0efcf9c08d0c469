#pragma once

#include <QString>

#include <vector>

/// What tells one state of a file from another without reading it.
struct FileStamp
{
    qint64 size = 0;
    qint64 modified = 0; ///< nanoseconds since 1970
    qint64 changed = 0;  ///< nanoseconds since 1970; unlike the above, no program can set it back
    quint64 inode = 0;
    quint64 device = 0;

    bool operator==(const FileStamp& other) const;
    bool IsSameFile(const FileStamp& other) const; ///< by hard links or by another way to the same folder
};

bool ReadStamp(const QString& path, FileStamp& stamp); ///< false unless it is a regular file, not a link

struct FolderEntry
{
    QString name;
    bool isFolder = false;
    FileStamp stamp;
};

/// The regular files and folders in a folder, sorted by name, hidden ones too, no links. Each entry costs one
/// system call: the user waits while thousands of files are listed.
std::vector<FolderEntry> ListFolder(const QString& folder);
