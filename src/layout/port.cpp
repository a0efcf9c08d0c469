#include "layout/port.h"

#include "layout/layoutlookup.h"
#include "layout/sender.h"

#include <utility>

bool PortFields::IsSameWiring(const PortFields& other) const
{
    return senderId == other.senderId && portIndex == other.portIndex && backup.dest == other.backup.dest
           && backup.senderId == other.backup.senderId && backup.portIndex == other.backup.portIndex
           && backup.ip == other.backup.ip;
}

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
    const PortFields::View own = m_fields.view;
    m_fields = other.m_fields;
    m_fields.view = own;
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
    if (IsBackupDest() != other.IsBackupDest()) {
        m_layout.ClearAllTiles();
        return;
    }
    SetSenderIdAndPortIndex(other.GetSenderId(), other.GetPortIndex());
    m_layout = other.m_layout;
}

bool CPort::BeSameAs(const CPort& other) const
{
    return m_fields.IsSameWiring(other.m_fields) && m_layout == other.m_layout;
}

void CPort::SetSenderIdAndPortIndex(const QUuid& senderId, int portIndex)
{
    m_fields.senderId = senderId;
    m_fields.portIndex = portIndex;
}

bool CPort::SetBeBackupDest(const QUuid& senderId, int portIndex)
{
    m_fields.backup = {true, senderId, portIndex, 0};
    return true;
}

bool CPort::SetBeBackupDestIP(unsigned long ip, int portIndex)
{
    const auto address = static_cast<quint32>(ip);
    if (address == 0)
        return false;
    m_fields.backup = {true, QUuid(), portIndex, address};
    return true;
}

bool CPort::SetFlagLock(bool locked)
{
    return std::exchange(m_fields.view.locked, locked) != locked;
}

bool CPort::SetVisible(bool visible)
{
    return std::exchange(m_fields.view.visible, visible) != visible;
}

QRect CPort::GetBound() const
{
    return GetTileSet().GetBound();
}

CTileSet* CPort::GetPortTileSetOrBackupSrc()
{
    // One step only: a source that is a backup itself shows its own layout. So two ports that back up each
    // other end here too.
    CPort* source = this;
    if (IsBackupDest()) {
        const QUuid id = GetBackupSrcSenderId();
        CSender* sender = id.isNull() ? nullptr : GetLayoutLookup()->FindSender(id);
        source = sender ? sender->GetPort(GetBackupSrcPortIndex()) : nullptr;
    }
    if (!source)
        return nullptr;
    source->GetTileSet().TileSetNormalization();
    return &source->GetTileSet();
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

void CPort::TakeStored(const PortFields& stored)
{
    const QRect area = m_fields.view.area;
    m_fields = stored;
    m_fields.view.area = area;
    if (!stored.backup.dest)
        CancelBackupDest();
    else if (stored.backup.ip != 0)
        m_fields.backup.senderId = QUuid();
}
