#include "project/layoutrecords.h"

#include "layout/sender.h"
#include "layout/tile.h"
#include "layout/tilegroup.h"
#include "settings/constantdata.h"

#include <algorithm>

namespace {

void PlaceTile(const TileRecord& record, CTile& tile)
{
    tile.SetWidth(record.width);
    tile.SetHeight(record.height);
    tile.RestorePosition(record.x, record.y);
}

void WireTile(const TileRecord& record, CTile& tile)
{
    if (record.multi >= 0)
        tile.SetBeMultiRcvsTile(record.multi != 0);
    if (record.fixedLine >= 0)
        tile.SetBeMultiFixedLine(record.fixedLine != 0);
    if (record.ordered >= 0)
        tile.SetMultiRcvsOrdered(record.ordered != 0);
    if (record.multiWidth > 0 && record.multiHeight > 0)
        tile.SetMultiRcvsSize(QSize(record.multiWidth, record.multiHeight));
    unsigned char line[kMaxReceiversInTile];
    std::transform(std::begin(record.line), std::end(record.line), line,
                   [](int code) { return static_cast<unsigned char>(code); });
    tile.RestoreMultiRcvsLine(line);
}

} // namespace

TileRecord RecordOf(const CTile& tile)
{
    TileRecord record;
    record.senderId = tile.GetSenderId();
    record.portIndex = tile.GetPortIndex();
    record.connectionIndex = tile.GetConnectionIndex();
    record.beginRcvCnnt = tile.GetBeginRcvCnnt();
    record.type = tile.GetType();
    record.groupId = tile.GetGroupId();
    record.x = tile.GetX();
    record.y = tile.GetY();
    record.width = tile.GetWidth();
    record.height = tile.GetHeight();
    record.multi = tile.IsMultiRcvTile();
    record.fixedLine = tile.IsMultiFixedLine();
    record.multiWidth = tile.GetMultiRcvsSize().width();
    record.multiHeight = tile.GetMultiRcvsSize().height();
    record.ordered = tile.IsMultiRcvsOrdered();
    for (int i = 0; i < kMaxReceiversInTile; ++i)
        record.line[i] = tile.GetMultiRcvsLineCode(i);
    record.rotate = tile.GetRotateRecord();
    return record;
}

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

std::unique_ptr<CTile> MakeTile(const TileRecord& record, const QUuid& senderId, int portIndex)
{
    auto tile = std::make_unique<CTile>();
    tile->SetSenderId(senderId.isNull() ? record.senderId : senderId);
    tile->SetPortIndex(portIndex == -1 ? record.portIndex : portIndex);
    // Without a type the flags stay those of a new cabinet unless the file says them.
    if (!record.type.IsNull())
        tile->SetType(record.type);
    tile->SetGroupId(record.groupId);
    PlaceTile(record, *tile);
    WireTile(record, *tile);
    SRotateParam rotate = record.rotate;
    rotate.rotated = IsRotationAngle(rotate.angle);
    tile->SetTileRotateParam(&rotate);
    CTileSet alone; // the predecessor may not have been read yet, so none is looked for
    tile->SetConnectionIndex(record.connectionIndex, &alone);
    return tile;
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
