#include "layout/projectundoredo.h"

#include "layout/changeteller.h"
#include "layout/layoutlookup.h"
#include "layout/sender.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr int kNoPort = -1;

/// The distinct recent ports of the steps from one position to a later one, in that order.
int CollectPorts(const CSenderUndoRedo& history, int from, int to, int* ports)
{
    int count = 0;
    for (int position = from; position <= to; ++position) {
        const int port = history.GetStep(position)->GetRecentPortIndex();
        if (std::find(ports, ports + count, port) == ports + count)
            ports[count++] = port;
    }
    return count;
}

int PlaceOf(CSender* sender)
{
    return GetLayoutLookup()->Senders().indexOf(sender);
}

} // namespace

CProjectUndoRedo::CProjectUndoRedo() : m_teller(std::make_unique<ChangeTeller>())
{}

CProjectUndoRedo::~CProjectUndoRedo() = default;

bool CProjectUndoRedo::Init()
{
    DocumentOperation operation(this);
    Release();
    m_unheld = false;
    m_marked = false;
    m_unsaved = false;
    for (CSender* sender : GetLayoutLookup()->Senders())
        SenderUndoRedoInit(sender);
    return true;
}

void CProjectUndoRedo::Release()
{
    DocumentOperation operation(this);
    for (CSenderUndoRedo& history : m_histories)
        Drop(&history);
}

bool CProjectUndoRedo::SenderUndoRedoInit(CSender* sender)
{
    if (!sender || sender->GetId().isNull())
        return false;
    CSenderUndoRedo* history = GetSenderUndoRedoFromID(sender->GetId());
    if (!history)
        history = GetSenderUndoRedoEmpty();
    if (!history)
        return false;
    DocumentOperation operation(this);
    operation.Changed(&SDocumentChange::steps);
    Drop(history);
    history->Start(*sender);
    return true;
}

void CProjectUndoRedo::SenderUndoRedoRelease(const QUuid& senderId)
{
    if (CSenderUndoRedo* history = GetSenderUndoRedoFromID(senderId))
        Drop(history);
}

/// A change that goes with its history must not be forgotten.
void CProjectUndoRedo::Drop(CSenderUndoRedo* history)
{
    if (history->GetSenderId().isNull())
        return;
    DocumentOperation operation(this);
    operation.Changed(&SDocumentChange::steps);
    if (history->IsModified())
        NoteUnheld();
    history->Clear();
}

const CSenderUndoRedo* CProjectUndoRedo::GetSenderUndoRedoFromID(const QUuid& senderId) const
{
    if (senderId.isNull())
        return nullptr;
    const auto it = std::find_if(m_histories.begin(), m_histories.end(), [&](const CSenderUndoRedo& history) {
        return history.GetSenderId() == senderId;
    });
    return it == m_histories.end() ? nullptr : &*it;
}

CSenderUndoRedo* CProjectUndoRedo::GetSenderUndoRedoFromID(const QUuid& senderId)
{
    return const_cast<CSenderUndoRedo*>(std::as_const(*this).GetSenderUndoRedoFromID(senderId));
}

const CSenderUndoRedo* CProjectUndoRedo::GetCurSenderUndoRedo() const
{
    const CSender* sender = GetLayoutLookup()->CurrentSender();
    return sender ? GetSenderUndoRedoFromID(sender->GetId()) : nullptr;
}

CSenderUndoRedo* CProjectUndoRedo::GetCurSenderUndoRedo()
{
    return const_cast<CSenderUndoRedo*>(std::as_const(*this).GetCurSenderUndoRedo());
}

CSenderUndoRedo* CProjectUndoRedo::GetSenderUndoRedoEmpty()
{
    const auto it = std::find_if(m_histories.begin(), m_histories.end(), [](const CSenderUndoRedo& history) {
        return history.GetSenderId().isNull();
    });
    return it == m_histories.end() ? nullptr : &*it;
}

bool CProjectUndoRedo::AddOneStepToSender(int senderIndex, Type type)
{
    return AddStep(GetLayoutLookup()->Senders().value(senderIndex, nullptr), type);
}

bool CProjectUndoRedo::AddOneStep(Type type)
{
    return AddStep(GetLayoutLookup()->CurrentSender(), type);
}

bool CProjectUndoRedo::AddStep(CSender* sender, Type type)
{
    if (type == CSenderRecordItem::OperationSelect || type == CSenderRecordItem::OperationView)
        return true;
    if (!sender)
        return false;
    DocumentOperation operation(this);
    CSenderUndoRedo* history = GetSenderUndoRedoFromID(sender->GetId());
    if (!history)
        return AddFirstStep(sender, operation);
    QVector<int> changed;
    if (!history->AddStep(*sender, type, &changed))
        return false;
    operation.Changed(&SDocumentChange::steps);
    operation.ChangedPorts(PlaceOf(sender), changed);
    return true;
}

/// Nobody knows what the sender was like before, so each of its ports may have changed.
bool CProjectUndoRedo::AddFirstStep(CSender* sender, DocumentOperation& operation)
{
    QVector<int> ports(sender->GetPortCount());
    std::iota(ports.begin(), ports.end(), 0);
    operation.ChangedPorts(PlaceOf(sender), ports);
    if (!SenderUndoRedoInit(sender)) {
        NoteUnheld();
        return false;
    }
    GetSenderUndoRedoFromID(sender->GetId())->SetNeverSaved(); // the edit is part of its base
    return true;
}

