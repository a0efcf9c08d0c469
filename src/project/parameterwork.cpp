#include "project/parameterwork.h"

#include "common/atomicfile.h"
#include "common/fileproblem.h"
#include "common/inputfile.h"
#include "common/safefilename.h"
#include "common/texts.h"
#include "products/productdirectoryset.h"
#include "project/readreport.h"
#include "settings/archive.h"
#include "settings/constantdata.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace parameterwork {

namespace {

constexpr auto kAllEntries = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

const QString kEntryFolder = QStringLiteral("project/");
const QString kDocument = QStringLiteral("new.prj");
const ArchiveLimits kLimits = {qint64(256) << 20, kEntryFolder + kDocument}; ///< of all parameter files

bool IsParameterFile(const QString& name)
{
    static const QRegularExpression files(QStringLiteral("\\A[0-9]+\\.rcvbp\\z"));
    return files.match(name).hasMatch();
}

/// Whether packing and unpacking put something of that name into the project folder.
bool IsOurs(const QString& name)
{
    // Left by a copying or unpacking that was killed.
    static const QRegularExpression leftovers(QStringLiteral("\\A(qt_temp\\.\\w{6}|\\..+\\.part)\\z"));
    return name == kDocument || IsParameterFile(name) || leftovers.match(name).hasMatch();
}

void Remove(const QFileInfo& entry)
{
    if (entry.isDir() && !entry.isSymLink()) // from an odd archive
        QDir(entry.filePath()).removeRecursively();
    else
        QFile::remove(entry.filePath());
}

/// Where a document is written before it takes the place of the last one.
QString NextDocumentPath()
{
    return CConstantData::GetProjectParamFileTemp() + kDocument + QStringLiteral(".part");
}

QString NumberedName(int row)
{
    return QString::number(row) + QStringLiteral(".rcvbp");
}

QString NumberedPath(int row)
{
    return ProjectFolder() + NumberedName(row);
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

bool Replace(const QString& source, const QString& target, QString* error)
{
    QFile file(source);
    const auto copy = [&](QIODevice& to) {
        return CopyContent(file, to) || Fail(error, CannotRead(source, file.errorString()));
    };
    return OpenInput(file, error) && ReplaceWorkFile(target, copy, error);
}

/// How far a copy came. A file that cannot be read is left out; when nothing can be written any more, the
/// archive stays as it is.
enum class Copied
{
    Yes,
    Unreadable,
    Unwritable
};

Copied CopyAnew(const QString& source, const QString& target, qint64 most, QString* error)
{
    QFile from(source);
    if (!OpenInput(from, error))
        return Copied::Unreadable;
    if (from.size() > most) {
        *error = Texts::tr("压缩包内容过大: %1").arg(source);
        return Copied::Unreadable;
    }
    QFile to(target);
    if (to.open(QIODevice::WriteOnly | QIODevice::NewOnly) && CopyContent(from, to) && to.flush())
        return Copied::Yes;
    const bool readFailed = from.error() != QFileDevice::NoError;
    *error = readFailed ? CannotRead(source, from.errorString()) : CannotWrite(target, to.errorString());
    to.remove();
    return readFailed ? Copied::Unreadable : Copied::Unwritable;
}

/// Copies the row's file to where it is packed: the project's own, or the library's when that is not of the
/// row's type and the library's can be had. The digest is the copy's: another program may replace the
/// original. `error` stays empty when there is no file.
Copied CopyForPacking(const SParameterFileInfo& row, const CProductDirectorySet* products,
                      const QString& target, qint64 most, QString* error)
{
    const QString own = PathOf(row.name);
    const QString library = LibraryFile(products, row.type);
    const bool hasLibrary = QFile::exists(library);
    Copied copied = Copied::Unreadable;
    if (QFileInfo::exists(own))
        copied = CopyAnew(own, target, most, error);
    if (copied == Copied::Unwritable || !hasLibrary || (copied == Copied::Yes && HoldsType(target, row.type)))
        return copied;
    QFile::remove(target);
    const Copied fromLibrary = CopyAnew(library, target, most, error);
    const bool takeOwn = copied == Copied::Yes && fromLibrary == Copied::Unreadable;
    return takeOwn ? CopyAnew(own, target, most, error) : fromLibrary;
}

/// Products are told apart by their digests. The library keeps each file it has, whatever the new one is
/// named.
bool OfferToLibrary(const QString& source, const SParameterFileInfo& row, QSet<SMD5>& known)
{
    const SMD5 digest = CConstantData::GetMD5FromFile(source);
    if (known.contains(digest))
        return true;
    const QString target = CProductDirectorySet::GetRootDir() + row.name + QStringLiteral(".rcvbp");
    if (IsThere(target) ? CConstantData::GetMD5FromFile(target) != digest : !Replace(source, target, nullptr))
        return false;
    known.insert(digest);
    return true;
}

/// The digests of all products that are now in the product folder. Of two equal files the next scan would
/// take one away.
QSet<SMD5> DigestsInFolder(CProductDirectorySet& products)
{
    QSet<SMD5> digests;
    products.LoadProductInfo();
    products.FindProduct([&digests](const CProduct& product) {
        digests.insert(product.GetMd5());
        return false;
    });
    return digests;
}

void ReportMissing(const SParameterFileInfo& row, ReadReport& report)
{
    report.Add(Texts::tr("缺少参数文件“%1”").arg(row.name));
}

void ReportUnread(const SParameterFileInfo& row, const QString& why, ReadReport& report)
{
    report.Add(Texts::tr("参数文件“%1”无法读取：%2").arg(row.name, why));
}

void ReportUnsaved(const SParameterFileInfo& row, const QString& why, ReadReport& report)
{
    report.Add(Texts::tr("参数文件“%1”无法保存：%2").arg(row.name, why));
}

/// Unpacks what it can. Gives why the others are missing, by the names of their entries.
QHash<QString, QString> UnpackParameterFiles(const QString& archive, ReadReport& report)
{
    const auto isParameterFile = [](const QString& name) {
        return name.startsWith(kEntryFolder) && IsParameterFile(name.mid(kEntryFolder.size()));
    };
    QHash<QString, QString> damaged;
    QString error;
    if (!UnpackArchive(archive, CConstantData::GetProjectParamFileTemp(), isParameterFile, &error, kLimits,
                       [&damaged](const QString& name, const QString& why) { damaged.insert(name, why); }))
        report.Add(error);
    return damaged;
}

} // namespace

QString ProjectFolder()
{
    return CConstantData::GetProjectParamFileTemp() + kEntryFolder;
}

QString DocumentPath()
{
    return ProjectFolder() + kDocument;
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

QString SafeName(const QString& name, UniqueNames& names)
{
    return names.Take(SafeFileName(name, QStringLiteral("param")));
}

QList<SParameterFileInfo> SafelyNamed(const QList<SParameterFileInfo>& files)
{
    QList<SParameterFileInfo> rows;
    UniqueNames names;
    QSet<SMD5> types;
    for (const SParameterFileInfo& file : files) {
        rows.append({QString(), file.type});
        if (types.contains(file.type))
            continue;
        if (!file.type.IsNull())
            types.insert(file.type);
        rows.last().name = SafeName(file.name, names);
    }
    return rows;
}

QList<SParameterFileInfo> WithoutNameless(QList<SParameterFileInfo> rows)
{
    const auto isNameless = [](const SParameterFileInfo& row) { return row.name.isEmpty(); };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isNameless), rows.end());
    return rows;
}

