#pragma once

#include "common/export.h"
#include "layout/documentchange.h"
#include "layout/senderundoredo.h"

#include <QUuid>

#include <array>
#include <memory>

class CSender;
class ChangeTeller;
class DocumentOperation;

/// The histories of all senders of the open project, and whether the project differs from what was saved.
/// Undoing and redoing act on the project's current sender. Owned by the runtime state.
class ORVANDATA_EXPORT CProjectUndoRedo
{
public:
    using Type = CSenderRecordItem::VIEW_OPERATION_TYPE;
    static constexpr int kSlotCount = 256; ///< senders with a history; edits of further ones make no steps

    CProjectUndoRedo();
    CProjectUndoRedo(const CProjectUndoRedo&) = delete;
    CProjectUndoRedo& operator=(const CProjectUndoRedo&) = delete;
    virtual ~CProjectUndoRedo();

    // life
    bool Init();    ///< starts the histories of the project's senders anew, unmodified; always true
    void Release(); ///< clears every slot
    /// (Re)starts one; false: null, without id, or no slot free. After NewSender, so that its first edit can
    /// be undone.
    bool SenderUndoRedoInit(CSender* sender);
    void SenderUndoRedoRelease(const QUuid& senderId);

    // histories [ref], null when there is none
    CSenderUndoRedo* GetSenderUndoRedoFromID(const QUuid& senderId);
    const CSenderUndoRedo* GetSenderUndoRedoFromID(const QUuid& senderId) const;
    CSenderUndoRedo* GetCurSenderUndoRedo();
    const CSenderUndoRedo* GetCurSenderUndoRedo() const;
    CSenderUndoRedo* GetSenderUndoRedoEmpty(); ///< the first free slot

    // steps
    /// Records the sender after an edit, and writes to none of its cabinets. The first step of a sender
    /// without a history is the base that undoing leads back to at most: true, but there is nothing to undo
    /// yet. True as well, and nothing recorded, for OperationSelect and OperationView. False: no such sender,
    /// all slots taken, or nothing changed.
    bool AddOneStepToSender(int senderIndex, Type type);
    bool AddOneStep(Type type); ///< of the current sender
    /// Takes back (brings back) `steps` edits on the visible ports. `ports` with the capacity `*count`
    /// receives the recent ports of the steps passed, the first and the last one included, each once and
    /// oldest first. That may be one more than `steps`, so the capacity has to be above it. `*count` becomes
    /// their number, 0 when there was no room or so many steps do not exist; without a history it stays as it
    /// is.
    bool Undo(int steps, int* ports, int* count);
    bool Redo(int steps, int* ports, int* count);
    /// Whether undoing and redoing act on hidden ports too, for a host in which hiding is for looking alone.
    /// Not so at first; stays through all documents.
    void SetHiddenPortsIncluded(bool included) { m_hiddenPortsIncluded = included; }

    // what the current sender's history holds. Of a step: 0 is the one that Undo(1) takes back, 1 the one
    // before it; with redo 1 is the one that Redo(1) brings back. Out of range: -1
    int GetCanUndoStep() const; ///< 0 without a history
    int GetCanRedoStep() const; ///< 0 without a history
    int GetUndoStepType(int n) const;
    int GetRedoStepType(int n) const;
    int GetUndoStepPort(int n) const; ///< the sender's recent port when the step was recorded
    int GetRedoStepPort(int n) const;
    int GetCurSenderCurStep() const;
    int GetCanUndoStep();
    int GetCanRedoStep();
    int GetUndoStepType(int n);
    int GetRedoStepType(int n);
    int GetUndoStepPort(int n);
    int GetRedoStepPort(int n);
    int GetCurSenderCurStep();

    // does the project differ from what was saved?
    bool IsModidfied() const;
    /// Whether a save would keep something that the last one did not: unlike the above, a mark of PrjModify
    /// counts until SetAsSaveStep.
    bool NeedsSaving() const;
    void SetAsSaveStep(); ///< after a save: what the histories hold now is what was saved
    void PrjModify();     ///< marks a change outside the histories; it stays until Init

    // what a window on the open document lives on
    /// One handler, told what changed, once after each operation: a step recorded, undone or redone, a load,
    /// a save, an import, PrjModify, senders that came or went, a document set to default or copied into.
    /// Single setters tell nothing, nor does the reading of single elements of a file; documents other than
    /// the open one never do. The operation itself calls it, in the caller's thread, when all is done and the
    /// result stands: the handler may read everything. It should not edit; what it changes all the same is
    /// told with the next operation. It must not throw or call LedNimbraData_Release. It stays until another
    /// one, or an empty one, is set.
    void SetChangeHandler(const DocumentChangeHandler& handler);

    ChangeTeller& GetChangeTeller() { return *m_teller; } ///< inside the library

private:
    bool AddStep(CSender* sender, Type type);
    bool AddFirstStep(CSender* sender, DocumentOperation& operation);
    bool Move(int steps, bool back, int* ports, int* count);
    const CSenderRecordItem* StepAhead(int n, bool back) const;
    void Drop(CSenderUndoRedo* history);
    void NoteUnheld();

    std::array<CSenderUndoRedo, kSlotCount> m_histories;
    bool m_unheld = false;  ///< a change that no history holds, until the next save
    bool m_marked = false;  ///< a change of the project itself, until Init
    bool m_unsaved = false; ///< either of these, since the last save
    bool m_hiddenPortsIncluded = false;
    std::unique_ptr<ChangeTeller> m_teller;
};
