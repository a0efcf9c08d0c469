#include "tools/toolsproject.h"

#include <orvantools/layoutcheck.h>
#include <orvantools/samplewall.h>

class SampleWallTest : public ToolsTest
{};

TEST_F(SampleWallTest, ItIsBuiltWithoutAFaultAndHoldsWhatItTells)
{
    QStringList told;
    OrvanTools::SampleWall wall([&told](const QString& line) { told.append(line); });
    ASSERT_TRUE(wall.Build()) << qPrintable(wall.GetFault());
    EXPECT_GE(told.size(), 10);
    EXPECT_TRUE(OrvanTools::CheckProject(Project(), {}).isEmpty());
    EXPECT_EQ(Project().GetParameterFiles().size(), 2);
    EXPECT_TRUE(Project().HasTileRotated());
    EXPECT_TRUE(Project().GetSender(0)->GetPort(3)->IsBackupDest());
    EXPECT_TRUE(Tile(1, 0).IsMultiRcvTile());
    EXPECT_GT(GetRuntimeData()->GetProjectUndoRedo()->GetCanUndoStep(), 3);
}

TEST_F(SampleWallTest, AnyDifferenceBetweenTwoProjectsIsFound)
{
    Build(QSize(4, 2), 2);
    QString difference;
    const auto isFound = [&](auto change) {
        CProjectData other(Project());
        EXPECT_TRUE(OrvanTools::IsSameProject(Project(), other, &difference));
        change(other);
        return !OrvanTools::IsSameProject(Project(), other, &difference);
    };
    const auto tiles = [](CProjectData& project) {
        return project.GetSender(0)->GetPort(1)->GetPortProject()->GetTileSet();
    };
    EXPECT_TRUE(isFound([&](CProjectData& other) { tiles(other)->GetTile(2)->SetX(0); }));
    EXPECT_EQ(difference, QStringLiteral("/senders/0/ports/1/bound/0"));
    EXPECT_TRUE(isFound([&](CProjectData& other) { tiles(other)->DeteleTile(3); }));
    EXPECT_TRUE(isFound([](CProjectData& other) { other.NewSender(); }));
    EXPECT_TRUE(isFound([](CProjectData& other) { other.GetSender(0)->GetPort(0)->SetVisible(false); }));
    EXPECT_TRUE(
        isFound([](CProjectData& other) { other.GetPrintSetData()->approver.text = QString(1, u'x'); }));
}
