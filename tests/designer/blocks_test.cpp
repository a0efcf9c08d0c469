#include "designerstory.h"

#include <QDebug>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStatusBar>

namespace {

constexpr auto kCtrl = Qt::ControlModifier;
constexpr auto kCtrlShift = Qt::ControlModifier | Qt::ShiftModifier;

/// Two ports with a block of two columns and three rows each, 128 pixels a cabinet, just opened. At the end
/// all is undone and redone, step by step.
struct BlocksStory : DesignerStory
{
    BlocksStory()
    {
        EXPECT_TRUE(window.GetFiles().Open(MakeProject("wall.prj"_s, QSize(4, 3), 2, 0)));
        window.resize(1500, 900);
        view.ActualSize();
        view.ScrollTo({});
        layouts.push_back(Layout());
    }
    ~BlocksStory() override
    {
        for (size_t i = layouts.size() - 1; i > 0; --i)
            EXPECT_TRUE(document.Undo() && Layout() == layouts[i - 1]) << "step " << i << ": " << Layout();
        EXPECT_FALSE(document.Undo());
        EXPECT_TRUE(document.Redo(static_cast<int>(layouts.size()) - 1) && Layout() == layouts.back());
        document.SetRotationOn(false);
    }
    std::string Layout() ///< all that an undo has to bring back
    {
        QString text;
        QDebug out(&text);
        for (const int port : {0, 1}) {
            for (const CTile* tile : Tiles(port))
                out << *tile << tile->GetGroupId() << tile->GetRotateRecord();
            QList<CTileGroup*> groups;
            Groups(port).GetGroupListRecursive(groups);
            for (const CTileGroup* group : qAsConst(groups))
                out << *group << group->GetParentGroupID() << *group->GetRotateParam();
        }
        return text.toStdString();
    }
    void Step(const char* name) ///< one more was made, and did something
    {
        EXPECT_EQ(document.GetUndoText().toStdString(), name);
        EXPECT_NE(Layout(), layouts.back()) << name;
        layouts.push_back(Layout());
    }
    void KeyStep(int key, Qt::KeyboardModifiers keys, const char* name)
    {
        Key(key, keys);
        Step(name);
    }
    bool IsTold(const char* what)
    {
        return Layout() == layouts.back()
               && window.statusBar()->currentMessage().contains(QLatin1String(what));
    }
    void SelectBlock(const QPoint& wall)
    {
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.GetMap().ToView(wall));
    }
    void SelectTopRow()
    {
        Click({10, 10});
        Click({140, 10}, Qt::ShiftModifier);
    }
    bool IsEnabled(const char* text)
    {
        for (const QAction* action : window.findChildren<QAction*>()) {
            if (action->text() == QString::fromUtf8(text))
                return action->isEnabled();
        }
        return false;
    }
    CTileGroupSet& Groups(int port) { return document.GetSender()->GetPort(port)->GetTileGroupSet(); }
    const CTileGroup& Group(int index) { return *Groups(0).GetDirectGroupByDirIndex(index); }
    double Angle(int tile) { return Tiles().GetTile(tile)->GetRotateRecord().angle; }

    std::vector<std::string> layouts;
};

} // namespace

