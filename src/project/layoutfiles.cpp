// The layout of one sender or of one port in a file of its own.
#include "common/atomicfile.h"
#include "common/failure.h"
#include "common/inputfile.h"
#include "common/texts.h"
#include "common/xmlwriter.h"
#include "layout/changeteller.h"
#include "layout/sender.h"
#include "layout/tile.h"
#include "project/layoutreader.h"
#include "project/layoutwriter.h"
#include "project/projectdata.h"

#include <QBuffer>
#include <QHash>
#include <QSet>

namespace {

constexpr char kPortRoot[] = "PortLayout";

/// Finds an element by the names on the way to it and hands it to its reader; others are passed over.
class PathReader : public XmlHandler
{
public:
    PathReader(std::initializer_list<std::string_view> names, XmlHandler& reader, const ReadReport& report)
        : m_names(names), m_reader(reader), m_report(report)
    {}

    bool WasFound() const { return m_depth == m_names.size(); }

    XmlHandler* Child(std::string_view name) override
    {
        if (WasFound() || name != m_names[m_depth])
            return nullptr;
        ++m_depth;
        return WasFound() ? &m_reader : this;
    }
    QString GetRefusal() const override { return m_report.GetRefusal(); }

private:
    std::vector<std::string_view> m_names;
    XmlHandler& m_reader;
    const ReadReport& m_report;
    size_t m_depth = 0; ///< how many of the names were entered
};

bool ReadElement(const QByteArray& content, std::initializer_list<std::string_view> names, XmlHandler& reader,
                 const ReadReport& report, QString& error)
{
    QBuffer source;
    source.setData(content);
    source.open(QIODevice::ReadOnly);
    PathReader document(names, reader, report);
    if (!ParseXml(source, document, &error))
        return false;
    if (!document.WasFound())
        error = Texts::tr("不是这种布局文件。");
    return document.WasFound();
}

bool WriteFile(const QString& path, const std::function<void(XmlWriter&)>& write, QString& error)
{
    const auto replace = [&path](const std::function<bool(QIODevice&)>& fill, QString* why) {
        return ReplaceFile(path, fill, why);
    };
    return WriteXml(replace, write, &error);
}

/// Ids that are used elsewhere, and one fresh id for each of them that is met: a group may lie on several
/// ports.
struct GroupIds
{
    QSet<QUuid> used;
    QHash<QUuid, QUuid> renewed;
};

/// Whether the id has to change, and what to.
bool Renew(const QUuid& id, GroupIds& ids, QUuid* fresh)
{
    if (id.isNull() || !ids.used.contains(id))
        return false;
    QUuid& renewed = ids.renewed[id];
    if (renewed.isNull())
        renewed = QUuid::createUuid();
    *fresh = renewed;
    return true;
}

QList<CTileGroup*> GroupsOf(const CPort& port)
{
    QList<CTileGroup*> groups;
    port.GetTileGroupSet().GetGroupListRecursive(groups);
    return groups;
}

/// Also those of cabinets: the group itself may lie on another port, or nowhere.
void RenewGroupIds(const CPort& port, GroupIds& ids)
{
    QUuid fresh;
    for (CTileGroup* group : GroupsOf(port))
        if (Renew(group->GetID(), ids, &fresh))
            group->SetID(fresh);
    const CTileSet& tiles = port.GetTileSet();
    for (int i = 0; i < tiles.GetCount(); ++i)
        if (Renew(tiles.GetTile(i)->GetGroupId(), ids, &fresh))
            tiles.GetTile(i)->SetGroupId(fresh);
}

void AddGroupIds(const CPort& port, QSet<QUuid>& ids)
{
    for (const CTileGroup* group : GroupsOf(port))
        ids.insert(group->GetID());
    const CTileSet& tiles = port.GetTileSet();
    for (int i = 0; i < tiles.GetCount(); ++i)
        ids.insert(tiles.GetTile(i)->GetGroupId());
}

/// Gives new ids to groups of these ports that other ports of the project use.
void RenewGroupIdsOf(const QList<CPort*>& ports, const QList<CSender*>& senders)
{
    GroupIds ids;
    for (CSender* sender : senders)
        for (CPort& port : sender->GetPorts())
            if (!ports.contains(&port))
                AddGroupIds(port, ids.used);
    for (CPort* port : ports)
        RenewGroupIds(*port, ids);
}

CPort* RecentPort(CSender* sender)
{
    return sender ? sender->GetPort(sender->GetRecentPortIndex()) : nullptr;
}

} // namespace

