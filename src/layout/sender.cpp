#include "layout/sender.h"

#include "common/interfacedlg.h"
#include "common/saturated.h"
#include "layout/groupqueries.h"
#include "layout/layoutlookup.h"
#include "layout/tile.h"
#include "layout/tilegroup.h"
#include "settings/constantdata.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr int kDefaultPortCount = 4;
constexpr int kAcceptedPortCounts[] = {2, 4, 6, 8, 10, 12, 16, 20, 24, 26, 28, 32, 40, 80, 160};
constexpr int kPortAlpha = 204;

bool g_offsetToZero = false;

using PortColors = std::array<QColor, kMaxPorts>;

PortColors MakePortColors()
{
    PortColors colors;
    for (int i = 0; i < kMaxPorts; ++i) {
        QColor& color = colors[static_cast<size_t>(i)];
        color = CConstantData::GetColorByPort(i);
        color.setAlpha(kPortAlpha);
    }
    return colors;
}

void CollectGroups(QSet<const CTileGroup*>& out, const CSender& sender)
{
    QList<CTileGroup*> groups;
    for (int i = 0; i < kMaxPorts; ++i)
        sender.GetPort(i)->GetPortProject()->GetTileGroupSet()->GetGroupListRecursive(groups);
    for (const CTileGroup* group : qAsConst(groups))
        out.insert(group);
}

} // namespace

CSender::CSender() : m_id(QUuid::createUuid())
{
    static const PortColors colors = MakePortColors();
    for (size_t i = 0; i < m_ports.size(); ++i) {
        m_ports[i].SetSenderIdAndPortIndex(m_id, static_cast<int>(i));
        m_ports[i].SetPortColor(colors[i]);
    }
}

CSender::~CSender() = default;

void CSender::CopySender(const CSender& other)
{
    if (this == &other)
        return;
    CSenderParams::operator=(other);
    m_canvasSize = other.m_canvasSize;
    m_id = other.m_id;
    m_name = other.m_name;
    m_printName = other.m_printName;
    m_portCount = other.m_portCount;
    m_offset = other.m_offset;
    for (size_t i = 0; i < m_ports.size(); ++i) {
        const CPort& port = other.m_ports[i];
        m_ports[i] = port;
        m_ports[i].SetFlagLock(port.IsFlagLock());
        m_ports[i].SetVisible(port.IsVisible());
        m_ports[i].SetPortArea(port.GetPortArea());
    }
    m_netIp = other.m_netIp;
    m_monitorRenderArea = other.m_monitorRenderArea;
    m_monitorRenderPos = other.m_monitorRenderPos;
    m_monitorRcvOffset = other.m_monitorRcvOffset;
    m_recentPort = other.m_recentPort;
    m_belongGroup = other.m_belongGroup;
    m_printNameEnable = other.m_printNameEnable;
    m_bkImgShow = other.m_bkImgShow;
    m_bkImgStretch = other.m_bkImgStretch;
    m_bkImgAlpha = other.m_bkImgAlpha;
}

bool CSender::LayoutCopy(const CSender& other)
{
    for (size_t i = 0; i < m_ports.size(); ++i)
        m_ports[i].LayoutCopy(other.m_ports[i]);
    return true;
}

QUuid CSender::GetId() const
{
    return m_id;
}

void CSender::SetId(const QUuid& id)
{
    m_id = id;
    for (size_t i = 0; i < m_ports.size(); ++i)
        m_ports[i].SetSenderIdAndPortIndex(m_id, static_cast<int>(i));
}

QString CSender::GetSenderName() const
{
    return m_name;
}

void CSender::SetSenderName(const QString& name)
{
    m_name = name;
}

bool CSender::IsPrintNameEnable() const
{
    return m_printNameEnable;
}

void CSender::SetPrintNameEnable(bool enable)
{
    m_printNameEnable = enable;
}

QString CSender::GetPrintName() const
{
    return m_printName;
}

void CSender::SetPrintName(const QString& name)
{
    m_printName = name;
}

QUuid CSender::GetBelongGroup() const
{
    return m_belongGroup;
}

