#pragma once

#include "common/export.h"
#include "common/smd5.h"

#include <QMetaType>
#include <QString>

class CProductDirectory;
class QDebug;

/// One cabinet product type: a receiver parameter file, known by the digest of its content. Owned by the
/// folder node that it was added to.
class ORVANDATA_EXPORT CProduct
{
public:
    static constexpr unsigned int kNoMenuId = 0xFFFFFFFFU;

    CProduct() = default;
    CProduct(const CProduct&) = delete;
    CProduct& operator=(const CProduct&) = delete;

    void CopyByProduct(const CProduct* other); ///< every field; null is ignored

    SMD5 GetMd5() const { return m_md5; }
    void SetMd5(const SMD5& md5);
    unsigned int GetMenuID() const { return m_menuId; } ///< kNoMenuId: none
    void SetMenuID(unsigned int id) { m_menuId = id; }
    QString GetParamPath() const { return m_paramPath; } ///< absolute path of the parameter file
    void SetParamPath(const QString& path) { m_paramPath = path; }
    QString GetName() const;     ///< file name without its last suffix
    QString GetFileName() const; ///< with suffix

    // Read from the parameter file by the host; a scan leaves them at 0 and false.
    unsigned short GetPixelWidth() const { return m_pixelWidth; }
    void SetPixelWidth(unsigned short width) { m_pixelWidth = width; }
    unsigned short GetPixelHeight() const { return m_pixelHeight; }
    void SetPixelHeight(unsigned short height) { m_pixelHeight = height; }
    bool IsMulti() const { return m_multi; } ///< whether a cabinet holds several receiving cards
    void SetMulti(bool multi) { m_multi = multi; }
    bool IsMultiFlagSet() const { return m_multiSet; } ///< whether their order is set by the product
    void SetMultiFlagSet(bool set) { m_multiSet = set; }

private:
    friend class CProductDirectory; // sets the owner

    SMD5 m_md5;
    unsigned int m_menuId = kNoMenuId;
    QString m_paramPath;
    unsigned short m_pixelWidth = 0;
    unsigned short m_pixelHeight = 0;
    bool m_multi = false;
    bool m_multiSet = false;
    CProductDirectory* m_owner = nullptr; ///< [keep] outlives its products
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const CProduct& product);

Q_DECLARE_METATYPE(CProduct*)
