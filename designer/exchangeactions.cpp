#include "exchangeactions.h"

#include "documentcontroller.h"
#include "fileactions.h"
#include "makeaction.h"

#include "custommessagebox.h"
#include "customprogressbar.h"

#include <orvantools/layoutdrawing.h>
#include <orvantools/portload.h>
#include <orvantools/projectlist.h>
#include <orvantools/sheetset.h>
#include <orvantools/wholefile.h>

#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

#include <algorithm>

using namespace OrvanTools;
using ImportOutcome = DocumentController::ImportOutcome;

namespace {

QString EndingOf(const QString& path)
{
    return QFileInfo(path).suffix().toLower();
}

/// Made in memory first, so that nothing lies beside the file while it is drawn.
QString WriteWhole(const QString& path, const std::function<bool(QIODevice&)>& make)
{
    const QFileInfo there(path);
    if (there.exists() && !there.isFile())
        return ExchangeActions::tr("What has that name is no file. Choose another name.");
    QBuffer made;
    made.open(QIODevice::WriteOnly);
    QString why;
    const auto write = [&made](QIODevice& file) { return file.write(made.data()) == made.size(); };
    if (!make(made) || !WriteWholeFile(path, write, &why))
        return ExchangeActions::tr("Try another name or folder. %1").arg(why);
    return {};
}

using Writer = std::function<QString(const QString& path)>;

Writer Drawing(bool rear)
{
    return [rear](const QString& path) {
        const QString ending = EndingOf(path);
        const DrawingFormat format = ending == QLatin1String("png")   ? DrawingFormat::Png
                                     : ending == QLatin1String("svg") ? DrawingFormat::Svg
                                                                      : DrawingFormat::Pdf;
        const CProjectData& project = *GetProjectData();
        const DrawingOptions options{project.GetCurSenderIndex(), 0, -1, rear, {}, true};
        return WriteWhole(path,
                          [&](QIODevice& device) { return WriteLayout(device, format, project, options); });
    };
}

Writer Sheets(Paper paper, QWidget* window)
{
    return [paper, window](const QString& path) {
        CCustomProgressbar progress(ExchangeActions::tr("Drawing the sheets"), window);
        const auto show = [&progress](int percent) { progress.SetValue(percent); };
        const SheetOptions options{-1, -1, false, paper, {}, show, true};
        return WriteWhole(path,
                          [&](QIODevice& device) { return WriteSheets(device, *GetProjectData(), options); });
    };
}

Writer List(bool (*write)(QIODevice& device, ListForm form, const CProjectData& project))
{
    return [write](const QString& path) {
        const ListForm form = EndingOf(path) == QLatin1String("csv") ? ListForm::Csv : ListForm::JsonLines;
        return WriteWhole(path, [&](QIODevice& device) { return write(device, form, *GetProjectData()); });
    };
}

Writer Layout(bool ofPort)
{
    return [ofPort](const QString& path) {
        CProjectData& project = *GetProjectData();
        ofPort ? project.ExportPort(path) : project.ExportSender(path, project.GetCurrentSender()->GetId());
        return project.GetLastFileError();
    };
}

} // namespace

ExchangeActions::ExchangeActions(DocumentController& document, QWidget& window)
    : QObject(&window), m_document(document), m_window(window)
{
    const QStringList pictures{QStringLiteral("pdf"), QStringLiteral("svg"), QStringLiteral("png")};
    const QStringList pages{QStringLiteral("pdf")};
    const QStringList lists{QStringLiteral("csv"), QStringLiteral("jsonl")};
    const QStringList layouts{QStringLiteral("xml")};
    const QString sheets = tr("Sheets for the crew: a cover, and pages for each sender and port, on %1");
    m_kinds = {
        {tr("&Drawing…"), tr("Draw the current sender as it is seen from the front"), "-front", pictures,
         Drawing(false)},
        {tr("Drawing from &behind…"), tr("Draw the current sender as it is seen from behind"), "-rear",
         pictures, Drawing(true)},
        {tr("Sheets on A&4…"), sheets.arg(QStringLiteral("A4")), "-sheets", pages,
         Sheets(Paper::A4, &window)},
        {tr("Sheets on A&3…"), sheets.arg(QStringLiteral("A3")), "-sheets", pages,
         Sheets(Paper::A3, &window)},
        {tr("Sheets on &Letter…"), sheets.arg(QStringLiteral("Letter")), "-sheets", pages,
         Sheets(Paper::Letter, &window)},
        {tr("&Cabinet list…"), tr("List all cabinets of the project, for a spreadsheet"), "-cabinets", lists,
         List(WriteCabinetList)},
        {tr("Cable &schedule…"), tr("List all cables of the project in chain order"), "-cables", lists,
         List(WriteCableSchedule)},
        {tr("Layout of the s&ender…"),
         tr("Write the current sender's layout to a file of its own, for other projects"), "-sender", layouts,
         Layout(false)},
        {tr("Layout of the &port…"),
         tr("Write the current port's layout to a file of its own, for other projects"), "-port", layouts,
         Layout(true)},
    };
}

