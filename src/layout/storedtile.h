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
};

/// The flags as files hold them. They are read into what may be -1, and written from the cabinet itself.
struct FlagInFile
{
    static int& Multi(StoredTile& tile) { return tile.saysMulti; }
    static bool Multi(const TileFields& tile) { return tile.multi; }
    static int& Fixed(StoredTile& tile) { return tile.saysFixed; }
    static bool Fixed(const TileFields& tile) { return tile.fixedLine; }
    static int& Ordered(StoredTile& tile) { return tile.saysOrdered; }
    static bool Ordered(const TileFields& tile) { return tile.ordered; }
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

/// Derives the begin receiver connections along the chain, each as CTile::SetConnectionIndex would. This
/// comes last, because a file may list cabinets in any order.
void DeriveBeginReceivers(const CTileSet& tiles);
