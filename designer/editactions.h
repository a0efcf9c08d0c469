#pragma once

#include <QObject>

class DocumentController;
class QAction;
class QMenu;
class QToolBar;

/// Undo, redo, delete and select, enabled where they would do something. Undo and redo name their step, and
/// a list takes back several at once.
class EditActions : public QObject
{
    Q_OBJECT

public:
    EditActions(DocumentController& document, QObject* parent); ///< [keep] the document

    void AddTo(QMenu& menu);
    void AddTo(QToolBar& bar);

private:
    void Show();
    void ShowSelection();
    void FillSteps(QMenu& menu, bool back);

    DocumentController& m_document;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_delete;
    QAction* m_selectAll;
    QAction* m_selectNone;
};
