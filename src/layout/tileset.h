#pragma once

#include "common/export.h"
#include "common/smd5.h"

#include <QList>
#include <QMutex>
#include <QRect>
#include <QSize>
#include <QUuid>

#include <memory>

class CTile;
class QDebug;
class TileIndex;

/// Serpentine patterns of automatic numbering: rows, then columns, by start corner.
enum EnAutoNumberType : int
{
    AutoNumberRowsTopLeft = 0,
    AutoNumberRowsTopRight = 1,
    AutoNumberRowsBottomRight = 2,
    AutoNumberRowsBottomLeft = 3,
    AutoNumberColumnsTopLeft = 4,
    AutoNumberColumnsTopRight = 5,
    AutoNumberColumnsBottomRight = 6,
    AutoNumberColumnsBottomLeft = 7,
};

/// An ordered list of cabinets; later ones lie on top. The set inside a port layout owns its tiles and
/// deletes them; every other set (selections, query results) only refers to tiles owned elsewhere. Queries
/// empty their result set and make it non-owning before they fill it; a query into the set it reads is safe.
/// Once an owner has deleted a cabinet, as undo may, a set that still lists it must not be used.
class ORVANDATA_EXPORT CTileSet
{
public:
    static QMutex m_mutex; ///< taken by TileSetNormalization alone

    CTileSet();
    CTileSet(
        const CTileSet& other); ///< an owning source is copied tile by tile, else its pointers are shared
    virtual ~CTileSet();
    CTileSet& operator=(const CTileSet& other);
    bool operator==(const CTileSet& other) const; ///< order and ownership flag count
    bool operator!=(const CTileSet& other) const { return !(*this == other); }

    // contents
    void SetOwnerShip(bool owning) { m_owning = owning; } ///< only the flag; nothing is copied or freed
    bool IsOwner() const { return m_owning; }
    void AddTile(CTile* tile); ///< [own] in an owning set, else [keep]; null is ignored
    void AddFromOther(const CTileSet& other);
    void DeleteAllTiles();
    void DeteleTile(int index);
    void DeteleTile(CTile* tile);
    void ExchangeTile(int i, int j);
    void Truncate(int count);       ///< drops the entries from `count` on, in one pass
    void DeleteSelected(int iface); ///< in one pass
    int GetCount() const { return m_tiles.size(); }
    CTile* GetTile(int index) const { return m_tiles.value(index); } ///< null out of range
    int GetTileIndex(const CTile* tile) const;                       ///< -1 when absent
    bool IsTileIn(const CTile* tile) const { return GetTileIndex(tile) != -1; }
    bool IsSubset(const CTileSet* other) const; ///< by pointer; true for a null or empty `other`
    int GetRcvCount() const; ///< receiving cards of the tiles that have a begin receiver connection
    int GetCountInGroup(const QUuid& id) const; ///< a null id counts ungrouped tiles

    // selection
    void SelectAll(int iface);
    void UnSelectAll(int iface);
    void GetSelTileSet(CTileSet& out, int iface) const;
    void GetUnselectedTileSet(CTileSet& out) const; ///< of view 3
    bool ExistTileIsLock() const;                   ///< some tile lies on a locked port of the current sender

    // subsets, in list order
    void GetTileSetUngrouped(CTileSet& out) const;
    void GetTileSetGrouped(CTileSet& out) const;
    void GetTileSetUnnumbered(CTileSet& out) const;
    bool GetTileSetInGroup(CTileSet& out, const QUuid& id, bool append) const; ///< whether any was added
    void SetAllNotGroup();

    // properties
    bool IsAllSameSize() const;
    bool IsAllSameType() const;
    bool GetProductTypeArray(QList<SMD5>* out) const; ///< each type once, in list order

    // geometry: canvas pixels; hit tests list the topmost tile first
    bool GetTileSetAtPosition(CTileSet& out, int x, int y) const;
    bool GetTileSetAtRect(CTileSet& out, const QRect& rect, bool whole) const;
    bool GetTileSetAtRectWithCenter(CTileSet& out, const QRect& rect) const;
    static bool IsRectIntersect(const QRect& a, const QRect& b, bool vertical); ///< overlap on one axis
    QRect GetBound() const; ///< null rectangle for an empty set
    QRect GetBound(bool useOffset,
                   const QSize& offset) const; ///< of the unrotated tiles, the selection shifted
    void SetOffset(int dx, int dy);
    void SetWidthAuto(int width, bool keepGrid);
    void SetHeightAuto(int height, bool keepGrid);

