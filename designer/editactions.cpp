#include "editactions.h"

#include "documentcontroller.h"
#include "makeaction.h"
#include "pageform.h"

#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <functional>

namespace {

constexpr int kMostListed = 30;

} // namespace

template <typename Act>
void EditActions::Add(QMenu& menu, const QString& text, const QString& tip, const QKeySequence& key,
                      Needs needs, Act act)
{
    QAction* action = AddAction(menu, this, text, tip, key, [this, act] {
        std::invoke(act, m_document);
        ShowNeeds(); // nobody tells of copies
    });
    // In a list or a field these would delete what nobody looks at.
    if (key == QKeySequence(QKeySequence::Cut) || key == QKeySequence(QKeySequence::Delete))
        action->setShortcutContext(Qt::WidgetShortcut);
    Enable(*action, needs);
}

EditActions::EditActions(DocumentController& document, QMenu& menu, QToolBar& bar)
    : QObject(&menu), m_document(document)
{
    m_undo = AddAction(menu, this, tr("&Undo"), tr("Take back the last edit"), QKeySequence::Undo, [this] {
        PageForm::FinishTyping();
        m_document.Undo();
    });
    m_redo = AddAction(menu, this, tr("&Redo"), tr("Bring back what was undone"), QKeySequence::Redo, [this] {
        PageForm::FinishTyping();
        m_document.Redo();
    });
    AddSteps(bar, m_undo, true);
    AddSteps(bar, m_redo, false);
    using Document = DocumentController;
    menu.addSeparator();
    Add(menu, tr("Cu&t"), tr("Copy the selected cabinets and delete them"), QKeySequence::Cut, Selection,
        &Document::CutSelection);
    Add(menu, tr("&Copy"), tr("Copy the selected cabinets, with groups that are wholly selected"),
        QKeySequence::Copy, Selection, &Document::CopySelection);
    Add(menu, tr("&Paste"), tr("Place what was copied on the current port"), QKeySequence::Paste, Copies,
        [this](Document& wall) {
            if (wall.Paste())
                emit Placed(wall.GetSelectionBound());
        });
    Add(menu, tr("&Delete"), tr("Delete the selected cabinets; their chains close up"), QKeySequence::Delete,
        Selection, &Document::DeleteSelection);
    menu.addSeparator();
    Add(menu, tr("&Group"), tr("Make one group of the selected cabinets and groups of a port"),
        Keys("Ctrl+G"), Several, &Document::GroupSelection);
    Add(menu, tr("U&ngroup"), tr("Take the outermost groups of the selected cabinets apart"),
        Keys("Ctrl+Shift+G"), Group, &Document::UngroupSelection);
    Add(menu, tr("Select gr&oup"), tr("Select all of the groups that the selected cabinets are in"),
        Qt::Key_G, Group, &Document::SelectGroups);
    menu.addSeparator();
    Add(menu, tr("Select &all"), tr("Select the cabinets of all ports that are shown and not locked"),
        QKeySequence::SelectAll, Nothing, &Document::SelectAll);
    Add(menu, tr("&Select none"), tr("Select no cabinet"), Keys("Ctrl+Shift+A"), Selection,
        [](Document& wall) { wall.Select({}, Document::Choice::Replace); });
    menu.addSeparator();
    QMenu* ports = menu.addMenu(tr("&Move to port"));
    ports->menuAction()->setStatusTip(tr("Give the selected cabinets to another port of the sender"));
    connect(ports, &QMenu::aboutToShow, this, [this, ports] { FillPorts(*ports); });
    Enable(*ports->menuAction(), Selection);
    connect(&document, &Document::Changed, this, &EditActions::Show);
    connect(&document, &Document::SenderChanged, this, &EditActions::Show);
    connect(&document, &Document::SelectionChanged, this, &EditActions::ShowNeeds);
    connect(&document, &Document::PortStatesChanged, this, &EditActions::ShowNeeds);
    Show();
}

/// Numbers go: the other port has a chain of its own.
void EditActions::FillPorts(QMenu& menu)
{
    menu.clear();
    CSender* sender = m_document.GetSender();
    for (int i = 0; sender && i < sender->GetPortCount(); ++i) {
        const QString why = DocumentController::WhyClosed(*sender->GetPort(i));
        QAction* action =
            menu.addAction(tr("Port %1").arg(i + 1), this, [this, i] { m_document.MoveSelectionToPort(i); });
        action->setEnabled(why.isEmpty());
        action->setStatusTip(why.isEmpty() ? menu.menuAction()->statusTip() : why);
    }
}

void EditActions::AddSteps(QToolBar& bar, QAction* action, bool back)
{
    bar.addAction(action);
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    auto* steps = new QMenu(button);
    button->setMenu(steps);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    connect(steps, &QMenu::aboutToShow, this, [this, steps, back] { FillSteps(*steps, back); });
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
    ShowNeeds();
}

void EditActions::ShowNeeds()
{
    const QList<CTile*> tiles = m_document.GetSelection();
    const bool anyGroup = std::any_of(tiles.begin(), tiles.end(),
                                      [](const CTile* tile) { return !tile->GetGroupId().isNull(); });
    const bool has[] = {true, !tiles.isEmpty(), tiles.size() > 1, anyGroup, m_document.HasCopies()};
    for (const auto& [action, needs] : qAsConst(m_needs))
        action->setEnabled(has[needs]);
}
