#include "project/layoutreader.h"

#include "common/texts.h"

#include <algorithm>
#include <set>
#include <utility>

using namespace layoutnames;

namespace {

int ReadCount(XmlAttributes& attributes, const char* name)
{
    int count = 0;
    AttributeReader(attributes).Field(name, count);
    return count;
}

/// Drops each group whose id stands earlier in the tree, with all below it.
void DropRepeatedGroups(CTileGroupSet& groups, std::set<QUuid>& seen, ReadReport& report)
{
    QList<CTileGroup*> kept;
    for (int i = 0; i < groups.GetDirectCount(); ++i) {
        CTileGroup* group = groups.GetDirectGroupByDirIndex(i);
        if (seen.count(group->GetID()) > 0) {
            report.Add(Texts::tr("跳过重复的分组%1").arg(group->GetID().toString()));
            GroupTreeDeleter()(group);
            continue;
        }
        seen.insert(group->GetID());
        DropRepeatedGroups(*group->GetSubGroupSet(), seen, report);
        kept.append(group);
    }
    groups.RemoveAll();
    for (CTileGroup* group : qAsConst(kept))
        groups.AddGroup(group, true);
}

} // namespace

TileSetReader::TileSetReader(ReadReport& report)
    : m_report(report), m_tileReader(*this), m_tiles(kTile, report)
{}

void TileSetReader::SetTarget(CTileSet* tiles, const QUuid& senderId, int portIndex)
{
    m_target = tiles;
    m_senderId = senderId;
    m_portIndex = portIndex;
}

void TileSetReader::Begin(XmlAttributes& attributes)
{
    m_tiles.Start(ReadCount(attributes, kTileCount), kMaxTilesOfPort);
}

XmlHandler* TileSetReader::Child(std::string_view name)
{
    if (!m_tiles.Expect(name))
        return nullptr;
    if (++m_read > kMaxTilesOfFile)
        m_report.Refuse(TooManyToRead(kTile, kMaxTilesOfFile));
    return &m_tileReader;
}

void TileSetReader::TileReader::Begin(XmlAttributes& attributes)
{
    StoredTile tile;
    AttributeReader fields(attributes);
    DescribeTile(fields, tile);
    if (!m_set.m_senderId.isNull())
        tile.senderId = m_set.m_senderId;
    if (m_set.m_portIndex != -1)
        tile.portIndex = m_set.m_portIndex;
    m_set.m_tiles.Add(m_maker.Make(tile));
}

void TileSetReader::End()
{
    if (m_tiles.GetCount() < 1 || m_report.IsRefused())
        return;
    m_target->DeleteAllTiles();
    for (std::unique_ptr<CTile>& tile : m_tiles.Take())
        m_target->AddTile(tile.release());
    DeriveBeginReceivers(*m_target);
}

void GroupTreeDeleter::operator()(CTileGroup* group) const
{
    group->GetSubGroupSet()->DeleteAll();
    delete group;
}

GroupLevelReader::GroupLevelReader(ReadReport& report, int& left, int depth)
    : m_report(report), m_left(left), m_depth(depth)
{}

void GroupLevelReader::SetTarget(CTileGroup* group, std::string_view name)
{
    m_group = group;
    m_prefix.assign(name).push_back('_');
}

void GroupLevelReader::Begin(XmlAttributes& attributes)
{
    if (m_depth > 0) {
        GroupFields stored;
        AttributeReader fields(attributes);
        DescribeGroup(fields, stored);
        m_group->TakeStored(stored);
    }
    m_children = std::make_unique<NumberedChildren<GroupTree>>(m_prefix, m_report);
    m_children->Start(ReadCount(attributes, kGroupCount), kMaxGroupsOfFile);
}

XmlHandler* GroupLevelReader::Child(std::string_view name)
{
    if (!m_children->Expect(name))
        return nullptr;
    if (m_depth >= kMaxGroupDepth) {
        m_report.Add(Texts::tr("分组嵌套过深，更深的分组被跳过"));
        return nullptr;
    }
    if (m_left == 0) {
        m_report.Refuse(TooManyToRead(kGroup, kMaxGroupsOfFile));
        return nullptr;
    }
    --m_left;
    if (!m_below)
        m_below = std::make_unique<GroupLevelReader>(m_report, m_left, m_depth + 1);
    GroupTree child(new CTileGroup);
    m_below->SetTarget(child.get(), name);
    m_children->Add(std::move(child));
    return m_below.get();
}

void GroupLevelReader::End()
{
    for (GroupTree& child : m_children->Take()) {
        child->SetParentGroupID(m_depth > 0 ? m_group->GetID() : QUuid());
        m_group->GetSubGroupSet()->AddGroup(child.release(), true);
    }
}

GroupTreeReader::GroupTreeReader(ReadReport& report) : m_report(report), m_top(report, m_left, 0)
{}

