#include "products/productdirectoryset.h"

#include "products/digestcache.h"
#include "products/productmigration.h"
#include "products/productscan.h"
#include "settings/constantdata.h"
#include "settings/folders.h"

#include <QDir>

namespace {

constexpr unsigned int kFirstMenuId = 8192;
constexpr int kUnknownPixels = 1024;

} // namespace

CProductDirectorySet::CProductDirectorySet()
    : m_digests(std::make_unique<DigestCache>(&CConstantData::GetMD5FromFile)), m_nextMenuId(kFirstMenuId)
{}

CProductDirectorySet::~CProductDirectorySet() = default;

QString CProductDirectorySet::GetRootDir()
{
    const QString folder = ProductFolder();
    QDir().mkpath(folder);
    return folder;
}

int CProductDirectorySet::LoadProductInfo()
{
    CProductDirectory before;
    Swap(before);
    SetExpanded(before.IsExpanded());

    const QString root = GetRootDir();
    m_nextMenuId = kFirstMenuId;
    m_digests->BeginRound();
    const int count = LoadProductInfoFolderEx(root, this, m_nextMenuId);
    m_digests->EndRound();

    SetFolderPath(root);
    CopyExpandFlag(&before);
    return count;
}

int CProductDirectorySet::LoadProductInfoFolderEx(const QString& folder, CProductDirectory* node,
                                                  unsigned int& nextMenuId)
{
    if (!node || folder.isEmpty())
        return 0;
    m_scannedFolder = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    ProductScan scan(*m_digests, nextMenuId);
    scan.AddKnown(*this);
    return scan.ScanFolder(m_scannedFolder, *node);
}

unsigned int CProductDirectorySet::SnatchMenuID()
{
    return m_nextMenuId++;
}

void CProductDirectorySet::UpdateProductDir()
{
    const QString root = ProductFolder();
    MigrateProductFolder(root.chopped(1) + QStringLiteral("2/"), root);
}

CProduct* CProductDirectorySet::FindProductFromGuid(const SMD5& md5) const
{
    if (!m_indexValid) {
        m_index.clear();
        FindProduct([this](CProduct& product) {
            if (!m_index.contains(product.GetMd5()))
                m_index.insert(product.GetMd5(), &product);
            return false;
        });
        m_indexValid = true;
    }
    return m_index.value(md5);
}

CProduct* CProductDirectorySet::FindProductFromFileName(const QString& fileName) const
{
    return FindProductByFileName(fileName);
}

bool CProductDirectorySet::GetProductTypeNameFromGuid(const SMD5& md5, QString& name) const
{
    const CProduct* product = FindProductFromGuid(md5);
    if (product)
        name = product->GetName();
    return product != nullptr;
}

QSize CProductDirectorySet::GetProductTypePixelSizeFromGuid(const SMD5& md5)
{
    if (!GetTraverFirstProduct(this))
        LoadProductInfo();
    const CProduct* product = FindProductFromGuid(md5);
    return product ? QSize(product->GetPixelWidth(), product->GetPixelHeight())
                   : QSize(kUnknownPixels, kUnknownPixels);
}

bool CProductDirectorySet::IsSameProductExsit(const SMD5& md5, const CProductDirectory* directory)
{
    return directory && directory->FindProductFromGuid(md5);
}

CProductDirectory* CProductDirectorySet::FindProductDirectoryByName(const QString& name, int* position) const
{
    const QList<CProductDirectory*>& directories = GetSubDirs();
    for (int i = 0; i < directories.size(); ++i) {
        if (directories.at(i)->GetFileDirName() != name)
            continue;
        if (position)
            *position = i;
        return directories.at(i);
    }
    return nullptr;
}

CProduct* CProductDirectorySet::GetTraverFirstProduct(const CProductDirectory* directory)
{
    return directory ? directory->FindProduct([](const CProduct&) { return true; }) : nullptr;
}

CProduct* CProductDirectorySet::GetThisFirstProduct(const CProductDirectory* directory)
{
    return directory ? directory->GetProducts().value(0) : nullptr;
}

void CProductDirectorySet::GetAllProductName(QStringList& names, const CProductDirectory* directory)
{
    if (!directory)
        return;
    directory->FindProduct([&names](const CProduct& product) {
        names.append(product.GetFileName());
        return false;
    });
}

void CProductDirectorySet::GetFileInDir(const QString& folder, QStringList& files)
{
    ListFiles(folder, files);
}

void CProductDirectorySet::DeleteEmptySubDir(const QString& folder)
{
    RemoveEmptySubFolders(folder);
}

void CProductDirectorySet::TreeChanged()
{
    m_indexValid = false;
    CProductDirectory::TreeChanged();
}
