#pragma once

#include <QList>
#include <QObject>
#include <QRect>

class DocumentController;
class QAction;
class QMenu;
class QToolBar;

/// Undo and redo, copies, groups and the rest of what a menu does to the selection, enabled where it would do
/// something. Undo and redo name their step, and a list takes back several at once.
class EditActions : public QObject
{
    Q_OBJECT

public:
    EditActions(DocumentController& document, QObject* parent); ///< [keep] the document

    void AddTo(QMenu& menu);
    void AddTo(QToolBar& bar);

signals:
    void Placed(const QRect& cabinets); ///< perhaps out of sight; wall pixels

private:
    void Show();
    void ShowSelection();
    void FillSteps(QMenu& menu, bool back);
    void FillPorts(QMenu& menu);

    DocumentController& m_document;
    QAction* m_undo;
    QAction* m_redo;
    QAction* m_paste;
    QAction* m_selectAll;
    QAction* m_moveToPort;
    QList<QAction*> m_ofSelection; ///< enabled while something is selected
    QList<QAction*> m_menu;        ///< in its order, null: a separator
};
