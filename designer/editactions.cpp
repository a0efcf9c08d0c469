#include "editactions.h"

#include "documentcontroller.h"
#include "makeaction.h"

#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr int kMostListed = 30;

} // namespace

EditActions::EditActions(DocumentController& document, QObject* parent)
    : QObject(parent), m_document(document),
      m_undo(MakeAction(this, tr("&Undo"), tr("Take back the last edit"), QKeySequence::Undo)),
      m_redo(MakeAction(this, tr("&Redo"), tr("Bring back what was undone"), QKeySequence::Redo)),
      m_delete(MakeAction(this, tr("&Delete"), tr("Delete the selected cabinets; their chains close up"),
                          QKeySequence::Delete)),
      m_selectAll(MakeAction(this, tr("Select &all"),
                             tr("Select the cabinets of all ports that are shown and not locked"),
                             QKeySequence::SelectAll)),
      m_selectNone(MakeAction(this, tr("Select &none"), tr("Select no cabinet"), Keys("Ctrl+Shift+A")))
{
    connect(m_undo, &QAction::triggered, this, [this] { m_document.Undo(); });
    connect(m_redo, &QAction::triggered, this, [this] { m_document.Redo(); });
    connect(m_delete, &QAction::triggered, this, [this] { m_document.DeleteSelection(); });
    connect(m_selectAll, &QAction::triggered, this, [this] { m_document.SelectAll(); });
    connect(m_selectNone, &QAction::triggered, this,
            [this] { m_document.Select({}, DocumentController::Choice::Replace); });
    connect(&document, &DocumentController::Changed, this, &EditActions::Show);
    connect(&document, &DocumentController::SenderChanged, this, &EditActions::Show);
    connect(&document, &DocumentController::SelectionChanged, this, &EditActions::ShowSelection);
    Show();
}

void EditActions::AddTo(QMenu& menu)
{
    menu.addActions({m_undo, m_redo});
    menu.addSeparator();
    menu.addAction(m_delete);
    menu.addSeparator();
    menu.addActions({m_selectAll, m_selectNone});
}

void EditActions::AddTo(QToolBar& bar)
{
    for (QAction* action : {m_undo, m_redo}) {
        bar.addAction(action);
        auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
        auto* steps = new QMenu(button);
        button->setMenu(steps);
        button->setPopupMode(QToolButton::MenuButtonPopup);
        const bool back = action == m_undo;
        connect(steps, &QMenu::aboutToShow, this, [this, steps, back] { FillSteps(*steps, back); });
    }
}

void EditActions::FillSteps(QMenu& menu, bool back)
{
    menu.clear();
    for (int n = 0; n < kMostListed; ++n) {
        const QString text = back ? m_document.GetUndoText(n) : m_document.GetRedoText(n);
        if (text.isEmpty())
            return;
        menu.addAction(text, this,
                       [this, n, back] { back ? m_document.Undo(n + 1) : m_document.Redo(n + 1); });
    }
}

void EditActions::Show()
{
    const QString undo = m_document.GetUndoText();
    const QString redo = m_document.GetRedoText();
    m_undo->setEnabled(!undo.isEmpty());
    m_redo->setEnabled(!redo.isEmpty());
    m_undo->setText(undo.isEmpty() ? tr("&Undo") : tr("&Undo: %1").arg(undo));
    m_redo->setText(redo.isEmpty() ? tr("&Redo") : tr("&Redo: %1").arg(redo));
    m_undo->setIconText(tr("Undo"));
    m_redo->setIconText(tr("Redo"));
    ShowSelection();
}

void EditActions::ShowSelection()
{
    const bool hasSelection = !m_document.GetSelection().isEmpty();
    m_delete->setEnabled(hasSelection);
    m_selectNone->setEnabled(hasSelection);
}
