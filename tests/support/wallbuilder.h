#pragma once

#include "layout/layoutlookup.h"
#include "layout/sender.h"
#include "layout/tile.h"
#include "layout/tilegroup.h"
#include "support/text.h"

#include <QList>
#include <QSize>

#include <initializer_list>
#include <memory>

/// A block of cabinets to build, chained row by row, each from the left. Lengths in canvas pixels.
struct Wall
{
    int columns = 1;
    int rows = 1;
    QSize cabinet{128, 64};
    QPoint leftTop{0, 0};
};

/// Places the block behind what the port holds: selected, and a group of its own from two cabinets on.
/// The group's id, null for a single cabinet.
QUuid MakeWall(CPort& port, const Wall& wall);
QUuid MakeWall(CPort& port, int columns, int rows);

/// A sender whose first `ports` ports each hold such a block; four are in use.
std::unique_ptr<CSender> MakeWall(int columns, int rows, int ports = 1);

inline CTileSet& TilesOf(CPort& port)
{
    return port.GetTileSet();
}

inline CTileGroupSet& GroupsOf(CPort& port)
{
    return port.GetTileGroupSet();
}

/// Moves top-level groups of the port below another top-level one.
void NestGroups(CPort& port, const QUuid& parent, std::initializer_list<QUuid> children);

/// Stands in for the rooms above the layout while it lives. Members are borrowed and free to change.
class TestLookup : public LayoutLookup
{
public:
    TestLookup() { SetLayoutLookup(this); }
    ~TestLookup() override { SetLayoutLookup(nullptr); }

    bool IsRotateEnabled() const override { return rotateEnabled; }
    bool FindProduct(const SMD5& type, Product* product) const override;
    CSender* FindSender(const QUuid& id) const override;
    CSender* CurrentSender() const override { return senders.isEmpty() ? nullptr : senders.first(); }
    QList<CSender*> Senders() const override { return senders; }
    void AddParameterFile(const QString& name, const SMD5& /*type*/) override { parameterFiles.append(name); }

    bool rotateEnabled = false;
    SMD5 productType; ///< the one known product's; all zero: none is known
    Product product;
    QList<CSender*> senders; ///< the first one is current
    QList<QString> parameterFiles;
};
