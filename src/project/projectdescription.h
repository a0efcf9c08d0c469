#pragma once

#include "common/xmlattributes.h"
#include "monitor/monitorinterfacedata.h"
#include "project/projectrecords.h"

#include <type_traits>

// What the elements of a project file hold, apart from the layout: each attribute named once, in the order
// written. `Fields` is an attribute reader or writer, `Record` the record, constant when it is written.

struct VersionRecord
{
    QString minimum;
    double current = 0;
};

template <class Fields, class Record> void DescribeVersion(Fields& f, Record& r)
{
    f.Field("MinimumVersion", r.minimum);
    f.Field("CurrentVersion", r.current, FieldUse::NeverRead); // the minimum alone decides
}

template <class Fields, class Record> void DescribeDemoMode(Fields& f, Record& r)
{
    f.Field("DemoModeEnable", r.enable);
    f.Field("DemoSenderType", r.senderType);
}

template <class Fields, class Record> void DescribeSenderGroup(Fields& f, Record& r)
{
    f.Field("GroupGUID", r.id);
    f.Field("GroupName", r.name);
    f.Field("GroupExpand", r.expanded);
}

template <class Fields, class Record> void DescribeGamma(Fields& f, Record& r)
{
    f.Field("TileType", r.type);
    f.Field("Gamma", r.gamma);
}

template <class Fields, class Record> void DescribePrintForm(Fields& f, Record& r)
{
    f.Field("ProjectNameEnable", r.projectName.enable);
    f.Field("ProjectName", r.projectName.text);
    f.Field("DesignerEnable", r.designer.enable);
    f.Field("Designer", r.designer.text);
    f.Field("DesignDateEnable", r.designDate.enable);
    f.Field("DesignDate", r.designDate.text);
    f.Field("ApproverEnable", r.approver.enable);
    f.Field("Approver", r.approver.text);
    f.Field("ApproveDateEnable", r.approveDate.enable);
    f.Field("ApproveDate", r.approveDate.text);
}

template <class Fields, class Record> void DescribeParameterFile(Fields& f, Record& r)
{
    f.Field("Name", r.name);
    f.Field("Md5", r.type);
}

// Lists that a file holds as one text.
QString TextOf(const QList<SVideoInput>& inputs);      ///< "slot,sourceType,sourceIndex,enable;" an input
QString TextOf(const QList<SMailReceiver>& receivers); ///< "address,name;" a receiver
void ReadText(const QString& text, QList<SVideoInput>& inputs);
void ReadText(const QString& text, QList<SMailReceiver>& receivers);

template <class Fields, class List> void ListField(Fields& f, const char* name, List& list, FieldUse use)
{
    QString text = TextOf(list);
    f.Field(name, text, use);
    if constexpr (!std::is_const_v<List>)
        ReadText(text, list);
}

struct MonitorRecord
{
    int intervalTime = 10;
    SSenderSetting sender;
    SRecevierSetting receiver;
    SEmailSetting mail;
    SLineSetting line;
};

template <class Fields, class Setting> void DescribeReceiverChecks(Fields& f, Setting& r)
{
    const auto keep = FieldUse::IfPresent;
    f.Field("ReceiverTempEnable", r.temperatureEnable, keep);
    f.Field("ReceiverTempValue", r.temperatureLimit, keep);
    f.Field("ReceiverHumidity", r.humidityEnable, keep);
    f.Field("ReceiverHumidityValue", r.humidityLimit, keep);
    f.Field("ReceiverSmog", r.smoke, keep);
    f.Field("ReceiverFan", r.fan, keep);
    f.Field("ReceiverCabinetDoor", r.cabinetDoor, keep);
    static constexpr const char* kPower[] = {"ReceiverPower1", "ReceiverPower2", "ReceiverPower3",
                                             "ReceiverPower4", "ReceiverPower5"};
    for (int i = 0; i < SRecevierSetting::kPowers; ++i)
        f.Field(kPower[i], r.power[i], keep);
    static constexpr const char* kVoltage[][3] = {
        {"ReceiverVoltage1", "ReceiverVoltage1Min", "ReceiverVoltage1Max"},
        {"ReceiverVoltage2", "ReceiverVoltage2Min", "ReceiverVoltage2Max"},
        {"ReceiverVoltage3", "ReceiverVoltage3Min", "ReceiverVoltage3Max"},
        {"ReceiverVoltage4", "ReceiverVoltage4Min", "ReceiverVoltage4Max"}};
    for (int i = 0; i < SRecevierSetting::kVoltages; ++i) {
        f.Field(kVoltage[i][0], r.voltage[i].enable, keep);
        f.Field(kVoltage[i][1], r.voltage[i].minimum, keep);
        f.Field(kVoltage[i][2], r.voltage[i].maximum, keep);
    }
    f.Field("CableDetection", r.cableDetection, keep);
}

/// An attribute that is absent keeps its default: older files hold fewer of them.
template <class Fields, class Record> void DescribeMonitor(Fields& f, Record& r)
{
    const auto keep = FieldUse::IfPresent;
    f.Field("RefreshDisTime", r.intervalTime, keep);
    f.Field("SenderVideoUnmatch", r.sender.videoUnmatch, keep);
    f.Field("SenderFreeze", r.sender.freeze, keep);
    f.Field("SenderBlackout", r.sender.blackout, keep);
    f.Field("SenderBrightneesZero", r.sender.brightnessZero, keep);
    ListField(f, "SenderVideoInput", r.sender.videoInputs, keep);
    DescribeReceiverChecks(f, r.receiver);
    f.Field("MailEnable", r.mail.enable, keep);
    f.Field("MailErrorTimes", r.mail.errorTimes, keep);
    f.Field("MailSenderAddress", r.mail.senderAddress, keep);
    f.Field("MailSenderPassword", r.mail.senderPassword,
            keep); // in plain text, as the host's mail client wants it
    f.Field("MailSenderServer", r.mail.server, keep);
    f.Field("MailSslEncryption", r.mail.sslEncryption, keep);
    f.Field("MailSenderPort", r.mail.serverPort, keep);
    ListField(f, "MailReceivers", r.mail.receivers, keep);
    f.Field("CableError", r.line.cableError, keep);
    f.Field("SelfBackup", r.line.selfBackup, keep);
}
