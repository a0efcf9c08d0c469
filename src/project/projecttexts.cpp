// Texts that stand for lists in a project file, and other small conversions.
#include "common/debugline.h"
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

QString TextOf(const QList<SVideoInput>& inputs)
{
    QString text;
    for (const SVideoInput& input : inputs)
        text += QStringLiteral("%1,%2,%3,%4;")
                    .arg(input.slot)
                    .arg(input.sourceType)
                    .arg(input.sourceIndex)
                    .arg(input.enable ? 1 : 0);
    return text;
}

QString TextOf(const QList<SMailReceiver>& receivers)
{
    QString text;
    for (const SMailReceiver& receiver : receivers)
        text += WithoutSeparators(receiver.address) + QLatin1Char(',') + WithoutSeparators(receiver.name)
                + QLatin1Char(';');
    return text;
}

void ReadText(const QString& text, QList<SVideoInput>& inputs)
{
    inputs.clear();
    for (const QString& record : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList fields = record.split(QLatin1Char(','));
        inputs.append({fields.value(0).toInt(), fields.value(1).toInt(), fields.value(2).toInt(),
                       fields.value(3).toInt() != 0});
    }
}

void ReadText(const QString& text, QList<SMailReceiver>& receivers)
{
    receivers.clear();
    for (const QString& receiver : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const int comma = receiver.indexOf(QLatin1Char(','));
        receivers.append({receiver.left(comma), comma < 0 ? QString() : receiver.mid(comma + 1)});
    }
}

QString CProjectData::GetMailReceiversString() const
{
    return TextOf(MakeMonitorRecord(*this).mail.receivers);
}

void CProjectData::SetReceiversFromString(SEmailSetting& setting, const QString& text)
{
    ReadText(text, setting.receivers);
}

QString CProjectData::GetVideoInfoString() const
{
    return TextOf(m_state.videoInputs);
}

void CProjectData::SetVideoInfoFromString(SSenderSetting& setting, const QString& text)
{
    ReadText(text, setting.videoInputs);
    m_state.videoInputs = setting.videoInputs;
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
    const CMonitorData* monitor = GetProjectLookup()->Monitor();
    const CMonitorInterfaceData data = monitor ? monitor->GetInterfaceData() : CMonitorInterfaceData();
    SSenderSetting sender = data.GetSenderSetting();
    sender.videoInputs = project.GetVideoInputs();
    return {data.GetIntervalTime(), sender, data.GetReceiverSetting(), data.GetMailSetting(),
            data.GetLineSetting()};
}

void TakeMonitorRecord(CProjectData& project, const MonitorRecord& record)
{
    project.SetVideoInputs(record.sender.videoInputs);
    CMonitorInterfaceData data;
    data.SetIntervalTime(record.intervalTime);
    data.SetSenderSetting(record.sender);
    data.SetReceiverSetting(record.receiver);
    data.SetMailSetting(record.mail);
    data.SetLineSetting(record.line);
    if (CMonitorData* monitor = GetProjectLookup()->Monitor())
        monitor->SetInterfaceData(data);
}

QDebug operator<<(QDebug debug, const SSenderGroupInfo& group)
{
    return DebugLine(debug, "SSenderGroupInfo(", group.name, ' ', group.id, ')');
}

QDebug operator<<(QDebug debug, const SRcvParamGamma& gamma)
{
    return DebugLine(debug, "SRcvParamGamma(", gamma.gamma, " of ", gamma.type, ')');
}

QDebug operator<<(QDebug debug, const SParameterFileInfo& file)
{
    return DebugLine(debug, "SParameterFileInfo(", file.name, " of ", file.type, ')');
}
