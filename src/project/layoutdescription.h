#pragma once

#include "common/canvaslimits.h"
#include "common/rotateparam.h"
#include "common/smd5.h"
#include "common/xmlattributes.h"
#include "common/xmlreader.h"

#include <QString>
#include <QUuid>

// What the layout elements of a file hold: each attribute named once, in the order written. `Fields` is an
// attribute reader or writer, `Record` the record, constant when it is written.

namespace layoutnames {

constexpr char kSenderLayout[] = "SenderLayout";
constexpr char kSenderCount[] = "SenderCount";
constexpr char kSender[] = "Sender_";
constexpr char kPort[] = "Port_";
constexpr char kTiles[] = "TitleLayout";
constexpr char kTileCount[] = "TileCount";
constexpr char kTile[] = "Tile_";
constexpr char kGroups[] = "TitleGroupLayout";
constexpr char kGroupCount[] = "GroupCount";
constexpr char kGroup[] = "TileGroup";
constexpr int kMaxGroupDepth = 1000;

// What a file may hold, so that a hostile one does not fill the memory. Of cabinets and groups that is about
// what a document of the largest size has room for once it is written again.
constexpr int kMaxSenders = 1024;
constexpr int kMaxTilesOfFile = static_cast<int>(kMaxXmlBytes / 512);
constexpr int kMaxGroupsOfFile = static_cast<int>(kMaxXmlBytes / 256);

// Bytes that each takes at least when it is written.
constexpr int kLeastBytesOfTile = 600;
constexpr int kLeastBytesOfGroup = 240;

} // namespace layoutnames

struct SenderRecord
{
    int senderType = 0;
    int deviceClass = 0;
    bool exportConfig = false;
    QUuid id;
    QString name;
    QUuid belongGroup;
    bool printNameEnable = false;
    QString printName;
    bool bkImgShow = false;
    int bkImgAlpha = 0;
    bool bkImgStretch = false;
    int xOffset = 0;
    int yOffset = 0;
    int portCount = 0;
    int recentPort = 0;
    int canvasWidth = 0;
    int canvasHeight = 0;
    int signalFreq = 0;
    int colorDepth = 0;
    int renderX = 0;
    int renderY = 0;
    int renderWidth = 0;
    int renderHeight = 0;
    int renderPos = 0;
    int rcvOffsetX = 0;
    int rcvOffsetY = 0;
    unsigned int ip = 0;
};

/// The device a sender stands for: told to whoever reads a project file, never taken from one. The files of a
/// single sender do not carry it.
template <class Fields, class Record> void DescribeSenderDevice(Fields& f, Record& r)
{
    f.Field("SenderType", r.senderType, FieldUse::NeverRead);
    f.Field("DeviceClass", r.deviceClass, FieldUse::NeverRead);
    f.Field("bExportConfig", r.exportConfig, FieldUse::NeverRead);
}

template <class Fields, class Record> void DescribeSender(Fields& f, Record& r)
{
    f.Field("ID", r.id);
    f.Field("Name", r.name);
    f.Field("BelongGroup", r.belongGroup);
    f.Field("PrintNameEnable", r.printNameEnable);
    f.Field("PrintName", r.printName);
    f.Field("BKImgShow", r.bkImgShow);
    f.Field("BKImgAlpha", r.bkImgAlpha);
    f.Field("BKImgStretch", r.bkImgStretch);
    f.Field("XOffset", r.xOffset);
    f.Field("YOffset", r.yOffset);
    f.Field("PortCount", r.portCount);
    f.Field("RecentPortIndex", r.recentPort);
    f.Field("CanvasSizeWidth", r.canvasWidth);
    f.Field("CanvasSizeHeight", r.canvasHeight);
    f.Field("SignalFreq", r.signalFreq);
    f.Field("ColorDepth", r.colorDepth);
    f.Field("MonitorRenderX", r.renderX);
    f.Field("MonitorRenderY", r.renderY);
    f.Field("MonitorRenderW", r.renderWidth);
    f.Field("MonitorRenderH", r.renderHeight);
    f.Field("MonitorRenderPos", r.renderPos);
    f.Field("MonitorRcvOffsetPtX", r.rcvOffsetX);
    f.Field("MonitorRcvOffsetPtY", r.rcvOffsetY);
    f.Field("IPAddr", r.ip);
}

struct PortRecord
{
    QUuid senderId;
    int portIndex = 0;
    bool backupDest = false;
    QUuid backupSenderId;
    int backupPortIndex = -1;
    unsigned int backupIp = 0;
    bool visible = true;
    bool locked = false;
    QString color;
};

template <class Fields, class Record> void DescribePort(Fields& f, Record& r)
{
    f.Field("SenderGuid", r.senderId, FieldUse::NeverRead); // whoever reads a port says whose it is
    f.Field("PortIndex", r.portIndex);
    f.Field("IsBackupDest", r.backupDest);
    f.Field("bkSenderId", r.backupSenderId);
    f.Field("BkPortIndex", r.backupPortIndex);
    f.Field("BkSenderIP", r.backupIp);
    f.Field("IsVisable", r.visible);
    f.Field("Lock", r.locked);
    f.Field("PortColor", r.color);
}

template <class Fields, class Record> void DescribeRotation(Fields& f, Record& r)
{
    f.Field("RotateShowCenter", r.showCenter);
    f.Field("RotateCenterX", r.centerX);
    f.Field("RotateCenterY", r.centerY);
    f.Field("RotateLeftTopX", r.leftTopX);
    f.Field("RotateLeftTopY", r.leftTopY);
    f.Field("RotateAngle", r.angle);
    f.Field("RotateWidth", r.width);
    f.Field("RotateHeight", r.height);
}

template <class Fields, class Record> void DescribeTile(Fields& f, Record& r)
{
    f.Field("SenderId", r.senderId);
    // Written under one name, looked for under another: files in the field rely on the port read in giving
    // it.
    f.Field("PortIndex", r.portIndex, FieldUse::NeverRead);
    f.Field("portIndexr", r.portIndex, FieldUse::NeverWritten);
    f.Field("index", r.connectionIndex);
    f.Field("FirstRcvIndex", r.beginRcvCnnt, FieldUse::NeverRead); // derived again from the wiring
    f.Field("Type", r.type);
    f.Field("GroupId", r.groupId);
    f.Field("X", r.x);
    f.Field("Y", r.y);
    f.Field("Width", r.width);
    f.Field("Height", r.height);
    // A file without these says nothing; the product type decides.
    f.Field("IsMultiCabinet", r.saysMulti, FieldUse::IfPresent);
    f.Field("IsMultiFixed", r.saysFixed, FieldUse::IfPresent);
    f.Field("MultiRcvSizeX", r.receiversAcross);
    f.Field("MultiRcvSizeY", r.receiversDown);
    f.Field("MultiOrdered", r.saysOrdered, FieldUse::IfPresent);
    static constexpr const char* kLine[kMaxReceiversInTile] = {
        "MultiLine_0", "MultiLine_1", "MultiLine_2", "MultiLine_3", "MultiLine_4",
        "MultiLine_5", "MultiLine_6", "MultiLine_7", "MultiLine_8", "MultiLine_9"};
    for (int i = 0; i < kMaxReceiversInTile; ++i)
        f.Field(kLine[i], r.line[i]);
    DescribeRotation(f, r.rotate);
}

struct GroupRecord
{
    QUuid id;
    SRotateParam rotate;
};

template <class Fields, class Record> void DescribeGroup(Fields& f, Record& r)
{
    f.Field("GroupId", r.id);
    DescribeRotation(f, r.rotate);
}
