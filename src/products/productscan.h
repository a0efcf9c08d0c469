#pragma once

#include "common/smd5.h"

#include <QHash>
#include <QString>

class CProductDirectory;
class DigestCache;
struct FileStamp;

bool IsProductFile(const QString& fileName); ///< by its suffix, case-sensitive

/// One walk over a product folder. Links are never followed.
class ProductScan
{
public:
    ProductScan(DigestCache& digests, unsigned int& nextMenuId);

    /// Takes the products of a tree as found, so that a copy of one of them is a duplicate.
    void AddKnown(const CProductDirectory& tree);

    /// Lists a folder and all below it in a node. Returns the number of products. A file that equals one
    /// found before, byte for byte, is deleted from disk.
    int ScanFolder(const QString& folder, CProductDirectory& node);

private:
    bool ScanFile(const QString& path, const FileStamp& stamp, CProductDirectory& node);
    /// Whether the product is listed already. Then the file is deleted, unless it is the listed one itself.
    bool IsFoundElsewhere(const QString& path, const FileStamp& stamp, const SMD5& md5);

    DigestCache& m_digests;
    unsigned int& m_nextMenuId;
    QHash<SMD5, QString> m_found; ///< the file that keeps the product, by digest
};
