#include "layout/storedtile.h"

#include "layout/corners.h"
#include "layout/tileaccess.h"
#include "layout/tileset.h"

#include <algorithm>
#include <vector>

namespace {

/// A negative place stays, because the offset of a sender makes it legal.
constexpr int kLowestStoredPlace = -131072;

void Place(TileFields& fields)
{
    fields.width = std::min(fields.width, kMaxCabinetSize);
    fields.height = std::min(fields.height, kMaxCabinetSize);
    fields.x = PlaceOnCanvas(fields.x, kMaxCanvasWidth, fields.width, kLowestStoredPlace);
    fields.y = PlaceOnCanvas(fields.y, kMaxCanvasHeight, fields.height, kLowestStoredPlace);
    fields.rotate.rotated = IsRotationAngle(fields.rotate.angle);
}

/// What the file says of the receiving cards, over what the product says.
void Wire(const StoredTile& stored, TileFields& fields)
{
    if (stored.saysMulti >= 0) {
        fields.multi = stored.saysMulti != 0;
        fields.ordered = fields.ordered && fields.multi;
    }
    if (stored.saysFixed >= 0)
        fields.fixedLine = stored.saysFixed != 0 && fields.multi;
    if (stored.saysOrdered >= 0)
        fields.ordered = stored.saysOrdered != 0 || fields.fixedLine;
    if (fields.multiSize.isEmpty())
        fields.multiSize = QSize(1, 1);
}

} // namespace

std::unique_ptr<CTile> StoredTileMaker::Make(const StoredTile& stored)
{
    auto* data = new TileData;
    TileFields& fields = *data;
    fields = stored;
    // Without a type the flags stay those of a new cabinet unless the file says them.
    if (!fields.type.IsNull())
        ApplyProduct(fields);
    Place(fields);
    Wire(stored, fields);
    fields.beginRcvCnnt = fields.connectionIndex == 0 ? 0 : -1;
    auto tile = std::make_unique<CTile>();
    TileAccess::SetData(*tile, data);
    return tile;
}

void StoredTileMaker::ApplyProduct(TileFields& fields)
{
    if (fields.type != m_type) {
        m_type = fields.type;
        m_known = GetLayoutLookup()->FindProduct(m_type, &m_product);
    }
    fields.multi = m_known && m_product.multi;
    fields.ordered = m_known && m_product.multiSet;
}

void DeriveBeginReceivers(const CTileSet& tiles)
{
    std::vector<CTile*> chain;
    for (int i = 0; i < tiles.GetCount(); ++i)
        if (tiles.GetTile(i)->HasSetConnectIndex())
            chain.push_back(tiles.GetTile(i));
    const auto before = [](const CTile* a, const CTile* b) {
        return a->GetConnectionIndex() < b->GetConnectionIndex();
    };
    if (!std::is_sorted(chain.begin(), chain.end(), before))
        std::stable_sort(chain.begin(), chain.end(), before);

    const CTile* previous = nullptr; // the first in the list that stands one place before in the chain
    const CTile* first = nullptr;    // the first in the list at the place itself
    for (CTile* tile : chain) {
        const int index = tile->GetConnectionIndex();
        if (!first || first->GetConnectionIndex() != index) {
            previous = first && first->GetConnectionIndex() == index - 1 ? first : nullptr;
            first = tile;
        }
        if (index == 0)
            tile->SetBeginRcvCnnt(0);
        else if (previous)
            tile->SetBeginRcvCnnt(TileAccess::Data(*previous)->GetNextBegin());
    }
}
