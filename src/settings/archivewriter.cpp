#include "settings/archive.h"

#include "common/atomicfile.h"
#include "common/fileproblem.h"
#include "common/texts.h"
#include "settings/archivename.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QVector>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>
#include <zip.h>

namespace {

constexpr zip_uint32_t kCompressionLevel = 3;
constexpr zip_uint16_t kDosDate = (1 << 5) | 1; // 1 January 1980; one stamp for all, so that bytes repeat
constexpr zip_uint32_t kFileMode = (S_IFREG | 0644u) << 16;
constexpr zip_uint32_t kFolderMode = (S_IFDIR | 0755u) << 16;

// The archive without entries, which libzip does not write.
constexpr char kEmptyArchive[22] = {'P', 'K', 5, 6};

struct Entry
{
    QString name;
    QString path; ///< empty: a folder
};

/// Lists what goes into an archive, a folder before what is in it.
class FolderWalk
{
public:
    /// `except`: canonical path of the archive itself, which may lie in the folder.
    FolderWalk(const QString& except, const ArchiveLimits& limits)
        : m_except(except), m_limits(limits), m_left(limits.total)
    {}

    bool Walk(const QString& folder, const QString& name, QString* error)
    {
        if (access(QFile::encodeName(folder).constData(), R_OK | X_OK) != 0)
            return Fail(error, CannotRead(folder, qt_error_string(errno)));
        const auto filters =
            QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot;
        const QFileInfoList children = QDir(folder).entryInfoList(filters, QDir::Name);
        for (const QFileInfo& child : children) {
            if (child.filePath() != m_except && !Add(child, name, error))
                return false;
        }
        return true;
    }

    const QVector<Entry>& Entries() const { return m_entries; }

private:
    bool Add(const QFileInfo& child, const QString& parent, QString* error)
    {
        const QString name = parent + QLatin1Char('/') + child.fileName();
        m_left -= child.isDir() || name == m_limits.apart ? 0 : child.size();
        if (m_entries.size() == kMaxArchiveEntries || m_left < 0
            || (!child.isDir() && child.size() > kMaxArchiveEntrySize))
            return Fail(error, Texts::tr("压缩包内容过大: %1").arg(name));
        m_entries.append({name, child.isDir() ? QString() : child.filePath()});
        return !child.isDir() || Walk(child.filePath(), name, error);
    }

