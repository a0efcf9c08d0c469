#pragma once

#include "common/canvaslimits.h"
#include "common/export.h"
#include "layout/port.h"
#include "records/senderparams.h"

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QUuid>

#include <array>

/// One sending unit or video processor of a project: identity, 160 ports of which the first GetPortCount()
/// are in use, canvas, and the processor parameters. Owned by its project, or by whoever made the copy.
class ORVANDATA_EXPORT CSender : public CSenderParams
{
public:
    CSender(); ///< a fresh id, four ports
    CSender(const CSender&) = delete;
    CSender& operator=(const CSender&) = delete;
    virtual ~CSender();

    void CopySender(const CSender& other); ///< every field, the ports' lock, visibility and area included
    bool LayoutCopy(const CSender& other); ///< the port layouts alone

    // identity
    QUuid GetId() const;
    void SetId(const QUuid& id); ///< all ports follow
    QString GetSenderName() const;
    void SetSenderName(const QString& name);
    bool IsPrintNameEnable() const;
    void SetPrintNameEnable(bool enable);
    QString GetPrintName() const; ///< the name on the printed form
    void SetPrintName(const QString& name);
    QUuid GetBelongGroup() const; ///< sender group, null: none
    void SetBelongGroup(const QUuid& id);
    unsigned long GetNetSenderIP() const; ///< host-order IPv4, 0: none
    void SetNetSenderIP(unsigned long ip);

    // background image
    bool IsBKImgShow() const;
    void SetBKImgShow(bool show);
    int GetBKImgAlpha() const;
    void SetBKImgAlpha(int alpha);
    bool IsBKImgStretch() const;
    void SetBKImgStretch(bool stretch);

    // canvas: pixels
    QSize GetCanvasSize() const;
    void SetCanvasSize(const QSize& size);
    QSize GetOffset() const;             ///< displacement of the whole layout on the canvas
    void SetOffset(const QSize& offset); ///< stored as it is, see OffsetValid
    void OffsetValid();                  ///< raises the offset so that the layout starts on the canvas
    static void OffsetToZero(bool zero); ///< one flag for all senders, for the host's drawing
    static bool IsOffsetToZero();

    // ports
    void SetPortCount(int count); ///< 0 gives 4; a count that no device has is ignored
    int GetPortCount() const;
    static bool IsPortCountAccepted(int count); ///< whether some device has that many ports
    CPort* GetPort(int index);                  ///< [ref] null outside 0 to 159
    const CPort* GetPort(int index) const;
    int GetRecentPortIndex() const;
    void SetRecentPortIndex(int port);
    bool HaveBkPorts() const;
    /// Whether some port in use is a backup; if so, whether the first one backs up this very sender.
    bool ExistBackupDest(bool* selfBackup) const;

    // layout over the ports in use
    bool GetTileSet(CTileSet& out) const;
    /// Shares the ports' groups. What `out` held is deleted, apart from groups of this sender or of the open
    /// project. False, and nothing changed, when `out` is the group tree of one of these ports.
    bool GetTileGroupSet(CTileGroupSet& out) const;
    bool GetAllTileSetInGroup(CTileSet& out, const QUuid& group) const;
    bool GetAllTileSetInGroupPart(CTileSet& out, const CTileGroupSet* level) const;
    bool GetTileSetInGroupRecursive(CTileSet& out, const QUuid& id) const;
    bool GetAllGroupsFromTileSet(QList<QUuid>& out, const CTileSet& tiles) const;
    bool RemoveGroupWhenTileOut(QList<QUuid>& ids, const CTileSet& tiles) const;
    void ClearAllTiles(); ///< of all 160 ports
    /// -1: whether selected tiles lie on more than one port; else whether some lie on another port.
    bool IsSelectMultiPortTile(int port) const;
    QRect GetBound() const; ///< canvas pixels, (0, 0, -1, -1 as edges) without tiles

    // monitoring picture
    QRect GetMonitorRenderArea() const;
    void SetMonitorRenderArea(const QRect& area);
    int GetMonitorRenderRelativePos() const;
    void SetMonitorRenderRelativePos(int position);
    QPoint GetMonitorRcvOffsetPt() const;
    void SetMonitorRcvOffsetPt(const QPoint& point);
    void ResetMonitorRenderParam(bool all); ///< area and position; with `all` the receiver offset too

private:
    /// What a copy takes as it is.
    struct Fields
    {
        QSize canvasSize{-1, -1};
        QUuid id;
        QString name;
        QString printName;
        int portCount = 4;
        QSize offset{-1, -1};
        quint32 netIp = 0;
        QRect monitorRenderArea;
        int monitorRenderPos = 0;
        QPoint monitorRcvOffset;
        int recentPort = 0;
        QUuid belongGroup;
        bool printNameEnable = false;
        bool bkImgShow = false;
        bool bkImgStretch = false;
        int bkImgAlpha = 0;
    };

    Fields m_fields;
    std::array<CPort, kMaxPorts> m_ports;
};
