#include "project/projectmanagement.h"

#include "support/projecttest.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QProgressDialog>
#include <QTimer>

namespace {

using ProjectManagementTest = ProjectTest;

/// Saves all, with a chooser that takes `folder`, or is cancelled when that is empty.
bool SaveInto(CProjectManagement& management, const QString& folder, QProgressDialog* dialog)
{
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&folder] {
        auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!chooser)
            return;
        EXPECT_EQ(chooser->windowTitle(), "选取"_s);
        chooser->findChild<QLineEdit*>("fileNameEdit"_s)->setText(folder);
        QMetaObject::invokeMethod(chooser, folder.isEmpty() ? "reject" : "accept");
    });
    user.start(20);
    return management.SaveMutiProject(dialog);
}

} // namespace

TEST_F(ProjectManagementTest, SameProjectTwiceIsOneCopyOfTheLaterContent)
{
    CProjectManagement management;
    management.AddProject(&project);
    project.SetDeviceSetName("second"_s);
    management.AddProject(&project);
    management.AddProject(nullptr);
    ASSERT_EQ(management.GetProjectCount(), 1);
    EXPECT_EQ(management.GetProjectData(project.GetID())->GetDeviceSetName(), "second"_s);
    management.DeleteProject(project.GetID());
    EXPECT_EQ(management.GetProjectCount(), 0);
}

TEST_F(ProjectManagementTest, AllNamedProjectsAreSavedIntoTheChosenFolder)
{
    CProjectManagement management;
    for (const char* name : {"wall", "", "../Wall", "wall"}) {
        CProjectData named;
        named.SetDeviceSetName(QLatin1String(name));
        named.SetDemoSenderType(management.GetProjectCount());
        management.AddProject(&named);
    }
    EXPECT_FALSE(SaveInto(management, QString(), nullptr));
    QProgressDialog dialog;
    EXPECT_TRUE(SaveInto(management, folder.Path(), &dialog));
    EXPECT_EQ(dialog.value(), 75);
    const QStringList files = {"_Wall.prj"_s, "wall (2).prj"_s, "wall.prj"_s};
    EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files), files);
    const int types[] = {2, 3, 0};
    for (int i = 0; i < files.size(); ++i) {
        ASSERT_TRUE(Load(folder.Path(files[i])));
        EXPECT_EQ(project.GetDemoSenderType(), types[i]) << files[i].toStdString();
    }
}