    QString m_except;
    QVector<Entry> m_entries;
    ArchiveLimits m_limits;
    qint64 m_left;
};

/// The device that libzip writes an archive to. libzip seeks back to fill in the sizes of each entry.
struct Output
{
    QIODevice& device;
    zip_error_t error;
};

zip_int64_t FailedOutput(Output& output)
{
    zip_error_set(&output.error, ZIP_ER_WRITE, 0);
    return -1;
}

zip_int64_t Write(Output& output, const void* data, zip_uint64_t length)
{
    const auto size = static_cast<qint64>(length);
    return output.device.write(static_cast<const char*>(data), size) == size ? size : FailedOutput(output);
}

zip_int64_t Seek(Output& output, void* data, zip_uint64_t length)
{
    const zip_int64_t position = zip_source_seek_compute_offset(
        static_cast<zip_uint64_t>(output.device.pos()), static_cast<zip_uint64_t>(output.device.size()), data,
        length, &output.error);
    return position >= 0 && output.device.seek(position) ? 0 : FailedOutput(output);
}

zip_int64_t OnOutput(void* state, void* data, zip_uint64_t length, zip_source_cmd_t command)
{
    Output& output = *static_cast<Output*>(state);
    switch (command) {
    case ZIP_SOURCE_SUPPORTS:
        return ZIP_SOURCE_SUPPORTS_WRITABLE;
    case ZIP_SOURCE_STAT:
        zip_stat_init(static_cast<zip_stat_t*>(data));
        return sizeof(zip_stat_t);
    case ZIP_SOURCE_WRITE:
        return Write(output, data, length);
    case ZIP_SOURCE_SEEK_WRITE:
        return Seek(output, data, length);
    case ZIP_SOURCE_TELL_WRITE:
        return output.device.pos();
    case ZIP_SOURCE_ERROR:
        return zip_error_to_data(&output.error, data, length);
    default:
        return 0; // nothing to open, close, begin, commit or read: the file is new and kept by its owner
    }
}

bool AddEntry(zip_t* archive, const Entry& entry)
{
    const ArchiveName name = EncodeArchiveName(entry.name);
    const zip_flags_t encoding = name.utf8 ? ZIP_FL_ENC_UTF_8 : ZIP_FL_ENC_GUESS;
    zip_int64_t index = -1;
    if (entry.path.isEmpty()) {
        index = zip_dir_add(archive, name.bytes.constData(), encoding);
    } else {
        zip_source_t* source = zip_source_file(archive, QFile::encodeName(entry.path).constData(), 0, -1);
        if (source)
            index = zip_file_add(archive, name.bytes.constData(), source, encoding);
        if (source && index < 0)
            zip_source_free(source);
    }
    if (index < 0)
        return false;
    const auto added = static_cast<zip_uint64_t>(index);
    return zip_file_set_dostime(archive, added, 0, kDosDate, 0) == 0
           && zip_file_set_external_attributes(archive, added, 0, ZIP_OPSYS_UNIX,
                                               entry.path.isEmpty() ? kFolderMode : kFileMode)
                  == 0
           && (entry.path.isEmpty()
               || zip_set_file_compression(archive, added, ZIP_CM_DEFLATE, kCompressionLevel) == 0);
}

/// Why libzip gave up; it does not say over which file.
QString Reason(zip_t* archive, const QVector<Entry>& entries)
{
    for (const Entry& entry : entries) {
        QFile file(entry.path);
        if (!entry.path.isEmpty() && !file.open(QIODevice::ReadOnly))
            return CannotRead(entry.path, file.errorString());
    }
    return QString::fromUtf8(zip_strerror(archive));
}

/// The owner of the device says why it refused.
bool WriteArchive(QIODevice& device, const QVector<Entry>& entries, QString* error)
{
    if (entries.isEmpty())
        return device.write(kEmptyArchive, sizeof(kEmptyArchive)) == qint64(sizeof(kEmptyArchive));

    Output output = {device, {}};
    zip_source_t* source = zip_source_function_create(OnOutput, &output, nullptr);
    zip_t* archive = source ? zip_open_from_source(source, ZIP_CREATE | ZIP_TRUNCATE, nullptr) : nullptr;
    if (!archive) {
        zip_source_free(source);
        return false;
    }
    bool done = true;
    for (const Entry& entry : entries)
        done = done && AddEntry(archive, entry);
    if (done && zip_close(archive) == 0)
        return true;
    Fail(error, Reason(archive, entries));
    zip_discard(archive);
    return false;
}

} // namespace

bool PackFolder(const QString& folder, const QString& zipPath, QString* error, const ArchiveLimits& limits)
{
    const QString root = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    if (folder.isEmpty() || zipPath.isEmpty() || !QFileInfo(root).isDir())
        return Fail(error, Texts::tr("文件夹不存在: %1").arg(folder));
    if (!HasArchiveCodec())
        return Fail(error, Texts::tr("系统缺少GBK编码"));
    const int separator = zipPath.lastIndexOf(QLatin1Char('/'));
    const QString parent = zipPath.left(separator + 1);
    if (!parent.isEmpty() && !MakeFolder(parent, error))
        return false;

    FolderWalk walk(QFileInfo(zipPath).canonicalFilePath(), limits);
    if (!walk.Walk(QFileInfo(root).canonicalFilePath(), QFileInfo(root).fileName(), error))
        return false;
    return ReplaceFile(
        zipPath, [&](QIODevice& file) { return WriteArchive(file, walk.Entries(), error); }, error);
}
