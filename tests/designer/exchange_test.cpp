#include "designerstory.h"
#include "exchangeactions.h"
#include "senderedits.h"
#include "tools/runorvan.h"

#include <QStatusBar>

namespace {

struct ExchangeStory : DesignerStory
{
    enum // as the menu lists them
    {
        Drawing,
        SheetsA4 = 2,
        SenderLayout = 7,
        PortLayout,
    };

    ExchangeActions& files = *window.findChild<ExchangeActions*>();
};

} // namespace

TEST_F(ExchangeStory, ExportsAreWhatTheCommandWrites)
{
    const QString project = MakeProject("wall.prj"_s, QSize(6, 4), 2, 0);
    ASSERT_TRUE(window.GetFiles().Open(project));
    const char* kinds[][2] = {{"a.pdf", "render"},
                              {"b.SVG", "render --rear"},
                              {"c.pdf", "render --sheets"},
                              {"d.pdf", "render --sheets --paper A3"},
                              {"e.pdf", "render --sheets --paper letter"},
                              {"f.csv", "export"},
                              {"g.jsonl", "export --chains"}};
    size_t kind = Drawing;
    for (const auto& [name, command] : kinds) {
        const QString wanted = folder.Path("wanted-"_s + Arg(name));
        ASSERT_TRUE(files.Export(kind++, folder.Path(Arg(name)))) << name;
        ASSERT_EQ(RunOrvan(Arg(command).split(QLatin1Char(' ')) + QStringList{project, wanted}).status, 0);
        EXPECT_TRUE(ReadFile(folder.Path(Arg(name))) == ReadFile(wanted)) << name;
    }
    EXPECT_TRUE(window.statusBar()->currentMessage().contains("g.jsonl"_s));
    EXPECT_FALSE(files.Export(Drawing, project) || files.Export(SheetsA4, folder.Path("missing/a.pdf"_s)));
    EXPECT_TRUE(messages.texts.value(0).contains("end in .pdf, .svg, .png"_s));
    EXPECT_TRUE(messages.texts.value(1).contains("a.pdf was not written"_s));

    document.AddSender();
    SAddTileInfo block;
    block.senderId = document.GetSender()->GetId();
    block.columns = block.rows = 2;
    block.width = block.height = 200;
    ASSERT_TRUE(document.AddBlock(block));
    const auto sheets = [&](int current) {
        document.SetCurrentSender(current);
        EXPECT_TRUE(files.Export(SheetsA4, folder.Path("both.pdf"_s)));
        return ReadFile(folder.Path("both.pdf"_s));
    };
    const QByteArray before = sheets(0);
    document.GetProject().GetSender(1)->SetSignalFreq(144);
    EXPECT_TRUE(sheets(0) == sheets(1) && sheets(0) != before) << "loads at each sender's own rate";
}

TEST_F(ExchangeStory, AnImportIsOneStepOrAsksFirst)
{
    const QString port = folder.Path("port.xml"_s);
    const QString sender = folder.Path("sender.xml"_s);
    ASSERT_TRUE(window.GetFiles().Open(MakeProject("small.prj"_s, QSize(2, 2), 1, 0)));
    ASSERT_TRUE(files.Export(PortLayout, port));
    ASSERT_TRUE(window.GetFiles().Open(MakeProject("wall.prj"_s, QSize(6, 4), 2, 0)));
    document.GetSender()->SetRecentPortIndex(kMaxPorts - 1);
    ASSERT_TRUE(files.Export(SenderLayout, sender));
    document.KeepCurrentPort();
    ASSERT_TRUE(document.NumberAll(AutoNumberColumnsTopLeft));
    const CPortProject numbered = *document.GetPort()->GetPortProject();
    EXPECT_TRUE(files.Import({port, true}) && Tiles().GetCount() == 4);
    EXPECT_TRUE(files.Import({sender}) && view.GetScene().GetPorts()[0].cabinets.size() == 12);
    EXPECT_EQ(document.GetPort()->GetPortIndex(), 0) << "one that is in use";
    EXPECT_EQ(document.GetUndoText(1).toStdString(), "Import layout");
    ASSERT_TRUE(document.Undo(2) && messages.Take().isEmpty());
    EXPECT_EQ(*document.GetPort()->GetPortProject(), numbered);

    document.GetSender()->GetPort(1)->SetBeBackupDest(document.GetSender()->GetId(), 0);
    EXPECT_FALSE(files.Import({sender})) << "the answer was no";
    EXPECT_EQ(*document.GetPort()->GetPortProject(), numbered);
    messages.answer = QMessageBox::Yes;
    EXPECT_TRUE(files.Import({sender}) && !document.GetSender()->GetPort(1)->IsBackupDest());
    EXPECT_TRUE(document.GetUndoText().isEmpty() && document.GetRedoText().isEmpty()
                && document.IsModified());

    SenderEdits(document).SetLocked({0, 0}, true);
    EXPECT_FALSE(files.Import({port, true}) || files.Import({port}));
    EXPECT_TRUE(window.statusBar()->currentMessage().contains("Port 1 is locked"_s));
    EXPECT_TRUE(messages.texts.last().contains("port.xml was not imported"_s) && Tiles().GetCount() == 12);
}
