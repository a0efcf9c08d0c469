#include "tools/toolsproject.h"

using OrvanTools::NewProject;

class NewProjectTest : public ToolsTest
{
protected:
    QList<int> CabinetsOfPorts()
    {
        QList<int> counts;
        for (int i = 0; i < Project().GetSender(0)->GetPortCount(); ++i)
            counts.append(Tiles(i).GetCount());
        return counts;
    }
};

TEST_F(NewProjectTest, ColumnsAreSharedOutTheFirstStripsBeingTheWiderOnes)
{
    Build(QSize(11, 2), 4);
    EXPECT_EQ(CabinetsOfPorts(), (QList<int>{6, 6, 6, 4}));
    EXPECT_EQ(Tiles(1).GetBound(false, QSize()), QRect(3 * 128, 0, 3 * 128, 256));
    EXPECT_EQ(Tiles(3).GetBound(false, QSize()), QRect(9 * 128, 0, 2 * 128, 256));
    Build(QSize(5, 1), 5); // no device has five ports
    EXPECT_EQ(CabinetsOfPorts(), (QList<int>{1, 1, 1, 1, 1, 0}));
    Build(QSize(81, 1), 81);
    EXPECT_EQ(Project().GetSender(0)->GetPortCount(), 160);
}

TEST_F(NewProjectTest, WhatCannotBeBuiltLeavesTheDocumentAlone)
{
    Build(QSize(3, 3), 1);
    const QUuid id = Project().GetID();
    const auto refused = [this, id](auto change) {
        NewProject wanted;
        change(wanted);
        EXPECT_FALSE(OrvanTools::WhyNotBuildable(wanted).isEmpty());
        EXPECT_FALSE(OrvanTools::BuildProject(Project(), wanted));
        return Project().GetID() == id;
    };
    EXPECT_TRUE(refused([](NewProject& w) { w.cabinet = QSize(0, 1); }));
    EXPECT_TRUE(refused([](NewProject& w) { w.cabinet = QSize(1, 1025); }));
    EXPECT_TRUE(refused([](NewProject& w) { w.grid = QSize(257, 1); })); // 32896 pixels
    EXPECT_TRUE(refused([](NewProject& w) { w.grid = QSize(4, 0); }));
    EXPECT_TRUE(refused([](NewProject& w) { w.canvas = QSize(32769, 1); }));
    EXPECT_TRUE(refused([](NewProject& w) { w.ports = 0; }));
    EXPECT_TRUE(refused([](NewProject& w) { w.order = 8; }));
    NewProject largest;
    largest.grid = QSize(256, 128);
    EXPECT_EQ(OrvanTools::WhyNotBuildable(largest), QString());
}
