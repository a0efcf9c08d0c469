#pragma once

#include "orvantools/groupoutlines.h"
#include "orvantools/tileshape.h"

#include <QColor>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <vector>

class CProjectData;

namespace OrvanTools {

struct PictureCabinet
{
    int number = -1;               ///< place in the chain from 0; -1: none
    int firstReceiver = -1;        ///< in the port's chain, from 0; -1: none
    std::vector<QRectF> receivers; ///< of several receiving cards, in parts of the cabinet's width and height
};

struct PicturePort
{
    int index = 0;
    bool hidden = false;
    QColor color;
    std::vector<TileShape> shapes;        ///< of the cabinets, canvas pixels
    std::vector<PictureCabinet> cabinets; ///< one for each shape
    std::vector<int> chain;               ///< the numbered cabinets in order
    std::vector<GroupOutline> groups;
    qint64 pixels = 0;
    int receivers = 0;
    QString note;        ///< backup, hidden, locked
    QStringList backups; ///< the ports that back it up
};

/// What a drawing of one sender shows, gathered from the project.
struct WallPicture
{
    QString title;
    QString senderName;
    QString figures;                ///< canvas, wall, cabinets, receivers, pixels
    QStringList form;               ///< printed fields, "Designer: …"
    QRectF canvas;                  ///< in the cabinets' coordinates; empty: none
    QRectF bound;                   ///< of all cabinets, turned as they are; empty: none
    std::vector<PicturePort> ports; ///< those with cabinets and the backups
};

WallPicture MakeWallPicture(const CProjectData& project, int sender);

} // namespace OrvanTools
