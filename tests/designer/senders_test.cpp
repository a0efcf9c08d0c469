#include "designerstory.h"
#include "faultsdock.h"
#include "projecttree.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSpinBox>

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
    void ClickRow(QTreeWidgetItem* row)
    {
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(row).center());
    }
    /// The offscreen platform carries nothing, so that what the tree would be told is told here.
    void DragPort(int from, int to)
    {
        ClickRow(Row(from));
        const std::unique_ptr<QMimeData> data(tree.model()->mimeData({tree.currentIndex()}));
        const QPoint end = tree.visualItemRect(Row(to)).center();
        QDragEnterEvent enter(end, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QDragMoveEvent move(end, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QDropEvent drop(end, Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QDragLeaveEvent leave;
        QApplication::sendEvent(tree.viewport(), &enter);
        QApplication::sendEvent(tree.viewport(), &move);
        QApplication::sendEvent(tree.viewport(), move.isAccepted() ? static_cast<QEvent*>(&drop) : &leave);
        QTest::qWait(1);
    }
    void TypeNumber(const char* name, const char* text) { Type(Find<QSpinBox>("Sender", name), text); }
    CSender& Sender() { return *document.GetProject().GetSender(0); }

    ProjectTree& tree = window.GetTree();
};

} // namespace

TEST_F(SendersStory, APortIsDraggedOntoAnotherToBackItUp)
{
    DragPort(2, 0);
    EXPECT_EQ(Name(2), "Port 3, backup of port 1");
    EXPECT_TRUE(messages.Take().isEmpty() && document.IsSaveNeeded()) << "nothing is lost";
    Picture("backup");
    for (const auto& [from, to] : {std::pair(1, 2), std::pair(0, 3), std::pair(2, 3), std::pair(3, 3)})
        DragPort(from, to);
    Sender().GetPort(3)->SetFlagLock(true);
    DragPort(3, 0);
    EXPECT_EQ(Name(0) + Name(1) + Name(3), "Port 1Port 2Port 4") << "chains, itself, locked ones";

    Sender().GetPort(3)->SetFlagLock(false);
    Row(0)->setExpanded(true);
    ClickRow(Row(0)->child(0));
    Key(Qt::Key_Right);
    DragPort(1, 0);
    EXPECT_EQ(Name(1), "Port 2") << "refused";
    EXPECT_TRUE(messages.texts.last().contains("of its own: 6"_s)
                && messages.texts.last().contains("no longer be undone"_s));
    messages.answer = QMessageBox::Yes;
    DragPort(1, 0);
    EXPECT_EQ(Name(1), "Port 2, backup of port 1");
    EXPECT_FALSE(document.Undo()) << "it would clear the port";

    QTest::keyClick(&window, Qt::Key_T, Qt::ControlModifier);
    QMenu* sources = tree.actions().at(tree.actions().size() - 2)->menu();
    sources->popup(QPoint());
    for (int i = 0; i < 4; ++i) // upwards from the end: three ports of its own, then the other sender's
        QTest::keyClick(sources, Qt::Key_Up);
    QTest::keyClick(sources, Qt::Key_Return);
    const std::string other = Name(0, 1);
    EXPECT_NE(other.find(", port 4"), std::string::npos) << other;
    ClickRow(tree.topLevelItem(0));
    EXPECT_TRUE(document.GetProject().GetCurSenderIndex() == 0 && !tree.currentItem()->parent());

    const QString path = folder.Path("backups.prj"_s);
    ASSERT_TRUE(window.GetFiles().SaveTo(path) && window.GetFiles().Open(path));
    EXPECT_EQ(Name(1) + Name(2) + Name(0, 1), "Port 2, backup of port 1Port 3, backup of port 1" + other);
    ClickRow(Row(1));
    QTest::keyClick(&window, Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Name(1), "Port 2");
    EXPECT_EQ(Row(1)->childCount(), 1) << "its own cabinets are back";
}

TEST_F(SendersStory, AGroupInTheTreeSelectsItsCabinets)
{
    EXPECT_EQ(Row(1)->child(0)->text(0).toStdString(), "Group of 6 cabinets");
    Row(1)->setExpanded(true);
    ClickRow(Row(1)->child(0));
    EXPECT_EQ(document.GetSelection().size(), 6);
    EXPECT_TRUE(document.GetPort()->GetPortIndex() == 1 && tree.currentItem() == Row(1)->child(0));
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Delete);
    EXPECT_EQ(Row(1)->childCount(), 1) << "in the tree it deletes no cabinets";
    document.MoveSelectionToPort(2);
    EXPECT_TRUE(Row(2)->font(0).bold() && !Row(1)->font(0).bold());
    view.setFocus();
    Key(Qt::Key_Delete);
    EXPECT_EQ(Row(1)->childCount() + Row(2)->childCount(), 0);
    QTest::keyClick(&tree, Qt::Key_Space);
    QTest::keyClick(&tree, Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_TRUE(!Sender().GetPort(2)->IsVisible() && Sender().GetPort(2)->IsFlagLock());
    QTest::keyClick(&tree, Qt::Key_Space, Qt::ShiftModifier);
    ASSERT_TRUE(document.Undo(2));
    Sender().GetPort(1)->SetFlagLock(true);
    tree.setCurrentItem(Row(1)->child(0));
    QTest::keyClick(&tree, Qt::Key_Return);
    EXPECT_TRUE(document.GetSelection().isEmpty()) << "the port is locked";

    for (int i = 0; i < 3000; ++i)
        document.GetPort()->GetTileGroupSet().AddGroup(new CTileGroup, true);
    Tiles(1).GetTile(0)->Offset(1, 0);
    ASSERT_TRUE(GetRuntimeData()->GetProjectUndoRedo()->AddOneStep(CSenderRecordItem::OperationMoveTiles));
    EXPECT_EQ(Row(1)->child(200)->text(0).toStdString(), "… and 2801 more groups");
}

TEST_F(SendersStory, PropertiesAreTypedAndKept)
{
    Type(Find<QLineEdit>("Sender", "Name"), "Stage");
    EXPECT_EQ(tree.topLevelItem(0)->text(0).toStdString(), "Stage");
    TypeNumber("Canvas width", "640");
    TypeNumber("Moved right by", "-40");
    TypeNumber("Moved down by", "8");
    EXPECT_EQ(Sender().GetCanvasSize().width(), 640);
    EXPECT_EQ(Sender().GetOffset(), QSize(0, 8)) << "it stays on the canvas";
    TypeNumber("Frequency in Hz", "600");
    EXPECT_EQ(Row(0)->text(ProjectTree::Load).toStdString(), "150 %");
    QTRY_COMPARE(window.GetFaults().windowTitle(), "Faults: 2"_s);
    QTest::keyClick(Find<QComboBox>("Sender", "Bits a colour"), Qt::Key_End);
    EXPECT_EQ(Sender().GetColorDepth(), 12);
    Picture("sender");
    QTest::keyClick(Find<QCheckBox>("Project", "Designer"), Qt::Key_Space);
    Type(Find<QLineEdit>("Project", "Designer"), "A. Smith");
    QTest::keyClick(Find<QCheckBox>("Port", "Locked"), Qt::Key_Space);
    Picture("port");

    ASSERT_TRUE(window.GetFiles().SaveTo(folder.Path("kept.prj"_s)));
    Type(Find<QLineEdit>("Sender", "Name"), "Stage");
    TypeNumber("Moved right by", "-40");
    EXPECT_FALSE(document.IsSaveNeeded()) << "unchanged";
    ASSERT_TRUE(window.GetFiles().Open(folder.Path("kept.prj"_s)));
    const SPrintLine& designer = document.GetProject().GetPrintSetData()->designer;
    EXPECT_EQ(Sender().GetSenderName() + designer.text, "StageA. Smith"_s);
    EXPECT_TRUE(designer.enable && Sender().GetSignalFreq() == 600 && Sender().GetPort(0)->IsFlagLock());
    auto* offset = Find<QSpinBox>("Sender", "Moved down by");
    QTRY_COMPARE(offset->value(), 8);
    const auto turnWheel = [offset] {
        QWheelEvent wheel({5, 5}, offset->mapToGlobal({5, 5}), {}, {0, 120}, {}, {}, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(offset, &wheel);
        return offset->value();
    };
    view.setFocus();
    EXPECT_EQ(turnWheel(), 8);
    offset->setFocus();
    EXPECT_EQ(turnWheel(), 9);

    auto* name = Find<QLineEdit>("Sender", "Name");
    Type(name, "Hall", false);
    emit document.PortStatesChanged();
    QTest::qWait(100);
    EXPECT_EQ(name->text(), "Hall"_s) << "renewing leaves what is being typed";
    QTest::keyClick(name, Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(document.IsSaveNeeded());
    Type(name, "Arena", false);
    messages.answer = QMessageBox::Discard;
    ASSERT_TRUE(window.GetFiles().Open(folder.Path("kept.prj"_s))) << "asks";
    EXPECT_EQ(Sender().GetSenderName() + QString::number(messages.texts.size()), "Hall1"_s);
}

TEST_F(SendersStory, FewerPortsAreAskedForWhenOneOfThemIsUsed)
{
    auto* ports = Find<QComboBox>("Sender", "Ports");
    QTest::keyClick(ports, Qt::Key_Up);
    EXPECT_TRUE(messages.texts.isEmpty() && tree.topLevelItem(0)->childCount() == 2);
    QTest::keyClick(ports, Qt::Key_Down);
    Sender().GetPort(0)->SetBeBackupDest(Sender().GetId(), 3);
    QTest::keyClick(ports, Qt::Key_Up);
    EXPECT_TRUE(messages.Take().join(QString()).contains("go: 4."_s)) << "what port 1 backs up";
    Sender().GetPort(0)->CancelBackupDest();
    DragPort(3, 0);
    QTest::keyClick(ports, Qt::Key_Up);
    EXPECT_TRUE(messages.Take().join(QString()).contains("would go: 4."_s));
    EXPECT_EQ(ports->currentText().toStdString(), "4") << "as it still is";
    messages.answer = QMessageBox::Yes;
    QTest::keyClick(ports, Qt::Key_Up);
    EXPECT_EQ(document.GetPort()->GetPortIndex(), 0) << "one that is in use";
}
