#pragma once

#include "common/canvaslimits.h"
#include "common/export.h"
#include "layout/port.h"
#include "records/senderparams.h"

#include <QList>
#include <QMetaType>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QUuid>

#include <array>

class QDebug;

constexpr int kDefaultPortCount = 4; ///< ports in use

/// What a sender holds beside its ports and its processor parameters. Files store all of it, and a copy takes
/// it as it is.
struct SenderFields
{
    QUuid id;
    QString name;
    QUuid belongGroup;
    bool printNameEnable = false;
    QString printName;
    bool bkImgShow = false;
    int bkImgAlpha = 0;
    bool bkImgStretch = false;
    QSize offset{-1, -1};
    int portCount = kDefaultPortCount;
    int recentPort = 0;
    QSize canvasSize{-1, -1}; ///< pixels
    QPoint monitorRenderPlace;
    QSize monitorRenderSize{0, 0};
    int monitorRenderPos = 0;
    QPoint monitorRcvOffset;
    quint32 netIp = 0; ///< host order
};

/// A sender as a file stores it: these two are held with the processor parameters.
struct StoredSender : SenderFields
{
    int signalFreq = 0;
    int colorDepth = 0;
};

/// How much of what a file stores a sender takes.
enum class SenderParts
{
    Project,       ///< everything: the sender comes into being
    LayoutOnly,    ///< the port count and recent port; the sender stays who it is
    LayoutAndView, ///< also names, background image, canvas and what else describes how it is shown
};

/// One sending unit or video processor of a project: identity, 160 ports of which the first GetPortCount()
/// are in use, canvas, and the processor parameters. Owned by its project, or by whoever made the copy; never
/// delete one that a project handed out.
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
    QUuid GetId() const { return m_fields.id; }
    void SetId(const QUuid& id); ///< all ports follow
    QString GetSenderName() const { return m_fields.name; }
    void SetSenderName(const QString& name) { m_fields.name = name; }
    bool IsPrintNameEnable() const { return m_fields.printNameEnable; }
    void SetPrintNameEnable(bool enable) { m_fields.printNameEnable = enable; }
    QString GetPrintName() const { return m_fields.printName; } ///< the name on the printed form
    void SetPrintName(const QString& name) { m_fields.printName = name; }
    QUuid GetBelongGroup() const { return m_fields.belongGroup; } ///< sender group, null: none
    void SetBelongGroup(const QUuid& id) { m_fields.belongGroup = id; }
    unsigned long GetNetSenderIP() const { return m_fields.netIp; } ///< host-order IPv4, 0: none
    void SetNetSenderIP(unsigned long ip) { m_fields.netIp = static_cast<quint32>(ip); }

    // background image
    bool IsBKImgShow() const { return m_fields.bkImgShow; }
    void SetBKImgShow(bool show) { m_fields.bkImgShow = show; }
    int GetBKImgAlpha() const { return m_fields.bkImgAlpha; }
    void SetBKImgAlpha(int alpha) { m_fields.bkImgAlpha = alpha; }
    bool IsBKImgStretch() const { return m_fields.bkImgStretch; }
    void SetBKImgStretch(bool stretch) { m_fields.bkImgStretch = stretch; }

    // canvas: pixels
    QSize GetCanvasSize() const { return m_fields.canvasSize; }
    void SetCanvasSize(const QSize& size) { m_fields.canvasSize = size; }
    QSize GetOffset() const { return m_fields.offset; } ///< displacement of the whole layout on the canvas
    void SetOffset(const QSize& offset) { m_fields.offset = offset; } ///< stored as it is, see OffsetValid
    void OffsetValid();                  ///< raises the offset so that the layout starts on the canvas
    static void OffsetToZero(bool zero); ///< one flag for all senders, for the host's drawing
    static bool IsOffsetToZero();

    // ports
    void SetPortCount(int count); ///< 0 gives 4; a count that no device has is ignored
    int GetPortCount() const { return m_fields.portCount; }
    static bool IsPortCountAccepted(int count); ///< whether some device has that many ports
    CPort* GetPort(int index);                  ///< [ref] null outside 0 to 159
    const CPort* GetPort(int index) const;
    std::array<CPort, kMaxPorts>& GetPorts() { return m_ports; } ///< all 160, in use or not
    const std::array<CPort, kMaxPorts>& GetPorts() const { return m_ports; }
    int GetRecentPortIndex() const { return m_fields.recentPort; }
    void SetRecentPortIndex(int port) { m_fields.recentPort = port; }
    bool HaveBkPorts() const { return ExistBackupDest(nullptr); }
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
    QRect GetMonitorRenderArea() const { return {m_fields.monitorRenderPlace, m_fields.monitorRenderSize}; }
    void SetMonitorRenderArea(const QRect& area);
    int GetMonitorRenderRelativePos() const { return m_fields.monitorRenderPos; }
    void SetMonitorRenderRelativePos(int position) { m_fields.monitorRenderPos = position; }
    QPoint GetMonitorRcvOffsetPt() const { return m_fields.monitorRcvOffset; }
    void SetMonitorRcvOffsetPt(const QPoint& point) { m_fields.monitorRcvOffset = point; }
    void ResetMonitorRenderParam(bool all); ///< area and position; with `all` the receiver offset too

    // inside the library: whole, as files take them
    StoredSender GetStored() const;
    void TakeStored(const StoredSender& stored, SenderParts parts); ///< puts right what a file may say

private:
    SenderFields m_fields;
    std::array<CPort, kMaxPorts> m_ports;
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const CSender& sender);

Q_DECLARE_METATYPE(CSender*)
