#pragma once

#include "orvantools/portparts.h"
#include "orvantools/productnames.h"
#include "orvantools/sheetpage.h"

#include <memory>

namespace OrvanTools {

class ChainTable;
class SheetTable;

/// A sender that gets sheets.
struct SheetWall
{
    int sender = 0;
    WallPicture picture;
    std::vector<QRectF> bounds; ///< of the ports of the picture
};

/// The pages of one port: its drawing, in parts where it must be, and its chain as a table, on the same page
/// where there is room.
class PortSheets
{
public:
    PortSheets(const CProjectData& project, const SheetWall& wall, Paper paper); ///< [ref] both

    std::vector<SheetPage> Make(const PicturePort& port) const; ///< [ref] a port of the wall; the pages too

private:
    /// A port on its pages.
    struct Drawing
    {
        std::shared_ptr<PartPictures> pictures;
        std::vector<PanelPage> pages;
        bool landscape = false;
    };

    /// A chain, and how it is laid out.
    struct Chain
    {
        std::shared_ptr<ChainTable> source;
        std::shared_ptr<SheetTable> table;
    };

    Drawing BestDrawing(const PicturePort& port, const std::function<double(double)>& below) const;
    bool AddShort(std::vector<SheetPage>& pages, const PicturePort& port, const Chain& chain) const;
    SheetPage DrawingPage(const PicturePort& port, const Drawing& drawing, const PanelPage& panels) const;
    void AddChain(std::vector<SheetPage>& pages, const PicturePort& port, const Chain& chain) const;
    SheetPage::Painting KeyPlan(const PicturePort& port, const PanelPage& panels) const;

    const CProjectData& m_project;
    const SheetWall& m_wall;
    Paper m_paper;
    QHash<SMD5, QString> m_products; ///< names by type
};

} // namespace OrvanTools