bool CProjectData::ExportSender(const QString& path, const QUuid& senderId)
{
    m_lastFileError.clear();
    const CSender* sender = GetSender(GetScIndexByID(senderId));
    if (!sender)
        return Fail(&m_lastFileError, Texts::tr("没有这个主控。"));
    const QString tooLarge = WhyTooLarge(QList<const CSender*>{sender});
    if (!tooLarge.isEmpty())
        return Fail(&m_lastFileError, tooLarge);
    return WriteFile(
        path,
        [sender](XmlWriter& writer) {
            writer.BeginElement(layoutnames::kSenderLayout);
            WriteSenderElement(writer, layoutnames::kSenderLayout, *sender, false);
            writer.EndElement();
        },
        m_lastFileError);
}

bool CProjectData::ImportSender(const QString& path, const QUuid& senderId, bool keepLockedPorts,
                                bool attributes)
{
    DocumentOperation operation(History());
    m_lastFileError.clear();
    const int place = GetScIndexByID(senderId);
    CSender* sender = GetSender(place);
    if (!sender)
        return Fail(&m_lastFileError, Texts::tr("没有这个主控。"));

    // Read into a sender of its own, so that a file that is refused changes nothing.
    CSender read;
    read.SetId(senderId);
    read.SetPortCount(sender->GetPortCount());
    for (int i = 0; i < kMaxPorts; ++i)
        read.GetPort(i)->SetFields(sender->GetPort(i)->GetFields());
    const SenderParts parts = attributes ? SenderParts::LayoutAndView : SenderParts::LayoutOnly;
    QByteArray content;
    ReadReport report;
    SenderReader reader(report);
    reader.SetTarget(&read, parts, keepLockedPorts);
    if (!ReadInput(path, kMaxXmlBytes, &content, &m_lastFileError)
        || !ReadElement(content, {layoutnames::kSenderLayout, layoutnames::kSenderLayout}, reader, report,
                        m_lastFileError))
        return false;

    const int portsBefore = sender->GetPortCount();
    sender->TakeStored(read.GetStored(), parts);
    const int shown = qMax(portsBefore, sender->GetPortCount());
    QList<CPort*> replaced;
    QVector<int> replacedShown;
    for (int i = 0; i < kMaxPorts; ++i) {
        CPort* port = sender->GetPort(i);
        if (keepLockedPorts && port->IsFlagLock())
            continue;
        port->GetPortProject()->TakeFrom(*read.GetPort(i)->GetPortProject());
        port->SetFields(read.GetPort(i)->GetFields());
        replaced.append(port);
        if (i < shown)
            replacedShown.append(i);
    }
    operation.ChangedPorts(place, replacedShown);
    RenewGroupIdsOf(replaced, m_senders);
    if (attributes)
        MarkModified(); // no history holds how a sender is named and shown
    m_lastFileError = report.Text();
    return true;
}

bool CProjectData::ExportPort(const QString& path)
{
    m_lastFileError.clear();
    const CPort* port = RecentPort(GetCurrentSender());
    if (!port)
        return Fail(&m_lastFileError, Texts::tr("没有这个输出口。"));
    const QString tooLarge = WhyTooLarge(QList<const CPort*>{port});
    if (!tooLarge.isEmpty())
        return Fail(&m_lastFileError, tooLarge);
    return WriteFile(
        path, [port](XmlWriter& writer) { WritePortElement(writer, kPortRoot, *port); }, m_lastFileError);
}

bool CProjectData::ImportPort(const QString& path)
{
    DocumentOperation operation(History());
    m_lastFileError.clear();
    CSender* sender = GetCurrentSender();
    CPort* port = RecentPort(sender);
    if (!port)
        return Fail(&m_lastFileError, Texts::tr("没有这个输出口。"));

    const int index = sender->GetRecentPortIndex();
    QByteArray content;
    CPort imported;
    ReadReport report;
    PortReader reader(report);
    reader.SetTarget(&imported, sender->GetId(), index, false);
    if (!ReadInput(path, kMaxXmlBytes, &content, &m_lastFileError)
        || !ReadElement(content, {kPortRoot}, reader, report, m_lastFileError))
        return false;

    *port = imported;
    operation.ChangedPorts(m_state.currentSender, {index});
    RenewGroupIdsOf({port}, m_senders);
    m_lastFileError = report.Text();
    return true;
}
