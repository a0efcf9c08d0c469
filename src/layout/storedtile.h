#pragma once

#include "layout/layoutlookup.h"
#include "layout/tiledata.h"

#include <memory>

class CTile;
class CTileSet;

/// A cabinet as a file stores it, before the rules of a cabinet were applied to it.
struct StoredTile : TileFields
{
    // Flags that a file may lack: 0, 1, or -1 where it says nothing and the product decides.
    int saysMulti = -1;
    int saysFixed = -1;
    int saysOrdered = -1;
    int receiversAcross = 1; ///< taken when both are above 0
    int receiversDown = 1;
};

/// Makes cabinets of what files store; asks for each product once in a row of cabinets of its type.
class StoredTileMaker
{
public:
    /// [new] A cabinet as the setters of CTile would have made it, its begin receiver connection apart.
    std::unique_ptr<CTile> Make(const StoredTile& stored);

private:
    void ApplyProduct(TileFields& fields);

    SMD5 m_type; ///< last asked for
    LayoutLookup::Product m_product;
    bool m_known = false;
};

StoredTile MakeStored(const CTile& tile);

/// Whether a rotation that a file gives only by its angle, in degrees, counts as one.
bool IsRotationAngle(double degrees);

/// Begin receiver connections follow from the finished wiring: cabinets may be stored in any order, and each
/// takes its predecessor's as CTile::SetConnectionIndex would, so they are derived along the chain.
void DeriveBeginReceivers(const CTileSet& tiles);
