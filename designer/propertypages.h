#pragma once

#include "pageform.h"
#include "senderedits.h"

class PortActions;
class QTabWidget;

/// Pages of properties: of the current port, of its sender, and of the printed form.
class PropertyPages : public QObject
{
    Q_OBJECT

public:
    /// [keep] all; the pages are added to the tabs.
    PropertyPages(DocumentController& document, SenderEdits& edits, const PortActions& actions,
                  QTabWidget& tabs);

private:
    void MakePort(const PortActions& actions, QTabWidget& tabs);
    void MakeSender(QTabWidget& tabs);
    void MakePrintedForm(QTabWidget& tabs);
    void AddPlaces(PageForm& page);
    template <class Value, class Get, class Set>
    Field<Value> SenderField(const QString& label, const QString& tip, Get get, Set set)
    {
        return {label, tip, [this, get] { return (Sender().*get)(); },
                [this, get, set](const Value& value) { m_edits.SetValue(Index(), get, set, value); }};
    }

    CSender& Sender() const { return *m_document.GetSender(); }
    int Index() const { return m_document.GetProject().GetCurSenderIndex(); } ///< of the sender
    const CPort& Port() const { return *m_document.GetPort(); }

    DocumentController& m_document;
    SenderEdits& m_edits;
};
