#include "products/productdirectory.h"

#include <QHash>

#include <memory>
#include <utility>

CProductDirectory::~CProductDirectory()
{
    qDeleteAll(m_products);
    qDeleteAll(m_subDirs);
}

QString CProductDirectory::GetFileDirName() const
{
    return m_folderPath.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
}

namespace {

template <class Directory> void VisitFolders(Directory& root, const std::function<void(Directory&)>& visit)
{
    visit(root);
    for (CProductDirectory* directory : root.GetSubDirs())
        VisitFolders<Directory>(*directory, visit);
}

} // namespace

void CProductDirectory::CopyExpandFlag(const CProductDirectory* other)
{
    if (!other)
        return;
    QHash<QString, bool> flags;
    VisitFolders<const CProductDirectory>(*other, [&flags](const CProductDirectory& directory) {
        if (!flags.contains(directory.m_folderPath))
            flags.insert(directory.m_folderPath, directory.m_expanded);
    });
    VisitFolders<CProductDirectory>(*this, [&flags](CProductDirectory& directory) {
        directory.m_expanded = flags.value(directory.m_folderPath, directory.m_expanded);
    });
}

int CProductDirectory::GetProductCount() const
{
    int count = m_products.size();
    for (const CProductDirectory* directory : m_subDirs)
        count += directory->GetProductCount();
    return count;
}

bool CProductDirectory::AddProduct(CProduct* product)
{
    if (!product || product->m_owner)
        return false;
    product->m_owner = this;
    m_products.append(product);
    TreeChanged();
    return true;
}

bool CProductDirectory::AddSubProductDirectory(CProductDirectory* directory)
{
    if (!directory || directory->m_parent)
        return false;
    for (const CProductDirectory* node = this; node; node = node->m_parent) {
        if (node == directory)
            return false;
    }
    directory->m_parent = this;
    m_subDirs.append(directory);
    TreeChanged();
    return true;
}

bool CProductDirectory::DeleteProduct(CProduct* product)
{
    if (m_products.removeOne(product)) {
        delete product;
        TreeChanged();
        return true;
    }
    for (CProductDirectory* directory : qAsConst(m_subDirs)) {
        if (directory->DeleteProduct(product))
            return true;
    }
    return false;
}

bool CProductDirectory::DeleteSubDir(CProductDirectory* directory)
{
    if (m_subDirs.removeOne(directory)) {
        delete directory;
        TreeChanged();
        return true;
    }
    for (CProductDirectory* child : qAsConst(m_subDirs)) {
        if (child->DeleteSubDir(directory))
            return true;
    }
    return false;
}

void CProductDirectory::DeleteAll()
{
    qDeleteAll(std::exchange(m_products, {}));
    qDeleteAll(std::exchange(m_subDirs, {}));
    TreeChanged();
}

void CProductDirectory::CopyOtherProductDirectory(const CProductDirectory* other)
{
    if (!other)
        return;
    CProductDirectory copy; // the other tree may lie in this one or around it
    copy.CopyContent(*other);
    Swap(copy);
}

CProduct* CProductDirectory::FindProductFromGuid(const SMD5& md5) const
{
    return FindProduct([&md5](const CProduct& product) { return product.GetMd5() == md5; });
}

CProduct* CProductDirectory::FindeProductFromMenuID(unsigned int menuId) const
{
    return FindProduct([menuId](const CProduct& product) { return product.GetMenuID() == menuId; });
}

CProduct* CProductDirectory::FindProductByFileName(const QString& fileName) const
{
    return FindProduct([&fileName](const CProduct& product) { return product.GetFileName() == fileName; });
}

bool CProductDirectory::GetProductAbsolutePath(const SMD5& md5, QString& path) const
{
    const CProduct* product = FindProductFromGuid(md5);
    if (product)
        path = product->GetParamPath();
    return product != nullptr;
}

CProduct* CProductDirectory::FindProduct(const std::function<bool(CProduct&)>& visit) const
{
    for (CProduct* product : m_products) {
        if (visit(*product))
            return product;
    }
    for (const CProductDirectory* directory : m_subDirs) {
        if (CProduct* product = directory->FindProduct(visit))
            return product;
    }
    return nullptr;
}

void CProductDirectory::TreeChanged()
{
    if (m_parent)
        m_parent->TreeChanged();
}

void CProductDirectory::Swap(CProductDirectory& other)
{
    std::swap(m_folderPath, other.m_folderPath);
    std::swap(m_products, other.m_products);
    std::swap(m_subDirs, other.m_subDirs);
    std::swap(m_expanded, other.m_expanded);
    Adopt();
    other.Adopt();
}

void CProductDirectory::CopyContent(const CProductDirectory& other)
{
    m_folderPath = other.m_folderPath;
    m_expanded = other.m_expanded;
    for (const CProduct* product : other.m_products) {
        auto copy = std::make_unique<CProduct>();
        copy->CopyByProduct(product);
        AddProduct(copy.release());
    }
    for (const CProductDirectory* directory : other.m_subDirs) {
        auto copy = std::make_unique<CProductDirectory>();
        copy->CopyContent(*directory);
        AddSubProductDirectory(copy.release());
    }
}

void CProductDirectory::Adopt()
{
    for (CProduct* product : qAsConst(m_products))
        product->m_owner = this;
    for (CProductDirectory* directory : qAsConst(m_subDirs))
        directory->m_parent = this;
    TreeChanged();
}
