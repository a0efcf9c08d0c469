#pragma once

#include <QList>
#include <QObject>
#include <QPair>
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
    enum Needs
    {
        Nothing,
        Selection,
        Several, ///< cabinets selected
        Group,   ///< that a selected cabinet is in
        Copies,
    };

    EditActions(DocumentController& document, QMenu& menu, QToolBar& bar); ///< [keep] the document

    void Enable(QAction& action, Needs needs) { m_needs.append({&action, needs}); } ///< [keep]

signals:
    void Placed(const QRect& cabinets); ///< perhaps out of sight; wall pixels

private:
    template <typename Act>
    void Add(QMenu& menu, const QString& text, const QString& tip, const QKeySequence& key, Needs needs,
             Act act);
    void AddSteps(QToolBar& bar, QAction* action, bool back);
    void Show();
    void ShowNeeds();
    void FillSteps(QMenu& menu, bool back);
    void FillPorts(QMenu& menu);

    DocumentController& m_document;
    QAction* m_undo;
    QAction* m_redo;
    QList<QPair<QAction*, Needs>> m_needs;
};
