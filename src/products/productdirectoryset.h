#pragma once

#include "products/productdirectory.h"

#include <QHash>
#include <QSize>
#include <QStringList>

#include <memory>

class DigestCache;

/// The product library: the tree of all folders and products below the product folder, this object being the
/// root. Owned by the runtime state. Searches by digest use an index over the whole tree.
class ORVANDATA_EXPORT CProductDirectorySet : public CProductDirectory
{
public:
    CProductDirectorySet();
    ~CProductDirectorySet() override;

    static QString GetRootDir(); ///< the product folder with a trailing "/", created when missing

    // scanning
    /// Scans the product folder anew and returns the number of products. Replaces all products and nodes of
    /// the tree; expanded folders stay expanded. Only files that changed are hashed again.
    int LoadProductInfo();
    /// Adds the content of a folder, all levels, to a node and returns the number of products. A file that
    /// equals another one of this tree or scan, byte for byte, is deleted from disk. Links are not followed.
    int LoadProductInfoFolderEx(const QString& folder, CProductDirectory* node, unsigned int& nextMenuId);
    QString GetScannedFolder() const { return m_scannedFolder; } ///< the folder scanned last
    unsigned int SnatchMenuID();    ///< a fresh menu id, for a product that no scan found
    static void UpdateProductDir(); ///< moves an older product folder's content into the current one

    // searches in the whole tree: [ref], null when there is none
    CProduct* FindProductFromGuid(const SMD5& md5) const override;
    CProduct* FindProductFromFileName(const QString& fileName) const;      ///< with suffix, case-sensitive
    bool GetProductTypeNameFromGuid(const SMD5& md5, QString& name) const; ///< false leaves the name alone
    /// Pixels of one cabinet, 1024 x 1024 for an unknown type. Scans first when there is no product.
    QSize GetProductTypePixelSizeFromGuid(const SMD5& md5);

    // a given part of the tree
    static bool IsSameProductExsit(const SMD5& md5, const CProductDirectory* directory);
    /// Looks at the root's own sub-folders; `position` may be null.
    CProductDirectory* FindProductDirectoryByName(const QString& name, int* position) const;
    static CProduct* GetTraverFirstProduct(const CProductDirectory* directory); ///< all levels
    static CProduct* GetThisFirstProduct(const CProductDirectory* directory);   ///< this level only
    /// Appends the file names with suffix.
    static void GetAllProductName(QStringList& names, const CProductDirectory* directory);

    // folders on disk
    static void GetFileInDir(const QString& folder, QStringList& files); ///< appended, all levels; no links
    static void DeleteEmptySubDir(const QString& folder); ///< all levels, the folder itself stays

protected:
    void TreeChanged() override;

private:
    std::unique_ptr<DigestCache> m_digests;
    QString m_scannedFolder;
    unsigned int m_nextMenuId;
    mutable QHash<SMD5, CProduct*> m_index; ///< first product of each digest in search order
    mutable bool m_indexValid = false;
};