void ExchangeActions::AddTo(QMenu& menu)
{
    QMenu* exports = menu.addMenu(tr("&Export"));
    exports->menuAction()->setStatusTip(tr("Write drawings, sheets, lists or layouts for others"));
    for (size_t i = 0; i < m_kinds.size(); ++i) {
        if (i > 0 && m_kinds[i].endings != m_kinds[i - 1].endings)
            exports->addSeparator();
        AddAction(*exports, this, m_kinds[i].text, m_kinds[i].tip, {}, [this, i] { ChooseExport(i); });
    }
    QMenu* imports = menu.addMenu(tr("&Import"));
    imports->menuAction()->setStatusTip(tr("Replace a layout by that of a file from another project"));
    for (const bool ofPort : {false, true}) {
        const QString tip = ofPort ? tr("Replace the layout of the current port by that of a file")
                                   : tr("Replace the layout of the current sender by that of a file");
        AddAction(*imports, this, ofPort ? tr("Layout of the &port…") : tr("Layout of the s&ender…"), tip, {},
                  [this, ofPort, tip] { ChooseImport(ofPort, tip); });
    }
}

void ExchangeActions::Tell(const QString& text)
{
    CCustomMessageBox::information(&m_window, text);
}

void ExchangeActions::ChooseExport(size_t kind)
{
    if (!m_document.GetSender())
        return Tell(tr("There is no sender yet. Add one first."));
    const QStringList& endings = m_kinds[kind].endings;
    QStringList filters;
    for (const QString& ending : endings)
        filters.append(QStringLiteral("%1 (*.%2)").arg(ending.toUpper(), ending));
    const QString path = FileActions::AskForPath(&m_window, m_document.GetFile(), m_kinds[kind].tip,
                                                 QLatin1String(m_kinds[kind].tail), filters);
    if (!path.isEmpty())
        Export(kind, path);
}

bool ExchangeActions::Export(size_t kind, const QString& path)
{
    const QString name = QDir::toNativeSeparators(path);
    const QStringList& endings = m_kinds[kind].endings;
    const QString why = endings.contains(EndingOf(path))
                            ? m_kinds[kind].write(path)
                            : tr("Its name has to end in .%1.").arg(endings.join(QStringLiteral(", .")));
    if (why.isEmpty())
        emit Told(tr("Exported: %1").arg(name));
    else
        Tell(tr("%1 was not written.\n\n%2").arg(name, why));
    return why.isEmpty();
}

void ExchangeActions::ChooseImport(bool ofPort, const QString& title)
{
    if (!m_document.MayImport(ofPort))
        return;
    LayoutImport wanted;
    wanted.ofPort = ofPort;
    wanted.path = QFileDialog::getOpenFileName(&m_window, title, m_document.GetFile().GetFolder(),
                                               tr("Layouts (*.xml);;All files (*)"));
    if (!wanted.path.isEmpty() && (ofPort || AskHow(&wanted)))
        Import(wanted);
}

/// False: given up.
bool ExchangeActions::AskHow(LayoutImport* wanted)
{
    const auto ask = [this](const QString& question, bool* yes) {
        const auto answer = CCustomMessageBox::question(
            &m_window, question, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        *yes = answer == QMessageBox::Yes;
        return *yes || answer == QMessageBox::No;
    };
    const auto& ports = m_document.GetSender()->GetPorts();
    const bool anyLocked =
        std::any_of(ports.begin(), ports.end(), [](const CPort& port) { return port.IsFlagLock(); });
    return (!anyLocked || ask(tr("Keep the ports that are locked as they are?"), &wanted->keepLockedPorts))
           && ask(tr("Take names, canvas and background from the file too? No undo takes these back."),
                  &wanted->attributes);
}

bool ExchangeActions::Import(const LayoutImport& wanted)
{
    QString text;
    ImportOutcome outcome = m_document.ImportLayout(wanted, false, &text);
    if (outcome == ImportOutcome::HistoryWouldEnd) {
        const QString question = tr(
            "The file has other backups or another number of ports than this sender. So neither the import "
            "nor what was done to the sender before can be undone afterwards. Import it all the same?");
        if (CCustomMessageBox::question(&m_window, question) != QMessageBox::Yes)
            return false;
        outcome = m_document.ImportLayout(wanted, true, &text);
    }
    const QString name = QDir::toNativeSeparators(wanted.path);
    const bool done = outcome == ImportOutcome::Done;
    if (!text.isEmpty())
        Tell((done ? tr("Not all of %1 could be read.\n\n%2")
                   : tr("%1 was not imported, and nothing was changed. Choose a file that was exported "
                        "as the layout of a sender, or of a port, as the menu says.\n\n%2"))
                 .arg(name, text));
    else if (done)
        emit Told(tr("Imported: %1").arg(name));
    return done;
}
