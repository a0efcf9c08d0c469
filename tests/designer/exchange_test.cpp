#include "designerstory.h"
#include "exportactions.h"
#include "importactions.h"
#include "senderedits.h"
#include "tools/runorvan.h"

#include <QStatusBar>

namespace {

struct ExchangeStory : DesignerStory
{
    ExportActions& exports = *window.findChild<ExportActions*>();
    ImportActions& imports = *window.findChild<ImportActions*>();
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
    int kind = ExportActions::Drawing;
    for (const auto& [name, command] : kinds) {
        const QString wanted = folder.Path("wanted-"_s + Arg(name));
        ASSERT_TRUE(exports.Export(ExportActions::Kind(kind++), folder.Path(Arg(name)))) << name;
        ASSERT_EQ(RunOrvan(Arg(command).split(QLatin1Char(' ')) + QStringList{project, wanted}).status, 0);
        EXPECT_TRUE(ReadFile(folder.Path(Arg(name))) == ReadFile(wanted)) << name;
    }
    EXPECT_TRUE(window.statusBar()->currentMessage().contains("g.jsonl"_s));
    EXPECT_FALSE(exports.Export(ExportActions::Drawing, project)
                 || exports.Export(ExportActions::SheetsA4, folder.Path("missing/a.pdf"_s)));
    EXPECT_TRUE(messages.texts.value(0).contains("end in .pdf, .svg, .png"_s));
    EXPECT_TRUE(messages.texts.value(1).contains("a.pdf was not written"_s));
}

TEST_F(ExchangeStory, AnImportIsOneStepOrAsksFirst)
{
    const QString port = folder.Path("port.xml"_s);
    const QString sender = folder.Path("sender.xml"_s);
    ASSERT_TRUE(window.GetFiles().Open(MakeProject("small.prj"_s, QSize(2, 2), 1, 0)));
    ASSERT_TRUE(exports.Export(ExportActions::PortLayout, port));
    ASSERT_TRUE(window.GetFiles().Open(MakeProject("wall.prj"_s, QSize(6, 4), 2, 0)));
    document.GetSender()->SetRecentPortIndex(kMaxPorts - 1);
    ASSERT_TRUE(exports.Export(ExportActions::SenderLayout, sender));
    document.KeepCurrentPort();
    ASSERT_TRUE(document.NumberAll(AutoNumberColumnsTopLeft));
    const CPortProject numbered = *document.GetPort()->GetPortProject();
    EXPECT_TRUE(imports.Import({port, true}) && Tiles().GetCount() == 4);
    EXPECT_TRUE(imports.Import({sender}) && view.GetScene().GetPorts()[0].cabinets.size() == 12);
    EXPECT_EQ(document.GetPort()->GetPortIndex(), 0) << "one that is in use";
    EXPECT_EQ(document.GetUndoText(1).toStdString(), "Import layout");
    ASSERT_TRUE(document.Undo(2) && messages.Take().isEmpty());
    EXPECT_EQ(*document.GetPort()->GetPortProject(), numbered);

    document.GetSender()->GetPort(1)->SetBeBackupDest(document.GetSender()->GetId(), 0);
    EXPECT_FALSE(imports.Import({sender})) << "the answer was no";
    EXPECT_EQ(*document.GetPort()->GetPortProject(), numbered);
    messages.answer = QMessageBox::Yes;
    EXPECT_TRUE(imports.Import({sender}) && !document.GetSender()->GetPort(1)->IsBackupDest());
    EXPECT_TRUE(document.GetUndoText().isEmpty() && document.GetRedoText().isEmpty()
                && document.IsModified());

    SenderEdits(document).SetLocked({0, 0}, true);
    EXPECT_FALSE(imports.Import({port, true}) || imports.Import({port}));
    EXPECT_TRUE(window.statusBar()->currentMessage().contains("Port 1 is locked"_s));
    EXPECT_TRUE(messages.texts.last().contains("port.xml was not imported"_s) && Tiles().GetCount() == 12);
}