QString LibraryFile(const CProductDirectorySet* products, const SMD5& type)
{
    QString path;
    if (products && !type.IsNull())
        products->GetProductAbsolutePath(type, path);
    return path;
}

bool Store(const QString& source, const QString& name, const SMD5& type, QString* error)
{
    const QString target = PathOf(name);
    return HoldsType(target, type) || Replace(source, target, error);
}

bool IsInTheWay(const QString& path)
{
    const QFileInfo file(path);
    const QFileInfo target(file.exists() ? file.canonicalFilePath() : path);
    const QString folder = target.dir().canonicalPath();
    if (folder == QFileInfo(NextDocumentPath()).dir().canonicalPath())
        return target.fileName() == QFileInfo(NextDocumentPath()).fileName();
    return folder == QDir(ProjectFolder()).canonicalPath() && IsOurs(target.fileName());
}

bool MakeProjectFolder(QString* error)
{
    const QString path = ProjectFolder().chopped(1);
    const QFileInfo info(path);
    if (info.isSymLink() || info.isFile())
        QFile::remove(path);
    if (!MakeFolder(path, error))
        return false;
    RemoveUnfinished(CConstantData::GetProjectParamFileTemp());
    const QDir folder(path);
    for (const QFileInfo& entry : folder.entryInfoList(kAllEntries))
        if (IsOurs(entry.fileName()))
            Remove(entry);
    return true;
}

