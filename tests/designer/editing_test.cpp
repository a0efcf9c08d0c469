#include "designerstory.h"

#include <QStatusBar>

namespace {

struct EditingStory : DesignerStory
{
    EditingStory()
    {
        EXPECT_TRUE(window.GetFiles().Open(MakeProject("wall.prj"_s, QSize(4, 3), 2, 0)));
        view.ActualSize();
        view.ScrollTo({});
    }

    std::string Selected() const ///< ports and cabinets: "0:0 0:1"
    {
        QStringList places;
        for (const CTile* tile : document.GetSelection())
            places.append(QStringLiteral("%1:%2")
                              .arg(tile->GetPortIndex())
                              .arg(Tiles(tile->GetPortIndex()).GetTileIndex(tile)));
        return places.join(QLatin1Char(' ')).toStdString();
    }
    QPoint Place(int tile, int port = 0) const { return Tiles(port).GetTile(tile)->GetPosition(); }
};

} // namespace

TEST_F(EditingStory, CabinetsAreSelectedAsEverywhere)
{
    struct Step
    {
        const char* what;
        QList<QPoint> mouse; ///< one place: a click
        Qt::KeyboardModifiers keys;
        const char* selected;
    };
    const Step steps[] = {
        {"a click", {{10, 10}}, Qt::NoModifier, "0:0"},
        {"another", {{300, 200}}, Qt::NoModifier, "1:2"},
        {"shift adds", {{10, 10}}, Qt::ShiftModifier, "0:0 1:2"},
        {"control takes out", {{300, 200}}, Qt::ControlModifier, "0:0"},
        {"beside the wall", {{800, 500}}, Qt::NoModifier, ""},
        {"a band to the right", {{250, 480}, {300, 300}, {560, 100}}, Qt::NoModifier, "1:2 1:3 1:4 1:5"},
        {"a band to the right takes whole ones", {{5, 450}, {300, 100}}, Qt::NoModifier, "0:3 0:5"},
        {"to the left those touched", {{520, 200}, {300, 100}}, Qt::ShiftModifier, "0:3 0:5 1:0 1:1 1:2 1:3"},
    };
    for (const Step& step : steps) {
        if (step.mouse.size() == 1)
            Click(step.mouse.first(), step.keys);
        else
            Drag(step.mouse, step.keys);
        EXPECT_EQ(Selected(), step.selected) << step.what;
    }
    Picture("selected");
    EXPECT_TRUE(document.GetUndoText().isEmpty() && !window.isWindowModified()) << "none of it is an edit";
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.GetMap().ToView(QPoint(10, 10)));
    EXPECT_EQ(document.GetSelection().size(), 6) << "the block";
    document.GetProject().GetSender(0)->GetPort(1)->SetFlagLock(true);
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(document.GetSelection().size(), 6) << "not on a locked port";
    document.SetCurrentPort(0, 1);
    Key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(document.GetSelection().first()->GetPortIndex(), 0);
    EXPECT_TRUE(window.statusBar()->currentMessage().contains("locked"_s));
}

TEST_F(EditingStory, EachEditIsOneStepAndComesBack)
{
    const CPortProject first = *document.GetPort()->GetPortProject();
    Click({10, 10});
    Drag({{10, 10}, {30, 40}, {16, 405}}); // near enough to the block's lower edge and the canvas
    EXPECT_EQ(Place(0), QPoint(0, 384));
    Drag({{16, 405}, {16, 600}, {20, 605}}, Qt::AltModifier);
    EXPECT_EQ(Place(0), QPoint(4, 584)) << "Alt: no snapping";
    Key(Qt::Key_Right);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Place(0), QPoint(132, 585));
    Drag({{140, 600}, {40, 40}, {-400, -400}});
    EXPECT_EQ(Place(0), QPoint(0, 0)) << "never beyond the canvas";
    EXPECT_FALSE(document.MoveSelection({-1, -1}));
    Key(Qt::Key_Delete);
    EXPECT_EQ(Tiles().GetTile(0)->GetConnectionIndex(), 0) << "the chain closed up";
    EXPECT_EQ(document.GetUndoText().toStdString() + document.GetUndoText(1).toStdString(), "DeleteMove");
    EXPECT_TRUE(window.isWindowModified());
    const CPortProject last = *document.GetPort()->GetPortProject();
    document.GetPort()->SetVisible(false);
    for (int i = 0; i < 6; ++i)
        Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(window.isWindowModified() || document.Undo());
    document.GetPort()->GetPortProject()->CancelAllSelected();
    EXPECT_EQ(*document.GetPort()->GetPortProject(), first) << "though it was hidden meanwhile";
    EXPECT_TRUE(document.Redo(6));
    EXPECT_EQ(*document.GetPort()->GetPortProject(), last);

    Click({300, 200});
    const QPoint before = Place(2, 1);
    document.GetProject().GetSender(0)->GetPort(1)->SetFlagLock(true);
    Key(Qt::Key_Right);
    EXPECT_EQ(Place(2, 1), before) << "locked since it was selected";
}

