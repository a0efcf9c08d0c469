#include "blockdialog.h"
#include "cardsbox.h"
#include "designerstory.h"
#include "faultsdock.h"
#include "projecttree.h"
#include "tools/runorvan.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QJsonArray>
#include <QListWidget>
#include <QSpinBox>
#include <QStatusBar>
#include <QTimer>

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
    /// What the command prints of a port in the file: "x,y width×height number angle", in list order.
    static std::string Told(const QString& path, int port)
    {
        const OrvanRun run = RunOrvan({"info"_s, path, "--json"_s, "--tiles"_s});
        const QJsonObject sender = run.Json()["senders"_s].toArray()[0].toObject();
        QStringList tiles;
        for (const QJsonValue& value : sender["ports"_s].toArray()[port].toObject()["tiles"_s].toArray()) {
            const QJsonObject tile = value.toObject();
            tiles.append(QStringLiteral("%1,%2 %3×%4 %5 %6")
                             .arg(tile["x"_s].toInt())
                             .arg(tile["y"_s].toInt())
                             .arg(tile["width"_s].toInt())
                             .arg(tile["height"_s].toInt())
                             .arg(tile["index"_s].toInt())
                             .arg(tile["rotation"_s].toObject()["angle"_s].toDouble()));
        }
        return tiles.join("; "_s).toStdString();
    }
    std::string Chain(int port) const ///< the cabinets' numbers, in list order
    {
        QStringList numbers;
        for (const CTile* tile : Tiles(port))
            numbers.append(QString::number(tile->GetConnectionIndex() + 1));
        return numbers.join(QLatin1Char(' ')).toStdString();
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

TEST_F(WallStory, AWallIsBuiltAndNumberedByMouseAndKeys)
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
    SenderEdits(document).SetValue(0, &CSender::GetSenderName, &CSender::SetSenderName, "Stage"_s);
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
    auto* list = faults.findChild<QListWidget*>();
    const auto clickFault = [list] {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    };
    document.Select({}, DocumentController::Choice::Replace);
    view.ActualSize();
    document.GetPort()->SetFlagLock(true);
    clickFault();
    EXPECT_TRUE(document.GetSelection().isEmpty()
                && window.statusBar()->currentMessage().contains("locked"_s));
    document.GetPort()->SetFlagLock(false);
    clickFault();
    EXPECT_EQ(document.GetSelection(), QList<CTile*>{Tiles().GetTile(4)});
    EXPECT_TRUE(view.GetMap().GetShown().contains(QRect(1850, 50, 100, 100)));
    Picture("fault");
    Key(Qt::Key_Delete);
    QTRY_COMPARE(faults.GetFaultCount(), 0);
}

TEST_F(WallStory, TheSampleWallIsBuiltFromNothing)
{
    AddBlock({2, 2, 100, 200});
    ClickPort(1);
    AddBlock({3, 1, 60, 80, 400, 300});
    QTest::keyClick(&window, Qt::Key_2, Qt::AltModifier);
    ClickPort(0);
    Key(Qt::Key_N);
    for (const int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left})
        Key(key);
    Key(Qt::Key_S);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.GetMap().ToView(QPoint(410, 310)));
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        auto* angle = dialog->findChild<QDoubleSpinBox*>();
        angle->selectAll();
        QTest::keyClicks(angle, "30"_s);
        QTest::keyClick(angle, Qt::Key_Return);
    });
    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const int steps = 8; // two blocks, a pattern, four numbers, a turn
    for (int i = 0; i < steps; ++i)
        QTest::keySequence(&view, QKeySequence::Undo);
    EXPECT_TRUE(view.GetScene().GetBound().isNull() && !window.isWindowModified() && Load(1) == "0 %");
    for (int i = 0; i < steps; ++i)
        QTest::keySequence(&view, QKeySequence::Redo);
    const QString path = folder.Path("sample.prj"_s);
    ASSERT_TRUE(window.GetFiles().SaveTo(path));
    EXPECT_EQ(Told(path, 0), "0,0 100×200 0 0; 100,0 100×200 1 0; 0,200 100×200 3 0; 100,200 100×200 2 0");
    EXPECT_EQ(Told(path, 1), "408,270 60×80 2 30; 460,300 60×80 1 30; 512,330 60×80 0 30");
    document.NewProject();
    document.SetRotationOn(false);
    ASSERT_TRUE(window.GetFiles().Open(path));
    EXPECT_EQ(Chain(0) + Chain(1), "1 2 4 33 2 1");
    EXPECT_TRUE(Tiles(1).GetTile(0)->IsTileRotated()) << "though that was not shown before";
    document.SetRotationOn(false);
}

