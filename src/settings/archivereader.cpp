#include "settings/archive.h"

#include "common/atomicfile.h"
#include "common/fileproblem.h"
#include "common/inputfile.h"
#include "common/texts.h"
#include "settings/archivename.h"
#include "settings/folders.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <sys/stat.h>
#include <zip.h>

namespace {

constexpr int kBufferSize = 1 << 16;
constexpr int kShownName = 64; ///< characters of a name that is too long

struct Discard
{
    void operator()(zip_t* archive) const { zip_discard(archive); }
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

bool IsLink(zip_t* archive, zip_uint64_t index)
{
    zip_uint8_t system = 0;
    zip_uint32_t attributes = 0;
    zip_file_get_external_attributes(archive, index, 0, &system, &attributes);
    return ((attributes >> 16) & S_IFMT) == S_IFLNK;
}

bool IsReadable(const zip_stat_t& stat)
{
    constexpr zip_uint64_t needed = ZIP_STAT_SIZE | ZIP_STAT_COMP_METHOD | ZIP_STAT_ENCRYPTION_METHOD;
    return (stat.valid & needed) == needed && stat.encryption_method == ZIP_EM_NONE
           && (stat.comp_method == ZIP_CM_STORE || stat.comp_method == ZIP_CM_DEFLATE);
}

QString TooLarge(const QString& name)
{
    return Texts::tr("压缩包内容过大: %1").arg(name);
}

QString NotUnpacked(const QString& name)
{
    return Texts::tr("压缩包条目无法解压: %1").arg(name);
}

/// Copies as many bytes as the entry states. Asking for one byte more makes libzip test the checksum.
bool CopyContent(zip_file_t* source, QIODevice& target, zip_uint64_t size)
{
    QByteArray buffer(kBufferSize, Qt::Uninitialized);
    zip_uint64_t copied = 0;
    for (;;) {
        const zip_int64_t got = zip_fread(source, buffer.data(), kBufferSize);
        if (got <= 0)
            return got == 0 && copied == size;
        copied += static_cast<zip_uint64_t>(got);
        if (copied > size || target.write(buffer.constData(), got) != got)
            return false;
    }
}

bool Extract(zip_t* archive, zip_uint64_t index, const QString& name, const QString& base,
             QSet<QString>& folders, QString* error)
{
    if (!MakeFoldersOf(base, name, &folders, error))
        return false;
    if (folders.size() > kMaxArchiveEntries)
        return Fail(error, TooLarge(name.left(kShownName)));
    if (name.endsWith(QLatin1Char('/')))
        return true;
    zip_stat_t stat;
    const std::unique_ptr<zip_file_t, Discard> source(zip_fopen_index(archive, index, 0));
    if (!source || zip_stat_index(archive, index, 0, &stat) != 0)
        return Fail(error, NotUnpacked(name));
    return ReplaceWorkFile(
        base + QLatin1Char('/') + name,
        [&](QIODevice& target) {
            return CopyContent(source.get(), target, stat.size) || Fail(error, NotUnpacked(name));
        },
        error);
}

/// Checks an entry before anything is written. When it counts, `left` shrinks by its size.
bool Accept(zip_t* archive, zip_uint64_t index, const QString& name, bool counts, qint64* left,
            QString* error)
{
    zip_stat_t stat;
    if (zip_stat_index(archive, index, 0, &stat) != 0 || !IsReadable(stat) || IsLink(archive, index))
        return Fail(error, NotUnpacked(name));
    const qint64 most = counts ? std::min(*left, kMaxArchiveEntrySize) : kMaxArchiveEntrySize;
    if (stat.size > zip_uint64_t(most))
        return Fail(error, TooLarge(name));
    *left -= counts ? static_cast<qint64>(stat.size) : 0;
    return true;
}

std::unique_ptr<zip_t, Discard> Open(const QString& path, QString* error)
{
    QFile file(path);
    if (!OpenInput(file, error))
        return nullptr;
    int code = ZIP_ER_NOZIP;
    // libzip takes an empty file for an archive without entries.
    zip_t* archive =
        file.size() == 0 ? nullptr : zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, &code);
    if (!archive)
        Fail(error, code == ZIP_ER_READ ? CannotRead(path, qt_error_string(errno))
                                        : Texts::tr("不是有效的压缩包: %1").arg(path));
    return std::unique_ptr<zip_t, Discard>(archive);
}

} // namespace

bool UnpackArchive(const QString& zipPath, const QString& folder,
                   const std::function<bool(const QString&)>& wanted, QString* error,
                   const ArchiveLimits& limits,
                   const std::function<void(const QString& name, const QString& why)>& leftOut)
{
    if (!HasArchiveCodec())
        return Fail(error, Texts::tr("系统缺少GBK编码"));
    const std::unique_ptr<zip_t, Discard> archive = Open(zipPath, error);
    if (!archive || !MakeFolder(folder, error))
        return false;
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    if (count > kMaxArchiveEntries)
        return Fail(error, TooLarge(zipPath));

    const ArchiveNames names(archive.get(), zipPath);
    const QString base = QFileInfo(folder).absoluteFilePath();
    qint64 left = limits.total;
    QSet<QString> folders;
    for (zip_uint64_t i = 0; i < static_cast<zip_uint64_t>(count); ++i) {
        const QString name = names.Get(i);
        if (name.isEmpty())
            return Fail(error, Texts::tr("压缩包条目名称无效"));
        if (wanted && !wanted(name))
            continue;
        QString why;
        if (Accept(archive.get(), i, name, name != limits.apart, &left, &why)
            && Extract(archive.get(), i, name, base, folders, &why))
            continue;
        if (!leftOut)
            return Fail(error, why);
        leftOut(name, why);
    }
    return true;
}
