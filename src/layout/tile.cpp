#include "layout/tile.h"

#include "common/interfacedlg.h"
#include "common/saturated.h"
#include "layout/corners.h"
#include "layout/layoutlookup.h"
#include "layout/sender.h"
#include "layout/tileaccess.h"
#include "layout/tileset.h"

#include <cstring>

namespace {

/// The selection bit of each view; 0 for a view without selection.
constexpr unsigned char kViewBits[kInterfaceCount] = {0, 0, 0, 0x01, 0x20, 0x10, 0x40, 0};

unsigned char ViewBit(int iface)
{
    return iface >= 0 && iface < kInterfaceCount ? kViewBits[iface] : static_cast<unsigned char>(0);
}

const CTileSet* SetOfOwnPort(const TileData& data)
{
    const CSender* sender = GetLayoutLookup()->FindSender(data.senderId);
    const CPort* port = sender ? sender->GetPort(data.portIndex) : nullptr;
    return port ? &port->GetTileSet() : nullptr;
}

} // namespace

CTile::CTile() : m_data(TileData::Default()), m_showColor(160, 163, 173, 200)
{}

CTile::CTile(const CTile& other)
    : m_data(other.m_data->handedOut ? QExplicitlySharedDataPointer<TileData>(other.m_data->NewCopy())
                                     : other.m_data)
{}

CTile::~CTile() = default;

CTile& CTile::operator=(const CTile& other)
{
    TileAccess::SetData(*this, TileAccess::Data(other));
    return *this;
}

bool CTile::operator==(const CTile& other) const
{
    return m_data == other.m_data || m_data->IsEqual(*other.m_data);
}

bool CTile::SetX(int x)
{
    StorePlace(&TileData::x, PlaceOnCanvas(x, kMaxCanvasWidth, GetWidth()));
    return x >= 0 && x < kMaxCanvasWidth;
}

bool CTile::SetY(int y)
{
    StorePlace(&TileData::y, PlaceOnCanvas(y, kMaxCanvasHeight, GetHeight()));
    return y >= 0 && y < kMaxCanvasHeight;
}

void CTile::SetWidth(int width)
{
    StorePlace(&TileData::width, qMin(width, kMaxCabinetSize));
}

void CTile::SetHeight(int height)
{
    StorePlace(&TileData::height, qMin(height, kMaxCabinetSize));
}

int CTile::GetX() const
{
    return m_data->x;
}

int CTile::GetY() const
{
    return m_data->y;
}

int CTile::GetWidth() const
{
    return m_data->width;
}

int CTile::GetHeight() const
{
    return m_data->height;
}

int CTile::GetRight() const
{
    return SaturatedInt(qint64(m_data->x) + m_data->width);
}

int CTile::GetBottom() const
{
    return SaturatedInt(qint64(m_data->y) + m_data->height);
}

QSize CTile::GetSize() const
{
    return QSize(m_data->width, m_data->height);
}

QPoint CTile::GetPosition() const
{
    return QPoint(m_data->x, m_data->y);
}

void CTile::Offset(int dx, int dy)
{
    if (dx == 0 && dy == 0)
        return;
    TileData& data = Write();
    data.x = SaturatedInt(qint64(data.x) + dx);
    data.y = SaturatedInt(qint64(data.y) + dy);
    data.rotate.centerX += dx;
    data.rotate.centerY += dy;
    data.rotate.leftTopX += dx;
    data.rotate.leftTopY += dy;
    ChangeJournal::places.Append(this);
}

QPoint CTile::GetCenter() const
{
    if (!IsTileRotated())
        return QPoint(SaturatedInt(qint64(GetX()) + GetWidth() / 2),
                      SaturatedInt(qint64(GetY()) + GetHeight() / 2));
    CPointEx<double> c[4];
    GetRotateArea(c);
    return QPoint(TruncatedInt((c[0].x + c[1].x + c[2].x + c[3].x) / 4),
                  TruncatedInt((c[0].y + c[1].y + c[2].y + c[3].y) / 4));
}

QRect CTile::GetBound() const
{
    if (!IsTileRotated())
        return SaturatedRect(GetX(), GetY(), GetWidth(), GetHeight());
    CPointEx<double> corners[4];
    GetRotateArea(corners);
    return GetCornerBound(corners);
}

void CTile::GetRotateArea(CPointEx<double>* corners) const
{
    if (corners)
        GetRotatedCorners(m_data->rotate, GetX(), GetY(), GetRight(), GetBottom(), corners);
}

void CTile::SetSenderId(const QUuid& id)
{
    Store(&TileData::senderId, id);
}

QUuid CTile::GetSenderId() const
{
    return m_data->senderId;
}

