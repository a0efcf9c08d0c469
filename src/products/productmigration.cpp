#include "products/productmigration.h"

#include "products/folderlisting.h"
#include "products/productscan.h"
#include "settings/constantdata.h"
#include "settings/folders.h"
#include "settings/inifile.h"

#include <QDir>

namespace {

constexpr int kMaxListedProducts = 999999;

/// QDir would take a name that begins with ":" for a place outside the folder.
QString PathIn(const QString& folder, const QString& name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

/// The digests in a product list, which ends at the first entry that is missing or empty. False when the list
/// cannot be read.
bool ReadProductList(const QString& path, QSet<SMD5>& digests)
{
    const QString noFile = QStringLiteral("NoFile");
    QVariantMap list;
    if (!ReadIniValues(path, &list))
        return false;
    for (int number = 1; number <= kMaxListedProducts; ++number) {
        const QString key = QStringLiteral("ProductListInfo/Product%1").arg(number);
        const QVariant entry = list.value(key, noFile);
        if (!entry.isValid()) // of a type that is not read
            return false;
        const QString text = entry.toString();
        if (text.isEmpty() || text == noFile)
            break;
        const SMD5 md5 = SMD5::FromString(text.toLower());
        if (!md5.IsNull()) // other characters than those of a digest equal no file's
            digests.insert(md5);
    }
    return true;
}

void DeleteListedProducts(const QString& folder, const QSet<SMD5>& digests)
{
    if (digests.isEmpty())
        return;
    QStringList files;
    ListFiles(folder, files);
    for (const QString& file : qAsConst(files)) {
        if (IsProductFile(file) && digests.contains(CConstantData::GetMD5FromFile(file)))
            QFile::remove(file);
    }
}

void MoveFiles(const QString& oldFolder, const QString& newFolder)
{
    QStringList files;
    ListFiles(oldFolder, files);
    for (const QString& file : qAsConst(files)) {
        const QString relative = file.mid(oldFolder.size());
        if (!MakeFoldersOf(newFolder, relative) || QFileInfo(newFolder + relative).isSymLink())
            continue;
        QFile::rename(file, newFolder + relative);
    }
}

} // namespace

void ListFiles(const QString& folder, QStringList& files)
{
    for (const FolderEntry& entry : ListFolder(folder)) {
        const QString path = PathIn(folder, entry.name);
        if (entry.isFolder)
            ListFiles(path, files);
        else
            files.append(path);
    }
}

void RemoveEmptySubFolders(const QString& folder)
{
    for (const FolderEntry& entry : ListFolder(folder)) {
        if (!entry.isFolder)
            continue;
        const QString path = PathIn(folder, entry.name);
        RemoveEmptySubFolders(path);
        QDir().rmdir(path); // refuses a folder that holds anything
    }
}

void MigrateProductFolder(const QString& oldFolder, const QString& newFolder)
{
    const QFileInfo old(oldFolder.chopped(1));
    if (!old.isDir() || old.isSymLink() || !QDir().mkpath(newFolder))
        return;

    const QString list = oldFolder + QStringLiteral("ProductList.ini");
    const QFileInfo listInfo(list);
    if (listInfo.isFile() && !listInfo.isSymLink()) {
        QSet<SMD5> digests;
        if (!ReadProductList(list, digests))
            return; // which files are the user's own is not known
        DeleteListedProducts(oldFolder, digests);
        QFile::remove(list);
    }

    MoveFiles(oldFolder, newFolder);
    RemoveEmptySubFolders(oldFolder);
    QDir().rmdir(oldFolder);
}
