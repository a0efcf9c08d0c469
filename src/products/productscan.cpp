#include "products/productscan.h"

#include "products/digestcache.h"
#include "products/productdirectory.h"

#include <QDir>

#include <memory>

#include <sys/stat.h>

namespace {

/// Whether both paths lead to one file on disk, by hard links or by another way to the same folder.
bool IsSameFile(const QString& a, const QString& b)
{
    struct stat first = {};
    struct stat second = {};
    return stat(QFile::encodeName(a).constData(), &first) == 0
           && stat(QFile::encodeName(b).constData(), &second) == 0 && first.st_ino == second.st_ino
           && first.st_dev == second.st_dev;
}

bool HasSameContent(const QString& a, const QString& b)
{
    constexpr qint64 kBlock = 65536;
    QFile first(a);
    QFile second(b);
    if (!first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly)
        || first.size() != second.size())
        return false;
    while (!first.atEnd()) {
        const QByteArray block = first.read(kBlock);
        if (block.isEmpty() || block != second.read(kBlock))
            return false;
    }
    return second.atEnd();
}

} // namespace

bool IsProductFile(const QString& fileName)
{
    return fileName.endsWith(QLatin1String(".rcvp")) || fileName.endsWith(QLatin1String(".rcvbp"));
}

ProductScan::ProductScan(DigestCache& digests, unsigned int& nextMenuId)
    : m_digests(digests), m_nextMenuId(nextMenuId)
{}

void ProductScan::AddKnown(const CProductDirectory& tree)
{
    tree.FindProduct([this](const CProduct& product) {
        if (!product.GetMd5().IsNull() && !m_found.contains(product.GetMd5()))
            m_found.insert(product.GetMd5(), product.GetParamPath());
        return false;
    });
}

int ProductScan::ScanFolder(const QString& folder, CProductDirectory& node)
{
    const QFileInfoList entries = QDir(folder).entryInfoList(
        QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::Name);
    int count = 0;
    for (const QFileInfo& entry : entries) {
        const QString path = folder + entry.fileName();
        if (entry.isDir()) {
            auto directory = std::make_unique<CProductDirectory>();
            directory->SetFolderPath(path + QLatin1Char('/'));
            count += ScanFolder(directory->GetFolderPath(), *directory);
            node.AddSubProductDirectory(directory.release());
        } else if (IsProductFile(entry.fileName()) && ScanFile(path, node)) {
            ++count;
        }
    }
    return count;
}

bool ProductScan::ScanFile(const QString& path, CProductDirectory& node)
{
    const SMD5 md5 = m_digests.Digest(path);
    const auto found = m_found.constFind(md5);
    if (!md5.IsNull() && found != m_found.constEnd()) {
        if (IsSameFile(path, *found))
            return false; // listed already, and deleting it would take the only copy
        if (HasSameContent(path, *found)) {
            QFile::remove(path);
            return false;
        }
    }
    if (!md5.IsNull() && found == m_found.constEnd())
        m_found.insert(md5, path);

    auto product = std::make_unique<CProduct>();
    product->SetMd5(md5);
    product->SetParamPath(path);
    product->SetMenuID(m_nextMenuId++);
    return node.AddProduct(product.release());
}
