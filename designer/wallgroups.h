#pragma once

#include <OrvanData/orvandata.h>

#include <QList>

/// The groups of a port, as edits of its selection need them.
namespace WallGroups {

/// The groups, of whatever level, all of whose cabinets are selected; none that lies in another such one.
QList<CTileGroup*> Whole(const CPort& port);
/// A group counts as selected as long as it is whole: deleting the selection deletes such groups.
void MarkWhole(CPort& port);
/// The cabinets of the outermost groups that have a selected one.
QList<CTile*> TilesAround(const CPort& port);

enum class Gathered
{
    Done,
    TooFew, ///< less than two groups or cabinets
    InPart, ///< of some outermost group
};
Gathered Gather(CPort& port); ///< the selection becomes a group
bool Dissolve(CPort& port);   ///< the outermost groups that have selected cabinets; false: there are none

// what groups are turned by goes with their cabinets
void MoveRecord(CTileGroup& group, const QPoint& by); ///< and those of the groups inside
void RenewRecords(CPort& port);                       ///< of the selection, which has other sizes now
void Turn(CPort& port, const SRotateParam& turn);     ///< the selection, as one
void TurnEachTo(CPort& port, double angle);           ///< each selected cabinet about its own middle

} // namespace WallGroups
