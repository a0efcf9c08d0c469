#include "layout/portproject.h"

#include "common/interfacedlg.h"
#include "common/saturated.h"
#include "layout/corners.h"
#include "layout/groupqueries.h"
#include "layout/layoutlookup.h"
#include "layout/rotation.h"
#include "layout/tile.h"
#include "layout/tilegroup.h"

#include <QSet>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr int kView = InterfaceDesign; ///< the view whose selection is edited

/// Half away from zero.
QPoint Rounded(double x, double y)
{
    constexpr double far = kFar;
    return QPoint(static_cast<int>(std::round(qBound(-far, x, far))),
                  static_cast<int>(std::round(qBound(-far, y, far))));
}

SRotateParam BlockRecord(const SAddTileInfo& info)
{
    SRotateParam record;
    record.width = static_cast<double>(info.columns) * info.width;
    record.height = static_cast<double>(info.rows) * info.height;
    record.leftTopX = info.left;
    record.leftTopY = info.top;
    record.centerX = info.left + record.width * 0.5;
    record.centerY = info.top + record.height * 0.5;
    return record;
}

SRotateParam TileRecord(const CTile& tile)
{
    SRotateParam record;
    record.width = tile.GetWidth();
    record.height = tile.GetHeight();
    record.centerX = tile.GetX() + record.width * 0.5;
    record.centerY = tile.GetY() + record.height * 0.5;
    return record;
}

/// What all cabinets of the block have in common, so that the product is looked up once.
CTile BlockPattern(const SAddTileInfo& info, const QUuid& groupId)
{
    CTile pattern;
    pattern.SetWidth(info.width);
    pattern.SetHeight(info.height);
    pattern.SetSenderId(info.senderId);
    pattern.SetPortIndex(info.portIndex);
    pattern.SetType(info.type);
    pattern.SetGroupId(groupId);
    pattern.SetBeMultiRcvsTile(info.multi);
    pattern.SetBeMultiFixedLine(info.fixedLine);
    pattern.SetMultiRcvsOrdered(info.ordered);
    pattern.SetMultiRcvsSize(info.multiSize);
    pattern.SetMultiRcvsLine(info.line);
    return pattern;
}

/// Deletes the selected groups with everything below them, and the selected ones below those that stay.
void DeleteSelectedGroups(CTileGroupSet& level)
{
    CTileGroupSet doomed;
    CTileGroupSet staying;
    for (int i = 0; i < level.GetDirectCount(); ++i) {
        CTileGroup* group = level.GetDirectGroupByDirIndex(i);
        if (group->IsSelected(kView)) {
            doomed.AddGroup(group, true);
            continue;
        }
        DeleteSelectedGroups(*group->GetSubGroupSet());
        staying.AddGroup(group, true);
    }
    if (doomed.GetDirectCount() == 0)
        return;
    level.RemoveAll();
    level.AddFromOther(staying);
    doomed.DeleteAll();
}

/// Whether cabinets of one size fill a grid that starts at their common corner, one in each cell.
bool FillGrid(const CTileSet& tiles)
{
    CTile* first = tiles.GetTile(0);
    if (first->GetWidth() == 0)
        first->SetWidth(1);
    if (first->GetHeight() == 0)
        first->SetHeight(1);
    const qint64 width = first->GetWidth(); // 64 bits: a host may move cabinets anywhere
    const qint64 height = first->GetHeight();
    const QRect bound = tiles.GetBound();
    const qint64 boundWidth = qint64(bound.right()) - bound.left() + 1;
    const qint64 boundHeight = qint64(bound.bottom()) - bound.top() + 1;
    const qint64 columns = boundWidth / width;
    const qint64 rows = boundHeight / height;
    if (double(columns) * double(rows) != tiles.GetCount()) // their product may be too large for 64 bits
        return false;

    QVector<bool> taken(tiles.GetCount(), false);
    for (int i = 0; i < tiles.GetCount(); ++i) {
        const CTile* tile = tiles.GetTile(i);
        if (tile->GetWidth() < 1 || tile->GetHeight() < 1)
            return false;
        const qint64 dx = qint64(tile->GetX()) - bound.left();
        const qint64 dy = qint64(tile->GetY()) - bound.top();
        if (dx < 0 || dy < 0 || dx % tile->GetWidth() != 0 || dy % tile->GetHeight() != 0)
            return false;
        const qint64 column = dx / tile->GetWidth();
        const qint64 row = dy / tile->GetHeight();
        const auto cell = static_cast<int>(column + row * columns);
        if (column >= columns || row >= rows || taken[cell])
            return false;
        taken[cell] = true;
    }
    return true;
}