bool CProjectUndoRedo::Undo(int steps, int* ports, int* count)
{
    return Move(steps, true, ports, count);
}

bool CProjectUndoRedo::Redo(int steps, int* ports, int* count)
{
    return Move(steps, false, ports, count);
}

bool CProjectUndoRedo::Move(int steps, bool back, int* ports, int* count)
{
    CSender* sender = GetLayoutLookup()->CurrentSender();
    CSenderUndoRedo* history = GetCurSenderUndoRedo();
    if (!sender || !history)
        return false;
    const int capacity = count ? *count : 0;
    if (count)
        *count = 0;
    if (steps < 0)
        return false;
    DocumentOperation operation(this);
    const int start = history->GetCurrentStep();
    if (!history->Move(back ? -steps : steps))
        return false;

    int shown = history->GetStep(history->GetCurrentStep())->GetRecentPortIndex();
    if (steps > 0 && ports && capacity > steps) {
        const int from = back ? history->GetCurrentStep() : start;
        *count = CollectPorts(*history, from, from + steps, ports);
        if (*count > 1)
            shown = ports[1];
    }
    QVector<int> changed;
    if (!history->Restore(sender, shown, operation.IsListenedTo() ? &changed : nullptr,
                          m_hiddenPortsIncluded))
        NoteUnheld();
    if (steps > 0)
        operation.Changed(&SDocumentChange::steps);
    operation.ChangedPorts(PlaceOf(sender), changed);
    return true;
}

int CProjectUndoRedo::GetCanUndoStep() const
{
    const CSenderUndoRedo* history = GetCurSenderUndoRedo();
    return history ? history->GetCurrentStep() : 0;
}

int CProjectUndoRedo::GetCanUndoStep()
{
    return std::as_const(*this).GetCanUndoStep();
}

int CProjectUndoRedo::GetCanRedoStep() const
{
    const CSenderUndoRedo* history = GetCurSenderUndoRedo();
    return history ? history->GetStepCount() - 1 - history->GetCurrentStep() : 0;
}

int CProjectUndoRedo::GetCanRedoStep()
{
    return std::as_const(*this).GetCanRedoStep();
}

const CSenderRecordItem* CProjectUndoRedo::StepAhead(int n, bool back) const
{
    const CSenderUndoRedo* history = GetCurSenderUndoRedo();
    if (!history || n < 0 || n > CSenderUndoRedo::kStepLimit)
        return nullptr;
    return history->GetStep(history->GetCurrentStep() + (back ? -n : n));
}

int CProjectUndoRedo::GetUndoStepType(int n) const
{
    const CSenderRecordItem* step = StepAhead(n, true);
    return step ? step->GetType() : -1;
}

int CProjectUndoRedo::GetUndoStepType(int n)
{
    return std::as_const(*this).GetUndoStepType(n);
}

int CProjectUndoRedo::GetRedoStepType(int n) const
{
    const CSenderRecordItem* step = StepAhead(n, false);
    return step ? step->GetType() : -1;
}

int CProjectUndoRedo::GetRedoStepType(int n)
{
    return std::as_const(*this).GetRedoStepType(n);
}

int CProjectUndoRedo::GetUndoStepPort(int n) const
{
    const CSenderRecordItem* step = StepAhead(n, true);
    return step ? step->GetRecentPortIndex() : kNoPort;
}

int CProjectUndoRedo::GetUndoStepPort(int n)
{
    return std::as_const(*this).GetUndoStepPort(n);
}

int CProjectUndoRedo::GetRedoStepPort(int n) const
{
    const CSenderRecordItem* step = StepAhead(n, false);
    return step ? step->GetRecentPortIndex() : kNoPort;
}

int CProjectUndoRedo::GetRedoStepPort(int n)
{
    return std::as_const(*this).GetRedoStepPort(n);
}

int CProjectUndoRedo::GetCurSenderCurStep() const
{
    const CSenderUndoRedo* history = GetCurSenderUndoRedo();
    return history ? history->GetCurrentStep() : -1;
}

int CProjectUndoRedo::GetCurSenderCurStep()
{
    return std::as_const(*this).GetCurSenderCurStep();
}

void CProjectUndoRedo::NoteUnheld()
{
    m_unheld = true;
    m_unsaved = true;
}

bool CProjectUndoRedo::IsModidfied() const
{
    return m_unheld || m_marked || NeedsSaving();
}

bool CProjectUndoRedo::NeedsSaving() const
{
    return m_unsaved
           || std::any_of(m_histories.begin(), m_histories.end(),
                          [](const CSenderUndoRedo& history) { return history.IsModified(); });
}

void CProjectUndoRedo::SetAsSaveStep()
{
    DocumentOperation operation(this);
    operation.Changed(&SDocumentChange::saved);
    m_unsaved = false;
    bool all = true;
    for (const CSender* sender : GetLayoutLookup()->Senders()) {
        if (CSenderUndoRedo* history = GetSenderUndoRedoFromID(sender->GetId()))
            history->SetSaved();
        else
            all = false;
    }
    if (all)
        m_unheld = false;
}

void CProjectUndoRedo::PrjModify()
{
    DocumentOperation operation(this);
    operation.Changed(&SDocumentChange::properties);
    m_marked = true;
    m_unsaved = true;
}

void CProjectUndoRedo::SetChangeHandler(const DocumentChangeHandler& handler)
{
    m_teller->SetHandler(handler, IsModidfied());
}
