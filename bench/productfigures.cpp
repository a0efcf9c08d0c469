// Scanning an unchanged product folder again, beside a sorted listing with size and time.
#include "figures.h"

#include "products/productdirectoryset.h"

#include <QDir>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <string>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr int kFiles = 5000;

struct ListedFile
{
    std::string name;
    qint64 size;
    qint64 modified;
};

std::vector<ListedFile> List(const QString& folder)
{
    std::vector<ListedFile> files;
    DIR* stream = opendir(QFile::encodeName(folder).constData());
    while (const dirent* entry = readdir(stream)) {
        struct stat status = {};
        if (fstatat(dirfd(stream), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0)
            files.push_back({entry->d_name, status.st_size, status.st_mtim.tv_sec});
    }
    closedir(stream);
    std::sort(files.begin(), files.end(),
              [](const ListedFile& a, const ListedFile& b) { return a.name < b.name; });
    return files;
}

Pair Rescan()
{
    const QString root = CProductDirectorySet::GetRootDir();
    for (int i = 0; i < kFiles; ++i) {
        QFile file(root + QStringLiteral("cabinet %1.rcvbp").arg(i));
        file.open(QIODevice::WriteOnly);
        file.write(QByteArray::number(i).repeated(100));
    }
    QThread::msleep(500); // digests of files that were written just now are not kept
    CProductDirectorySet products;
    products.LoadProductInfo();
    const Pair pair = Interleaved([&] { return Seconds([&] { List(root); }); },
                                  [&] { return Seconds([&] { products.LoadProductInfo(); }); });
    QDir(root).removeRecursively();
    return pair;
}

} // namespace

void ProductFigures()
{
    Once({"rescan of an unchanged product folder of 5000 files", "ms", 3, 1.5}, Rescan);
}