TEST_F(EditingStory, ABlockIsTurnedAndFoundWhereItLies)
{
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.GetMap().ToView(QPoint(10, 10)));
    Drag({{10, 10}, {300, 50}, {500, 190}}, Qt::AltModifier);
    const QRect block = document.GetSelectionBound();
    ASSERT_TRUE(document.TurnSelection(30));
    const SRotateParam record =
        *document.GetPort()->GetTileGroupSet().GetDirectGroupByDirIndex(0)->GetRotateParam();
    EXPECT_TRUE(record.rotated && record.angle == 30 && qAbs(record.centerX - block.center().x()) <= 1);
    EXPECT_GT(document.GetSelectionBound().width(), block.width());
    Picture("turned");
    Click(block.topLeft() + QPoint(5, 5));
    EXPECT_EQ(Selected(), "1:3") << "its corner went elsewhere, and this one was below it";
    Click(block.center() + QPoint(5, 5));
    EXPECT_EQ(document.GetSelection().size(), 1);
    Drag({block.center() + QPoint(128, 74), block.center() + QPoint(100, 58)});
    EXPECT_EQ(Selected(), "0:3") << "touched, and no corner of it";
    const auto turnTwo = [this] { // that have another middle when upright
        document.Select({Tiles().GetTile(0), Tiles().GetTile(3)}, DocumentController::Choice::Replace);
        EXPECT_TRUE(document.TurnSelection(30));
        return document.GetSelectionBound();
    };
    const QRect turned = turnTwo();
    ASSERT_TRUE(document.Undo());
    document.SetRotationOn(false);
    EXPECT_EQ(turnTwo(), turned);
    ASSERT_TRUE(document.Undo(3));
    EXPECT_EQ(Place(0), QPoint(0, 0));
    document.SetRotationOn(false);
}

TEST_F(EditingStory, AnOffsetMovesTheCanvasBelowTheWall)
{
    SenderEdits(document).SetOffset(0, QSize(0, 32));
    EXPECT_EQ(view.GetScene().GetCanvas(), QRect(QPoint(0, -32), document.GetSender()->GetCanvasSize()));
    Click({10, 10});
    Key(Qt::Key_Up, Qt::ShiftModifier);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Place(0), QPoint(1, -1)) << "the canvas begins above, and to the right nothing is in the way";
    ASSERT_TRUE(document.TurnSelection(90));
    EXPECT_EQ(document.GetSelectionBound().top(), -1);
    Key(Qt::Key_Up);
    EXPECT_EQ(document.GetSelectionBound().top(), -32);
    document.SetRotationOn(false);
}

TEST_F(EditingStory, ANumberingIsNotLostToWhatComesAmidst)
{
    ASSERT_TRUE(document.ClearNumbers());
    Key(Qt::Key_N);
    const auto send = [this](QEvent::Type type, const QPoint& wall) {
        QMouseEvent event(type, view.GetMap().ToView(wall), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(view.viewport(), &event);
    };
    send(QEvent::MouseButtonPress, {10, 10});
    send(QEvent::MouseMove, {140, 10});
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Chain(), "0 0 0 0 0 0");
    EXPECT_EQ(document.GetRedoText().toStdString(), "Number");
    send(QEvent::MouseMove, {10, 10});
    EXPECT_TRUE(document.IsSaveNeeded() && window.GetFiles().SaveTo(folder.Path("amidst.prj"_s)));
    send(QEvent::MouseMove, {10, 200});
    send(QEvent::MouseButtonRelease, {10, 200});
    EXPECT_EQ(Chain(), "2 1 3 0 0 0");
    EXPECT_TRUE(document.Undo() && Chain() == "2 1 0 0 0 0" && !document.IsSaveNeeded());
}

TEST_F(EditingStory, ALargeWallIsSelectedMovedAndUndoneAtOnce)
{
    SAddTileInfo block;
    block.senderId = document.GetSender()->GetId();
    block.columns = 256;
    block.rows = 128;
    block.width = block.height = 8;
    block.left = 1000;
    ASSERT_TRUE(document.GetPort()->GetPortProject()->AddTile(block));
    ASSERT_TRUE(GetRuntimeData()->GetProjectUndoRedo()->AddOneStep(CSenderRecordItem::OperationAddTiles));
    view.Fit();
    Drag({{3100, 1060}, {2000, 500}, {990, 0}});
    EXPECT_EQ(document.GetSelection().size(), 32768);
    Drag({{1500, 500}, {1600, 600}, {1620, 700}});
    EXPECT_NE(Place(6), QPoint(1000, 0));
    Picture("large");
    for (int i = 0; i < 12; ++i)
        view.ZoomIn();
    Click(Place(16512) + QPoint(4, 4));
    EXPECT_EQ(Selected(), "0:16512");
    ASSERT_TRUE(document.Undo());
    EXPECT_EQ(Place(6), QPoint(1000, 0));
}
