// Texts that stand for lists in a project file, and other small conversions.
#include "monitor/monitordata.h"
#include "params/elementnames.h"
#include "params/paramfile.h"
#include "project/projectdata.h"
#include "project/projectelements.h"
#include "project/projectlookup.h"
#include "records/exactcolorparam.h"

#include <QStringList>

namespace {

/// The separators of the list cannot stand inside a text.
QString WithoutSeparators(QString text)
{
    return text.replace(QLatin1Char(','), QLatin1Char(' ')).replace(QLatin1Char(';'), QLatin1Char(' '));
}

} // namespace

QString CProjectData::GetMailReceiversString() const
{
    const CMonitorData* monitor = GetProjectLookup()->Monitor();
    QString text;
    if (!monitor)
        return text;
    const CMonitorInterfaceData data = monitor->GetInterfaceData();
    for (const SMailReceiver& receiver : data.GetMailSetting().receivers)
        text += WithoutSeparators(receiver.address) + QLatin1Char(',') + WithoutSeparators(receiver.name)
                + QLatin1Char(';');
    return text;
}

void CProjectData::SetReceiversFromString(SEmailSetting& setting, const QString& text)
{
    setting.receivers.clear();
    for (const QString& receiver : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const int comma = receiver.indexOf(QLatin1Char(','));
        setting.receivers.append({receiver.left(comma), comma < 0 ? QString() : receiver.mid(comma + 1)});
    }
}

QString CProjectData::GetVideoInfoString() const
{
    QString text;
    for (const SVideoInput& input : m_state.videoInputs)
        text += QStringLiteral("%1,%2,%3,%4;")
                    .arg(input.slot)
                    .arg(input.sourceType)
                    .arg(input.sourceIndex)
                    .arg(input.enable ? 1 : 0);
    return text;
}

void CProjectData::SetVideoInfoFromString(SSenderSetting& setting, const QString& text)
{
    QList<SVideoInput> inputs;
    for (const QString& record : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList fields = record.split(QLatin1Char(','));
        inputs.append({fields.value(0).toInt(), fields.value(1).toInt(), fields.value(2).toInt(),
                       fields.value(3).toInt() != 0});
    }
    m_state.videoInputs = inputs;
    setting.videoInputs = inputs;
}

QString CProjectData::GetColorStr(int channel)
{
    return channel < kColorPrimaries ? QLatin1String(params::kPrimaryNames[qMax(channel, 0)]) : QString();
}

quint32 CProjectData::GetIntFromOctString(const QString& text)
{
    return params::GetIntFromOctString(text);
}

MonitorRecord MakeMonitorRecord(const CProjectData& project)
{
    MonitorRecord record;
    const CMonitorData* monitor = GetProjectLookup()->Monitor();
    const CMonitorInterfaceData data = monitor ? monitor->GetInterfaceData() : CMonitorInterfaceData();
    record.intervalTime = data.GetIntervalTime();
    record.sender = data.GetSenderSetting();
    record.videoInputs = project.GetVideoInfoString();
    record.receiver = data.GetReceiverSetting();
    record.mail = data.GetMailSetting();
    record.mailReceivers = project.GetMailReceiversString();
    record.line = data.GetLineSetting();
    return record;
}

void TakeMonitorRecord(CProjectData& project, const MonitorRecord& record)
{
    SSenderSetting sender = record.sender;
    project.SetVideoInfoFromString(sender, record.videoInputs);
    SEmailSetting mail = record.mail;
    CProjectData::SetReceiversFromString(mail, record.mailReceivers);

    CMonitorInterfaceData data;
    data.SetIntervalTime(record.intervalTime);
    data.SetSenderSetting(sender);
    data.SetReceiverSetting(record.receiver);
    data.SetMailSetting(mail);
    data.SetLineSetting(record.line);
    if (CMonitorData* monitor = GetProjectLookup()->Monitor())
        monitor->SetInterfaceData(data);
}
