#include "importactions.h"

#include "makeaction.h"

#include "custommessagebox.h"

#include <QDir>
#include <QFileDialog>
#include <QMenu>

#include <algorithm>

using Outcome = DocumentController::ImportOutcome;

ImportActions::ImportActions(DocumentController& document, QWidget& window)
    : QObject(&window), m_document(document), m_window(window)
{}

void ImportActions::AddTo(QMenu& menu)
{
    const auto add = [this, &menu](bool ofPort, const QString& text, const QString& tip) {
        QAction* action = MakeAction(this, text, tip);
        connect(action, &QAction::triggered, this, [this, ofPort, tip] { Choose(ofPort, tip); });
        menu.addAction(action);
    };
    add(false, tr("Layout of the s&ender…"),
        tr("Replace the layout of the current sender by that of a file"));
    add(true, tr("Layout of the &port…"), tr("Replace the layout of the current port by that of a file"));
}

void ImportActions::Choose(bool ofPort, const QString& title)
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
bool ImportActions::AskHow(LayoutImport* wanted)
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

bool ImportActions::Import(const LayoutImport& wanted)
{
    QString text;
    Outcome outcome = m_document.ImportLayout(wanted, false, &text);
    if (outcome == Outcome::HistoryWouldEnd) {
        const QString question = tr(
            "The file has other backups or another number of ports than this sender. So neither the import "
            "nor what was done to the sender before can be undone afterwards. Import it all the same?");
        if (CCustomMessageBox::question(&m_window, question) != QMessageBox::Yes)
            return false;
        outcome = m_document.ImportLayout(wanted, true, &text);
    }
    const QString name = QDir::toNativeSeparators(wanted.path);
    const bool done = outcome == Outcome::Done;
    if (!text.isEmpty())
        CCustomMessageBox::information(
            &m_window,
            (done ? tr("Not all of %1 could be read.\n\n%2")
                  : tr("%1 was not imported, and nothing was changed. Choose a file that was exported "
                       "as the layout of a sender, or of a port, as the menu says.\n\n%2"))
                .arg(name, text));
    else if (done)
        emit Told(tr("Imported: %1").arg(name));
    return done;
}
