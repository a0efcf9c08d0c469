#include "products/productscan.h"

#include "products/digestcache.h"
#include "products/folderlisting.h"
#include "products/productdirectory.h"

#include <QFile>

#include <memory>

namespace {

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
    int count = 0;
    for (const FolderEntry& entry : ListFolder(folder)) {
        const QString path = folder + entry.name;
        if (entry.isFolder) {
            auto directory = std::make_unique<CProductDirectory>();
            directory->SetFolderPath(path + QLatin1Char('/'));
            count += ScanFolder(directory->GetFolderPath(), *directory);
            node.AddSubProductDirectory(directory.release());
        } else if (IsProductFile(entry.name) && ScanFile(path, entry.stamp, node)) {
            ++count;
        }
    }
    return count;
}

bool ProductScan::ScanFile(const QString& path, const FileStamp& stamp, CProductDirectory& node)
{
    const SMD5 md5 = m_digests.Digest(path, stamp);
    if (!md5.IsNull() && IsFoundElsewhere(path, stamp, md5))
        return false;

    auto product = std::make_unique<CProduct>();
    product->SetMd5(md5);
    product->SetParamPath(path);
    product->SetMenuID(m_nextMenuId++);
    return node.AddProduct(product.release());
}

bool ProductScan::IsFoundElsewhere(const QString& path, const FileStamp& stamp, const SMD5& md5)
{
    const auto found = m_found.constFind(md5);
    if (found == m_found.constEnd()) {
        m_found.insert(md5, path);
        return false;
    }
    FileStamp first;
    if (ReadStamp(*found, first) && first.IsSameFile(stamp))
        return true; // deleting it could take the only copy
    if (!HasSameContent(path, *found))
        return false;
    QFile::remove(path);
    return true;
}
