#pragma once

#include "common/export.h"
#include "common/smd5.h"

#include <QString>

class CProductDirectory;

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

    SMD5 GetMd5() const;
    void SetMd5(const SMD5& md5);
    unsigned int GetMenuID() const; ///< kNoMenuId: none
    void SetMenuID(unsigned int id);
    QString GetParamPath() const; ///< absolute path of the parameter file
    void SetParamPath(const QString& path);
    QString GetName() const;     ///< file name without its last suffix
    QString GetFileName() const; ///< with suffix

    // Read from the parameter file by the host; a scan leaves them at 0 and false.
    unsigned short GetPixelWidth() const;
    void SetPixelWidth(unsigned short width);
    unsigned short GetPixelHeight() const;
    void SetPixelHeight(unsigned short height);
    bool IsMulti() const; ///< whether a cabinet holds several receiving cards
    void SetMulti(bool multi);
    bool IsMultiFlagSet() const; ///< whether their order is set by the product
    void SetMultiFlagSet(bool set);

private:
    friend class CProductDirectory;

    SMD5 m_md5;
    unsigned int m_menuId = kNoMenuId;
    QString m_paramPath;
    unsigned short m_pixelWidth = 0;
    unsigned short m_pixelHeight = 0;
    bool m_multi = false;
    bool m_multiSet = false;
    CProductDirectory* m_owner = nullptr; ///< [keep] outlives its products
};
