#pragma once

#include "common/export.h"
#include "layout/portproject.h"

#include <QColor>
#include <QRect>
#include <QUuid>

/// One output (network) port of a sender, with the layout wired to it. A backup port shows and uses the
/// layout of the port it backs up. Owned by its sender, or by whoever made a copy.
class ORVANDATA_EXPORT CPort
{
public:
    CPort();
    CPort(const CPort& other); ///< Copy(other, false)
    virtual ~CPort();
    CPort& operator=(const CPort& other);

    // copying: lock, visibility and area are never taken
    bool Copy(const CPort& other, bool withoutLayout);
    bool LayoutCopy(const CPort& other);
    void UndoRedoCopy(const CPort& other); ///< clears this layout when only one of the two is a backup
    bool BeSameAs(const CPort& other) const;

    // place in the sender
    void SetSenderIdAndPortIndex(const QUuid& senderId, int portIndex);
    QUuid GetSenderId() const;
    int GetPortIndex() const;

    // backup
    bool SetBeBackupDest(const QUuid& senderId, int portIndex);
    bool SetBeBackupDestIP(unsigned long ip, int portIndex); ///< host-order IPv4; 0 is refused
    void CancelBackupDest();
    bool IsBackupDest() const;
    QUuid GetBackupSrcSenderId() const;
    int GetBackupSrcPortIndex() const;    ///< -1: none
    unsigned long GetBackupSrcIP() const; ///< host-order IPv4, 0 when the source is named by id

    // display
    bool SetFlagLock(bool locked); ///< whether it changed
    bool IsFlagLock() const;
    bool SetVisible(bool visible); ///< whether it changed
    bool IsVisible() const;
    void SetPortColor(const QColor& color);
    QColor GetPortColor() const;
    void SetPortArea(const QRect& area);
    QRect GetPortArea() const;

    // layout
    CPortProject* GetPortProject(); ///< [ref]
    const CPortProject* GetPortProject() const;
    QRect GetBound() const; ///< of this port's own tiles
    /// [ref] The tiles shown: the port's own, or those of the port it backs up, looked for by the id of its
    /// sender alone; null when there is none, so for every source named by its address. The set is normalised
    /// first.
    CTileSet* GetPortTileSetOrBackupSrc();
    void GetPortTileSetOrBackupSrc(CTileSet& out); ///< lists the same; nothing where that is null

private:
    QUuid m_senderId;
    int m_portIndex = 0;
    bool m_locked = false;
    bool m_visible = true;
    bool m_backupDest = false;
    QUuid m_backupSenderId;
    int m_backupPortIndex = -1;
    quint32 m_backupIp = 0;
    CPortProject m_layout;
    QColor m_color;
    QRect m_area;
};
