#include "designerstory.h"
#include "program.h"

#include <QDockWidget>
#include <QMenuBar>

namespace {

/// The program from start to end.
struct Started
{
    Started() { program.Show(); }
    ~Started() { GetConfigData()->Save(); }

    std::string FirstMenu() { return program.GetWindow().menuBar()->actions().first()->text().toStdString(); }
    void Choose(const QString& text)
    {
        for (QAction* action : program.GetWindow().findChildren<QAction*>()) {
            if (action->text() == text)
                action->trigger();
        }
        QCoreApplication::processEvents();
    }

    DesignerStory::Library library;
    Program program;
};

} // namespace

TEST(ProgramStory, AnotherLanguageLeavesTheDocumentAsItIs)
{
    Started run;
    DocumentController& document = run.program.GetDocument();
    SAddTileInfo block;
    block.senderId = document.GetSender()->GetId();
    block.columns = block.rows = 4;
    block.width = block.height = 500;
    ASSERT_TRUE(document.AddBlock(block));
    document.SelectAll();
    run.program.GetWindow().GetView().ActualSize();
    run.program.GetWindow().GetView().ScrollTo({300, 200});
    run.Choose("中文(&Z)"_s);
    EXPECT_EQ(run.FirstMenu() + document.GetUndoText().toStdString(), "文件(&F)添加箱体");
    MainWindow& window = run.program.GetWindow();
    EXPECT_TRUE(window.isVisible() && window.isWindowModified());
    EXPECT_EQ(window.GetView().GetMap().GetStart(), QPoint(300, 200));
    EXPECT_EQ(window.GetView().GetMap().GetScaling(), 1);
    EXPECT_EQ(document.GetSelection().size(), 16);
    EXPECT_EQ(window.GetView().GetScene().GetPorts()[0].cabinets.size(), 16u);
    EXPECT_TRUE(document.Undo() && window.GetView().GetScene().GetBound().isNull());
    GetConfigData()->SetLanguage(LanguageFrench);
    EXPECT_TRUE(GetConfigData()->GetTranslationPath().endsWith("orvandata_en.qm"_s)) << "not Chinese";
    run.Choose("&English"_s);
    EXPECT_EQ(run.FirstMenu(), "&File");
}

TEST(ProgramStory, DocksAndSnappingStayAsTheUserLeftThem)
{
    for (const bool shown : {true, false}) {
        Started run;
        auto* faults = run.program.GetWindow().findChild<QDockWidget*>("faults"_s);
        EXPECT_TRUE(faults->isVisible() == shown && GetConfigData()->IsEnableAttraction() == shown);
        faults->hide();
        run.Choose("&Snap to neighbours and canvas"_s);
        run.program.GetWindow().close();
    }
    Started run;
    GetConfigData()->SetUIValue("Designer/Docks"_s, "no such thing"_s);
    EXPECT_TRUE(MainWindow(run.program.GetDocument()).findChild<QDockWidget*>("faults"_s));
}
