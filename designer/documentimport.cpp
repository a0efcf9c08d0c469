// Layouts that come from files of their own.
#include "documentcontroller.h"

namespace {

bool Read(CProjectData& project, const LayoutImport& wanted)
{
    return wanted.ofPort ? project.ImportPort(wanted.path)
                         : project.ImportSender(wanted.path, project.GetCurrentSender()->GetId(),
                                                wanted.keepLockedPorts, wanted.attributes);
}

} // namespace

bool DocumentController::MayImport(bool ofPort)
{
    if (!GetPort())
        return Refuse(tr("There is no sender yet. Add one first."));
    return !ofPort || MayEditPort();
}

/// No step holds eyes and locks, which a file of a sender brings too.
DocumentController::ImportOutcome DocumentController::ImportLayout(const LayoutImport& wanted,
                                                                   bool historyMayEnd, QString* text)
{
    FinishNumbering();
    if (!MayImport(wanted.ofPort))
        return ImportOutcome::Failed;
    CSender* sender = GetSender();
    CProjectData trial; // tells what comes before anything changes
    auto* copy = new CSender;
    copy->CopySender(*sender);
    trial.AddSender(copy);
    if (!Read(trial, wanted)) {
        *text = trial.GetLastFileError();
        return ImportOutcome::Failed;
    }
    const bool fits = CSenderUndoRedo::HoldsChange(*sender, *copy);
    if (!fits && !historyMayEnd)
        return ImportOutcome::HistoryWouldEnd;
    const bool done = Read(GetProject(), wanted);
    *text = GetProject().GetLastFileError();
    if (!done)
        return ImportOutcome::Failed;
    KeepCurrentPort();
    ShowTurned();
    Select({}, Choice::Replace);
    if (fits)
        Record(CSenderRecordItem::OperationImportLayout);
    else
        GetRuntimeData()->GetProjectUndoRedo()->SenderUndoRedoInit(sender);
    if (!fits || !wanted.ofPort)
        GetRuntimeData()->GetProjectUndoRedo()->PrjModify();
    emit SenderChanged();
    return ImportOutcome::Done;
}
