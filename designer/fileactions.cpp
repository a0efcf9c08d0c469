#include "fileactions.h"

#include "documentcontroller.h"
#include "makeaction.h"
#include "pageform.h"

#include "custommessagebox.h"
#include "customprogressbar.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

namespace {

constexpr int kMostRecent = 9;

} // namespace

FileActions::FileActions(DocumentController& document, QWidget& window)
    : QObject(&window), m_document(document), m_window(window)
{}

void FileActions::AddTo(QMenu& menu)
{
    AddAction(menu, this, tr("&New"), tr("Start an empty project with one sender"), QKeySequence::New,
              [this] { New(); });
    AddAction(menu, this, tr("&Open…"), tr("Open a project: an archive (.prj) or a bare document (.xml)"),
              QKeySequence::Open, [this] { Choose(); });
    m_recent = menu.addMenu(tr("Open &recent"));
    m_recent->menuAction()->setStatusTip(tr("Open one of the projects that were open last"));
    connect(m_recent, &QMenu::aboutToShow, this, &FileActions::FillRecent);
    menu.addSeparator();
    AddAction(menu, this, tr("&Save"), tr("Save the project to its file"), QKeySequence::Save,
              [this] { Save(); });
    AddAction(menu, this, tr("Save &as…"), tr("Save the project under another name"), Keys("Ctrl+Shift+S"),
              [this] { SaveAs(); });
}

void FileActions::FillRecent()
{
    m_recent->clear();
    const CConfigData& config = *GetConfigData();
    for (int i = 0; i < qMin(config.GetProjectRecordCount(), kMostRecent); ++i) {
        const QString path = config.GetProjectRecordPath(i);
        QString name = QDir::toNativeSeparators(path);
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        m_recent->addAction(QStringLiteral("&%1  %2").arg(QString::number(i + 1), name), this,
                            [this, path] { Open(path); });
    }
    if (m_recent->isEmpty())
        m_recent->addAction(tr("None yet"))->setEnabled(false);
}

void FileActions::Tell(const QString& text)
{
    CCustomMessageBox::information(&m_window, text);
}

bool FileActions::MayLeave()
{
    PageForm::FinishTyping();
    if (!m_document.IsSaveNeeded())
        return true;
    const QString path = m_document.GetFile().GetPath();
    const QString name = path.isEmpty() ? tr("This project") : QFileInfo(path).fileName();
    const QMessageBox::StandardButton answer = CCustomMessageBox::question(
        &m_window, tr("%1 has changes that are not saved. Save them now?").arg(name),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Save)
        return Save();
    return answer == QMessageBox::Discard;
}

void FileActions::New()
{
    if (MayLeave())
        m_document.NewProject();
}

void FileActions::Choose()
{
    const QString path =
        QFileDialog::getOpenFileName(&m_window, tr("Open a project"), m_document.GetFile().GetFolder(),
                                     tr("Projects (*.prj *.xml);;All files (*)"));
    if (!path.isEmpty())
        Open(path);
}

bool FileActions::Open(const QString& path)
{
    return MayLeave() && Read(path, false);
}

bool FileActions::Read(const QString& path, bool readOnly)
{
    const QString name = QFileInfo(path).fileName();
    QString text;
    DocumentFile::Outcome outcome = DocumentFile::Outcome::Failed;
    {
        CCustomProgressbar progress(tr("Opening %1").arg(name), &m_window);
        outcome = m_document.Open(path, readOnly, &progress, &text);
    }
    const QString question =
        tr("%1 cannot be opened for editing.\n\n%2\n\nOpen it to look at? It can then be saved under another "
           "name.");
    switch (outcome) {
    case DocumentFile::Outcome::Done:
        return true;
    case DocumentFile::Outcome::DoneInPart:
        Tell(tr("Not all of %1 could be read. Saving it under its own name would lose the rest.\n\n%2")
                 .arg(name, text));
        return true;
    case DocumentFile::Outcome::InUse:
        return CCustomMessageBox::question(&m_window, question.arg(name, text)) == QMessageBox::Yes
               && Read(path, true);
    case DocumentFile::Outcome::Failed:
        break;
    }
    Tell(tr("%1 could not be opened; what was open before still is.\n\n%2")
             .arg(QDir::toNativeSeparators(path), text));
    return false;
}

bool FileActions::Save()
{
    const DocumentFile& file = m_document.GetFile();
    if (file.GetPath().isEmpty() || file.IsReadOnly())
        return SaveAs();
    const QString question =
        tr("%1 was read only in part. Saving replaces the file, and what was not read is "
           "lost. Save all the same?");
    if (file.IsInPart()
        && CCustomMessageBox::question(&m_window, question.arg(QFileInfo(file.GetPath()).fileName()))
               != QMessageBox::Yes)
        return false;
    return SaveTo(file.GetPath());
}

QString FileActions::AskForPath(QWidget* window, const DocumentFile& file, const QString& title,
                                const QString& tail, const QStringList& filters)
{
    const QString name = QFileInfo(file.GetPath()).completeBaseName();
    const QString proposed =
        file.GetFolder() + QLatin1Char('/') + (name.isEmpty() ? tr("wall") : name) + tail;
    QString filter;
    QString path =
        QFileDialog::getSaveFileName(window, title, proposed, filters.join(QStringLiteral(";;")), &filter);
    if (path.isEmpty() || !QFileInfo(path).suffix().isEmpty())
        return path;
    path += filter.section(QLatin1Char('*'), 1).chopped(1);
    const QString question = tr("%1 is there already. Replace it?").arg(QFileInfo(path).fileName());
    return !QFileInfo::exists(path) || CCustomMessageBox::question(window, question) == QMessageBox::Yes
               ? path
               : QString();
}

bool FileActions::SaveAs()
{
    const QString path =
        AskForPath(&m_window, m_document.GetFile(), tr("Save the project"),
                   m_document.GetFile().IsReadOnly() ? tr(" copy") : QString(), {tr("Projects (*.prj)")});
    return !path.isEmpty() && SaveTo(path);
}

bool FileActions::SaveTo(const QString& path)
{
    PageForm::FinishTyping();
    QString text;
    DocumentFile::Outcome outcome = DocumentFile::Outcome::Failed;
    {
        CCustomProgressbar progress(tr("Saving %1").arg(QFileInfo(path).fileName()), &m_window);
        outcome = m_document.Save(path, &progress, &text);
    }
    const QString name = QDir::toNativeSeparators(path);
    const bool done = outcome == DocumentFile::Outcome::Done;
    const bool inPart = outcome == DocumentFile::Outcome::DoneInPart;
    if (done)
        emit Told(tr("Saved: %1").arg(name));
    else if (inPart)
        Tell(tr("%1 is saved, but not all that belongs into it.\n\n%2").arg(name, text));
    else
        Tell(tr("%1 was not saved. Try another name or folder.\n\n%2").arg(name, text));
    return done || inPart;
}
