#include "products/product.h"

#include "common/debugline.h"
#include "products/productdirectory.h"

#include <QFileInfo>

void CProduct::CopyByProduct(const CProduct* other)
{
    if (!other)
        return;
    SetMd5(other->m_md5);
    m_menuId = other->m_menuId;
    m_paramPath = other->m_paramPath;
    m_pixelWidth = other->m_pixelWidth;
    m_pixelHeight = other->m_pixelHeight;
    m_multi = other->m_multi;
    m_multiSet = other->m_multiSet;
}

void CProduct::SetMd5(const SMD5& md5)
{
    m_md5 = md5;
    if (m_owner)
        m_owner->TreeChanged();
}

QString CProduct::GetName() const
{
    return QFileInfo(m_paramPath).completeBaseName();
}

QString CProduct::GetFileName() const
{
    return QFileInfo(m_paramPath).fileName();
}

QDebug operator<<(QDebug debug, const CProduct& product)
{
    return DebugLine(debug, "CProduct(", product.GetName(), ' ', product.GetPixelWidth(), 'x',
                     product.GetPixelHeight(), ')');
}
