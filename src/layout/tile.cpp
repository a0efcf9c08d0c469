#include "layout/tile.h"

#include "common/interfacedlg.h"
#include "common/saturated.h"
#include "layout/changejournal.h"
#include "layout/corners.h"
#include "layout/layoutlookup.h"
#include "layout/sender.h"
#include "layout/tiledata.h"
#include "layout/tileset.h"

#include <cstring>
#include <limits>

namespace {

/// The selection bit of each view; 0 for a view without selection.
constexpr unsigned char kViewBits[kInterfaceCount] = {0, 0, 0, 0x01, 0x20, 0x10, 0x40, 0};

unsigned char ViewBit(int iface)
{
    return iface >= 0 && iface < kInterfaceCount ? kViewBits[iface] : static_cast<unsigned char>(0);
}

bool IsReceiverIndex(int index)
{
    return index >= 0 && index < kMaxReceiversInTile;
}

int OnCanvas(int value, int canvas, int size)
{
    if (value < 0)
        return 0;
    return value < canvas ? value : SaturatedInt(qint64(canvas) - size);
}

const CTileSet* SetOfOwnPort(const TileData& data)
{
    const CSender* sender = GetLayoutLookup()->FindSender(data.senderId);
    const CPort* port = sender ? sender->GetPort(data.portIndex) : nullptr;
    return port ? port->GetPortProject()->GetTileSet() : nullptr;
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
    SetData(other.GetData());
    return *this;
}

bool CTile::operator==(const CTile& other) const
{
    return m_data == other.m_data || m_data->IsEqual(*other.m_data);
}

bool CTile::operator!=(const CTile& other) const
{
    return !(*this == other);
}

bool CTile::SetX(int x)
{
    StorePlace(&TileData::x, OnCanvas(x, kMaxCanvasWidth, GetWidth()));
    return x >= 0 && x < kMaxCanvasWidth;
}

bool CTile::SetY(int y)
{
    StorePlace(&TileData::y, OnCanvas(y, kMaxCanvasHeight, GetHeight()));
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

bool CTile::IsRcvSelected(int index) const
{
    return IsReceiverIndex(index) && (m_rcvSelected >> index & 1) != 0;
}

void CTile::SetRcvSelected(int index, bool selected)
{
    if (!IsReceiverIndex(index))
        return;
    const unsigned bit = 1U << index;
    m_rcvSelected = static_cast<unsigned short>(selected ? m_rcvSelected | bit : m_rcvSelected & ~bit);
}

bool CTile::IsTileVisible() const
{
    return m_data->visible;
}

void CTile::SetTileVisible(bool visible)
{
    Store(&TileData::visible, visible);
}

QColor CTile::GetTileShowColor() const
{
    return m_showColor;
}

void CTile::SetTileShowColor(const QColor& color)
{
    m_showColor = color;
}

int CTile::GetTileGamutStatus() const
{
    return m_gamutStatus;
}

void CTile::SetTileGamutStatus(int status)
{
    m_gamutStatus = status;
}

void CTile::SetBeMultiRcvsTile(bool multi)
{
    Store(&TileData::multi, multi);
    if (!multi)
        Store(&TileData::ordered, false);
}

bool CTile::IsMultiRcvTile() const
{
    return m_data->multi;
}

void CTile::SetBeMultiFixedLine(bool fixed)
{
    Store(&TileData::fixedLine, fixed && m_data->multi);
}

bool CTile::IsMultiFixedLine() const
{
    return m_data->fixedLine;
}

void CTile::SetMultiRcvsOrdered(bool ordered)
{
    Store(&TileData::ordered, ordered || m_data->fixedLine);
}

bool CTile::IsMultiRcvsOrdered() const
{
    return m_data->ordered;
}

void CTile::SetMultiRcvsSize(const QSize& size)
{
    Store(&TileData::multiSize, size);
}

QSize CTile::GetMultiRcvsSize() const
{
    return m_data->multiSize;
}

int CTile::GetMultiRcvsCount() const
{
    const QSize size = m_data->multiSize;
    const qint64 count = qint64(size.width()) * size.height();
    return size.width() < 0 || count < 0 || count > std::numeric_limits<int>::max() ? 0
                                                                                    : static_cast<int>(count);
}

void CTile::SetMultiRcvsLine(const unsigned char* line)
{
    const auto count = static_cast<size_t>(qMin(GetMultiRcvsCount(), kMaxReceiversInTile));
    if (line && count > 0 && std::memcmp(m_data->line, line, count) != 0)
        std::memmove(Write().line, line, count);
}

unsigned char* CTile::GetMultiRcvsLine()
{
    TileData& data = Write();
    data.handedOut = true;
    return data.line;
}

unsigned char CTile::GetMultiRcvsLineCode(int index) const
{
    return IsReceiverIndex(index) ? m_data->line[index] : static_cast<unsigned char>(0);
}

QRect CTile::GetMultiRcvRect(int index)
{
    if (index < 0 || index >= GetMultiRcvsCount())
        return QRect();
    const QRect cell = CellRect(index);
    return SaturatedRect(qint64(GetX()) + cell.x(), qint64(GetY()) + cell.y(), cell.width(), cell.height());
}

QRect CTile::GetMultiRcvRelativeRect(int index)
{
    return index < GetMultiRcvsCount() ? CellRect(index) : QRect();
}

QRect CTile::CellRect(int index)
{
    const qint64 place = m_data->ordered ? index : qint64(GetMultiRcvsCount()) - 1 - index;
    const int code = GetMultiRcvsLineCode(SaturatedInt(place));
    qint64 width = 1;
    qint64 height = 1;
    if (m_data->multiSize.width() == 0 || m_data->multiSize.height() == 0) {
        Store(&TileData::multiSize, GetSize()); // a cabinet without a grid is repaired on first use
    } else {
        width = qint64(GetWidth()) / m_data->multiSize.width();
        height = qint64(GetHeight()) / m_data->multiSize.height();
    }
    const int rows = m_data->multiSize.height() == 0 ? 1 : m_data->multiSize.height();
    return SaturatedRect(code / rows * width, code % rows * height, width, height);
}

void CTile::SetMultiRcvDemarcateIndex(int index)
{
    Store(&TileData::demarcateIndex, index);
}

int CTile::GetMultiRcvDemarcateIndex() const
{
    return m_data->demarcateIndex;
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
        SetBeginRcvCnnt(SaturatedInt(qint64(before->GetMultiRcvsCount()) + before->GetBeginRcvCnnt()));
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
    SRotateParam record = *param; // a copy: it may lie in the data that is left now
    record.rotated = record.rotated || record.angle > kNoAngle;
    Write().rotate = record;
    ChangeJournal::places.Append(this);
}

bool CTile::IsTileRotated() const
{
    return m_data->rotate.rotated && GetLayoutLookup()->IsRotateEnabled();
}

void CTile::SetData(const TileData* data)
{
    if (!data || data == m_data.constData())
        return;
    if (!m_data->IsSamePlace(*data))
        ChangeJournal::places.Append(this);
    ChangeJournal::data.Append(this);
    if (m_data->handedOut)
        static_cast<TileFields&>(*m_data) = *data;
    else if (data->handedOut)
        m_data = data->NewCopy();
    else
        m_data =
            const_cast<TileData*>(data); // written to only through Write(), which leaves shared data alone
}

void CTile::Become(const TileData* data)
{
    SetData(data);
    m_showColor = QColor();
    m_gamutStatus = 0;
    m_rcvSelected = 0;
}

TileData& CTile::Write()
{
    if (m_data->ref.loadRelaxed() == 1)
        return *m_data;
    ChangeJournal::data.Append(this);
    m_data.detach();
    return *m_data;
}

/// Leaves a record that has the value already as it is, so that it stays shared; false then.
template <class Member, class Value> bool CTile::Store(Member member, const Value& value)
{
    if (m_data.constData()->*member == value)
        return false;
    Write().*member = value;
    return true;
}

/// Of what decides where the cabinet lies.
template <class Member, class Value> void CTile::StorePlace(Member member, const Value& value)
{
    if (Store(member, value))
        ChangeJournal::places.Append(this);
}
