#pragma once

#include "common/export.h"

#include <QList>
#include <QRect>

class CPort;
class CPortProject;
class CSender;
class CTile;

/// The cabinets of a sender's ports in use that are selected in the design view, over all ports: what edits
/// of a wall work on. Backup ports take no part, as they show what their source shows. Each call goes by the
/// selection as it is then, and records no step of the history. What it does to one port, and to the groups
/// there, is CPortSelection's.
class ORVANDATA_EXPORT CSenderSelection
{
public:
    explicit CSenderSelection(CSender& sender) : m_sender(sender) {} ///< [keep]

    QList<CPort*> GetPorts() const; ///< [ref] those with selected cabinets
    QList<CTile*> GetTiles() const; ///< [ref] by port, in list order
    QRect GetBound() const;         ///< canvas pixels, turned cabinets as they are shown; null without any
    QList<CTile*> GetTilesAround() const; ///< [ref] of the outermost groups that have a selected cabinet
    void Clear();
    void MarkWholeGroups(); ///< to be called whenever the selection has changed

    void Offset(int dx, int dy);
    void Turn(double angle);   ///< degrees, clockwise, about the middle of its bound
    void TurnTo(double angle); ///< as one when all are turned alike, else each about its own middle
    /// Each cabinet, where 0 stays as it is. Rows and columns stay together unless some cabinet is turned.
    void Resize(int width, int height);
    QRect GetBoundIfResized(int width, int height) const; ///< canvas pixels, of those that are not turned
    void Delete();                                        ///< chains close up over what is gone
    bool Ungroup(); ///< the outermost groups that have selected cabinets; false: there are none
    void CopyTo(CPortProject& layout) const; ///< appends; they belong to no port and have no number
    /// Selected cabinets of other ports come to that one of the sender, without numbers, and stay selected.
    /// False, and nothing changed: there are none, or more than the port may hold, or it is a backup.
    bool MoveTo(CPort& port);

private:
    QList<CPort*> OwnPorts() const;
    template <class Edit> void ForEachPort(const Edit& edit) const;

    CSender& m_sender;
};