/// Turns a cabinet by the angle of `turn` about the centre of `turn`. Its own centre is kept unrounded, so
/// that rounding does not add up over many turns.
void TurnTile(CTile& tile, const SRotateParam& turn)
{
    SRotateParam record = tile.GetRotateRecord();
    QPointF corner(-tile.GetWidth() * 0.5, -tile.GetHeight() * 0.5); // left top seen from the centre
    if (Rounded(record.centerX + corner.x(), record.centerY + corner.y()) != tile.GetPosition()) {
        const bool onPivot =
            std::abs(record.centerX - turn.centerX) < 0.01 && std::abs(record.centerY - turn.centerY) < 0.01;
        if (onPivot || IsRotationAngle(record.angle)) {
            corner = QPointF(tile.GetX() - record.centerX, tile.GetY() - record.centerY);
        } else {
            // Not turned yet: its centre is left over from before it was moved or resized.
            record.centerX = tile.GetX() - corner.x();
            record.centerY = tile.GetY() - corner.y();
        }
    }
    const CPointEx<double> centre = GetRotatePoint(&turn, record.centerX, record.centerY);
    record.centerX = centre.x;
    record.centerY = centre.y;
    record.angle = NormalizedAngle(record.angle + turn.angle);
    record.rotated = IsRotationAngle(record.angle);
    // Not clamped: a turned cabinet may lie on the canvas while its unturned left top does not.
    const QPoint place = Rounded(centre.x + corner.x(), centre.y + corner.y());
    tile.Offset(SaturatedInt(qint64(place.x()) - tile.GetX()), SaturatedInt(qint64(place.y()) - tile.GetY()));
    tile.SetTileRotateParam(&record);
}

} // namespace

QRect SAddTileInfo::GetBound() const
{
    return SaturatedRect(left, top, qint64(columns) * width, qint64(rows) * height);
}

bool SAddTileInfo::SetCards(const QSize& cards, EnAutoNumberType pattern, bool thereAndBack)
{
    const qint64 count = cards.isEmpty() ? 0 : qint64(cards.width()) * cards.height();
    if (count < 1 || count > kMaxReceiversInTile || pattern < AutoNumberRowsTopLeft
        || pattern > AutoNumberColumnsBottomLeft)
        return false;
    const bool byColumns = pattern >= AutoNumberColumnsTopLeft;
    const int corner = pattern % AutoNumberColumnsTopLeft;
    const bool fromRight = corner == AutoNumberRowsTopRight || corner == AutoNumberRowsBottomRight;
    const bool fromBottom = corner >= AutoNumberRowsBottomRight;
    const int length = byColumns ? cards.height() : cards.width(); // of a row or column
    multi = count > 1;
    fixedLine = fixedLine && multi;
    ordered = true;
    multiSize = cards;
    std::fill(std::begin(line), std::end(line), static_cast<unsigned char>(0));
    for (int i = 0; i < static_cast<int>(count); ++i) {
        const int strip = i / length;
        const int along = thereAndBack && strip % 2 == 1 ? length - 1 - i % length : i % length;
        const QPoint cell = byColumns ? QPoint(strip, along) : QPoint(along, strip);
        const int column = fromRight ? cards.width() - 1 - cell.x() : cell.x();
        const int row = fromBottom ? cards.height() - 1 - cell.y() : cell.y();
        line[i] = static_cast<unsigned char>(column * cards.height() + row);
    }
    return true;
}

