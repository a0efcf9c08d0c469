#pragma once

#include "common/export.h"
#include "common/rotateparam.h"
#include "common/smd5.h"

#include <QColor>
#include <QMetaType>
#include <QPoint>
#include <QRect>
#include <QSharedData>
#include <QSize>
#include <QUuid>

class CTileSet;
class QDebug;
class TileAccess;
struct TileData;

/// One cabinet on the canvas of an output port: one receiving card, or up to ten wired inside. Owned by the
/// tile set of that port's layout. Copies share their data until one is written to; view state (show colour,
/// gamut status, selected receiving cards) is not copied.
class ORVANDATA_EXPORT CTile
{
public:
    CTile();
    CTile(const CTile& other); ///< the show colour is left invalid, the other view state cleared
    virtual ~CTile();
    CTile& operator=(const CTile& other); ///< keeps this tile's own view state

    bool operator==(const CTile& other) const; ///< view state takes no part
    bool operator!=(const CTile& other) const { return !(*this == other); }

    // place and size: canvas pixels, origin top left, y grows downwards
    /// A place on the canvas is taken, even where the cabinet then reaches beyond the edge. False for others:
    /// left of the canvas becomes 0, right of it the place at which the cabinet ends at the edge.
    bool SetX(int x);
    bool SetY(int y);           ///< the same with the top, and the present height
    void SetWidth(int width);   ///< at most 1024, no lower bound
    void SetHeight(int height); ///< at most 1024, no lower bound
    int GetX() const;
    int GetY() const;
    int GetWidth() const;
    int GetHeight() const;
    int GetRight() const;  ///< one past the last pixel
    int GetBottom() const; ///< one past the last pixel
    QSize GetSize() const;
    QPoint GetPosition() const;
    void Offset(int dx, int dy); ///< unclamped; the rotation record moves along
    QPoint GetCenter() const;    ///< of the turned corners when rotated, else by integer division
    QRect GetBound() const;      ///< bounding box, of the turned corners when rotated
    /// Four corners: left-top, right-top, right-bottom, left-bottom.
    void GetRotateArea(CPointEx<double>* corners) const;

    // identity, group and type
    void SetSenderId(const QUuid& id);
    QUuid GetSenderId() const;
    void SetPortIndex(int port);
    int GetPortIndex() const;
    void SetGroupId(const QUuid& id); ///< null: ungrouped
    QUuid GetGroupId() const;
    void SetType(const SMD5& type); ///< the multi-receiver and ordered flags follow the product library
    SMD5 GetType() const;

    // selection: one bit for each of the views 3 to 6, other views are never selected
    bool IsSelected(int iface) const;
    void SetSelected(bool selected, int iface, int rcvIndex); ///< rcvIndex -1 or 65535: the whole cabinet
    bool IsRcvSelected(int index) const;
    void SetRcvSelected(int index, bool selected);

    // view state
    bool IsTileVisible() const;
    void SetTileVisible(bool visible);
    QColor GetTileShowColor() const { return m_showColor; }
    void SetTileShowColor(const QColor& color) { m_showColor = color; }
    int GetTileGamutStatus() const { return m_gamutStatus; }
    void SetTileGamutStatus(int status) { m_gamutStatus = status; }

    // multi-receiver cabinets
    void SetBeMultiRcvsTile(bool multi); ///< false clears the ordered flag too
    bool IsMultiRcvTile() const;
    void SetBeMultiFixedLine(bool fixed); ///< false unless the cabinet has several receiving cards
    bool IsMultiFixedLine() const;
    void SetMultiRcvsOrdered(bool ordered); ///< a fixed line is always ordered
    bool IsMultiRcvsOrdered() const;
    void SetMultiRcvsSize(const QSize& size); ///< receiving cards across and down
    QSize GetMultiRcvsSize() const;
    int GetMultiRcvsCount() const; ///< 0 when the size is negative or its product does not fit
    void SetMultiRcvsLine(const unsigned char* line);    ///< as many bytes as there are cards, at most ten
    unsigned char* GetMultiRcvsLine();                   ///< [ref] ten bytes, valid while the tile lives
    const unsigned char* GetMultiRcvsLine() const;       ///< valid as GetRotateRecord
    unsigned char GetMultiRcvsLineCode(int index) const; ///< 0 outside 0 to 9
    /// Canvas pixels; the null rectangle out of range, so for every card of an empty size.
    QRect GetMultiRcvRect(int index) const;
    QRect GetMultiRcvRect(int index);
    /// The same, relative to the cabinet. Only the upper end of the range is tested: with a negative index an
    /// empty size is repaired to one card a pixel.
    QRect GetMultiRcvRelativeRect(int index);
    QRect GetMultiRcvRelativeRect(int index) const; ///< the same, and nothing is repaired
    void SetMultiRcvDemarcateIndex(int index);
    int GetMultiRcvDemarcateIndex() const; ///< inner card marked for calibration, -1 for none

    // chain
    int GetConnectionIndex() const; ///< 0-based place in the port's chain, negative: not connected
    bool HasSetConnectIndex() const;
    /// Sets the place and derives the begin receiver connection from the tile one place before, looked for in
    /// `set` or, when that is null, in the set of the tile's own port; without one the old value stays.
    void SetConnectionIndex(int index, CTileSet* set);
    int GetBeginRcvCnnt() const; ///< receiving cards before this cabinet in the chain, -1: none derived
    void SetBeginRcvCnnt(int begin);

    // rotation
    SRotateParam* GetTileRotateParam(); ///< [ref] the tile's own record, valid while the tile lives
    const SRotateParam* GetTileRotateParam() const { return &GetRotateRecord(); }
    /// To read; valid until the tile is next written to or an undo step is made.
    const SRotateParam& GetRotateRecord() const;
    void SetTileRotateParam(const SRotateParam* param); ///< rotated too when the angle is above 0.0001
    bool IsTileRotated() const;                         ///< false while the rotation setting is off

private:
    friend class TileAccess; // shares the data with snapshots, out of sight of hosts

    TileData& Write(); ///< the data, from now on this tile's alone
    template <class Member, class Value> bool Store(Member member, const Value& value);
    template <class Member, class Value> void StorePlace(Member member, const Value& value);
    QRect CellRect(int index) const;

    QExplicitlySharedDataPointer<TileData> m_data;
    QColor m_showColor;
    int m_gamutStatus = 0;
    unsigned short m_rcvSelected = 0; ///< one bit a receiving card
    bool m_leaving = false;           ///< its set is about to free it
};

ORVANDATA_EXPORT QDebug operator<<(QDebug debug, const CTile& tile);

Q_DECLARE_METATYPE(CTile*)
