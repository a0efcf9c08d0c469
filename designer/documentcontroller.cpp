#include "documentcontroller.h"

#include "steptexts.h"

#include <algorithm>

namespace {

constexpr QSize kNewCanvas(1920, 1080);

CProjectUndoRedo& History()
{
    return *GetRuntimeData()->GetProjectUndoRedo();
}

/// Undo and redo leave hidden ports alone. Hiding is for looking here, so all are shown meanwhile.
class AllPortsShown
{
public:
    explicit AllPortsShown(CSender& sender)
    {
        for (CPort& port : sender.GetPorts()) {
            if (port.SetVisible(true))
                m_hidden.append(&port);
        }
    }
    ~AllPortsShown()
    {
        for (CPort* port : qAsConst(m_hidden))
            port->SetVisible(false);
    }
    AllPortsShown(const AllPortsShown&) = delete;
    AllPortsShown& operator=(const AllPortsShown&) = delete;

private:
    QList<CPort*> m_hidden;
};

} // namespace

DocumentController::DocumentController(QObject* parent) : QObject(parent)
{
    GetRuntimeData()->SetCurInterfaceDlg(InterfaceDesign);
    History().SetChangeHandler([this](const SDocumentChange& change) { Note(change); });
    NewProject();
}

DocumentController::~DocumentController()
{
    History().SetChangeHandler({});
}

void DocumentController::Note(const SDocumentChange& change)
{
    if (change.saved || change.documentReplaced)
        m_unsaved = false;
    else if (change.senders || change.properties || (!change.ports.isEmpty() && !change.steps))
        m_unsaved = true;
    emit Changed(change);
}

void DocumentController::TellAll()
{
    SDocumentChange all;
    all.documentReplaced = true;
    emit Changed(all);
    emit SenderChanged();
    emit FileChanged();
    emit SelectionChanged();
}

CSender* DocumentController::GetSender() const
{
    return GetProject().GetCurrentSender();
}

CPort* DocumentController::GetPort() const
{
    CSender* sender = GetSender();
    return sender ? sender->GetPort(sender->GetRecentPortIndex()) : nullptr;
}

bool DocumentController::IsModified() const
{
    return History().IsModidfied();
}

bool DocumentController::IsSaveNeeded() const
{
    const QList<CSender*> senders = GetProject().GetSenders();
    return IsModified()
           && (m_unsaved || std::any_of(senders.begin(), senders.end(), [](const CSender* sender) {
                   const CSenderUndoRedo* history = History().GetSenderUndoRedoFromID(sender->GetId());
                   return !history || history->IsModified();
               }));
}

void DocumentController::NewProject()
{
    GetProject().SetToDefault();
    Append(kNewCanvas);
    History().Init(); // an empty project is nothing to save
    m_file.Forget();
    emit SenderChanged();
    emit FileChanged();
}

DocumentFile::Outcome DocumentController::Open(const QString& path, bool readOnly,
                                               CCustomProgressbar* progress, QString* text)
{
    const DocumentFile::Outcome outcome = m_file.Open(path, readOnly, progress, text);
    emit FileChanged();
    return outcome;
}

DocumentFile::Outcome DocumentController::Save(const QString& path, CCustomProgressbar* progress,
                                               QString* text)
{
    const DocumentFile::Outcome outcome = m_file.Save(path, progress, text);
    emit FileChanged();
    return outcome;
}

// senders and ports: what no step holds

void DocumentController::AddSender()
{
    const CSender* model = GetSender();
    History().SenderUndoRedoInit(Append(model ? model->GetCanvasSize() : kNewCanvas));
    SetCurrentPort(GetProject().GetSenderCount() - 1, 0);
}

/// It is told when it is added, so it is set up before.
CSender* DocumentController::Append(const QSize& canvas)
{
    auto* sender = new CSender;
    sender->SetCanvasSize(canvas);
    GetProject().AddSender(sender);
    return sender;
}

bool DocumentController::DeleteSender(int index, QWidget* parent)
{
    const bool done = GetProject().DeleteSender(index, true, false, true, parent);
    if (done)
        emit SenderChanged();
    return done;
}

void DocumentController::RenameSender(int index, const QString& name)
{
    CSender* sender = GetProject().GetSender(index);
    if (!sender || sender->GetSenderName() == name)
        return;
    sender->SetSenderName(name);
    History().PrjModify();
}

void DocumentController::SetCurrentPort(int sender, int port)
{
    CProjectData& project = GetProject();
    if (!project.GetSender(sender))
        return;
    const bool isOther = sender != project.GetCurSenderIndex();
    project.SetCurrentSender(sender);
    project.GetSender(sender)->SetRecentPortIndex(port);
    if (isOther)
        emit SenderChanged();
    else
        emit PortStatesChanged();
}

QString DocumentController::WhyClosed(const CPort& port)
{
    const QString number = QString::number(port.GetPortIndex() + 1);
    if (port.IsBackupDest())
        return tr("Port %1 is a backup: it shows what its source shows.").arg(number);
    if (port.IsFlagLock())
        return tr("Port %1 is locked. Unlock it in the tree first.").arg(number);
    if (!port.IsVisible())
        return tr("Port %1 is hidden. Show it in the tree first.").arg(number);
    return {};
}

CPort* DocumentController::FindPort(const SPortPlace& place) const
{
    CSender* sender = GetProject().GetSender(place.sender);
    return sender ? sender->GetPort(place.port) : nullptr;
}

/// What cannot be seen or changed is not selected either.
void DocumentController::SetPortShown(const SPortPlace& place, bool shown)
{
    CPort* port = FindPort(place);
    if (!port || !port->SetVisible(shown))
        return;
    if (!shown)
        port->GetPortProject()->CancelAllSelected();
    History().PrjModify();
    emit PortStatesChanged();
}

void DocumentController::SetPortLocked(const SPortPlace& place, bool locked)
{
    CPort* port = FindPort(place);
    if (!port || !port->SetFlagLock(locked))
        return;
    if (locked)
        port->GetPortProject()->CancelAllSelected();
    History().PrjModify();
    emit PortStatesChanged();
}

// history

bool DocumentController::Record(CProjectUndoRedo::Type type)
{
    return History().AddOneStep(type);
}

bool DocumentController::Undo(int steps)
{
    return Go(steps, true);
}

bool DocumentController::Redo(int steps)
{
    return Go(steps, false);
}

bool DocumentController::Go(int steps, bool back)
{
    CSender* sender = GetSender();
    if (!sender)
        return false;
    bool done = false;
    {
        const AllPortsShown shown(*sender);
        done = back ? History().Undo(steps, nullptr, nullptr) : History().Redo(steps, nullptr, nullptr);
    }
    emit PortStatesChanged();
    return done;
}

QString DocumentController::GetUndoText(int n) const
{
    return n < History().GetCanUndoStep() ? StepText(History().GetUndoStepType(n)) : QString();
}

/// The library counts the steps ahead from the present one.
QString DocumentController::GetRedoText(int n) const
{
    return n < History().GetCanRedoStep() ? StepText(History().GetRedoStepType(n + 1)) : QString();
}
