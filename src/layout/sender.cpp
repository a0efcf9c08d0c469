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
    for (const CPort& port : sender.GetPorts())
        port.GetTileGroupSet().GetGroupListRecursive(groups);
    for (const CTileGroup* group : qAsConst(groups))
        out.insert(group);
}

} // namespace

CSender::CSender()
{
    m_fields.id = QUuid::createUuid();
    static const PortColors colors = MakePortColors();
    for (size_t i = 0; i < m_ports.size(); ++i) {
        m_ports[i].SetSenderIdAndPortIndex(m_fields.id, static_cast<int>(i));
        m_ports[i].SetPortColor(colors[i]);
    }
}

CSender::~CSender() = default;

void CSender::CopySender(const CSender& other)
{
    if (this == &other)
        return;
    CSenderParams::operator=(other);
    m_fields = other.m_fields;
    for (size_t i = 0; i < m_ports.size(); ++i) {
        m_ports[i].LayoutCopy(other.m_ports[i]);
        m_ports[i].SetFields(other.m_ports[i].GetFields());
    }
}

bool CSender::LayoutCopy(const CSender& other)
{
    for (size_t i = 0; i < m_ports.size(); ++i)
        m_ports[i].LayoutCopy(other.m_ports[i]);
    return true;
}

void CSender::SetId(const QUuid& id)
{
    m_fields.id = id;
    for (size_t i = 0; i < m_ports.size(); ++i)
        m_ports[i].SetSenderIdAndPortIndex(m_fields.id, static_cast<int>(i));
}

void CSender::OffsetValid()
{
    const QRect bound = GetBound();
    // QRect::isEmpty() also takes a bound whose far edge wrapped around; empty is only last = first - 1.
    const auto isEmpty = [](int first, int last) { return quint32(first) - quint32(last) == 1; };
    if (isEmpty(bound.left(), bound.right()) || isEmpty(bound.top(), bound.bottom()))
        return;
    m_fields.offset.setWidth(qMax(m_fields.offset.width(), SaturatedInt(-qint64(bound.left()))));
    m_fields.offset.setHeight(qMax(m_fields.offset.height(), SaturatedInt(-qint64(bound.top()))));
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
        m_fields.portCount = kDefaultPortCount;
    else if (IsPortCountAccepted(count))
        m_fields.portCount = count;
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

bool CSender::ExistBackupDest(bool* selfBackup) const
{
    for (int i = 0; i < m_fields.portCount; ++i) {
        const CPort* port = GetPort(i);
        if (!port->IsBackupDest())
            continue;
        if (selfBackup)
            *selfBackup = port->GetBackupSrcSenderId() == m_fields.id;
        return true;
    }
    return false;
}

bool CSender::GetTileSet(CTileSet& out) const
{
    CTileSet found;
    for (int i = 0; i < m_fields.portCount; ++i)
        found.AddFromOther(GetPort(i)->GetTileSet());
    out = found;
    return true;
}

bool CSender::GetTileGroupSet(CTileGroupSet& out) const
{
    CTileGroupSet found;
    for (const CPort& port : m_ports)
        if (&out == &port.GetTileGroupSet())
            return false;
    for (int i = 0; i < m_fields.portCount; ++i)
        found.AddFromOther(GetPort(i)->GetTileGroupSet());

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
    return true;
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
    for (int i = 0; i < m_fields.portCount; ++i) {
        const CPort* port = GetPort(i);
        if (port->GetTileSet().GetCount() > 0)
            bound = bound.united(port->GetBound());
    }
    return bound;
}

void CSender::SetMonitorRenderArea(const QRect& area)
{
    m_fields.monitorRenderPlace = area.topLeft();
    m_fields.monitorRenderSize = area.size();
}

void CSender::ResetMonitorRenderParam(bool all)
{
    SetMonitorRenderArea(QRect());
    m_fields.monitorRenderPos = 0;
    if (all)
        m_fields.monitorRcvOffset = QPoint();
}

StoredSender CSender::GetStored() const
{
    return {m_fields, GetSignalFreq(), GetColorDepth()};
}

void CSender::TakeStored(const StoredSender& stored, SenderParts parts)
{
    const SenderFields own = m_fields;
    if (parts != SenderParts::LayoutOnly) {
        m_fields = stored;
        SetSignalFreq(stored.signalFreq);
        SetColorDepth(stored.colorDepth);
    }
    if (parts == SenderParts::Project) {
        SetId(stored.id);
    } else {
        m_fields.id = own.id;
        m_fields.belongGroup = own.belongGroup;
        m_fields.netIp = own.netIp;
    }
    m_fields.portCount = own.portCount;
    SetPortCount(stored.portCount);
    SetRecentPortIndex(GetPort(stored.recentPort) ? stored.recentPort : 0);
}