void CTile::SetPortIndex(int port)
{
    Store(&TileData::portIndex, port);
}

int CTile::GetPortIndex() const
{
    return m_data->portIndex;
}

void CTile::SetGroupId(const QUuid& id)
{
    Store(&TileData::groupId, id);
}

QUuid CTile::GetGroupId() const
{
    return m_data->groupId;
}

void CTile::SetType(const SMD5& type)
{
    if (std::memcmp(&m_data->type, &type, sizeof type) != 0)
        Write().type = type;
    LayoutLookup::Product product;
    const bool known = GetLayoutLookup()->FindProduct(type, &product);
    Store(&TileData::multi, known && product.multi);
    Store(&TileData::ordered, known && product.multiSet);
}

SMD5 CTile::GetType() const
{
    return m_data->type;
}

bool CTile::IsSelected(int iface) const
{
    return (m_data->selection & ViewBit(iface)) != 0;
}

void CTile::SetSelected(bool selected, int iface, int rcvIndex)
{
    if (!selected)
        Store(&TileData::demarcateIndex, -1);
    const unsigned char bit = ViewBit(iface);
    if (bit == 0)
        return;
    const int held = qMin(GetMultiRcvsCount(), kMaxReceiversInTile);
    const unsigned all = (1U << held) - 1;
    bool shown = selected;
    if (rcvIndex == -1 || rcvIndex == 65535) {
        m_rcvSelected = static_cast<unsigned short>(selected ? m_rcvSelected | all : m_rcvSelected & ~all);
    } else {
        SetRcvSelected(rcvIndex, selected);
        shown = (m_rcvSelected & all) != 0;
    }
    const int others = m_data->selection & ~bit;
    Store(&TileData::selection, static_cast<unsigned char>(shown ? others | bit : others));
}

bool CTile::IsTileVisible() const
{
    return m_data->visible;
}

void CTile::SetTileVisible(bool visible)
{
    Store(&TileData::visible, visible);
}

int CTile::GetConnectionIndex() const
{
    return m_data->connectionIndex;
}

bool CTile::HasSetConnectIndex() const
{
    return m_data->connectionIndex >= 0;
}

void CTile::SetConnectionIndex(int index, CTileSet* set)
{
    Store(&TileData::connectionIndex, index);
    if (index == 0)
        SetBeginRcvCnnt(0);
    if (index <= 0)
        return;
    const CTileSet* chain = set ? set : SetOfOwnPort(*m_data);
    const CTile* before = chain ? chain->GetTileByConnection(index - 1) : nullptr;
    if (before)
        SetBeginRcvCnnt(before->m_data->GetNextBegin());
}

int CTile::GetBeginRcvCnnt() const
{
    return m_data->beginRcvCnnt;
}

void CTile::SetBeginRcvCnnt(int begin)
{
    Store(&TileData::beginRcvCnnt, begin);
}

SRotateParam* CTile::GetTileRotateParam()
{
    TileData& data = Write();
    if (!data.rotateHandedOut)
        ChangeJournal::places.Append(this);
    data.handedOut = true;
    data.rotateHandedOut = true;
    return &data.rotate;
}

const SRotateParam& CTile::GetRotateRecord() const
{
    return m_data->rotate;
}

void CTile::SetTileRotateParam(const SRotateParam* param)
{
    if (!param)
        return;
    SRotateParam record = *param; // a copy: it may lie in the data that Write() leaves
    record.rotated = record.rotated || record.angle > kNoAngle;
    Write().rotate = record;
    ChangeJournal::places.Append(this);
}

bool CTile::IsTileRotated() const
{
    return m_data->rotate.rotated && GetLayoutLookup()->IsRotateEnabled();
}

TileData& CTile::Write()
{
    if (m_data->ref.loadRelaxed() == 1)
        return *m_data;
    ChangeJournal::data.Append(this);
    m_data.detach();
    return *m_data;
}

void TileAccess::SetData(CTile& tile, const TileData* data)
{
    if (!data || data == tile.m_data.constData())
        return;
    if (!tile.m_data->IsSamePlace(*data))
        ChangeJournal::places.Append(&tile);
    ChangeJournal::data.Append(&tile);
    if (tile.m_data->handedOut)
        static_cast<TileFields&>(*tile.m_data) = *data;
    else if (data->handedOut)
        tile.m_data = data->NewCopy();
    else
        tile.m_data =
            const_cast<TileData*>(data); // written to only through Write(), which leaves shared data alone
}

void TileAccess::Become(CTile& tile, const TileData* data)
{
    SetData(tile, data);
    tile.m_showColor = QColor();
    tile.m_gamutStatus = 0;
    tile.m_rcvSelected = 0;
}
