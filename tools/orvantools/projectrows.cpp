#include "orvantools/projectrows.h"

#include <OrvanData/orvandata.h>

#include <QHostAddress>

namespace OrvanTools {

namespace {

TextRow Row(const char* name, const QString& value)
{
    return {QLatin1String(name), value};
}

QString Switch(bool on)
{
    return on ? QStringLiteral("on") : QStringLiteral("off");
}

QString Number(double number)
{
    return QString::number(number); // six significant digits, as files keep them
}

/// What is not told one by one.
CMonitorInterfaceData WithoutTold(CMonitorInterfaceData monitor)
{
    SRecevierSetting receiver = monitor.GetReceiverSetting();
    SEmailSetting mail = monitor.GetMailSetting();
    receiver.temperatureLimit = receiver.humidityLimit = 0;
    for (SVoltageSetting& limits : receiver.voltage)
        limits.minimum = limits.maximum = 0;
    mail.receivers.clear();
    monitor.SetIntervalTime(1);
    monitor.SetReceiverSetting(receiver);
    monitor.SetMailSetting(mail);
    return monitor;
}

TextRow PrintRow(const char* name, const SPrintLine& line)
{
    return Row(name, Quoted(line.text) + (line.enable ? QString() : QStringLiteral(" (not printed)")));
}

QString GroupName(const CProjectData& project, const QUuid& id)
{
    QList<SSenderGroupInfo> groups;
    project.GetAllSenderGroup(groups);
    for (const SSenderGroupInfo& group : groups) {
        if (group.id == id)
            return Quoted(group.name);
    }
    return id.isNull() ? QStringLiteral("none") : QStringLiteral("unknown");
}

} // namespace

bool IsOtherMonitoringSame(const CMonitorInterfaceData& a, const CMonitorInterfaceData& b)
{
    return WithoutTold(a) == WithoutTold(b);
}

QString TypeText(const SMD5& type)
{
    return type.IsNull() ? QStringLiteral("none") : type.ToString();
}

QString CanvasText(const QSize& size)
{
    return size == QSize(-1, -1) ? QStringLiteral("none") : SizeText(size.width(), size.height());
}

QString AddressText(unsigned long ip)
{
    return QHostAddress(static_cast<quint32>(ip)).toString();
}

TextRows ProjectRows(const CProjectData& project)
{
    TextRows rows{Row("current sender", QString::number(project.GetCurSenderIndex() + 1))};
    QList<SSenderGroupInfo> groups;
    project.GetAllSenderGroup(groups);
    for (const SSenderGroupInfo& group : groups)
        rows.push_back({QStringLiteral("sender group ") + Quoted(group.name),
                        group.expanded ? QStringLiteral("unfolded") : QStringLiteral("folded")});
    for (const SRcvParamGamma& gamma : project.GetRcvParamGammas())
        rows.push_back(
            {QStringLiteral("gamma of type ") + TypeText(gamma.type), Number(double(gamma.gamma))});
    return rows;
}

TextRows ParameterFileRows(const CProjectData& project)
{
    TextRows rows;
    for (const SParameterFileInfo& file : project.GetParameterFiles())
        rows.push_back({QStringLiteral("parameter file of type ") + TypeText(file.type), Quoted(file.name)});
    return rows;
}

TextRows SettingsRows(const CProjectData& project, const CMonitorInterfaceData& monitor)
{
    const SPrintFormData& form = *project.GetPrintSetData();
    const SRecevierSetting& receiver = monitor.GetReceiverSetting();
    QStringList mail;
    for (const SMailReceiver& one : monitor.GetMailSetting().receivers)
        mail.append(one.address + QLatin1Char(',') + one.name);
    TextRows rows{Row("demo mode", Switch(project.GetDemoModeEnable())),
                  Row("sender type of the demo mode", Number(project.GetDemoSenderType())),
                  PrintRow("project name on the form", form.projectName),
                  PrintRow("designer on the form", form.designer),
                  PrintRow("design date on the form", form.designDate),
                  PrintRow("approver on the form", form.approver),
                  PrintRow("approve date on the form", form.approveDate),
                  Row("monitoring every", Number(monitor.GetIntervalTime()) + QStringLiteral(" s")),
                  Row("mail receivers", Quoted(mail.join(QLatin1Char(';')))),
                  Row("temperature limit", Number(receiver.temperatureLimit) + QStringLiteral(" °C")),
                  Row("humidity limit", Number(receiver.humidityLimit) + QStringLiteral(" %"))};
    for (int i = 0; i < SRecevierSetting::kVoltages; ++i) {
        const SVoltageSetting& limits = receiver.voltage[i];
        rows.push_back({QStringLiteral("voltage %1 from").arg(i + 1),
                        QStringLiteral("%1 to %2 V").arg(Number(limits.minimum), Number(limits.maximum))});
    }
    return rows;
}

TextRows SenderRows(const CProjectData& project, const CSender& sender)
{
    const QSize offset = sender.GetOffset();
    return {
        Row("name", Quoted(sender.GetSenderName())),
        PrintRow("name on the form", {sender.IsPrintNameEnable(), sender.GetPrintName()}),
        Row("group", GroupName(project, sender.GetBelongGroup())),
        Row("ports", Number(sender.GetPortCount())),
        Row("recent port", QString::number(qint64(sender.GetRecentPortIndex()) + 1)),
        Row("canvas", CanvasText(sender.GetCanvasSize())),
        Row("offset", offset == QSize(-1, -1)
                          ? QStringLiteral("none")
                          : Number(offset.width()) + QStringLiteral(", ") + Number(offset.height())),
        Row("address",
            sender.GetNetSenderIP() == 0 ? QStringLiteral("none") : AddressText(sender.GetNetSenderIP())),
        Row("signal", QStringLiteral("%1 Hz %2 bit").arg(sender.GetSignalFreq()).arg(sender.GetColorDepth())),
        Row("picture behind it", Switch(sender.IsBKImgShow()))};
}

TextRows PortRows(const CPort& port)
{
    return {Row("lock", Switch(port.IsFlagLock())),
            Row("display", port.IsVisible() ? QStringLiteral("shown") : QStringLiteral("hidden"))};
}

} // namespace OrvanTools
