#include "products/folderlisting.h"

#include <QFile>

#include <algorithm>
#include <memory>
#include <tuple>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

qint64 Nanoseconds(const timespec& time)
{
    return static_cast<qint64>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

FileStamp ToStamp(const struct stat& status)
{
    return {status.st_size, Nanoseconds(status.st_mtim), Nanoseconds(status.st_ctim), status.st_ino,
            status.st_dev};
}

} // namespace

bool FileStamp::operator==(const FileStamp& other) const
{
    return std::tie(size, modified, changed, inode, device)
           == std::tie(other.size, other.modified, other.changed, other.inode, other.device);
}

bool FileStamp::IsSameFile(const FileStamp& other) const
{
    return inode == other.inode && device == other.device;
}

bool ReadStamp(const QString& path, FileStamp& stamp)
{
    struct stat status = {};
    if (lstat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    stamp = ToStamp(status);
    return true;
}

std::vector<FolderEntry> ListFolder(const QString& folder)
{
    std::vector<FolderEntry> entries;
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(QFile::encodeName(folder).constData()),
                                                     &closedir);
    if (!stream)
        return entries;

    while (const dirent* entry = readdir(stream.get())) {
        const QByteArray name(entry->d_name);
        struct stat status = {};
        if (name == "." || name == ".."
            || fstatat(dirfd(stream.get()), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        if (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode))
            entries.push_back({QFile::decodeName(name), S_ISDIR(status.st_mode), ToStamp(status)});
    }
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
    return entries;
}
