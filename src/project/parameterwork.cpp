#include "project/parameterwork.h"

#include "common/atomicfile.h"
#include "common/inputfile.h"
#include "products/productdirectoryset.h"
#include "project/readreport.h"
#include "settings/constantdata.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace parameterwork {

namespace {

constexpr auto kAllEntries = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

bool IsDocumentOrParameterFile(const QString& name)
{
    static const QRegularExpression files(QStringLiteral("\\A([0-9]+\\.rcvbp|new\\.prj)\\z"));
    return files.match(name).hasMatch();
}

/// Whether packing and unpacking put something of that name into the project folder.
bool IsOurs(const QString& name)
{
    // What a copy that was killed leaves on a file system without unnamed files.
    static const QRegularExpression unfinished(QStringLiteral("\\Aqt_temp\\.[A-Za-z]{6}\\z"));
    return IsDocumentOrParameterFile(name) || unfinished.match(name).hasMatch();
}

void Remove(const QFileInfo& entry)
{
    if (entry.isDir() && !entry.isSymLink()) // from an odd archive
        QDir(entry.filePath()).removeRecursively();
    else
        QFile::remove(entry.filePath());
}

QString NumberedPath(int row)
{
    return ProjectFolder() + QString::number(row) + QStringLiteral(".rcvbp");
}

bool IsThere(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool HoldsType(const QString& path, const SMD5& type)
{
    const QFileInfo info(path);
    return info.isFile() && !info.isSymLink() && !type.IsNull()
           && CConstantData::GetMD5FromFile(path) == type;
}

bool Replace(const QString& source, const QString& target)
{
    QFile file(source);
    // A link would be written through.
    if (!OpenInput(file) || (QFileInfo(target).isSymLink() && !QFile::remove(target)))
        return false;
    return ReplaceFile(target, [&file](QIODevice& copy) { return CopyContent(file, copy); });
}

/// Copies the row's file to where it is packed: the project's own, or the library's when that is not of the
/// row's type. The copy is looked at: another program may replace the original. `error` stays empty when
/// there is no file.
bool CopyForPacking(const SParameterFileInfo& row, const CProductDirectorySet* products,
                    const QString& target, QString* error)
{
    QFile own(PathOf(row.name));
    QFile library(LibraryFile(products, row.type));
    const bool hasOwn = QFileInfo(own).isFile();
    const bool hasLibrary = !library.fileName().isEmpty() && library.exists();
    if (hasOwn && own.copy(target) && (!hasLibrary || HoldsType(target, row.type)))
        return true;
    if (!hasLibrary) {
        *error = hasOwn ? own.errorString() : QString();
        return false;
    }
    QFile::remove(target);
    const bool copied = library.copy(target);
    *error = copied ? QString() : library.errorString();
    return copied;
}

/// A product is told by its digest: the library keeps the file it has, and never loses one to another's name.
void OfferToLibrary(const QString& source, const SParameterFileInfo& row, CProductDirectorySet* products)
{
    const QString target = CProductDirectorySet::GetRootDir() + row.name + QStringLiteral(".rcvbp");
    if (!IsThere(target) && !products->FindProductFromGuid(CConstantData::GetMD5FromFile(source)))
        QFile::copy(source, target);
}

void ReportMissing(const SParameterFileInfo& row, ReadReport& report)
{
    report.Add(QCoreApplication::translate("OrvanData", "缺少参数文件“%1”").arg(row.name));
}

} // namespace

QString ProjectFolder()
{
    return CConstantData::GetProjectParamFileTemp() + QStringLiteral("project/");
}

QString DocumentPath()
{
    return ProjectFolder() + QStringLiteral("new.prj");
}

bool IsPacked(const QString& entry)
{
    const QLatin1String folder("project/");
    return entry.startsWith(folder) && IsDocumentOrParameterFile(entry.mid(folder.size()));
}

QString LockPath()
{
    QString folder = CConstantData::GetProjectParamFileTemp();
    folder.chop(1);
    return folder + QStringLiteral(".lock");
}

QString PathOf(const QString& name)
{
    return CConstantData::GetProjectParamFileTemp() + name + QStringLiteral(".rcvbp");
}

QString LibraryFile(const CProductDirectorySet* products, const SMD5& type)
{
    QString path;
    if (products && !type.IsNull())
        products->GetProductAbsolutePath(type, path);
    return path;
}

bool Store(const QString& source, const QString& name, const SMD5& type)
{
    const QString target = PathOf(name);
    return HoldsType(target, type) || Replace(source, target);
}

bool IsInTheWay(const QString& path)
{
    const QFileInfo file(path);
    const QFileInfo target(file.exists() ? file.canonicalFilePath() : path);
    return target.dir().canonicalPath() == QDir(ProjectFolder()).canonicalPath() && IsOurs(target.fileName());
}

bool MakeProjectFolder()
{
    const QString path = ProjectFolder().chopped(1);
    const QFileInfo info(path);
    if (info.isSymLink() || info.isFile())
        QFile::remove(path);
    if (!QDir().mkpath(path))
        return false;
    const QDir folder(path);
    for (const QFileInfo& entry : folder.entryInfoList(kAllEntries))
        if (IsOurs(entry.fileName()))
            Remove(entry);
    return true;
}

bool CollectForSaving(const QList<SParameterFileInfo>& rows, const CProductDirectorySet* products,
                      ReadReport& report)
{
    for (int i = 0; i < rows.size(); ++i) {
        QString error;
        if (CopyForPacking(rows[i], products, NumberedPath(i), &error))
            continue;
        if (!error.isEmpty()) {
            report.Add(error);
            return false;
        }
        ReportMissing(rows[i], report);
    }
    return true;
}

void DistributeAfterLoading(const QList<SParameterFileInfo>& rows, CProductDirectorySet* products,
                            ReadReport& report)
{
    for (int i = 0; i < rows.size(); ++i) {
        const QString source = NumberedPath(i);
        if (!QFileInfo(source).isFile()) {
            ReportMissing(rows[i], report);
            continue;
        }
        if (rows[i].name.isEmpty()) // a repeated type, listed once under another row
            continue;
        if (!Store(source, rows[i].name, rows[i].type))
            report.Add(QCoreApplication::translate("OrvanData", "参数文件“%1”无法保存").arg(rows[i].name));
        if (products)
            OfferToLibrary(source, rows[i], products);
    }
    if (products)
        products->LoadProductInfo();
}

} // namespace parameterwork
