#pragma once

#include "orvantools/groupoutlines.h"
#include "orvantools/portload.h"
#include "orvantools/tileshape.h"

#include <QColor>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <vector>

class CProjectData;

namespace OrvanTools {

struct PictureOptions
{
    int port = -1;     ///< the only one to show, counted from 0; -1: all
    bool rear = false; ///< as seen from behind: all is mirrored, the coordinates too
    PortCapacity capacity;
    bool atOwnRate = false; ///< at the frames and bits that the sender is set to, where it is
};

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
    bool chainBegins = true;              ///< with the first of these; false: before, on another page
    bool chainEnds = true;
    std::vector<GroupOutline> groups;
    qint64 pixels = 0;
    int receivers = 0;
    QString load;        ///< of what a port carries, "62 %"; none for a backup
    QString backupOf;    ///< "backup of port 3"
    QString note;        ///< backup, hidden, locked
    QStringList backups; ///< the ports that back it up
};

/// What a drawing of one sender shows, gathered from the project.
struct WallPicture
{
    QString title;
    QString senderName;
    QString view; ///< "backup · port 3 · rear view", as much as applies
    bool isRear = false;
    bool isBackup = false;          ///< of other senders alone, whose wall it shows
    QString figures;                ///< canvas, wall, cabinets, receivers, pixels
    QStringList form;               ///< printed fields, "Designer: …"
    QRectF canvas;                  ///< in the cabinets' coordinates; empty: none
    QRectF bound;                   ///< of all cabinets, turned as they are; empty: none
    std::vector<PicturePort> ports; ///< those with cabinets, and the backups
};

QString TitleOf(const CProjectData& project, int sender); ///< the printed name of the project or the sender's

/// A sender that only backs up others shows the cabinets of the ports that it backs up.
WallPicture MakeWallPicture(const CProjectData& project, int sender, const PictureOptions& options = {});

} // namespace OrvanTools
