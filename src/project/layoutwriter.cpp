#include "project/layoutwriter.h"

#include "common/failure.h"
#include "common/texts.h"
#include "layout/tileaccess.h"
#include "project/layoutdescription.h"
#include "project/layoutprogress.h"
#include "project/readreport.h"

#include "customprogressbar.h"

using namespace layoutnames;

namespace {

std::string Numbered(std::string_view prefix, int number)
{
    return std::string(prefix) + std::to_string(number);
}

} // namespace

void WriteTiles(XmlWriter& writer, std::string_view name, const CTileSet& tiles)
{
    writer.BeginElement(name);
    AttributeWriter fields(writer);
    fields.Field(kTileCount, tiles.GetCount());
    for (int i = 0; i < tiles.GetCount(); ++i) {
        writer.BeginElement(Numbered(kTile, i + 1));
        DescribeTile(fields, static_cast<const TileFields&>(*TileAccess::Data(*tiles.GetTile(i))));
        writer.EndElement();
    }
    writer.EndElement();
}

void WriteGroups(XmlWriter& writer, std::string_view name, const CTileGroupSet& groups)
{
    writer.BeginElement(name);
    WriteGroupLevel(writer, kGroup, groups, 1);
    writer.EndElement();
}

void WriteGroupLevel(XmlWriter& writer, const std::string& prefix, const CTileGroupSet& groups, int depth)
{
    const int count = depth > kMaxGroupDepth ? 0 : groups.GetDirectCount();
    AttributeWriter fields(writer);
    fields.Field(kGroupCount, count);
    for (int i = 0; i < count; ++i) {
        const CTileGroup& group = *groups.GetDirectGroupByDirIndex(i);
        const std::string name = Numbered(prefix + '_', i + 1);
        writer.BeginElement(name);
        DescribeGroup(fields, group.GetFields());
        WriteGroupLevel(writer, name, *group.GetSubGroupSet(), depth + 1);
        writer.EndElement();
    }
}

void WritePortElement(XmlWriter& writer, std::string_view name, const CPort& port)
{
    writer.BeginElement(name);
    AttributeWriter fields(writer);
    DescribePort(fields, port.GetFields());
    WriteTiles(writer, kTiles, port.GetTileSet());
    WriteGroups(writer, kGroups, port.GetTileGroupSet());
    writer.EndElement();
}

void WriteSenderElement(XmlWriter& writer, std::string_view name, const CSender& sender, bool withDevice,
                        LayoutProgress* progress)
{
    writer.BeginElement(name);
    AttributeWriter fields(writer);
    if (withDevice)
        DescribeSenderDevice(fields, sender);
    const StoredSender stored = sender.GetStored();
    DescribeSender(fields, stored);
    for (int i = 0; i < sender.GetPortCount(); ++i) {
        if (progress)
            progress->NextPort(sender.GetPortCount());
        WritePortElement(writer, Numbered(kPort, i + 1), *sender.GetPort(i));
    }
    writer.EndElement();
}

QString WhyTooLarge(const QList<const CPort*>& ports)
{
    qint64 bytes = 0;
    for (const CPort* port : ports) {
        const int tiles = port->GetTileSet().GetCount();
        if (tiles > kMaxTilesOfPort)
            return TooMany(kTile, kMaxTilesOfPort);
        QList<CTileGroup*> groups;
        bytes += qint64(tiles) * kLeastBytesOfTile
                 + qint64(port->GetTileGroupSet().GetGroupListRecursive(groups)) * kLeastBytesOfGroup;
    }
    return bytes > kMaxXmlBytes ? DocumentTooLarge() : QString();
}

QString WhyTooLarge(const QList<const CSender*>& senders)
{
    if (senders.size() > kMaxSenders)
        return TooMany(kSender, kMaxSenders);
    QList<const CPort*> ports;
    for (const CSender* sender : senders)
        for (int i = 0; i < sender->GetPortCount(); ++i)
            ports.append(sender->GetPort(i));
    return WhyTooLarge(ports);
}

QString TooMany(const char* child, int most)
{
    return Texts::tr("%1过多，最多%2个，文件未保存。").arg(ChildrenName(child), QString::number(most));
}

std::function<void(int)> Reports(CCustomProgressbar* progress)
{
    if (!progress)
        return {};
    return [progress](int percent) { progress->SetValue(percent); };
}

bool WriteXml(const std::function<bool(const std::function<bool(QIODevice&)>&, QString*)>& replace,
              const std::function<void(XmlWriter&)>& write, QString* error)
{
    QString refusal;
    const auto fill = [&](QIODevice& file) {
        StreamXmlWriter writer(file);
        write(writer);
        const bool flushed = writer.Flush();
        refusal = writer.GetRefusal();
        return flushed;
    };
    const bool written = replace(fill, error);
    return written || refusal.isEmpty() ? written : Fail(error, refusal);
}

void WriteSenders(XmlWriter& writer, const QList<CSender*>& senders, const std::function<void(int)>& progress)
{
    writer.BeginElement(kSenderLayout);
    AttributeWriter(writer).Field(kSenderCount, senders.size());
    LayoutProgress steps(progress);
    steps.Start(senders.size());
    for (int i = 0; i < senders.size(); ++i) {
        steps.NextSender();
        WriteSenderElement(writer, Numbered(kSender, i + 1), *senders[i], true, &steps);
    }
    steps.End();
    writer.EndElement();
}