void CSender::SetBelongGroup(const QUuid& id)
{
    m_belongGroup = id;
}

unsigned long CSender::GetNetSenderIP() const
{
    return m_netIp;
}

void CSender::SetNetSenderIP(unsigned long ip)
{
    m_netIp = static_cast<quint32>(ip);
}

bool CSender::IsBKImgShow() const
{
    return m_bkImgShow;
}

void CSender::SetBKImgShow(bool show)
{
    m_bkImgShow = show;
}

int CSender::GetBKImgAlpha() const
{
    return m_bkImgAlpha;
}

void CSender::SetBKImgAlpha(int alpha)
{
    m_bkImgAlpha = alpha;
}

bool CSender::IsBKImgStretch() const
{
    return m_bkImgStretch;
}

void CSender::SetBKImgStretch(bool stretch)
{
    m_bkImgStretch = stretch;
}

QSize CSender::GetCanvasSize() const
{
    return m_canvasSize;
}

void CSender::SetCanvasSize(const QSize& size)
{
    m_canvasSize = size;
}

QSize CSender::GetOffset() const
{
    return m_offset;
}

void CSender::SetOffset(const QSize& offset)
{
    m_offset = offset;
}

void CSender::OffsetValid()
{
    const QRect bound = GetBound();
    const auto isEmpty = [](int first, int last) { return quint32(first) - quint32(last) == 1; };
    if (isEmpty(bound.left(), bound.right()) || isEmpty(bound.top(), bound.bottom()))
        return;
    m_offset.setWidth(qMax(m_offset.width(), SaturatedInt(-qint64(bound.left()))));
    m_offset.setHeight(qMax(m_offset.height(), SaturatedInt(-qint64(bound.top()))));
}

void CSender::OffsetToZero(bool zero)
{
    g_offsetToZero = zero;
}

bool CSender::IsOffsetToZero()
{
    return g_offsetToZero;
}

void CSender::SetPortCount(int count)
{
    if (count == 0)
        m_portCount = kDefaultPortCount;
    else if (IsPortCountAccepted(count))
        m_portCount = count;
}

int CSender::GetPortCount() const
{
    return m_portCount;
}

bool CSender::IsPortCountAccepted(int count)
{
    return std::find(std::begin(kAcceptedPortCounts), std::end(kAcceptedPortCounts), count)
           != std::end(kAcceptedPortCounts);
}

CPort* CSender::GetPort(int index)
{
    return index < 0 || index >= kMaxPorts ? nullptr : &m_ports[static_cast<size_t>(index)];
}

const CPort* CSender::GetPort(int index) const
{
    return index < 0 || index >= kMaxPorts ? nullptr : &m_ports[static_cast<size_t>(index)];
}

int CSender::GetRecentPortIndex() const
{
    return m_recentPort;
}

void CSender::SetRecentPortIndex(int port)
{
    m_recentPort = port;
}

bool CSender::HaveBkPorts() const
{
    return ExistBackupDest(nullptr);
}

bool CSender::ExistBackupDest(bool* selfBackup) const
{
    for (int i = 0; i < m_portCount; ++i) {
        const CPort* port = GetPort(i);
        if (!port->IsBackupDest())
            continue;
        if (selfBackup)
            *selfBackup = port->GetBackupSrcSenderId() == m_id;
        return true;
    }
    return false;
}

bool CSender::GetTileSet(CTileSet& out) const
{
    CTileSet found;
    for (int i = 0; i < m_portCount; ++i)
        found.AddFromOther(*GetPort(i)->GetPortProject()->GetTileSet());
    out = found;
    return m_portCount > 0;
}

