#include "command.h"
#include "console.h"
#include "openproject.h"
#include "outputfile.h"
#include "productfiles.h"
#include "samefile.h"

#include <OrvanData/orvandata.h>
#include <orvantools/tagreader.h>

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <map>

namespace {

constexpr QLatin1String kDocument("project/new.prj"); // in an archive, and in the work folder

void AddOptions(QCommandLineParser& /*parser*/)
{}

void WarnOfFile(const QString& project, const SParameterFileInfo& file, const QString& why)
{
    Warn(project, QStringLiteral("the parameter file '%1' does not come along: %2").arg(file.name, why));
}

bool Copy(QIODevice& from, QIODevice& to)
{
    QByteArray block(1 << 16, Qt::Uninitialized);
    qint64 size = 0;
    while ((size = from.read(block.data(), block.size())) > 0) {
        if (to.write(block.constData(), size) != size)
            return false;
    }
    return size == 0;
}

int WriteCopy(const QString& output, QFile& content)
{
    return WriteOutput(output, [&content](QIODevice& device) { return Copy(content, device); });
}

/// The document is the one that loading unpacked.
int WriteDocument(const QString& archive, const QString& output)
{
    QFile document(CConstantData::GetProjectParamFileTemp() + kDocument);
    if (!document.open(QIODevice::ReadOnly))
        return Fail(StatusFile, archive, document.errorString());
    if (document.peek(2) != "<?")
        return Fail(StatusFile, archive,
                    QStringLiteral("its document does not begin with \"<?\", as a bare project must"));
    const int status = WriteCopy(output, document);
    for (const SParameterFileInfo& file : GetProjectData()->GetParameterFiles()) {
        if (status == StatusDone)
            WarnOfFile(archive, file, QStringLiteral("a bare document carries none"));
    }
    return status;
}

/// The parameter files of a product folder by their digests.
QHash<SMD5, QString> FilesByType(const QString& folder)
{
    QHash<SMD5, QString> paths;
    ForEachProductFile(folder, [&paths](const QString& path) {
        paths.insert(CConstantData::GetMD5FromFile(path), path);
        return true;
    });
    return paths;
}

/// The rows of each type in a document, counted from 0. The library lists a type once, but an archive holds
/// the files by all rows.
QMultiHash<QByteArray, int> RowsByType(const QString& document)
{
    std::map<int, QByteArray> types; // by the numbers in the names of the elements
    bool inList = false;
    OrvanTools::TagReader tags([&](std::string_view name, std::string_view attributes) {
        const QByteArray element(name.data(), static_cast<int>(name.size()));
        const int number = element.startsWith("File") ? element.mid(4).toInt() : 0;
        inList = inList || element == "ParameterFile";
        if (inList && number > 0) {
            const std::string_view type = OrvanTools::TagReader::Attribute(attributes, "Md5").substr(0, 32);
            types.emplace(number, QByteArray(type.data(), static_cast<int>(type.size())));
        }
    });
    QFile file(document);
    if (file.open(QIODevice::ReadOnly)) {
        for (QByteArray bytes = file.read(1 << 16); !bytes.isEmpty(); bytes = file.read(1 << 16))
            tags.Take({bytes.constData(), static_cast<size_t>(bytes.size())});
    }
    QMultiHash<QByteArray, int> rows;
    for (const auto& type : types)
        rows.insert(type.second, rows.size());
    return rows;
}

/// Lays the files down by the numbers of their rows, as an archive holds them.
void CollectParameterFiles(const QString& document, const QString& products, const QDir& folder)
{
    const QList<SParameterFileInfo> files = GetProjectData()->GetParameterFiles();
    if (files.isEmpty())
        return;
    const QHash<SMD5, QString> paths = FilesByType(products);
    const QMultiHash<QByteArray, int> rows = RowsByType(document);
    for (const SParameterFileInfo& file : files) {
        const QString path = file.type.IsNull() ? QString() : paths.value(file.type);
        if (path.isEmpty()) {
            WarnOfFile(document, file, products + QStringLiteral(" has no file of its type"));
            continue;
        }
        const QList<int> places = rows.values(file.type.ToString().toLatin1());
        const bool copied = std::all_of(places.begin(), places.end(), [&](int row) {
            return QFile::copy(path, folder.filePath(QStringLiteral("project/%1.rcvbp").arg(row)));
        });
        if (places.isEmpty())
            WarnOfFile(document, file, QStringLiteral("its row cannot be read"));
        else if (!copied)
            WarnOfFile(document, file, path + QStringLiteral(" cannot be read"));
    }
}

int WriteArchive(const QString& document, const QString& output, const QString& products)
{
    const QDir folder(QDir::tempPath()); // the session's own
    if (!folder.mkpath(QStringLiteral("project")) || !QFile::copy(document, folder.filePath(kDocument)))
        return Fail(StatusFile, document, QStringLiteral("cannot be copied to ") + folder.path());
    CollectParameterFiles(document, products, folder);
    QFile archive(folder.filePath(QStringLiteral("packed.prj")));
    CConstantData::ZipFile(folder.filePath(QStringLiteral("project")), archive.fileName());
    if (!archive.open(QIODevice::ReadOnly))
        return Fail(StatusFile, output, QStringLiteral("cannot be packed in ") + folder.path());
    return WriteCopy(output, archive);
}

int Run(const Invocation& invocation)
{
    const QString input = invocation.files[0];
    const QString output = invocation.files[1];
    if (IsSameFile(input, output))
        return Fail(StatusUsage, output, QStringLiteral("is the project itself"));
    const bool isFile = QFileInfo(input).isFile(); // a pipe would keep the program waiting
    const bool archive = isFile && IsArchive(input);
    if (archive && output.endsWith(QLatin1String(".prj"), Qt::CaseInsensitive))
        return Fail(StatusUsage, output, QStringLiteral("an archive becomes a bare document, not a .prj"));
    if (isFile && !archive && output.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive))
        return Fail(StatusUsage, output, QStringLiteral("a bare document becomes an archive, not a .xml"));
    if (!OpenProject(input))
        return StatusFile;
    return archive ? WriteDocument(input, output) : WriteArchive(input, output, invocation.ProductFolder());
}

} // namespace

const Command kConvertCommand = {
    "convert",  "IN OUT", "A project archive (.prj) or bare document (.xml), and the other one to write.",
    2,          2,        "Archive to bare document and back.",
    AddOptions, Run,      false,
    true};
