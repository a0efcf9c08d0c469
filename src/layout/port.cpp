#include "layout/port.h"

#include "layout/layoutlookup.h"
#include "layout/sender.h"

CPort::CPort() = default;

CPort::CPort(const CPort& other)
{
    Copy(other, false);
}

CPort::~CPort() = default;

CPort& CPort::operator=(const CPort& other)
{
    if (this != &other)
        Copy(other, false);
    return *this;
}

bool CPort::Copy(const CPort& other, bool withoutLayout)
{
    m_senderId = other.m_senderId;
    m_portIndex = other.m_portIndex;
    m_backupDest = other.m_backupDest;
    m_backupSenderId = other.m_backupSenderId;
    m_backupPortIndex = other.m_backupPortIndex;
    m_backupIp = other.m_backupIp;
    m_color = other.m_color;
    if (!withoutLayout)
        m_layout = other.m_layout;
    return true;
}

bool CPort::LayoutCopy(const CPort& other)
{
    m_layout = other.m_layout;
    return true;
}

void CPort::UndoRedoCopy(const CPort& other)
{
    if (this == &other)
        return;
    if (m_backupDest != other.m_backupDest) {
        m_layout.ClearAllTiles();
        return;
    }
    m_senderId = other.m_senderId;
    m_portIndex = other.m_portIndex;
    m_layout = other.m_layout;
}

bool CPort::BeSameAs(const CPort& other) const
{
    return m_senderId == other.m_senderId && m_portIndex == other.m_portIndex
           && m_backupDest == other.m_backupDest && m_backupSenderId == other.m_backupSenderId
           && m_backupIp == other.m_backupIp && m_backupPortIndex == other.m_backupPortIndex
           && m_layout == other.m_layout;
}

void CPort::SetSenderIdAndPortIndex(const QUuid& senderId, int portIndex)
{
    m_senderId = senderId;
    m_portIndex = portIndex;
}

QUuid CPort::GetSenderId() const
{
    return m_senderId;
}

int CPort::GetPortIndex() const
{
    return m_portIndex;
}

bool CPort::SetBeBackupDest(const QUuid& senderId, int portIndex)
{
    m_backupDest = true;
    m_backupSenderId = senderId;
    m_backupPortIndex = portIndex;
    m_backupIp = 0;
    return true;
}

bool CPort::SetBeBackupDestIP(unsigned long ip, int portIndex)
{
    const auto address = static_cast<quint32>(ip);
    if (address == 0)
        return false;
    m_backupDest = true;
    m_backupSenderId = QUuid();
    m_backupPortIndex = portIndex;
    m_backupIp = address;
    return true;
}

void CPort::CancelBackupDest()
{
    m_backupDest = false;
    m_backupSenderId = QUuid();
    m_backupPortIndex = -1;
    m_backupIp = 0;
}

bool CPort::IsBackupDest() const
{
    return m_backupDest;
}

QUuid CPort::GetBackupSrcSenderId() const
{
    return m_backupSenderId;
}

int CPort::GetBackupSrcPortIndex() const
{
    return m_backupPortIndex;
}

unsigned long CPort::GetBackupSrcIP() const
{
    return m_backupIp;
}

bool CPort::SetFlagLock(bool locked)
{
    const bool changed = m_locked != locked;
    m_locked = locked;
    return changed;
}

bool CPort::IsFlagLock() const
{
    return m_locked;
}

bool CPort::SetVisible(bool visible)
{
    const bool changed = m_visible != visible;
    m_visible = visible;
    return changed;
}

bool CPort::IsVisible() const
{
    return m_visible;
}

void CPort::SetPortColor(const QColor& color)
{
    m_color = color;
}

QColor CPort::GetPortColor() const
{
    return m_color;
}

void CPort::SetPortArea(const QRect& area)
{
    m_area = area;
}

QRect CPort::GetPortArea() const
{
    return m_area;
}

CPortProject* CPort::GetPortProject()
{
    return &m_layout;
}

const CPortProject* CPort::GetPortProject() const
{
    return &m_layout;
}

QRect CPort::GetBound() const
{
    return m_layout.GetTileSet()->GetBound();
}

CTileSet* CPort::GetPortTileSetOrBackupSrc()
{
    // Only one step: the layout of a source that is a backup itself is its own, so that two ports that back
    // up each other end here too.
    CPort* source = this;
    if (m_backupDest) {
        CSender* sender =
            m_backupSenderId.isNull() ? nullptr : GetLayoutLookup()->FindSender(m_backupSenderId);
        source = sender ? sender->GetPort(m_backupPortIndex) : nullptr;
    }
    if (!source)
        return nullptr;
    CTileSet* tiles = source->m_layout.GetTileSet();
    tiles->TileSetNormalization();
    return tiles;
}

void CPort::GetPortTileSetOrBackupSrc(CTileSet& out)
{
    CTileSet shown;
    if (const CTileSet* source = GetPortTileSetOrBackupSrc()) {
        for (int i = 0; i < source->GetCount(); ++i)
            shown.AddTile(source->GetTile(i));
    }
    out = shown;
}
