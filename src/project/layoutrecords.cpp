#include "project/layoutrecords.h"

#include "layout/sender.h"
#include "layout/tilegroup.h"
#include "settings/constantdata.h"

GroupRecord RecordOf(const CTileGroup& group)
{
    return {group.GetID(), *group.GetRotateParam()};
}

PortRecord RecordOf(const CPort& port)
{
    PortRecord record;
    record.senderId = port.GetSenderId();
    record.portIndex = port.GetPortIndex();
    record.backupDest = port.IsBackupDest();
    record.backupSenderId = port.GetBackupSrcSenderId();
    record.backupPortIndex = port.GetBackupSrcPortIndex();
    record.backupIp = static_cast<unsigned int>(port.GetBackupSrcIP());
    record.visible = port.IsVisible();
    record.locked = port.IsFlagLock();
    record.color = CConstantData::GetColortoQString(port.GetPortColor());
    return record;
}

SenderRecord RecordOf(const CSender& sender)
{
    SenderRecord record;
    record.senderType = sender.GetProcessorType();
    record.deviceClass = sender.GetDeviceClass();
    record.exportConfig = sender.IsExportConfig();
    record.id = sender.GetId();
    record.name = sender.GetSenderName();
    record.belongGroup = sender.GetBelongGroup();
    record.printNameEnable = sender.IsPrintNameEnable();
    record.printName = sender.GetPrintName();
    record.bkImgShow = sender.IsBKImgShow();
    record.bkImgAlpha = sender.GetBKImgAlpha();
    record.bkImgStretch = sender.IsBKImgStretch();
    record.xOffset = sender.GetOffset().width();
    record.yOffset = sender.GetOffset().height();
    record.portCount = sender.GetPortCount();
    record.recentPort = sender.GetRecentPortIndex();
    record.canvasWidth = sender.GetCanvasSize().width();
    record.canvasHeight = sender.GetCanvasSize().height();
    record.signalFreq = sender.GetSignalFreq();
    record.colorDepth = sender.GetColorDepth();
    const QRect area = sender.GetMonitorRenderArea();
    record.renderX = area.x();
    record.renderY = area.y();
    record.renderWidth = area.width();
    record.renderHeight = area.height();
    record.renderPos = sender.GetMonitorRenderRelativePos();
    record.rcvOffsetX = sender.GetMonitorRcvOffsetPt().x();
    record.rcvOffsetY = sender.GetMonitorRcvOffsetPt().y();
    record.ip = static_cast<unsigned int>(sender.GetNetSenderIP());
    return record;
}

void ApplyRecord(const PortRecord& record, const QUuid& senderId, int portIndex, CPort& port)
{
    port.SetPortColor(CConstantData::GetColorFromQString(record.color));
    port.CancelBackupDest();
    if (record.backupDest) {
        port.SetBeBackupDest(record.backupSenderId, record.backupPortIndex);
        if (record.backupIp != 0)
            port.SetBeBackupDestIP(record.backupIp, record.backupPortIndex);
    }
    port.SetSenderIdAndPortIndex(senderId, portIndex);
    port.SetVisible(record.visible);
    port.SetFlagLock(record.locked);
}

void ApplyRecord(const SenderRecord& record, SenderParts parts, CSender& sender)
{
    sender.SetPortCount(record.portCount);
    sender.SetRecentPortIndex(record.recentPort >= 0 && record.recentPort < kMaxPorts ? record.recentPort
                                                                                      : 0);
    if (parts == SenderParts::Project) {
        sender.SetBelongGroup(record.belongGroup);
        sender.SetNetSenderIP(record.ip);
    }
    if (parts == SenderParts::LayoutOnly)
        return;
    sender.SetSenderName(record.name);
    sender.SetPrintNameEnable(record.printNameEnable);
    sender.SetPrintName(record.printName);
    sender.SetBKImgShow(record.bkImgShow);
    sender.SetBKImgAlpha(record.bkImgAlpha);
    sender.SetBKImgStretch(record.bkImgStretch);
    sender.SetOffset(QSize(record.xOffset, record.yOffset));
    sender.SetCanvasSize(QSize(record.canvasWidth, record.canvasHeight));
    sender.SetSignalFreq(record.signalFreq);
    sender.SetColorDepth(record.colorDepth);
    sender.SetMonitorRenderArea(
        QRect(record.renderX, record.renderY, record.renderWidth, record.renderHeight));
    sender.SetMonitorRenderRelativePos(record.renderPos);
    sender.SetMonitorRcvOffsetPt(QPoint(record.rcvOffsetX, record.rcvOffsetY));
}