TEST_F(BlocksStory, GroupsAreMadeTakenApartAndNested)
{
    EXPECT_FALSE(IsEnabled("&Turn…") || IsEnabled("U&ngroup") || IsEnabled("&Delete sender…"));
    Click({10, 10});
    EXPECT_TRUE(IsEnabled("&Turn…") && IsEnabled("U&ngroup") && !IsEnabled("&Group"));
    document.SetCurrentPort(0, 0);
    ASSERT_TRUE(document.ClearNumbers() && !IsEnabled("&Clear numbers"));
    document.Undo();
    Key(Qt::Key_A, kCtrl);
    Key(Qt::Key_G, kCtrl);
    EXPECT_TRUE(IsTold("one port"));
    SelectTopRow();
    Key(Qt::Key_G, kCtrl);
    EXPECT_TRUE(IsTold("part of a group"));
    KeyStep(Qt::Key_G, kCtrlShift, "Ungroup");
    KeyStep(Qt::Key_G, kCtrl, "Group");
    Key(Qt::Key_G, kCtrl);
    EXPECT_TRUE(IsTold("two cabinets or groups")) << "it is one already";
    Click({10, 10});
    Click({10, 200}, Qt::ShiftModifier);
    Key(Qt::Key_G);
    EXPECT_EQ(document.GetSelection().size(), 3) << "all of its group";
    KeyStep(Qt::Key_G, kCtrl, "Group");
    EXPECT_EQ(Groups(0).GetDirectCount() * 10 + Group(0).GetSubGroupCount(), 11);
    EXPECT_EQ(Group(0).GetRotateParam()->height, 256);
    SelectTopRow();
    Key(Qt::Key_Delete);
    EXPECT_EQ(Group(0).GetSubGroupCount(), 0) << "the inner one went with its cabinets";
    document.Undo();
    SelectBlock({10, 10});
    EXPECT_EQ(document.GetSelection().size(), 3);
    KeyStep(Qt::Key_G, kCtrlShift, "Ungroup");
    EXPECT_TRUE(Groups(0).GetDirectCount() == 1 && Group(0).GetParentGroupID().isNull()) << "the inner one";
}

TEST_F(BlocksStory, TheKnobTurnsTheSelection)
{
    SelectBlock({10, 10});
    Drag({{100, 300}, {300, 350}, {400, 420}}, Qt::AltModifier);
    Step("Move");
    const QRect block = document.GetSelectionBound();
    const QPoint knob(block.center().x(), block.top() - 24);
    const QPoint right = block.center() + QPoint(220, 10);
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, view.GetMap().ToView(knob));
    QMouseEvent move(QEvent::MouseMove, view.GetMap().ToView(right), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(view.viewport(), &move);
    Picture("turning");
    Key(Qt::Key_Escape);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, view.GetMap().ToView(right));
    EXPECT_EQ(Layout(), layouts.back());
    Drag({knob, block.center() + QPoint(100, -100), right}, Qt::ShiftModifier);
    Step("Turn");
    EXPECT_EQ(Angle(0), 90) << "in steps of 15 degrees";
    EXPECT_EQ(document.GetSelectionBound().size(), block.size().transposed());
    Drag({{block.center()}, {200, 400}, {-300, 500}});
    Step("Move");
    ASSERT_TRUE(document.TurnSelection(45));
    Step("Turn");
    EXPECT_EQ(document.GetSelectionBound().left(), 0) << "never where no view shows it";
}

TEST_F(BlocksStory, CopiesOutliveTheirCabinets)
{
    SelectBlock({10, 10});
    ASSERT_TRUE(document.TurnSelectionTo(180));
    Step("Turn");
    const QRect place = document.GetSelectionBound();
    const QUuid group = Group(0).GetID();
    KeyStep(Qt::Key_X, kCtrl, "Cut");
    EXPECT_EQ(Groups(0).GetDirectCount() + Tiles().GetCount(), 0);
    KeyStep(Qt::Key_V, kCtrl, "Paste");
    EXPECT_EQ(document.GetSelectionBound(), place) << "nothing is there";
    KeyStep(Qt::Key_V, kCtrl, "Paste");
    Picture("pasted");
    EXPECT_EQ(document.GetSelectionBound(), place.translated(512, 0))
        << "the other port's block is beside it";
    EXPECT_EQ(Chain(), "0 0 0 0 0 0 0 0 0 0 0 0");
    EXPECT_EQ(Angle(9), 180);
    ASSERT_EQ(Groups(0).GetDirectCount(), 2);
    EXPECT_TRUE(Group(1).GetID() != group && Group(1).GetID() != Group(0).GetID());
    EXPECT_EQ(Group(1).GetRotateParam()->centerX, 640);
    document.GetPort()->SetFlagLock(true);
    Key(Qt::Key_V, kCtrl);
    EXPECT_TRUE(IsTold("locked"));
    document.GetPort()->SetFlagLock(false);
}

