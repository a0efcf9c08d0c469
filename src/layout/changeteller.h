#pragma once

#include "layout/documentchange.h"

class CProjectUndoRedo;

/// Gathers what the operation under way changes in the open document, and tells it when that ends.
class ChangeTeller
{
public:
    void SetHandler(const DocumentChangeHandler& handler, bool modified); ///< `modified`: known to it
    bool IsListenedTo() const { return static_cast<bool>(m_handler); }

private:
    friend class DocumentOperation;

    void End(const CProjectUndoRedo& history);

    DocumentChangeHandler m_handler;
    SDocumentChange m_pending;
    int m_depth = 0; ///< of operations within operations
    bool m_telling = false;
    bool m_toldModified = false;
};

/// An operation on the open document, which ends with this object. One within another is a part of that.
class DocumentOperation
{
public:
    explicit DocumentOperation(CProjectUndoRedo* history); ///< null for other documents, which tell nothing
    ~DocumentOperation();
    DocumentOperation(const DocumentOperation&) = delete;
    DocumentOperation& operator=(const DocumentOperation&) = delete;

    bool IsListenedTo() const { return m_teller && m_teller->IsListenedTo(); }
    void Changed(bool SDocumentChange::*what);
    void ChangedPorts(int sender, const QVector<int>& ports);

private:
    CProjectUndoRedo* m_history;
    ChangeTeller* m_teller;
};
