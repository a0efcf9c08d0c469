#include "tools/toolsproject.h"

CSender& ToolsTest::Build(const QSize& grid, int ports, int order)
{
    OrvanTools::NewProject wanted;
    wanted.grid = grid;
    wanted.ports = ports;
    wanted.order = order;
    wanted.canvas = QSize(kMaxCanvasWidth, kMaxCanvasHeight);
    EXPECT_TRUE(OrvanTools::BuildProject(Project(), wanted));
    return *Project().GetSender(0);
}

CTileSet& ToolsTest::Tiles(int port, int sender)
{
    return Project().GetSender(sender)->GetPort(port)->GetTileSet();
}

void ToolsTest::Turn(int port, double angle)
{
    GetConfigData()->SetEnableRotate(true);
    CTileSet& tiles = Tiles(port);
    const QRect bound = tiles.GetBound(false, QSize());
    SRotateParam record;
    record.rotated = true;
    record.angle = angle;
    record.centerX = bound.left() + bound.width() * 0.5;
    record.centerY = bound.top() + bound.height() * 0.5;
    CTileSet all;
    all.AddFromOther(tiles);
    Project().GetSender(0)->GetPort(port)->GetPortProject()->SetTileGroupRotateParam(&record, all, angle);
}
