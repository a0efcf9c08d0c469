#include "project/projectmanagement.h"

#include "project/projectdata.h"

#include <gtest/gtest.h>

TEST(ProjectManagementTest, SameProjectTwiceIsOneCopyOfTheLaterContent)
{
    CProjectManagement management;
    CProjectData project;
    project.SetDeviceSetName(QStringLiteral("first"));
    management.AddProject(&project);
    project.SetDeviceSetName(QStringLiteral("second"));
    management.AddProject(&project);
    management.AddProject(nullptr);
    ASSERT_EQ(management.GetProjectCount(), 1);
    const CProjectData* held = management.GetProjectData(project.GetID());
    ASSERT_NE(held, nullptr);
    EXPECT_NE(held, &project);
    EXPECT_EQ(held->GetDeviceSetName(), QStringLiteral("second"));

    management.DeleteProject(QUuid::createUuid());
    management.DeleteProject(project.GetID());
    EXPECT_EQ(management.GetProjectCount(), 0);
}