QVector<QPoint> SAddTileInfo::GetCards() const
{
    if (!multi || multiSize.isEmpty())
        return {QPoint(0, 0)};
    const qint64 count = qint64(multiSize.width()) * multiSize.height();
    QVector<QPoint> cards;
    for (int i = 0; i < kMaxReceiversInTile && i < count; ++i)
        cards.append(QPoint(line[i] / multiSize.height(), line[i] % multiSize.height()));
    if (!ordered)
        std::reverse(cards.begin(), cards.end());
    return cards;
}

CPortProject::CPortProject()
{
    m_tiles.SetOwnerShip(true);
}

CPortProject::CPortProject(const CPortProject& other) = default;

CPortProject::~CPortProject()
{
    ClearAllTiles();
}

CPortProject& CPortProject::operator=(const CPortProject& other)
{
    if (this == &other)
        return *this;
    m_tiles = other.m_tiles;
    m_groups = other.m_groups;
    return *this;
}

bool CPortProject::operator==(const CPortProject& other) const
{
    return this == &other || (m_tiles == other.m_tiles && m_groups == other.m_groups);
}

void CPortProject::ClearAllTiles()
{
    m_tiles.DeleteAllTiles();
    m_groups.DeleteAll();
}

void CPortProject::CancelAllSelected()
{
    m_tiles.UnSelectAll(kView);
    m_groups.CancelAllSelect(kView);
}

bool CPortProject::DeleteSelectedTileAndGroup()
{
    m_tiles.DeleteSelected(kView);
    DeleteSelectedGroups(m_groups);
    return true;
}

bool CPortProject::AddTile(const SAddTileInfo& info)
{
    if (info.columns < 1 || info.rows < 1)
        return false;
    const qint64 count = qint64(info.columns) * info.rows;
    if (count > kMaxTilesOfPort - m_tiles.GetCount())
        return false;

    QUuid groupId;
    if (count > 1) {
        auto* group = new CTileGroup;
        const SRotateParam record = BlockRecord(info);
        group->SetRotateParam(&record);
        group->SetSelected(kView, true);
        groupId = group->GetID();
        m_groups.AddGroup(group, true); // its id is fresh
    }
    m_tiles.UnSelectAll(kView);

    const CTile pattern = BlockPattern(info, groupId);
    for (int row = 0; row < info.rows; ++row) {
        for (int column = 0; column < info.columns; ++column) {
            auto* tile = new CTile;
            *tile = pattern;
            tile->SetX(SaturatedInt(info.left + qint64(column) * info.width));
            tile->SetY(SaturatedInt(info.top + qint64(row) * info.height));
            tile->SetSelected(true, kView, -1);
            const SRotateParam record = TileRecord(*tile);
            tile->SetTileRotateParam(&record);
            m_tiles.AddTile(tile);
        }
    }

    LayoutLookup::Product product;
    if (GetLayoutLookup()->FindProduct(info.type, &product))
        GetLayoutLookup()->AddParameterFile(product.name, info.type);
    return true;
}

bool CPortProject::GetTileSetInGroupRecursive(CTileSet& out, const QUuid& id) const
{
    return GroupQueries::AppendTilesOfGroup(out, m_tiles, m_groups, id);
}

bool CPortProject::GetAllTileSetInFirstGroup(CTileSet& out, const QUuid& id) const
{
    return GroupQueries::TilesOfTopGroup(out, m_tiles, m_groups, id);
}

bool CPortProject::GetAllTileSetInFirstGroupPart(CTileSet& out, const CTileGroupSet* level) const
{
    return GroupQueries::AppendTilesOfLevel(out, m_tiles, level);
}

bool CPortProject::GetDirectGroupsInTileSet(QList<QUuid>& out, const CTileSet& tiles) const
{
    return GroupQueries::TopGroupsOfTiles(out, tiles, m_groups);
}

