// The receiving cards inside a cabinet: their grid, wiring and selection.
#include "common/saturated.h"
#include "layout/tileaccess.h"

#include <cstring>
#include <utility>

namespace {

bool IsReceiverIndex(int index)
{
    return index >= 0 && index < kMaxReceiversInTile;
}

bool HasGrid(const TileData& data)
{
    return data.multiSize.width() != 0 && data.multiSize.height() != 0;
}

} // namespace

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
    return m_data->GetReceiverCount();
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

const unsigned char* CTile::GetMultiRcvsLine() const
{
    return m_data->line;
}

QRect CTile::GetMultiRcvRect(int index) const
{
    if (index < 0 || index >= GetMultiRcvsCount())
        return QRect();
    const QRect cell = CellRect(index);
    return SaturatedRect(qint64(GetX()) + cell.x(), qint64(GetY()) + cell.y(), cell.width(), cell.height());
}

QRect CTile::GetMultiRcvRect(int index)
{
    return std::as_const(*this).GetMultiRcvRect(index);
}

QRect CTile::GetMultiRcvRelativeRect(int index) const
{
    return index < GetMultiRcvsCount() ? CellRect(index) : QRect();
}

QRect CTile::GetMultiRcvRelativeRect(int index)
{
    const QRect cell = std::as_const(*this).GetMultiRcvRelativeRect(index);
    if (index < GetMultiRcvsCount() && !HasGrid(*m_data))
        Store(&TileData::multiSize, GetSize()); // a cabinet without a grid is repaired on first use
    return cell;
}

QRect CTile::CellRect(int index) const
{
    const qint64 place = m_data->ordered ? index : qint64(GetMultiRcvsCount()) - 1 - index;
    const int code = GetMultiRcvsLineCode(SaturatedInt(place));
    const QSize grid = HasGrid(*m_data) ? m_data->multiSize : GetSize(); // without one: a card a pixel
    const qint64 width = HasGrid(*m_data) ? qint64(GetWidth()) / grid.width() : 1;
    const qint64 height = HasGrid(*m_data) ? qint64(GetHeight()) / grid.height() : 1;
    const int rows = grid.height() == 0 ? 1 : grid.height();
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
