#include "tools/toolsproject.h"

#include <orvantools/samplewall.h>

class SampleWallTest : public ToolsTest
{};

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
