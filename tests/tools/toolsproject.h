#pragma once

#include <OrvanData/orvandata.h>
#include <orvantools/newproject.h>

#include <gtest/gtest.h>

/// The library at work, with an open document to build in.
class ToolsTest : public testing::Test
{
protected:
    ToolsTest() { LedNimbraData_Init(); }
    ~ToolsTest() override { LedNimbraData_Release(); }

    /// Makes the open document one block, numbered by rows unless told otherwise.
    CSender& Build(const QSize& grid, int ports, int order = 0);

    CProjectData& Project() { return *GetProjectData(); }
    CTileSet& Tiles(int port, int sender = 0);
    CTile& Tile(int port, int index, int sender = 0) { return *Tiles(port, sender).GetTile(index); }

    /// Turns the cabinets of a port as one block, about the middle of all.
    void Turn(int port, double angle);
};
