#pragma once

#include <QObject>

class DocumentController;
class QAction;
class QMenu;
class QToolBar;

/// The eight patterns of automatic numbering, and clearing a chain: of the current port.
class ChainActions : public QObject
{
    Q_OBJECT

public:
    ChainActions(DocumentController& document, QMenu& menu, QToolBar& bar); ///< [keep] the document

private:
    void Show();

    DocumentController& m_document;
    QList<QAction*> m_patterns;
    QAction* m_clear;
};