bool CPortProject::RemoveGroupWhenTileOut(QList<QUuid>& ids, const CTileSet& tiles) const
{
    return GroupQueries::DropIncompleteGroups(ids, tiles, m_tiles, m_groups);
}

bool CPortProject::GetAllGroupsFromTileSet(QList<QUuid>& out, const CTileSet& tiles) const
{
    return GroupQueries::GroupsAndAncestorsOfTiles(out, tiles, m_groups);
}

bool CPortProject::GetAllTileGroupIDInTileSet(const CTileSet* tiles, QList<QUuid>& out) const
{
    QSet<QUuid> seen{QUuid()};
    out.clear();
    for (int i = 0; tiles && i < tiles->GetCount(); ++i) {
        const QUuid id = tiles->GetTile(i)->GetGroupId();
        if (seen.contains(id))
            continue;
        seen.insert(id);
        out.append(id);
    }
    return !out.isEmpty();
}

void CPortProject::ChangeRotateCenter(const QPointF& centre, const CTileSet& tiles)
{
    SRotateParam* record = nullptr;
    if (tiles.GetCount() == 1)
        record = tiles.GetTile(0)->GetTileRotateParam();
    else if (m_groups.GetDirectCount() == 1)
        record = m_groups.GetDirectGroupByDirIndex(0)->GetRotateParam();
    if (!record)
        return;
    record->centerX = centre.x();
    record->centerY = centre.y();
}

void CPortProject::SetTileGroupRotateParam(const SRotateParam* param, const CTileSet& tiles, double angle)
{
    if (!param || !std::isfinite(angle) || !std::isfinite(param->centerX) || !std::isfinite(param->centerY))
        return;
    SRotateParam turn = *param; // a copy: the record may be that of a tile turned here
    if (m_groups.GetDirectCount() == 1)
        m_groups.GetDirectGroupByDirIndex(0)->SetRotateParam(&turn);
    turn.angle = angle;
    for (int i = 0; i < tiles.GetCount(); ++i)
        TurnTile(*tiles.GetTile(i), turn);
}

bool CPortProject::IsWholeGroup(const CTileSet& tiles) const
{
    if (tiles.GetCount() == 0)
        return false;
    const QUuid id = tiles.GetTile(0)->GetGroupId();
    const CTileGroup* group = m_groups.GetDirectGroupByDirID(id);
    return group && group->GetSubGroupCount() == 0 && tiles.GetCountInGroup(id) == tiles.GetCount()
           && m_tiles.GetCountInGroup(id) == tiles.GetCount();
}

bool CPortProject::SelTileCountModifyEnable() const
{
    CTileSet selected;
    m_tiles.GetSelTileSet(selected, kView);
    if (selected.GetCount() == 1 && selected.GetTile(0)->GetGroupId().isNull())
        return true;
    return IsWholeGroup(selected) && selected.IsAllSameSize() && FillGrid(selected);
}

bool CPortProject::SelTileCountModifyEnable()
{
    return std::as_const(*this).SelTileCountModifyEnable();
}

bool CPortProject::SelTileShapeModifyEnable() const
{
    CTileSet selected;
    m_tiles.GetSelTileSet(selected, kView);
    return selected.GetCount() > 1 && IsWholeGroup(selected) && selected.IsAllSameSize()
           && FillGrid(selected);
}

bool CPortProject::SelTileShapeModifyEnable()
{
    return std::as_const(*this).SelTileShapeModifyEnable();
}

void CPortProject::TakeFrom(CPortProject& other)
{
    ClearAllTiles();
    for (CTile* tile : other.m_tiles.GetTiles())
        m_tiles.AddTile(tile);
    m_groups.AddFromOther(other.m_groups);
    other.m_tiles.SetOwnerShip(false); // drops what is owned here now
    other.m_tiles.DeleteAllTiles();
    other.m_tiles.SetOwnerShip(true);
    other.m_groups.RemoveAll();
}
