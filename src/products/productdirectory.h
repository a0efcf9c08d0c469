#pragma once

#include "common/export.h"
#include "products/product.h"

#include <QList>
#include <QMetaType>

#include <functional>

/// One folder of the product library with its products and sub-folders, both owned. A node or product can
/// be owned by one node only. Searches run depth first: a node's own products in order, then its sub-folders.
class ORVANDATA_EXPORT CProductDirectory
{
public:
    CProductDirectory() = default;
    CProductDirectory(const CProductDirectory&) = delete;
    CProductDirectory& operator=(const CProductDirectory&) = delete;
    virtual ~CProductDirectory();

    // folder
    QString GetFolderPath() const { return m_folderPath; } ///< ends with "/"
    void SetFolderPath(const QString& path) { m_folderPath = path; }
    QString GetFileDirName() const;                ///< last component of the path
    bool IsExpanded() const { return m_expanded; } ///< in the host's tree view
    void SetExpanded(bool expanded) { m_expanded = expanded; }
    void CopyExpandFlag(const CProductDirectory* other); ///< for each folder that is in both trees

    // content
    const QList<CProduct*>& GetProducts() const { return m_products; }        ///< [ref] of this folder alone
    const QList<CProductDirectory*>& GetSubDirs() const { return m_subDirs; } ///< [ref]
    int GetProductCount() const;                                              ///< sub-folders included
    bool AddProduct(CProduct* product); ///< [own] appended; false, and not taken, when null or owned already
    /// [own] Appended. False, and not taken, when null, owned already, or when this node lies in it.
    bool AddSubProductDirectory(CProductDirectory* directory);
    bool DeleteProduct(CProduct* product);           ///< wherever it lies below; false when it does not
    bool DeleteSubDir(CProductDirectory* directory); ///< wherever it lies below; false when it does not
    void DeleteAll();
    void CopyOtherProductDirectory(const CProductDirectory* other); ///< replaces all; null is ignored

    // searches: [ref], null when there is none
    virtual CProduct* FindProductFromGuid(const SMD5& md5) const;
    CProduct* FindeProductFromMenuID(unsigned int menuId) const;
    CProduct* FindProductByFileName(const QString& fileName) const;    ///< with suffix, case-sensitive
    bool GetProductAbsolutePath(const SMD5& md5, QString& path) const; ///< false leaves the path alone

    /// Calls `visit` for each product below, in search order, until it returns true. Returns that product.
    CProduct* FindProduct(const std::function<bool(CProduct&)>& visit) const;

protected:
    /// Called after every change in the tree below that can change a search by digest.
    virtual void TreeChanged();
    void Swap(CProductDirectory& other); ///< everything but the place in a tree

private:
    friend class CProduct; // calls TreeChanged for a new digest

    void CopyContent(const CProductDirectory& other);
    void Adopt();

    QString m_folderPath;
    QList<CProduct*> m_products;
    QList<CProductDirectory*> m_subDirs;
    bool m_expanded = false;
    CProductDirectory* m_parent = nullptr; ///< [keep] the owner, which outlives this node
};

Q_DECLARE_METATYPE(CProductDirectory*)
