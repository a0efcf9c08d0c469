#include "orvantools/projectjson.h"

#include "orvantools/cabinetchain.h"
#include "orvantools/jsonwriter.h"

#include <OrvanData/orvandata.h>

#include <QJsonArray>

#include <cmath>

namespace OrvanTools {

namespace {

QString Key(const char* name)
{
    return QLatin1String(name);
}

/// Six significant digits, as the project file keeps them, without the noise of the binary form.
double Rounded(double number)
{
    return QString::number(number, 'g', 6).toDouble();
}

QJsonValue NumberOrNull(double number)
{
    return std::isfinite(number) ? QJsonValue(Rounded(number)) : QJsonValue();
}

QJsonValue IdOrNull(const QUuid& id)
{
    return id.isNull() ? QJsonValue() : QJsonValue(id.toString());
}

QJsonArray Pair(double x, double y)
{
    return {Rounded(x), Rounded(y)};
}

QJsonArray Size(const QSize& size)
{
    return {size.width(), size.height()};
}

QJsonValue BoundOrNull(const QRect& bound)
{
    if (bound.isNull())
        return {};
    return QJsonArray{bound.left(), bound.top(), bound.width(), bound.height()};
}

/// The bound of the cabinets before they are turned.
QRect UnrotatedBound(const CTileSet& tiles)
{
    return tiles.GetCount() > 0 ? tiles.GetBound(false, QSize()) : QRect();
}

QJsonObject DescribeMulti(const CTile& tile)
{
    QJsonArray line;
    for (int i = 0; i < kMaxReceiversInTile; ++i)
        line.append(tile.GetMultiRcvsLineCode(i));
    return {{Key("is"), tile.IsMultiRcvTile()},
            {Key("fixed"), tile.IsMultiFixedLine()},
            {Key("ordered"), tile.IsMultiRcvsOrdered()},
            {Key("size"), Size(tile.GetMultiRcvsSize())},
            {Key("line"), line}};
}

QJsonObject DescribeRotation(const SRotateParam& record)
{
    return {{Key("rotated"), record.rotated},
            {Key("showCenter"), record.showCenter},
            {Key("center"), Pair(record.centerX, record.centerY)},
            {Key("leftTop"), Pair(record.leftTopX, record.leftTopY)},
            {Key("angle"), Rounded(record.angle)},
            {Key("width"), Rounded(record.width)},
            {Key("height"), Rounded(record.height)}};
}

QJsonObject DescribeTile(const CTile& tile)
{
    return {{Key("x"), tile.GetX()},
            {Key("y"), tile.GetY()},
            {Key("width"), tile.GetWidth()},
            {Key("height"), tile.GetHeight()},
            {Key("index"), tile.GetConnectionIndex()},
            {Key("firstReceiver"), tile.GetBeginRcvCnnt()},
            {Key("type"), tile.GetType().ToString()},
            {Key("group"), IdOrNull(tile.GetGroupId())},
            {Key("multi"), DescribeMulti(tile)},
            {Key("rotation"), DescribeRotation(tile.GetRotateRecord())}};
}

QJsonArray DescribeTiles(const CTileSet& tiles)
{
    QJsonArray list;
    for (int i = 0; i < tiles.GetCount(); ++i)
        list.append(DescribeTile(*tiles.GetTile(i)));
    return list;
}

QJsonArray DescribeGroups(const CTileGroupSet& groups)
{
    QJsonArray list;
    for (int i = 0; i < groups.GetDirectCount(); ++i) {
        const CTileGroup* group = groups.GetDirectGroupByDirIndex(i);
        list.append(QJsonObject{{Key("id"), group->GetID().toString()},
                                {Key("parent"), IdOrNull(group->GetParentGroupID())},
                                {Key("children"), DescribeGroups(*group->GetSubGroupSet())}});
    }
    return list;
}

QJsonValue DescribeBackup(const CPort& port)
{
    if (!port.IsBackupDest())
        return {};
    QJsonObject source{{Key("port"), port.GetBackupSrcPortIndex()}};
    if (port.GetBackupSrcIP() != 0)
        source.insert(Key("ip"), static_cast<double>(port.GetBackupSrcIP()));
    else
        source.insert(Key("sender"), port.GetBackupSrcSenderId().toString());
    return source;
}

QJsonObject DescribePort(const CPort& port, const PortCapacity& capacity)
{
    const CTileSet& tiles = port.GetTileSet();
    const CTileGroupSet& groups = port.GetTileGroupSet();
    QList<CTileGroup*> allGroups;
    const qint64 pixels = PixelsOf(tiles);
    return {{Key("index"), port.GetPortIndex()},
            {Key("locked"), port.IsFlagLock()},
            {Key("visible"), port.IsVisible()},
            {Key("backupOf"), DescribeBackup(port)},
            {Key("cabinets"), tiles.GetCount()},
            {Key("numbered"), NumberedCount(tiles)},
            {Key("receivers"), tiles.GetRcvCount()},
            {Key("groups"), groups.GetGroupListRecursive(allGroups)},
            {Key("pixels"), pixels},
            {Key("load"), NumberOrNull(capacity.LoadOf(pixels))},
            {Key("bound"), BoundOrNull(UnrotatedBound(tiles))}};
}

/// A sender without its ports.
QJsonObject DescribeSender(const CProjectData& project, int index)
{
    const CSender& sender = *project.GetSender(index);
    QRect bound;
    for (int i = 0; i < sender.GetPortCount(); ++i)
        bound = bound.united(UnrotatedBound(sender.GetPort(i)->GetTileSet()));
    return {{Key("id"), sender.GetId().toString()},
            {Key("name"), sender.GetSenderName()},
            {Key("shownName"), project.GetShowSenderName(index, true)},
            {Key("group"), IdOrNull(sender.GetBelongGroup())},
            {Key("portCount"), sender.GetPortCount()},
            {Key("recentPort"), sender.GetRecentPortIndex()},
            {Key("canvas"), Size(sender.GetCanvasSize())},
            {Key("offset"), Size(sender.GetOffset())},
            {Key("ip"), static_cast<double>(sender.GetNetSenderIP())},
            {Key("bound"), BoundOrNull(bound)}};
}

QJsonArray DescribeSenderGroups(const CProjectData& project)
{
    QList<SSenderGroupInfo> groups;
    project.GetAllSenderGroup(groups);
    QJsonArray list;
    for (const SSenderGroupInfo& group : groups)
        list.append(QJsonObject{
            {Key("id"), group.id.toString()}, {Key("name"), group.name}, {Key("expanded"), group.expanded}});
    return list;
}

QJsonArray DescribeGamma(const CProjectData& project)
{
    QJsonArray list;
    for (const SRcvParamGamma& row : project.GetRcvParamGammas())
        list.append(
            QJsonObject{{Key("type"), row.type.ToString()}, {Key("gamma"), Rounded(double(row.gamma))}});
    return list;
}

QJsonArray DescribeParameterFiles(const CProjectData& project)
{
    QJsonArray list;
    for (const SParameterFileInfo& row : project.GetParameterFiles())
        list.append(QJsonObject{{Key("name"), row.name}, {Key("type"), row.type.ToString()}});
    return list;
}

QJsonObject DescribePrintForm(const SPrintFormData& form)
{
    const auto line = [](const SPrintLine& l) {
        return QJsonObject{{Key("enabled"), l.enable}, {Key("text"), l.text}};
    };
    return {{Key("projectName"), line(form.projectName)},
            {Key("designer"), line(form.designer)},
            {Key("designDate"), line(form.designDate)},
            {Key("approver"), line(form.approver)},
            {Key("approveDate"), line(form.approveDate)}};
}

QJsonObject DescribeMonitor(const CMonitorInterfaceData& monitor)
{
    QJsonArray receivers;
    for (const SMailReceiver& receiver : monitor.GetMailSetting().receivers)
        receivers.append(QString(receiver.address + QLatin1Char(',') + receiver.name));
    QJsonArray voltage;
    for (const SVoltageSetting& limits : monitor.GetReceiverSetting().voltage)
        voltage.append(Pair(limits.minimum, limits.maximum));
    return {{Key("refreshSeconds"), monitor.GetIntervalTime()},
            {Key("mailReceivers"), receivers},
            {Key("temperatureLimit"), monitor.GetReceiverSetting().temperatureLimit},
            {Key("humidityLimit"), monitor.GetReceiverSetting().humidityLimit},
            {Key("voltage"), voltage}};
}

/// A project without its senders.
QJsonObject DescribeSettings(const CProjectData& project, const CMonitorInterfaceData& monitor)
{
    return {{Key("currentSender"), project.GetCurSenderIndex()},
            {Key("demoMode"), QJsonObject{{Key("enabled"), project.GetDemoModeEnable()},
                                          {Key("senderType"), project.GetDemoSenderType()}}},
            {Key("senderGroups"), DescribeSenderGroups(project)},
            {Key("gamma"), DescribeGamma(project)},
            {Key("print"), DescribePrintForm(*project.GetPrintSetData())},
            {Key("parameterFiles"), DescribeParameterFiles(project)},
            {Key("monitor"), DescribeMonitor(monitor)}};
}

} // namespace

QJsonObject DescribeProject(const CProjectData& project, const CMonitorInterfaceData& monitor, bool withTiles,
                            const PortCapacity& capacity)
{
    QJsonArray senders;
    for (int s = 0; s < project.GetSenderCount(); ++s) {
        QJsonArray ports;
        for (int p = 0; p < project.GetSender(s)->GetPortCount(); ++p) {
            const CPort& port = *project.GetSender(s)->GetPort(p);
            QJsonObject object = DescribePort(port, capacity);
            if (withTiles) {
                object.insert(Key("tiles"), DescribeTiles(port.GetTileSet()));
                object.insert(Key("groupTree"), DescribeGroups(port.GetTileGroupSet()));
            }
            ports.append(object);
        }
        QJsonObject sender = DescribeSender(project, s);
        sender.insert(Key("ports"), ports);
        senders.append(sender);
    }
    QJsonObject object = DescribeSettings(project, monitor);
    object.insert(Key("senders"), senders);
    return object;
}

void WriteProject(const CProjectData& project, const CMonitorInterfaceData& monitor, bool withTiles,
                  const PortCapacity& capacity, const QJsonObject& more, JsonWriter& out)
{
    const auto writePort = [&](const CPort& port) {
        QJsonObject object = DescribePort(port, capacity);
        if (!withTiles)
            return out.Value(object);
        object.insert(Key("groupTree"), DescribeGroups(port.GetTileGroupSet()));
        const CTileSet& tiles = port.GetTileSet();
        out.Object(object, Key("tiles"), [&] {
            for (int i = 0; i < tiles.GetCount(); ++i)
                out.Value(DescribeTile(*tiles.GetTile(i)));
        });
    };
    QJsonObject object = DescribeSettings(project, monitor);
    for (auto member = more.constBegin(); member != more.constEnd(); ++member)
        object.insert(member.key(), member.value());
    out.Object(object, Key("senders"), [&] {
        for (int s = 0; s < project.GetSenderCount(); ++s) {
            const CSender& sender = *project.GetSender(s);
            out.Object(DescribeSender(project, s), Key("ports"), [&] {
                for (int p = 0; p < sender.GetPortCount(); ++p)
                    writePort(*sender.GetPort(p));
            });
        }
    });
}

} // namespace OrvanTools
