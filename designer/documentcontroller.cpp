#include "documentcontroller.h"

#include "steptexts.h"

namespace {

constexpr QSize kNewCanvas(1920, 1080);

CProjectUndoRedo& History()
{
    return *GetRuntimeData()->GetProjectUndoRedo();
}

} // namespace

DocumentController::DocumentController(QObject* parent) : QObject(parent)
{
    GetRuntimeData()->SetCurInterfaceDlg(InterfaceDesign);
    History().SetHiddenPortsIncluded(true);
    History().SetChangeHandler([this](const SDocumentChange& change) { emit Changed(change); });
    NewProject();
}

DocumentController::~DocumentController()
{
    History().SetChangeHandler({});
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
    return m_numbered || History().NeedsSaving();
}

void DocumentController::NewProject()
{
    FinishNumbering();
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
    FinishNumbering();
    const DocumentFile::Outcome outcome = m_file.Open(path, readOnly, progress, text);
    KeepCurrentPort();
    ShowTurned();
    emit FileChanged();
    return outcome;
}

DocumentFile::Outcome DocumentController::Save(const QString& path, CCustomProgressbar* progress,
                                               QString* text)
{
    FinishNumbering();
    const DocumentFile::Outcome outcome = m_file.Save(path, progress, text);
    emit FileChanged();
    return outcome;
}

CProductDirectorySet& DocumentController::GetProducts()
{
    CProductDirectorySet& products = *GetRuntimeData()->GetProductDirectorySet();
    if (products.GetScannedFolder().isEmpty())
        products.LoadProductInfo();
    return products;
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
    FinishNumbering();
    const bool done = GetProject().DeleteSender(index, true, false, true, parent);
    if (done) {
        KeepCurrentPort();
        emit SenderChanged();
    }
    return done;
}

void DocumentController::SetCurrentPort(int sender, int port)
{
    CProjectData& project = GetProject();
    if (!project.GetSender(sender))
        return;
    FinishNumbering();
    const bool isOther = sender != project.GetCurSenderIndex();
    project.SetCurrentSender(sender);
    project.GetSender(sender)->SetRecentPortIndex(port);
    KeepCurrentPort();
    if (isOther)
        emit SenderChanged();
    else
        emit PortStatesChanged();
}

void DocumentController::SetCurrentSender(int index)
{
    if (const CSender* sender = GetProject().GetSender(index))
        SetCurrentPort(index, sender->GetRecentPortIndex());
}

/// Files, steps and lists of faults may name a port that is not in use.
void DocumentController::KeepCurrentPort()
{
    CSender* sender = GetSender();
    if (!sender || sender->GetRecentPortIndex() < sender->GetPortCount())
        return;
    sender->SetRecentPortIndex(0);
    emit PortStatesChanged();
}

void DocumentController::SelectGroup(const SPortPlace& place, const QUuid& id)
{
    SetCurrentPort(place.sender, place.port);
    CTileSet tiles;
    if (!MayEditPort() || !GetPort()->GetPortProject()->GetTileSetInGroupRecursive(tiles, id))
        return;
    QList<CTile*> list;
    for (CTile* tile : tiles)
        list.append(tile);
    Select(list, Choice::Replace);
}

QString DocumentController::WhyShut(const CPort& port)
{
    const QString number = QString::number(port.GetPortIndex() + 1);
    if (port.IsFlagLock())
        return tr("Port %1 is locked. Unlock it first.").arg(number);
    if (!port.IsVisible())
        return tr("Port %1 is hidden. Show it first.").arg(number);
    return {};
}

QString DocumentController::WhyClosed(const CPort& port)
{
    if (port.IsBackupDest())
        return tr("Port %1 is a backup: it shows what its source shows.").arg(port.GetPortIndex() + 1);
    return WhyShut(port);
}

QList<CPort*> DocumentController::OpenPorts(CSender& sender)
{
    QList<CPort*> ports;
    for (int i = 0; i < sender.GetPortCount(); ++i) {
        if (WhyClosed(*sender.GetPort(i)).isEmpty())
            ports.append(sender.GetPort(i));
    }
    return ports;
}

// history

bool DocumentController::Record(CProjectUndoRedo::Type type)
{
    return History().AddOneStep(type);
}

bool DocumentController::Undo(int steps)
{
    return Go([steps] { return History().Undo(steps, nullptr, nullptr); });
}

bool DocumentController::Redo(int steps)
{
    return Go([steps] { return History().Redo(steps, nullptr, nullptr); });
}

/// The current port stays: a step brings back the one that it was recorded with.
bool DocumentController::Go(const std::function<bool()>& step)
{
    FinishNumbering();
    const int current = GetSender() ? GetSender()->GetRecentPortIndex() : 0;
    const bool done = step();
    if (GetSender())
        GetSender()->SetRecentPortIndex(current);
    KeepCurrentPort();
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