void GroupTreeReader::SetTarget(CTileGroupSet* groups)
{
    m_target = groups;
}

void GroupTreeReader::Begin(XmlAttributes& attributes)
{
    m_tree.reset(new CTileGroup);
    m_top.SetTarget(m_tree.get(), m_prefix);
    m_top.Begin(attributes);
}

void GroupTreeReader::End()
{
    m_top.End();
    if (m_top.GetCount() < 1 || m_report.IsRefused())
        return;
    CTileGroupSet& groups = *m_tree->GetSubGroupSet();
    std::set<QUuid> seen; // ordered: ids of a hostile file may share one hash
    DropRepeatedGroups(groups, seen, m_report);
    m_target->DeleteAll();
    m_target->AddFromOther(groups);
    groups.RemoveAll();
}

PortReader::PortReader(ReadReport& report) : m_tiles(report), m_groups(report), m_report(report)
{}

void PortReader::SetTarget(CPort* port, const QUuid& senderId, int portIndex, bool keepLocked)
{
    m_target = keepLocked && port->IsFlagLock() ? nullptr : port;
    m_senderId = senderId;
    m_portIndex = portIndex;
}

void PortReader::Begin(XmlAttributes& attributes)
{
    m_fields = PortFields();
    m_hasTiles = false;
    m_hasGroups = false;
    AttributeReader fields(attributes);
    DescribePort(fields, m_fields);
    m_fields.senderId = m_senderId;
    m_fields.portIndex = m_portIndex;
    if (!m_target)
        return;
    m_tiles.SetTarget(&m_target->GetTileSet(), m_senderId, m_portIndex);
    m_groups.SetTarget(&m_target->GetTileGroupSet());
}

XmlHandler* PortReader::Child(std::string_view name)
{
    if (!m_target)
        return nullptr;
    if (name == kTiles && !std::exchange(m_hasTiles, true))
        return &m_tiles;
    if (name == kGroups && !std::exchange(m_hasGroups, true))
        return &m_groups;
    m_report.AddElement(name);
    return nullptr;
}

void PortReader::End()
{
    if (m_target && !m_report.IsRefused())
        m_target->TakeStored(m_fields);
}

SenderReader::SenderReader(ReadReport& report, LayoutProgress* progress)
    : m_progress(progress), m_ports(kPort, report), m_portReader(report)
{}

void SenderReader::SetTarget(CSender* sender, SenderParts parts, bool keepLocked)
{
    m_target = sender;
    m_parts = parts;
    m_keepLocked = keepLocked;
}

void SenderReader::Begin(XmlAttributes& attributes)
{
    StoredSender stored;
    AttributeReader fields(attributes);
    DescribeSender(fields, stored);
    if (m_parts == SenderParts::Project)
        stored.id = UniqueId(stored.id);
    m_target->TakeStored(stored, m_parts);
    m_ports.Start(m_target->GetPortCount(), kMaxPorts);
}

XmlHandler* SenderReader::Child(std::string_view name)
{
    if (!m_ports.Expect(name))
        return nullptr;
    const int port = m_ports.GetNumber() - 1;
    m_ports.Add(port);
    if (m_progress)
        m_progress->NextPort(m_target->GetPortCount());
    m_portReader.SetTarget(m_target->GetPort(port), m_target->GetId(), port, m_keepLocked);
    return &m_portReader;
}

void SenderReader::End()
{
    m_ports.Take();
}

QUuid SenderReader::UniqueId(const QUuid& fileId)
{
    const QUuid id = fileId.isNull() || m_ids.contains(fileId) ? QUuid::createUuid() : fileId;
    m_ids.insert(id);
    return id;
}

SenderLayoutReader::SenderLayoutReader(ReadReport& report, Senders& senders,
                                       std::function<void(int)> progress)
    : m_result(senders), m_progress(std::move(progress)), m_senders(kSender, report),
      m_senderReader(report, &m_progress)
{}

void SenderLayoutReader::Begin(XmlAttributes& attributes)
{
    m_senders.Start(ReadCount(attributes, kSenderCount), kMaxSenders);
    m_senderReader.StartList();
    m_progress.Start(m_senders.GetCount());
}

XmlHandler* SenderLayoutReader::Child(std::string_view name)
{
    if (!m_senders.Expect(name))
        return nullptr;
    m_progress.NextSender();
    auto sender = std::make_unique<CSender>();
    m_senderReader.SetTarget(sender.get(), SenderParts::Project, false);
    m_senders.Add(std::move(sender));
    return &m_senderReader;
}

void SenderLayoutReader::End()
{
    m_progress.End();
    m_result = m_senders.Take();
}

QList<CSender*> Released(SenderLayoutReader::Senders& senders)
{
    QList<CSender*> released;
    for (std::unique_ptr<CSender>& sender : senders)
        released.append(sender.release());
    return released;
}
