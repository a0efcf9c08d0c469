#pragma once

#include "documentcontroller.h"

#include <QCoreApplication>

/// Edits of senders, ports and the printed form that no step of the history holds. What changes something
/// marks the project as modified. What would lose something asks first, in a box over `parent`; false: it
/// stays as it is.
class SenderEdits
{
    Q_DECLARE_TR_FUNCTIONS(SenderEdits)

public:
    explicit SenderEdits(DocumentController& document) : m_document(document) {} ///< [keep]

    // senders
    /// One of the values that a sender holds, say by &CSender::GetSenderName and &CSender::SetSenderName.
    template <class Get, class Set, class Value>
    void SetValue(int sender, Get get, Set set, const Value& value)
    {
        CSender* found = m_document.GetProject().GetSender(sender);
        if (!found || (found->*get)() == value)
            return;
        (found->*set)(value);
        MarkModified();
    }
    void SetPrintName(int sender, const SPrintLine& name);
    void SetOffset(int sender, const QSize& offset); ///< raised so that the layout starts on the canvas
    static QList<int> GetPortCounts();               ///< that there are
    bool SetPortCount(int sender, int count, QWidget* parent);

    // ports
    void SetShown(const SPortPlace& place, bool shown);
    void SetLocked(const SPortPlace& place, bool locked);

    // backups. Making or ending one starts the history of its sender anew: undoing over it clears the port
    QString WhyNotBackup(const SPortPlace& backup) const; ///< of whatever port; empty: it can be one
    QString WhyNotBackup(const SPortPlace& backup, const SPortPlace& source) const;
    QList<SPortPlace> GetSourcesFor(const SPortPlace& backup) const;
    bool MakeBackup(const SPortPlace& backup, const SPortPlace& source, QWidget* parent);
    bool EndBackup(const SPortPlace& backup, QWidget* parent);
    /// "port 1", with the name of its sender when that is not `sender`.
    QString PortText(const SPortPlace& place, int sender) const;
    QString SourceText(const SPortPlace& backup) const; ///< the same of what it backs up

    void SetPrintLine(SPrintLine SPrintFormData::*line, const SPrintLine& value);

private:
    static void MarkModified();
    CSender* FindSender(int sender) const { return m_document.GetProject().GetSender(sender); }
    CPort* FindPort(const SPortPlace& place) const;
    void NoteState(CPort& port, bool closed);
    bool MayRestartHistory(int sender, const QString& what, QStringList losses, QWidget* parent) const;
    void RestartHistory(int sender);

    DocumentController& m_document;
};
