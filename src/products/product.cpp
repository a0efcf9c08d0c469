#include "products/product.h"

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

SMD5 CProduct::GetMd5() const
{
    return m_md5;
}

void CProduct::SetMd5(const SMD5& md5)
{
    m_md5 = md5;
    if (m_owner)
        m_owner->TreeChanged();
}

unsigned int CProduct::GetMenuID() const
{
    return m_menuId;
}

void CProduct::SetMenuID(unsigned int id)
{
    m_menuId = id;
}

QString CProduct::GetParamPath() const
{
    return m_paramPath;
}

void CProduct::SetParamPath(const QString& path)
{
    m_paramPath = path;
}

QString CProduct::GetName() const
{
    return QFileInfo(m_paramPath).completeBaseName();
}

QString CProduct::GetFileName() const
{
    return QFileInfo(m_paramPath).fileName();
}

unsigned short CProduct::GetPixelWidth() const
{
    return m_pixelWidth;
}

void CProduct::SetPixelWidth(unsigned short width)
{
    m_pixelWidth = width;
}

unsigned short CProduct::GetPixelHeight() const
{
    return m_pixelHeight;
}

void CProduct::SetPixelHeight(unsigned short height)
{
    m_pixelHeight = height;
}

bool CProduct::IsMulti() const
{
    return m_multi;
}

void CProduct::SetMulti(bool multi)
{
    m_multi = multi;
}

bool CProduct::IsMultiFlagSet() const
{
    return m_multiSet;
}

void CProduct::SetMultiFlagSet(bool set)
{
    m_multiSet = set;
}
