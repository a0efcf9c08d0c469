#include "orvandata.h"
#include "support/library.h"
#include "support/testfolder.h"
#include "support/wallbuilder.h"

#include <gtest/gtest.h>

#include <QDebug>

namespace {

class DocumentChangeTest : public testing::Test
{
protected:
    DocumentChangeTest() { history.SetChangeHandler(note); }

    std::string Told() ///< since the last call
    {
        return std::exchange(told, {}).remove(QLatin1String("SDocumentChange")).simplified().toStdString();
    }
    void Edit(int sender, std::initializer_list<int> ports)
    {
        for (const int port : ports)
            MakeWall(*project.GetSender(sender)->GetPort(port), 3, 2);
        EXPECT_TRUE(history.AddOneStepToSender(sender, CSenderRecordItem::OperationAddTiles));
    }

    Library library;
    TestFolder folder;
    CProjectData& project = *GetProjectData();
    CProjectUndoRedo& history = *GetRuntimeData()->GetProjectUndoRedo();
    QString told;
    DocumentChangeHandler note = [this](const SDocumentChange& change) { QDebug(&told) << change; };
};

} // namespace

TEST_F(DocumentChangeTest, AWindowIsToldOnceAfterEachOperation)
{
    history.SenderUndoRedoInit(project.NewSender());
    Edit(0, {0});
    Edit(0, {1, 2});
    EXPECT_EQ(Told(), "(senders properties modified) (steps) (steps 0:0) (steps 0:1 0:2)");
    EXPECT_FALSE(history.AddOneStep(CSenderRecordItem::OperationAddTiles)) << "nothing changed";
    EXPECT_TRUE(history.Undo(2, nullptr, nullptr) && history.Redo(1, nullptr, nullptr));
    EXPECT_EQ(Told(), "(steps 0:0 0:1 0:2) (steps 0:0)");
    project.GetSender(0)->GetPort(1)->SetVisible(false);
    MakeWall(*project.GetSender(0)->GetPort(0), 1, 1);
    EXPECT_TRUE(history.Redo(1, nullptr, nullptr) && project.NewSender());
    EXPECT_EQ(Told(), "(steps 0:0 0:2) (senders properties)")
        << "a hidden port stays, an edit without a step is taken back";
    Edit(1, {3});
    EXPECT_EQ(Told(), "(steps 1:0 1:1 1:2 1:3)") << "what was there before is not known";
    const QString path = folder.Path(QStringLiteral("a.prj"));
    QString error;
    EXPECT_FALSE(project.SaveProjectToFile(folder.Path(), nullptr) && project.GetLastFileError().isEmpty());
    EXPECT_FALSE(project.LoadProjectFromFile("/dev/null", error, nullptr));
    ASSERT_TRUE(project.SaveProjectToFile(path, nullptr));
    history.SetAsSaveStep();
    EXPECT_EQ(Told(), "(saved) (saved)") << "what was marked stays modified until the next load";
    ASSERT_TRUE(project.LoadProjectFromFile(path.toUtf8(), error, nullptr));
    Edit(0, {3});
    EXPECT_EQ(Told(), "(replaced modified) (steps modified 0:3)");
    ASSERT_TRUE(project.ExportPort(path) && project.ImportPort(path));
    const QUuid id = project.GetSender(0)->GetId();
    ASSERT_TRUE(project.ImportSender(SamplePath("sender-layout.xml"), id, false, true));
    EXPECT_EQ(Told(), "(0:0) (properties 0:0 0:1 0:2 0:3)");
    GetRuntimeData()->SetImpExpPrepareInfo({false, {0, 1}});
    ASSERT_EQ(project.ExportMutiSenderParam(path, QUuid()), 0u);
    ASSERT_EQ(project.ImportMutiSenderParam(path, QUuid()), 0u);
    history.PrjModify();
    project.DeleteAllSender();
    project.SetToDefault();
    EXPECT_EQ(Told(), "(properties) (properties) (senders properties steps) (replaced modified)");
    QDomElement none = QDomDocument().createElement(QStringLiteral("SenderLayout"));
    EXPECT_TRUE(project.ReadSender(QDomDocument(), &none, error, nullptr));
    EXPECT_EQ(Told(), "(senders properties modified)");
}

TEST_F(DocumentChangeTest, SettersAndOtherDocumentsTellNothing)
{
    project.NewSender();
    CProjectData copy(project);
    Told();
    TilesOf(*project.GetSender(0)->GetPort(0)).AddTile(new CTile);
    project.GetSender(0)->SetSenderName(QStringLiteral("A"));
    project.SetCurrentSender(0);
    copy.AddGroupInfo(QStringLiteral("B"));
    copy.DeleteAllSender();
    EXPECT_EQ(Told(), "");
    history.SetChangeHandler([this](const SDocumentChange& change) {
        note(change);
        project.NewSender();
    });
    project.CopyProject(copy);
    EXPECT_EQ(Told(), "(replaced modified)") << "never within itself";
    history.SetAsSaveStep();
    EXPECT_EQ(Told(), "(senders properties saved modified)") << "what it did comes with the next";
}
