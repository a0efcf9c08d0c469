#pragma once

#include "common/export.h"
#include "layout/tileset.h"

#include <QList>

class CPort;
class CPortProject;
class CTileGroup;
struct SRotateParam;

/// The cabinets of a port that are selected in the design view, and the groups that they fill: what edits of
/// a selection work on. Each call goes by the selection as it is then, and records no step of the history.
class ORVANDATA_EXPORT CPortSelection
{
public:
    explicit CPortSelection(CPort& port) : m_port(port) {} ///< [keep]

    CTileSet GetTiles() const; ///< [ref] in list order

    // groups
    /// [ref] The groups, of whatever level, all of whose cabinets are selected; none that lies in another
    /// such one.
    QList<CTileGroup*> GetWholeGroups() const;
    /// A group counts as selected as long as it is whole: deleting the selection deletes such groups. To be
    /// called whenever the selection has changed.
    void MarkWholeGroups();
    QList<CTile*> GetTilesAround() const; ///< [ref] of the outermost groups that have a selected cabinet

    enum class Grouped
    {
        Done,
        TooFew, ///< less than two groups or cabinets
        InPart, ///< of some outermost group, which is to be ungrouped first
    };
    Grouped Group(); ///< makes a group of the selection, around the groups that are whole
    bool Ungroup();  ///< the outermost groups that have selected cabinets; false: there are none

    // what groups are turned by goes with their cabinets
    void Offset(int dx, int dy);
    void Turn(const SRotateParam& turn); ///< as one
    void TurnEachTo(double angle);       ///< degrees, each about its own middle
    void TakeSizes();                    ///< after cabinets took other sizes: renews what is turned about

    // copies, with the groups that are whole
    void CopyTo(CPortProject& layout) const; ///< appends; they belong to no port and have no number
    /// Puts copies on the port, moved by that. They are selected, and their groups get ids of their own.
    void Paste(const CPortProject& copies, int dx, int dy);

private:
    CPort& m_port;
};