TEST_F(BlocksStory, CabinetsMoveToAnotherPort)
{
    const auto moveToPort = [this](int port) {
        const QList<QAction*> all = window.findChildren<QAction*>();
        const auto found = std::find_if(all.begin(), all.end(),
                                        [](QAction* action) { return action->text() == "&Move to port"_s; });
        emit(*found)->menu()->aboutToShow();
        (*found)->menu()->actions()[port]->trigger();
    };
    Click({10, 10});
    moveToPort(1);
    Step("Move to port");
    EXPECT_EQ(Chain(0) + ", " + Chain(1), "1 3 2 4 5, 1 2 4 3 5 6 0") << "one chain closes up";
    EXPECT_TRUE(Tiles(1).GetTile(6)->GetGroupId().isNull()) << "its group stayed";
    EXPECT_EQ(document.GetPort()->GetPortIndex(), 1);
    SelectBlock({200, 10});
    moveToPort(1);
    Step("Move to port");
    EXPECT_EQ(Groups(0).GetDirectCount() * 10 + Groups(1).GetDirectCount(), 2) << "and now all of it goes";
    EXPECT_EQ(document.GetSelection().size(), 5);
    document.GetSender()->GetPort(0)->SetFlagLock(true);
    moveToPort(0);
    EXPECT_EQ(Layout(), layouts.back());
}

TEST_F(BlocksStory, PropertiesAreShownAndTyped)
{
    const auto type = [this](const char* field, const char* text, bool enters = true) {
        Type(Find<QLineEdit>("Cabinets", field), text, enters);
    };
    const auto shown = [this](const char* info) { return Find<QLabel>("Cabinets", info)->text(); };
    auto* width = Find<QLineEdit>("Cabinets", "Width");
    Click({10, 10});
    type("Width", "2000");
    Step("Resize");
    type("Width", "wide");
    EXPECT_EQ(width->text() + shown("Number"), "10241"_s) << "as wide as they come";
    Key(Qt::Key_A, kCtrl);
    QTRY_COMPARE(shown("Selected"), "12"_s);
    width->setFocus();
    QTest::keyClick(width, Qt::Key_X, kCtrl);
    QTest::keyClick(width, Qt::Key_Delete);
    EXPECT_TRUE(Tiles().GetCount() == 6 && Layout() == layouts.back()) << "keys that are the field's";
    EXPECT_TRUE(width->text().isEmpty() && width->placeholderText() == "mixed"_s);
    EXPECT_EQ(shown("Number") + shown("Port"), "mixedmixed"_s);
    Picture("properties");
    type("Height", "64");
    Step("Resize");
    EXPECT_EQ(Tiles(1).GetBound(), QRect(256, 0, 256, 192)) << "the rows stay together";
    EXPECT_EQ(Group(0).GetRotateParam()->centerY, 96);
    type("Left", "32000");
    Step("Move");
    EXPECT_EQ(document.GetSelectionBound().right(), 32767) << "no farther than any canvas goes";
    type("Width", "1024");
    EXPECT_TRUE(IsTold("largest canvas"));
    type("Left", "100");
    Step("Move");
    EXPECT_EQ(Tiles(1).GetBound(), QRect(356, 0, 256, 192));
    Click({400, 10});
    type("Angle", "20", false);
    Click({120, 150}, Qt::ShiftModifier);
    Step("Turn");
    EXPECT_TRUE(Angle(0) == 20 && Angle(4) == 0) << "what was selected when it was typed";
    type("Angle", "30,5");
    Step("Turn");
    EXPECT_TRUE(Angle(0) == 30.5 && Angle(4) == 30.5);
}

TEST_F(BlocksStory, ACabinetIsInsertedIntoTheChain)
{
    ASSERT_TRUE(document.ClearNumbers());
    Step("Clear numbers");
    Key(Qt::Key_N);
    for (const QPoint& place : {QPoint(10, 10), QPoint(140, 10), QPoint(140, 200)}) {
        Click(place);
        Step("Number");
    }
    Click({10, 300}, Qt::ShiftModifier);
    EXPECT_TRUE(IsTold("Click the numbered cabinet first"));
    Click({10, 10});
    Click({10, 300}, Qt::ShiftModifier);
    Step("Number");
    KeyStep(Qt::Key_Up, Qt::ShiftModifier, "Number");
    Picture("inserted");
    EXPECT_EQ(Chain(), "1 4 3 5 2 0");
    EXPECT_EQ(Tiles().GetTile(3)->GetBeginRcvCnnt(), 4);
}
