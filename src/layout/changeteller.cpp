#include "layout/changeteller.h"

#include "layout/projectundoredo.h"

#include <algorithm>
#include <utility>

namespace {

/// Leaves out what a more general answer covers, and the order in which things were done.
void Simplify(SDocumentChange& change)
{
    if (change.documentReplaced) {
        change = SDocumentChange();
        change.documentReplaced = true;
    }
    if (change.senders)
        change.ports.clear();
    std::sort(change.ports.begin(), change.ports.end());
    change.ports.erase(std::unique(change.ports.begin(), change.ports.end()), change.ports.end());
}

bool IsEmpty(const SDocumentChange& change)
{
    return !change.documentReplaced && !change.senders && !change.properties && !change.steps
           && change.ports.isEmpty() && !change.saved && !change.modifiedState;
}

} // namespace

void ChangeTeller::SetHandler(const DocumentChangeHandler& handler, bool modified)
{
    m_handler = handler;
    m_pending = SDocumentChange();
    m_toldModified = modified;
}

void ChangeTeller::End(const CProjectUndoRedo& history)
{
    // What the handler changes waits for the next operation, so that it is never called within itself.
    if (--m_depth > 0 || m_telling)
        return;
    SDocumentChange change = std::exchange(m_pending, {});
    if (!m_handler)
        return;
    Simplify(change);
    const bool modified = history.IsModidfied();
    change.modifiedState = modified != std::exchange(m_toldModified, modified);
    if (IsEmpty(change))
        return;
    const DocumentChangeHandler handler = m_handler; // it may set another one
    m_telling = true;
    handler(change);
    m_telling = false;
}

DocumentOperation::DocumentOperation(CProjectUndoRedo* history)
    : m_history(history), m_teller(history ? &history->GetChangeTeller() : nullptr)
{
    if (m_teller)
        ++m_teller->m_depth;
}

DocumentOperation::~DocumentOperation()
{
    if (m_teller)
        m_teller->End(*m_history);
}

void DocumentOperation::Changed(bool SDocumentChange::*what)
{
    if (m_teller)
        m_teller->m_pending.*what = true;
}

void DocumentOperation::ChangedPorts(int sender, const QVector<int>& ports)
{
    if (!IsListenedTo())
        return;
    for (const int port : ports)
        m_teller->m_pending.ports.append({sender, port});
}