    // chain
    void ClearConnectIndex();
    bool HasNumberedTiles() const;
    CTile* GetEndIndexTile() const; ///< the highest index, the first of equals; null: none numbered
    CTile* GetTileByConnection(int index) const; ///< null when absent
    CTile* GetTileByRcvCnnt(int receiver) const; ///< the tile that holds that receiving card of the chain
    CTile* GetTileByRcvCnntIndex(int receiver) const;
    QRect GetRectByRcvCnntIndex(int receiver) const; ///< of the receiving card; null rectangle when absent
    /// Numbers tiles of the set behind the end of the chain, in that order; one that has a number keeps it.
    /// False: none was numbered.
    bool AppendToChain(const QList<CTile*>& tiles);
    /// Gives a tile of the set the place right behind `before`, or the first one when that is null; the later
    /// ones move up by one, and the chain is normalised. False, and nothing changed, when `tile` has a number
    /// or `before` has none, or one of them is not of the set.
    bool InsertIntoChain(CTile* tile, const CTile* before);
    bool CanDrawCnntLine(int pixels) const; ///< some tile is wider and higher than that
    /// Numbers the next tile in the direction of a Qt arrow key behind the end of the chain.
    bool DirectionKeyConnection(unsigned long key);
    /// Moves the calibration mark to the receiving card next to it and gives that card's place in the chain,
    /// -1 when it has none; without a mark to the card nearest the origin. False: nothing lies there.
    bool DirectionKeyDemarcateTile(unsigned long key, int& receiver);
    /// The nearest tile that begins beyond the centre of `from` and shares a row (column) with it, or null;
    /// from an empty rectangle the tile nearest the origin. `byReceiver` goes by receiving cards and marks
    /// the one found.
    CTile* GetDirectionTile(const QRect& from, unsigned long key, bool onlyUnnumbered, bool byReceiver);
    /// Numbers the tiles anew; one whose centre lies in no cell of the grid stays without a number. False
    /// when none was numbered: whatever numbers there were are gone then, too.
    bool AutoConnection(EnAutoNumberType type, int unused);
    bool AutoConnectGetSize(QSize& cell) const; ///< of the grid: the common size, else the smallest; or false
    /// Numbers the unnumbered tiles whose centre lies in `rect` from `next` on, which moves along. Codes: 0
    /// and 1 right, 2 and 3 left, 4 and 5 down, 6 and 7 up. `cell` takes no part. False: none numbered.
    bool NumberSetRect(int& next, const QRect& rect, const QSize& cell, int direction);
    int GetConnectionType() const; ///< the pattern whose numbering equals the present one, else -1
    bool CanSnapToRcvsMulti() const;
    /// Makes the chain 0..k-1 without gaps and the begin receiver connections the running sum along it.
    void TileSetNormalization();
    void GetTileSetNumberedNormalization(CTileSet& out); ///< normalises, then lists the chain in order

    /// `for (CTile* tile : set)`, in list order; not while cabinets come or go.
    QList<CTile*>::const_iterator begin() const { return m_tiles.constBegin(); }
    QList<CTile*>::const_iterator end() const { return m_tiles.constEnd(); }

    // inside the library: for loops over whole walls
    const QList<CTile*>& GetTiles() const { return m_tiles; }

private:
    void Normalize(QList<CTile*>* chain); ///< takes no lock; appends the chain in order unless null
    template <class Test> QList<CTile*> FindFromTop(const QRect& area, const Test& takes) const;
    void SetResult(const QList<CTile*>& tiles);
    void Replace(const QList<CTile*>& tiles, bool owning);

    QList<CTile*> m_tiles;
    bool m_owning = false;
    mutable std::unique_ptr<TileIndex> m_index; ///< for hit tests; nothing that a caller sees depends on it
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const CTileSet& tiles);