bool ReplaceDocument(const std::function<bool(QIODevice&)>& write, QString* error)
{
    QFile next(NextDocumentPath());
    const auto fail = [&next, error] {
        return Fail(error, CannotWrite(next.fileName(), next.errorString()));
    };
    next.remove(); // left by a save that was killed
    bool done =
        (next.open(QIODevice::WriteOnly | QIODevice::NewOnly) && write(next) && next.flush()) || fail();
    next.close();
    done = done && MakeProjectFolder(error) && (next.rename(DocumentPath()) || fail());
    if (!done)
        next.remove();
    return done;
}

bool CollectForSaving(const QList<SParameterFileInfo>& rows, const CProductDirectorySet* products,
                      ReadReport& report)
{
    qint64 left = kLimits.total;
    int entries = 1; // the document
    for (int i = 0; i < rows.size(); ++i) {
        QString error;
        const qint64 most = entries < kMaxArchiveEntries ? std::min(left, kMaxArchiveEntrySize) : -1;
        const Copied copied = CopyForPacking(rows[i], products, NumberedPath(i), most, &error);
        if (copied == Copied::Yes) {
            left -= QFileInfo(NumberedPath(i)).size();
            ++entries;
        } else if (copied == Copied::Unwritable) {
            report.Refuse(error);
            return false;
        } else if (error.isEmpty()) {
            ReportMissing(rows[i], report);
        } else {
            ReportUnsaved(rows[i], error, report);
        }
    }
    return true;
}

bool Pack(const QString& archive, QString* error)
{
    return PackFolder(ProjectFolder(), archive, error, kLimits);
}

bool UnpackDocument(const QString& archive, QString* error)
{
    const auto isDocument = [](const QString& name) { return name == kEntryFolder + kDocument; };
    return UnpackArchive(archive, CConstantData::GetProjectParamFileTemp(), isDocument, error)
           && (QFile::exists(DocumentPath()) || Fail(error, Texts::tr("压缩包里没有“project/new.prj”。")));
}

void DistributeAfterLoading(const QString& archive, const QList<SParameterFileInfo>& rows,
                            CProductDirectorySet* products, ReadReport& report)
{
    const QHash<QString, QString> damaged = UnpackParameterFiles(archive, report);
    QSet<SMD5> known = products ? DigestsInFolder(*products) : QSet<SMD5>();
    const int knownBefore = known.size();
    for (int i = 0; i < rows.size(); ++i) {
        const QString source = NumberedPath(i);
        QString why = damaged.value(kEntryFolder + NumberedName(i));
        if (!why.isEmpty()) {
            ReportUnread(rows[i], why, report);
            continue;
        }
        if (!QFileInfo(source).isFile()) {
            ReportMissing(rows[i], report);
            continue;
        }
        if (rows[i].name.isEmpty()) // a repeated type, listed once under another row
            continue;
        if (!Store(source, rows[i].name, rows[i].type, &why))
            ReportUnsaved(rows[i], why, report);
        if (products && !OfferToLibrary(source, rows[i], known))
            report.Add(Texts::tr("参数文件“%1”无法放入产品库").arg(rows[i].name));
    }
    if (known.size() > knownBefore)
        products->LoadProductInfo();
}

} // namespace parameterwork
