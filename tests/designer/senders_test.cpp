#include "designerstory.h"
#include "faultsdock.h"
#include "projecttree.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSpinBox>
#include <QTabWidget>

namespace {

struct SendersStory : DesignerStory
{
    /// A wall on ports 1 and 2 of four.
    SendersStory()
    {
        EXPECT_TRUE(window.GetFiles().Open(MakeProject("wall.prj"_s, QSize(4, 3), 2, 0)));
        EXPECT_TRUE(SenderEdits(document).SetPortCount(0, 4, nullptr));
    }

    QTreeWidgetItem* Row(int port, int sender = 0) { return tree.topLevelItem(sender)->child(port); }
    std::string Name(int port, int sender = 0) { return Row(port, sender)->text(0).toStdString(); }
    QPoint MiddleOf(QTreeWidgetItem* row) { return tree.visualItemRect(row).center(); }
    void ClickRow(QTreeWidgetItem* row)
    {
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, MiddleOf(row));
    }
    /// The offscreen platform carries nothing, so that what the tree would be told is told here.
    void DragRow(QTreeWidgetItem* from, QTreeWidgetItem* to)
    {
        const QModelIndex sender = tree.model()->index(tree.indexOfTopLevelItem(from->parent()), 0);
        const QModelIndex port = tree.model()->index(from->parent()->indexOfChild(from), 0, sender);
        const std::unique_ptr<QMimeData> data(tree.model()->mimeData({port}));
        const QPoint end = MiddleOf(to);
        ClickRow(from);
        QDragEnterEvent enter(MiddleOf(from), Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QDragMoveEvent move(end, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QDropEvent drop(end, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QApplication::sendEvent(tree.viewport(), &enter);
        QApplication::sendEvent(tree.viewport(), &move);
        QDragLeaveEvent leave;
        QApplication::sendEvent(tree.viewport(), move.isAccepted() ? static_cast<QEvent*>(&drop) : &leave);
        QTest::qWait(1);
    }
    /// A field of a page of properties, by its name.
    template <class Field> Field* Find(const char* page, const QString& name)
    {
        auto* pages = window.findChild<QTabWidget*>();
        for (int i = 0; i < pages->count(); ++i) {
            if (pages->tabText(i) == QLatin1String(page))
                pages->setCurrentIndex(i);
        }
        for (Field* field : pages->currentWidget()->findChildren<Field*>()) {
            if (field->accessibleName() == name)
                return field;
        }
        ADD_FAILURE() << qPrintable(name);
        return nullptr;
    }
    void Type(QWidget* field, const char* text)
    {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, QLatin1String(text));
        QTest::keyClick(field, Qt::Key_Return);
    }
    CSender& Sender(int index = 0) { return *document.GetProject().GetSender(index); }

    ProjectTree& tree = window.GetTree();
};

} // namespace

TEST_F(SendersStory, APortIsDraggedOntoAnotherToBackItUp)
{
    DragRow(Row(2), Row(0));
    EXPECT_EQ(Name(2), "Port 3, backup of port 1");
    EXPECT_TRUE(messages.Take().isEmpty()) << "nothing is lost";
    EXPECT_TRUE(document.IsSaveNeeded());
    Picture("backup");
    for (const auto& [from, to] : {std::pair(1, 2), std::pair(0, 3), std::pair(2, 3), std::pair(3, 3)})
        DragRow(Row(from), Row(to));
    Sender().GetPort(3)->SetFlagLock(true);
    DragRow(Row(3), Row(0));
    EXPECT_EQ(Name(0) + Name(1) + Name(3), "Port 1Port 2Port 4") << "chains, itself, locked ones";

    Sender().GetPort(3)->SetFlagLock(false);
    Row(0)->setExpanded(true);
    ClickRow(Row(0)->child(0));
    Key(Qt::Key_Right);
    ASSERT_FALSE(document.GetUndoText().isEmpty());
    DragRow(Row(1), Row(0));
    EXPECT_EQ(Name(1), "Port 2") << "refused";
    EXPECT_TRUE(messages.texts.last().contains("of its own: 6"_s)
                && messages.texts.last().contains("no longer be undone"_s));
    messages.answer = QMessageBox::Yes;
    DragRow(Row(1), Row(0));
    EXPECT_EQ(Name(1), "Port 2, backup of port 1");
    EXPECT_FALSE(document.Undo()) << "it would clear the port";

    QTest::keyClick(&window, Qt::Key_T, Qt::ControlModifier);
    const QAction* backup = tree.actions().at(tree.actions().size() - 2);
    backup->menu()->popup(QPoint());
    QTest::keyClick(backup->menu(), Qt::Key_Up); // the last: this sender's own, and before them the first's
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(backup->menu(), Qt::Key_Up);
    QTest::keyClick(backup->menu(), Qt::Key_Return);
    const std::string other = Name(0, 1);
    EXPECT_NE(other.find(", port 4"), std::string::npos) << other;

    const QString path = folder.Path("backups.prj"_s);
    ASSERT_TRUE(window.GetFiles().SaveTo(path) && window.GetFiles().Open(path));
    EXPECT_EQ(Name(1) + Name(2) + Name(0, 1), "Port 2, backup of port 1Port 3, backup of port 1" + other);
    EXPECT_EQ(Row(1)->childCount(), 0);
    ClickRow(Row(1));
    QTest::keyClick(&window, Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Name(1), "Port 2");
    EXPECT_EQ(Tiles(1).GetCount(), 6) << "its own cabinets are back";
}

TEST_F(SendersStory, AGroupInTheTreeSelectsItsCabinets)
{
    EXPECT_EQ(Row(1)->child(0)->text(0).toStdString(), "Group of 6 cabinets");
    Row(1)->setExpanded(true);
    ClickRow(Row(1)->child(0));
    EXPECT_EQ(document.GetSelection().size(), 6);
    EXPECT_EQ(document.GetPort()->GetPortIndex(), 1);
    EXPECT_EQ(tree.currentItem(), Row(1)->child(0)) << "and stays where the cursor is";
    document.Select({}, DocumentController::Choice::Replace);
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_EQ(document.GetSelection().size(), 6);
    Key(Qt::Key_Delete);
    EXPECT_EQ(Row(1)->childCount(), 0);
    ASSERT_TRUE(document.Undo());
    Sender().GetPort(1)->SetFlagLock(true);
    ClickRow(Row(1)->child(0));
    EXPECT_TRUE(document.GetSelection().isEmpty()) << "the port is locked";

    CTileGroupSet& groups = document.GetPort()->GetTileGroupSet();
    for (int i = 0; i < 3000; ++i)
        groups.AddGroup(new CTileGroup, true);
    Tiles(1).GetTile(0)->Offset(1, 0);
    ASSERT_TRUE(GetRuntimeData()->GetProjectUndoRedo()->AddOneStep(CSenderRecordItem::OperationMoveTiles));
    EXPECT_EQ(Row(1)->child(200)->text(0).toStdString(), "… and 2801 more groups");
}

TEST_F(SendersStory, PropertiesAreTypedAndKept)
{
    Type(Find<QLineEdit>("Sender", "Name"_s), "Stage");
    EXPECT_EQ(tree.topLevelItem(0)->text(0).toStdString(), "Stage");
    Type(Find<QSpinBox>("Sender", "Canvas width"_s), "640");
    Type(Find<QSpinBox>("Sender", "Moved right by"_s), "-40");
    Type(Find<QSpinBox>("Sender", "Moved down by"_s), "8");
    EXPECT_EQ(Sender().GetCanvasSize().width(), 640);
    EXPECT_EQ(Sender().GetOffset(), QSize(0, 8)) << "it stays on the canvas";
    const QString before = Row(0)->text(ProjectTree::Load);
    Type(Find<QSpinBox>("Sender", "Frequency in Hz"_s), "600");
    EXPECT_NE(Row(0)->text(ProjectTree::Load), before);
    QTRY_VERIFY(window.GetFaults().windowTitle() == "Faults: 2"_s);
    auto* depth = Find<QComboBox>("Sender", "Bits a colour"_s);
    QTest::keyClick(depth, Qt::Key_End);
    EXPECT_EQ(Sender().GetColorDepth(), 12);
    Picture("sender");
    auto* ports = Find<QComboBox>("Sender", "Ports"_s);
    QTest::keyClick(ports, Qt::Key_Down);
    EXPECT_EQ(tree.topLevelItem(0)->childCount(), 6);
    QTest::keyClick(Find<QCheckBox>("Project", "Designer"_s), Qt::Key_Space);
    Type(Find<QLineEdit>("Project", "Designer"_s), "A. Smith");
    Picture("project");
    QTest::keyClick(Find<QCheckBox>("Port", "Locked"_s), Qt::Key_Space);
    EXPECT_TRUE(document.GetPort()->IsFlagLock());
    Picture("port");

    ASSERT_TRUE(window.GetFiles().SaveTo(folder.Path("kept.prj"_s)));
    Type(Find<QLineEdit>("Sender", "Name"_s), "Stage");
    Type(Find<QSpinBox>("Sender", "Moved right by"_s), "-40");
    EXPECT_FALSE(document.IsSaveNeeded()) << "unchanged";
    ASSERT_TRUE(window.GetFiles().Open(folder.Path("kept.prj"_s)));
    const SPrintLine& designer = document.GetProject().GetPrintSetData()->designer;
    EXPECT_EQ(Sender().GetSenderName() + designer.text, "StageA. Smith"_s);
    EXPECT_TRUE(designer.enable && Sender().GetSignalFreq() == 600 && Sender().GetPort(0)->IsFlagLock());
    EXPECT_EQ(Find<QSpinBox>("Sender", "Moved down by"_s)->value(), 8);
}

TEST_F(SendersStory, FewerPortsAreAskedForWhenOneOfThemIsUsed)
{
    auto* ports = Find<QComboBox>("Sender", "Ports"_s);
    QTest::keyClick(ports, Qt::Key_Up);
    EXPECT_EQ(tree.topLevelItem(0)->childCount(), 2);
    EXPECT_TRUE(messages.texts.isEmpty());
    QTest::keyClick(ports, Qt::Key_Down);
    DragRow(Row(3), Row(0));
    ClickRow(Row(3));
    QTest::keyClick(ports, Qt::Key_Up);
    EXPECT_TRUE(messages.Take().join(QString()).contains("backups go: 4."_s));
    EXPECT_EQ(ports->currentText().toStdString(), "4") << "as it still is";
    messages.answer = QMessageBox::Yes;
    QTest::keyClick(ports, Qt::Key_Up);
    EXPECT_EQ(document.GetPort()->GetPortIndex(), 0) << "one that is in use";
}