TEST_F(WallStory, ABlockOfAProductHasItsSizeAndItsCardsAreWired)
{
    const QString file = WriteFile(CProductDirectorySet::GetRootDir() + "Outdoor.rcvbp"_s, "a card's file");
    CProductDirectorySet& products = *GetRuntimeData()->GetProductDirectorySet();
    products.LoadProductInfo();
    CProduct& product = *products.FindProductFromFileName("Outdoor.rcvbp"_s);
    product.SetPixelWidth(60);
    product.SetPixelHeight(80);
    product.SetMulti(true);
    Key(Qt::Key_Insert);
    auto* dialog = window.findChild<BlockDialog*>();
    QTest::keyClick(dialog->findChild<QComboBox*>(), Qt::Key_Down);
    auto* cards = dialog->findChild<CardsBox*>();
    for (QSpinBox* box : cards->findChildren<QSpinBox*>()) {
        box->selectAll();
        QTest::keyClicks(box, box == cards->findChild<QSpinBox*>() ? "3"_s : "2"_s);
    }
    for (int i = 0; i < AutoNumberColumnsTopRight; ++i)
        QTest::keyClick(cards->findChild<QComboBox*>(), Qt::Key_Down);
    Picture("cards");
    QTest::keyClick(dialog, Qt::Key_Return);
    QFile::remove(file);
    ASSERT_EQ(Tiles().GetCount(), 12);
    const CTile& tile = *Tiles().GetTile(0);
    EXPECT_TRUE(tile.GetSize() == QSize(60, 80) && tile.GetType() == product.GetMd5());
    EXPECT_TRUE(tile.IsMultiRcvTile() && tile.GetMultiRcvsSize() == QSize(3, 2));
    EXPECT_EQ(QByteArray(reinterpret_cast<const char*>(tile.GetMultiRcvsLine()), 6),
              QByteArray("\4\5\3\2\0\1", 6));
}

TEST_F(WallStory, AGridLiesBelowTheCabinetsAndGroupsAreOutlined)
{
    AddBlock({2, 2, 100, 100});
    view.ActualSize();
    view.ScrollTo({});
    const QColor ground = ColorAt({330, 330});
    EXPECT_NE(ColorAt({336, 330}), ground);
    EXPECT_NE(ColorAt({330, 384}), ColorAt({330, 368})) << "each fourth line is stronger";
    Key(Qt::Key_NumberSign);
    EXPECT_EQ(ColorAt({336, 330}), ground);
    EXPECT_FALSE(GetConfigData()->IsShowGrid()) << "kept for the next start";
    Key(Qt::Key_NumberSign);

    const auto outline = [this] { return view.GetScene().GetPorts()[0].groups.at(0); };
    EXPECT_EQ(outline(), QPolygonF(QRectF(0, 0, 200, 200)));
    Key(Qt::Key_A, Qt::ControlModifier);
    ASSERT_TRUE(document.TurnSelection(45));
    const QPolygonF turned = outline();
    EXPECT_NEAR(QLineF(turned[0], turned[1]).length(), 200, 1.5) << "turned as they are, and no larger";
    EXPECT_NEAR(turned.boundingRect().width(), 283, 2);
    document.SetRotationOn(false);
}
