#pragma once

#include "common/canvaslimits.h"
#include "common/export.h"
#include "common/smd5.h"
#include "layout/tilegroupset.h"
#include "layout/tileset.h"

#include <QList>
#include <QMetaType>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <QUuid>
#include <QVector>

class QDebug;
struct SRotateParam;

/// A block of equal cabinets to place. Lengths in canvas pixels.
struct SAddTileInfo
{
    QUuid senderId;    ///< with the port's index what cabinets name as their place: that of this layout
    int portIndex = 0; ///< from 0
    SMD5 type;         ///< in the product library, or none; the flags below hold whatever the product says
    int left = 0;
    int top = 0;
    int columns = 1; ///< cabinets across and down
    int rows = 1;
    int width = 0; ///< of one cabinet; more than kMaxCabinetSize becomes that
    int height = 0;

    // receiving cards inside each cabinet
    bool multi = false;     ///< there are several
    bool fixedLine = false; ///< the product fixes their wiring; false unless there are several
    bool ordered = true;    ///< false: the chain passes through `line` from its end
    QSize multiSize{1, 1};  ///< across and down, at most kMaxReceiversInTile in all
    /// The cell of each card along the chain: column * rows + row. The default puts all cards into the top
    /// left cell, so with several cards name a cell for each, or call SetCards.
    unsigned char line[kMaxReceiversInTile] = {};

    /// Sets all of the above; `fixedLine` stays while there are several. The chain begins at the corner of
    /// the pattern and goes along its rows or columns: every other one backwards, as cabinets are numbered,
    /// or each from the same side where not `thereAndBack`. False, and nothing changed: no card, too many,
    /// or no such pattern.
    ORVANDATA_EXPORT bool SetCards(const QSize& cards, EnAutoNumberType pattern, bool thereAndBack = true);
    ORVANDATA_EXPORT QVector<QPoint> GetCards() const; ///< column and row of each card along the chain

    ORVANDATA_EXPORT QRect GetBound() const; ///< of the block, canvas pixels
};

/// The layout content of one port. Owns its tiles and its group tree and clears both when it dies.
class ORVANDATA_EXPORT CPortProject
{
public:
    CPortProject();
    CPortProject(const CPortProject& other);
    virtual ~CPortProject();
    CPortProject& operator=(const CPortProject& other);
    bool operator==(const CPortProject& other) const;
    bool operator!=(const CPortProject& other) const { return !(*this == other); }

    CTileSet* GetTileSet() { return &m_tiles; }
    const CTileSet* GetTileSet() const { return &m_tiles; }
    CTileGroupSet* GetTileGroupSet() { return &m_groups; }
    const CTileGroupSet* GetTileGroupSet() const { return &m_groups; }

    void ClearAllTiles(); ///< and all groups
    void CancelAllSelected();
    bool DeleteSelectedTileAndGroup();
    /// Places a block row by row, selected and, from two cabinets on, as a group of its own. False, and
    /// nothing changed, for an empty block or one with which the port would hold more than kMaxTilesOfPort.
    bool AddTile(const SAddTileInfo& info);

    // groups
    bool GetTileSetInGroupRecursive(CTileSet& out, const QUuid& id) const; ///< appends; false: no such group
    bool GetAllTileSetInFirstGroup(CTileSet& out, const QUuid& id) const;  ///< false unless a top-level group
    bool GetAllTileSetInFirstGroupPart(CTileSet& out, const CTileGroupSet* level) const;
    bool GetDirectGroupsInTileSet(QList<QUuid>& out, const CTileSet& tiles) const;
    bool RemoveGroupWhenTileOut(QList<QUuid>& ids, const CTileSet& tiles) const;
    bool GetAllGroupsFromTileSet(QList<QUuid>& out, const CTileSet& tiles) const;
    bool GetAllTileGroupIDInTileSet(const CTileSet* tiles, QList<QUuid>& out) const;

    // rotation
    void ChangeRotateCenter(const QPointF& centre, const CTileSet& tiles);
    /// Turns each tile's centre by `angle` degrees about the record's centre; see GetRotatePoint.
    void SetTileGroupRotateParam(const SRotateParam* param, const CTileSet& tiles, double angle);

    // may the selection of view 3 be changed as a block?
    bool SelTileCountModifyEnable() const;
    bool SelTileShapeModifyEnable() const;
    bool SelTileCountModifyEnable();
    bool SelTileShapeModifyEnable();

    // inside the library
    void TakeFrom(CPortProject& other); ///< in place of this layout; the other is empty afterwards

private:
    bool IsWholeGroup(const CTileSet& tiles) const; ///< all tiles of one top-level group without sub-groups

    CTileSet m_tiles;
    CTileGroupSet m_groups;
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const SAddTileInfo& info);

Q_DECLARE_METATYPE(SAddTileInfo)