bool CSender::GetTileGroupSet(CTileGroupSet& out) const
{
    CTileGroupSet found;
    for (int i = 0; i < kMaxPorts; ++i) {
        const CTileGroupSet* groups = GetPort(i)->GetPortProject()->GetTileGroupSet();
        if (&out == groups)
            return false;
        if (i < m_portCount)
            found.AddFromOther(*groups);
    }

    CTileGroupSet dropped;
    if (out.GetDirectCount() > 0) {
        QSet<const CTileGroup*> held;
        CollectGroups(held, *this);
        for (const CSender* sender : GetLayoutLookup()->Senders())
            CollectGroups(held, *sender);
        for (int i = 0; i < out.GetDirectCount(); ++i) {
            if (!held.contains(out.GetDirectGroupByDirIndex(i)))
                dropped.AddGroup(out.GetDirectGroupByDirIndex(i), true);
        }
    }
    out.RemoveAll();
    out.AddFromOther(found);
    dropped.DeleteAll();
    return m_portCount > 0;
}

bool CSender::GetAllTileSetInGroup(CTileSet& out, const QUuid& group) const
{
    CTileSet tiles;
    CTileGroupSet groups;
    GetTileSet(tiles);
    GetTileGroupSet(groups);
    return GroupQueries::TilesOfTopGroup(out, tiles, groups, group);
}

bool CSender::GetAllTileSetInGroupPart(CTileSet& out, const CTileGroupSet* level) const
{
    CTileSet tiles;
    GetTileSet(tiles);
    return GroupQueries::AppendTilesOfLevel(out, tiles, level);
}

bool CSender::GetTileSetInGroupRecursive(CTileSet& out, const QUuid& id) const
{
    CTileSet tiles;
    CTileGroupSet groups;
    GetTileSet(tiles);
    GetTileGroupSet(groups);
    return GroupQueries::AppendTilesOfGroup(out, tiles, groups, id);
}

bool CSender::GetAllGroupsFromTileSet(QList<QUuid>& out, const CTileSet& tiles) const
{
    CTileGroupSet groups;
    GetTileGroupSet(groups);
    return GroupQueries::GroupsAndAncestorsOfTiles(out, tiles, groups);
}

bool CSender::RemoveGroupWhenTileOut(QList<QUuid>& ids, const CTileSet& tiles) const
{
    CTileSet all;
    CTileGroupSet groups;
    GetTileSet(all);
    GetTileGroupSet(groups);
    return GroupQueries::DropIncompleteGroups(ids, tiles, all, groups);
}

void CSender::ClearAllTiles()
{
    for (CPort& port : m_ports)
        port.GetPortProject()->ClearAllTiles();
}

bool CSender::IsSelectMultiPortTile(int port) const
{
    CTileSet tiles;
    CTileSet selected;
    GetTileSet(tiles);
    tiles.GetSelTileSet(selected, InterfaceDesign);
    if (selected.GetCount() == 0)
        return false;
    const int wanted = port == -1 ? selected.GetTile(0)->GetPortIndex() : port;
    for (int i = 0; i < selected.GetCount(); ++i) {
        if (selected.GetTile(i)->GetPortIndex() != wanted)
            return true;
    }
    return false;
}

QRect CSender::GetBound() const
{
    QRect bound;
    bool first = true;
    for (int i = 0; i < m_portCount; ++i) {
        const CPort* port = GetPort(i);
        if (port->GetPortProject()->GetTileSet()->GetCount() == 0)
            continue;
        bound = first ? port->GetBound() : bound.united(port->GetBound());
        first = false;
    }
    return bound;
}

QRect CSender::GetMonitorRenderArea() const
{
    return m_monitorRenderArea;
}

void CSender::SetMonitorRenderArea(const QRect& area)
{
    m_monitorRenderArea = area;
}

int CSender::GetMonitorRenderRelativePos() const
{
    return m_monitorRenderPos;
}

void CSender::SetMonitorRenderRelativePos(int position)
{
    m_monitorRenderPos = position;
}

QPoint CSender::GetMonitorRcvOffsetPt() const
{
    return m_monitorRcvOffset;
}

void CSender::SetMonitorRcvOffsetPt(const QPoint& point)
{
    m_monitorRcvOffset = point;
}

void CSender::ResetMonitorRenderParam(bool all)
{
    m_monitorRenderArea = QRect();
    m_monitorRenderPos = 0;
    if (all)
        m_monitorRcvOffset = QPoint();
}
