#pragma once

#include "common/export.h"
#include "layout/portproject.h"

#include <QColor>
#include <QMetaType>
#include <QRect>
#include <QUuid>

class QDebug;

/// What a port holds beside its layout. Files store all of it but the area.
struct PortFields
{
    /// The port that this one backs up, named by its sender's id or address, not by both.
    struct Backup
    {
        bool dest = false;
        QUuid senderId;
        int portIndex = -1; ///< -1: none
        quint32 ip = 0;     ///< host order
    };

    /// How the user works with this port. That belongs to the port, not to what is wired to it: a copy of
    /// another port leaves it alone, and comparing passes it over.
    struct View
    {
        bool locked = false;
        bool visible = true;
        QRect area;
    };

    QUuid senderId;
    int portIndex = 0;
    Backup backup;
    QColor color; ///< copied, but no difference between two ports
    View view;

    ORVANDATA_EXPORT bool IsSameWiring(const PortFields& other) const; ///< all but colour and view
};

/// One output (network) port of a sender, with the layout wired to it. A backup port shows and uses the
/// layout of the port it backs up. Owned by its sender, or by whoever made a copy.
class ORVANDATA_EXPORT CPort
{
public:
    CPort();
    CPort(const CPort& other); ///< Copy(other, false)
    virtual ~CPort();
    CPort& operator=(const CPort& other);

    // copying: all but the view, see PortFields
    bool Copy(const CPort& other, bool withoutLayout);
    bool LayoutCopy(const CPort& other);
    void UndoRedoCopy(const CPort& other); ///< clears this layout when only one of the two is a backup
    bool BeSameAs(const CPort& other) const;

    // place in the sender
    void SetSenderIdAndPortIndex(const QUuid& senderId, int portIndex);
    QUuid GetSenderId() const { return m_fields.senderId; }
    int GetPortIndex() const { return m_fields.portIndex; }

    // backup
    bool SetBeBackupDest(const QUuid& senderId, int portIndex);
    bool SetBeBackupDestIP(unsigned long ip, int portIndex); ///< host-order IPv4; 0 is refused
    void CancelBackupDest() { m_fields.backup = {}; }
    bool IsBackupDest() const { return m_fields.backup.dest; }
    QUuid GetBackupSrcSenderId() const { return m_fields.backup.senderId; }
    int GetBackupSrcPortIndex() const { return m_fields.backup.portIndex; } ///< -1: none
    /// Host-order IPv4, 0 when the source is named by id.
    unsigned long GetBackupSrcIP() const { return m_fields.backup.ip; }

    // display
    bool SetFlagLock(bool locked); ///< whether it changed
    bool IsFlagLock() const { return m_fields.view.locked; }
    bool SetVisible(bool visible); ///< whether it changed
    bool IsVisible() const { return m_fields.view.visible; }
    void SetPortColor(const QColor& color) { m_fields.color = color; }
    QColor GetPortColor() const { return m_fields.color; }
    void SetPortArea(const QRect& area) { m_fields.view.area = area; }
    QRect GetPortArea() const { return m_fields.view.area; }

    // layout
    CPortProject* GetPortProject() { return &m_layout; } ///< [ref]
    const CPortProject* GetPortProject() const { return &m_layout; }
    CTileSet& GetTileSet() { return *m_layout.GetTileSet(); } ///< the port's own
    const CTileSet& GetTileSet() const { return *m_layout.GetTileSet(); }
    CTileGroupSet& GetTileGroupSet() { return *m_layout.GetTileGroupSet(); }
    const CTileGroupSet& GetTileGroupSet() const { return *m_layout.GetTileGroupSet(); }
    QRect GetBound() const; ///< of this port's own tiles
    /// [ref] The tiles shown: the port's own, or those of the port it backs up, looked for by the id of its
    /// sender alone; null when there is none, so for every source named by its address. The set is normalised
    /// first.
    CTileSet* GetPortTileSetOrBackupSrc();
    void GetPortTileSetOrBackupSrc(CTileSet& out); ///< lists the same; nothing where that is null

    // inside the library: whole, as files and copies of senders take them
    const PortFields& GetFields() const { return m_fields; }
    void SetFields(const PortFields& fields) { m_fields = fields; }
    void TakeStored(const PortFields& stored); ///< puts right what a file may say; the area stays

private:
    PortFields m_fields;
    CPortProject m_layout;
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const CPort& port);

Q_DECLARE_METATYPE(CPort*)
