#pragma once

#include <OrvanData/orvandata.h>

#include <QObject>

class DocumentController;
class QAction;
class QMenu;
class SenderEdits;

/// Making the current port a backup of another one, and ending that.
class PortActions : public QObject
{
    Q_OBJECT

public:
    PortActions(DocumentController& document, SenderEdits& edits, QWidget& window); ///< [keep] all

    QList<QAction*> GetActions() const { return {m_make, m_end}; }
    SPortPlace Place() const; ///< of the current port

private:
    void Show();
    void FillSources();

    DocumentController& m_document;
    SenderEdits& m_edits;
    QWidget& m_window;
    QMenu* m_sources; ///< ports to back up
    QAction* m_make;
    QAction* m_end;
};
