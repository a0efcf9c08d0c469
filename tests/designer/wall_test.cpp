#include "blockdialog.h"
#include "designerstory.h"
#include "faultsdock.h"
#include "projecttree.h"

#include <QListWidget>
#include <QSpinBox>
#include <QStatusBar>

namespace {

struct WallStory : DesignerStory
{
    /// Presses Insert, types the numbers as Tab goes through them, and Return.
    void AddBlock(std::initializer_list<int> numbers, const char* picture = nullptr)
    {
        Key(Qt::Key_Insert);
        auto* dialog = window.findChild<BlockDialog*>();
        ASSERT_TRUE(dialog);
        const QList<QSpinBox*> boxes = dialog->findChildren<QSpinBox*>();
        auto box = boxes.begin();
        for (const int number : numbers) {
            (*box)->setFocus();
            (*box)->selectAll();
            QTest::keyClicks(*box++, QString::number(number));
        }
        if (picture) {
            Picture(picture);
            const QString pictures = qEnvironmentVariable("ORVAN_PICTURES");
            EXPECT_TRUE(pictures.isEmpty() || dialog->grab().save(pictures + "/dialog.png"_s));
        }
        QTest::keyClick(dialog, Qt::Key_Return);
        window.activateWindow();
        QTRY_VERIFY(QTest::qWaitForWindowActive(&window) && !window.findChild<BlockDialog*>());
    }
    std::string Load(int port) ///< as the tree shows it
    {
        return window.GetTree().topLevelItem(0)->child(port)->text(ProjectTree::Load).toStdString();
    }
    void ClickPort(int port, int column = ProjectTree::Name)
    {
        ProjectTree& tree = window.GetTree();
        const QModelIndex index = tree.model()->index(port, column, tree.model()->index(0, 0));
        const QRect place = tree.visualRect(index);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {},
                          column == ProjectTree::Name ? place.center()
                                                      : place.topLeft() + QPoint(10, place.height() / 2));
    }
};

} // namespace

TEST_F(WallStory, AWallIsBuiltNumberedAndSavedByMouseAndKeys)
{
    Picture("empty");
    AddBlock({3, 4, 100, 200});
    ClickPort(1);
    AddBlock({3, 4, 100, 200}, "block");
    EXPECT_EQ(Tiles(1).GetBound(), QRect(300, 0, 300, 800)) << "beside the first one";
    EXPECT_EQ(Load(1), "37 %");
    QTest::keyClick(&window, Qt::Key_6, Qt::AltModifier);
    EXPECT_EQ(Chain(1), "9 8 1 10 7 2 11 6 3 12 5 4") << "columns from the top right";

    ClickPort(0);
    Key(Qt::Key_N);
    Click({50, 100});
    Drag({{150, 100}, {250, 100}, {250, 300}, {50, 310}});
    Key(Qt::Key_Down);
    EXPECT_EQ(Chain(0), "1 2 3 6 5 4 7 0 0 0 0 0");
    Picture("numbered");
    EXPECT_EQ(document.GetUndoText(1).toStdString(), "Number");
    Click({450, 100});
    EXPECT_EQ(Chain(0), "1 2 3 6 5 4 7 0 0 0 0 0") << "a cabinet of another port";

    ClickPort(0, ProjectTree::Locked);
    EXPECT_TRUE(document.GetPort()->IsFlagLock());
    Click({150, 500});
    EXPECT_TRUE(window.statusBar()->currentMessage().contains("locked"_s));
    ClickPort(0, ProjectTree::Locked);
    ClickPort(1, ProjectTree::Shown);
    EXPECT_FALSE(GetProjectData()->GetSender(0)->GetPort(1)->IsVisible());
    Picture("hidden");

    const QString path = folder.Path("built.prj"_s);
    ASSERT_TRUE(window.GetFiles().SaveTo(path));
    const std::string chains = Chain(0) + Chain(1);
    while (document.Undo()) {
    }
    EXPECT_EQ(Tiles(0).GetCount() + Tiles(1).GetCount(), 0);
    EXPECT_EQ(Load(1), "0 %");
    while (document.Redo()) {
    }
    EXPECT_EQ(Chain(0) + Chain(1), chains);
    ASSERT_TRUE(window.GetFiles().Open(path));
    EXPECT_EQ(Chain(0) + Chain(1), chains);
    EXPECT_FALSE(window.isWindowModified());
}

TEST_F(WallStory, EachSenderHasItsOwnWallAndHistory)
{
    AddBlock({2, 2});
    QTest::keyClick(&window, Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(document.GetProject().GetCurSenderIndex(), 1);
    EXPECT_TRUE(document.GetUndoText().isEmpty() && view.GetScene().GetBound().isNull());
    AddBlock({1, 3});
    EXPECT_EQ(document.GetUndoText().toStdString(), "Add cabinets") << "its first edit";
    SAddTileInfo tooLarge;
    tooLarge.columns = tooLarge.rows = 4096;
    EXPECT_FALSE(document.AddBlock(tooLarge) || window.statusBar()->currentMessage().isEmpty());
    ClickPort(0);
    EXPECT_EQ(document.GetProject().GetCurSenderIndex(), 0);
    EXPECT_EQ(view.GetScene().GetPorts()[0].cabinets.size(), 4u);
    messages.answer = QMessageBox::Yes;
    EXPECT_TRUE(document.DeleteSender(1, &window) && window.GetTree().topLevelItemCount() == 1);
    SenderEdits(document).SetName(0, "Stage"_s);
    EXPECT_EQ(window.GetTree().topLevelItem(0)->text(0).toStdString(), "Stage");
}

TEST_F(WallStory, APlantedFaultIsToldAndFound)
{
    AddBlock({2, 2, 100, 100});
    QTest::keyClick(&window, Qt::Key_1, Qt::AltModifier);
    FaultsDock& faults = window.GetFaults();
    QTRY_COMPARE(faults.windowTitle(), "No faults"_s);
    AddBlock({1, 1, 100, 100, 1850, 50});
    QTRY_COMPARE(faults.windowTitle(), "Faults: 2"_s);
    document.Select({}, DocumentController::Choice::Replace);
    auto* list = faults.findChild<QListWidget*>();
    view.ActualSize();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    EXPECT_EQ(document.GetSelection(), QList<CTile*>{Tiles().GetTile(4)});
    EXPECT_TRUE(view.GetMap().GetShown().contains(QRect(1850, 50, 100, 100)));
    Picture("fault");
    Key(Qt::Key_Delete);
    QTRY_COMPARE(faults.GetFaultCount(), 0);
}
