#include "exportactions.h"

#include "documentcontroller.h"
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

using namespace OrvanTools;

namespace {

QStringList EndingsOf(ExportActions::Kind kind)
{
    if (kind <= ExportActions::DrawingFromBehind)
        return {QStringLiteral("pdf"), QStringLiteral("svg"), QStringLiteral("png")};
    if (kind <= ExportActions::SheetsLetter)
        return {QStringLiteral("pdf")};
    if (kind <= ExportActions::CableSchedule)
        return {QStringLiteral("csv"), QStringLiteral("jsonl")};
    return {QStringLiteral("xml")};
}

DrawingFormat FormatOf(const QString& ending)
{
    return ending == QLatin1String("png")   ? DrawingFormat::Png
           : ending == QLatin1String("svg") ? DrawingFormat::Svg
                                            : DrawingFormat::Pdf;
}

Paper PaperOf(ExportActions::Kind kind)
{
    return kind == ExportActions::SheetsA4   ? Paper::A4
           : kind == ExportActions::SheetsA3 ? Paper::A3
                                             : Paper::Letter;
}

} // namespace

ExportActions::ExportActions(const DocumentController& document, QWidget& window)
    : QObject(&window), m_document(document), m_window(window)
{}

void ExportActions::AddTo(QMenu& menu)
{
    const auto add = [this, &menu](Kind kind, const QString& text, const QString& tip, const char* tail) {
        QAction* action = MakeAction(this, text, tip);
        connect(action, &QAction::triggered, this,
                [this, kind, tip, tail] { Choose(kind, tip, QLatin1String(tail)); });
        menu.addAction(action);
    };
    add(Drawing, tr("&Drawing…"), tr("Draw the current sender as it is seen from the front"), "-front");
    add(DrawingFromBehind, tr("Drawing from &behind…"),
        tr("Draw the current sender as it is seen from behind"), "-rear");
    menu.addSeparator();
    const QString sheets = tr("Sheets for the crew: a cover, and pages for each sender and port, on %1");
    add(SheetsA4, tr("Sheets on A&4…"), sheets.arg(QStringLiteral("A4")), "-sheets");
    add(SheetsA3, tr("Sheets on A&3…"), sheets.arg(QStringLiteral("A3")), "-sheets");
    add(SheetsLetter, tr("Sheets on &Letter…"), sheets.arg(QStringLiteral("Letter")), "-sheets");
    menu.addSeparator();
    add(CabinetList, tr("&Cabinet list…"), tr("List all cabinets of the project, for a spreadsheet"),
        "-cabinets");
    add(CableSchedule, tr("Cable &schedule…"), tr("List all cables of the project in chain order"),
        "-cables");
    menu.addSeparator();
    add(SenderLayout, tr("Layout of the s&ender…"),
        tr("Write the current sender's layout to a file of its own, for other projects"), "-sender");
    add(PortLayout, tr("Layout of the &port…"),
        tr("Write the current port's layout to a file of its own, for other projects"), "-port");
}

void ExportActions::Choose(Kind kind, const QString& title, const QString& tail)
{
    const QStringList endings = EndingsOf(kind);
    QStringList filters;
    for (const QString& ending : endings)
        filters.append(QStringLiteral("%1 (*.%2)").arg(ending.toUpper(), ending));
    const QFileInfo project(m_document.GetFile().GetPath());
    QFileDialog dialog(&m_window, title, m_document.GetFile().GetFolder());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(endings.first());
    connect(&dialog, &QFileDialog::filterSelected, &dialog,
            [&](const QString& filter) { dialog.setDefaultSuffix(endings.value(filters.indexOf(filter))); });
    dialog.selectFile((project.completeBaseName().isEmpty() ? tr("wall") : project.completeBaseName())
                      + tail);
    if (dialog.exec() == QDialog::Accepted)
        Export(kind, dialog.selectedFiles().value(0));
}

bool ExportActions::Make(Kind kind, const QString& ending, QIODevice& device)
{
    const CProjectData& project = m_document.GetProject();
    const PortCapacity capacity = CapacityOf(*m_document.GetSender()); // told of all senders
    if (kind <= DrawingFromBehind)
        return WriteLayout(device, FormatOf(ending), project,
                           {project.GetCurSenderIndex(), 0, -1, kind == DrawingFromBehind, capacity});
    if (kind <= SheetsLetter) {
        CCustomProgressbar progress(tr("Drawing the sheets"), &m_window);
        return WriteSheets(device, project,
                           {-1, -1, false, PaperOf(kind), capacity,
                            [&progress](int percent) { progress.SetValue(percent); }});
    }
    const ListForm form = ending == QLatin1String("csv") ? ListForm::Csv : ListForm::JsonLines;
    return kind == CabinetList ? WriteCabinetList(device, form, project)
                               : WriteCableSchedule(device, form, project);
}

/// Why it was not written. Made in memory first, so that nothing lies beside the file while it is drawn.
QString ExportActions::Write(Kind kind, const QString& path)
{
    CProjectData& project = m_document.GetProject();
    const CSender* sender = m_document.GetSender();
    if (!sender)
        return tr("There is no sender yet. Add one first.");
    const QString ending = QFileInfo(path).suffix().toLower();
    const QStringList endings = EndingsOf(kind);
    if (!endings.contains(ending))
        return tr("Its name has to end in .%1.").arg(endings.join(QStringLiteral(", .")));
    if (kind >= SenderLayout) {
        kind == PortLayout ? project.ExportPort(path) : project.ExportSender(path, sender->GetId());
        return project.GetLastFileError();
    }
    QBuffer made;
    made.open(QIODevice::WriteOnly);
    QString why;
    const auto write = [&made](QIODevice& file) { return file.write(made.data()) == made.size(); };
    if (!Make(kind, ending, made) || !WriteWholeFile(path, write, &why))
        return tr("Try another name or folder. %1").arg(why);
    return {};
}

bool ExportActions::Export(Kind kind, const QString& path)
{
    const QString name = QDir::toNativeSeparators(path);
    const QString why = Write(kind, path);
    if (why.isEmpty())
        emit Told(tr("Exported: %1").arg(name));
    else
        CCustomMessageBox::information(&m_window, tr("%1 was not written.\n\n%2").arg(name, why));
    return why.isEmpty();
}
