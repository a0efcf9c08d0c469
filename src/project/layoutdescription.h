#pragma once

#include "common/xmlattributes.h"
#include "common/xmlreader.h"
#include "layout/sender.h"
#include "layout/storedtile.h"
#include "layout/tilegroup.h"
#include "settings/constantdata.h"

#include <type_traits>

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

// The most that a file may hold, so that a hostile one does not fill the memory. Of cabinets and groups it is
// about what fits into a document of the largest size when it is written again.
constexpr int kMaxSenders = 1024;
constexpr int kMaxTilesOfFile = static_cast<int>(kMaxXmlBytes / 512);
constexpr int kMaxGroupsOfFile = static_cast<int>(kMaxXmlBytes / 256);

// The least bytes that each takes in a file.
constexpr int kLeastBytesOfTile = 600;
constexpr int kLeastBytesOfGroup = 240;

} // namespace layoutnames

// Values that a file holds in another form than the object.

template <class Fields, class Size>
void SizeFields(Fields& f, const char* widthName, const char* heightName, Size& size)
{
    int width = size.width();
    int height = size.height();
    f.Field(widthName, width);
    f.Field(heightName, height);
    if constexpr (!std::is_const_v<Size>)
        size = QSize(width, height);
}

template <class Fields, class Point>
void PointFields(Fields& f, const char* xName, const char* yName, Point& point)
{
    int x = point.x();
    int y = point.y();
    f.Field(xName, x);
    f.Field(yName, y);
    if constexpr (!std::is_const_v<Point>)
        point = QPoint(x, y);
}

template <class Fields, class Color> void ColorField(Fields& f, const char* name, Color& color)
{
    QString text = CConstantData::GetColortoQString(color);
    f.Field(name, text);
    if constexpr (!std::is_const_v<Color>)
        color = CConstantData::GetColorFromQString(text);
}

/// The device a sender stands for: told to whoever reads a project file, never taken from one. The files of a
/// single sender do not carry it.
template <class Fields> void DescribeSenderDevice(Fields& f, const CSender& sender)
{
    f.Field("SenderType", sender.GetProcessorType(), FieldUse::NeverRead);
    f.Field("DeviceClass", sender.GetDeviceClass(), FieldUse::NeverRead);
    f.Field("bExportConfig", sender.IsExportConfig(), FieldUse::NeverRead);
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
    SizeFields(f, "XOffset", "YOffset", r.offset);
    f.Field("PortCount", r.portCount);
    f.Field("RecentPortIndex", r.recentPort);
    SizeFields(f, "CanvasSizeWidth", "CanvasSizeHeight", r.canvasSize);
    f.Field("SignalFreq", r.signalFreq);
    f.Field("ColorDepth", r.colorDepth);
    PointFields(f, "MonitorRenderX", "MonitorRenderY", r.monitorRenderPlace);
    SizeFields(f, "MonitorRenderW", "MonitorRenderH", r.monitorRenderSize);
    f.Field("MonitorRenderPos", r.monitorRenderPos);
    PointFields(f, "MonitorRcvOffsetPtX", "MonitorRcvOffsetPtY", r.monitorRcvOffset);
    f.Field("IPAddr", r.netIp);
}

template <class Fields, class Record> void DescribePort(Fields& f, Record& r)
{
    f.Field("SenderGuid", r.senderId, FieldUse::NeverRead); // whoever reads a port says whose it is
    f.Field("PortIndex", r.portIndex);
    f.Field("IsBackupDest", r.backup.dest);
    f.Field("bkSenderId", r.backup.senderId);
    f.Field("BkPortIndex", r.backup.portIndex);
    f.Field("BkSenderIP", r.backup.ip);
    f.Field("IsVisable", r.view.visible);
    f.Field("Lock", r.view.locked);
    ColorField(f, "PortColor", r.color);
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
    // Written under one name, looked for under another: files in the field rely on a cabinet taking the index
    // of the port that it is read into.
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
    f.Field("IsMultiCabinet", FlagInFile::Multi(r), FieldUse::IfPresent);
    f.Field("IsMultiFixed", FlagInFile::Fixed(r), FieldUse::IfPresent);
    SizeFields(f, "MultiRcvSizeX", "MultiRcvSizeY", r.multiSize);
    f.Field("MultiOrdered", FlagInFile::Ordered(r), FieldUse::IfPresent);
    static constexpr const char* kLine[kMaxReceiversInTile] = {
        "MultiLine_0", "MultiLine_1", "MultiLine_2", "MultiLine_3", "MultiLine_4",
        "MultiLine_5", "MultiLine_6", "MultiLine_7", "MultiLine_8", "MultiLine_9"};
    for (int i = 0; i < kMaxReceiversInTile; ++i)
        f.Field(kLine[i], r.line[i]);
    DescribeRotation(f, r.rotate);
}

template <class Fields, class Record> void DescribeGroup(Fields& f, Record& r)
{
    f.Field("GroupId", r.id);
    DescribeRotation(f, r.rotate);
}
