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
      m_paste(MakeAction(this, tr("&Paste"), tr("Place what was copied on the current port"),
                         QKeySequence::Paste)),
      m_selectAll(MakeAction(this, tr("Select &all"),
                             tr("Select the cabinets of all ports that are shown and not locked"),
                             QKeySequence::SelectAll)),
      m_moveToPort(new QAction(tr("&Move to port"), this))
{
    connect(m_undo, &QAction::triggered, this, [this] { m_document.Undo(); });
    connect(m_redo, &QAction::triggered, this, [this] { m_document.Redo(); });
    connect(m_paste, &QAction::triggered, this, [this] {
        if (m_document.Paste())
            emit Placed(m_document.GetSelectionBound());
    });
    connect(m_selectAll, &QAction::triggered, this, [this] { m_document.SelectAll(); });
    const auto add = [this](const QString& text, const QString& tip, const QKeySequence& key, auto act) {
        QAction* action = MakeAction(this, text, tip, key);
        connect(action, &QAction::triggered, this, [this, act] { act(m_document); });
        m_ofSelection.append(action);
        return action;
    };
    using Document = DocumentController;
    QAction* cut = add(tr("Cu&t"), tr("Copy the selected cabinets and delete them"), QKeySequence::Cut,
                       [](Document& wall) { wall.CutSelection(); });
    QAction* copy = add(tr("&Copy"), tr("Copy the selected cabinets, with groups that are wholly selected"),
                        QKeySequence::Copy, [this](Document& wall) {
                            wall.CopySelection();
                            ShowSelection();
                        });
    QAction* remove = add(tr("&Delete"), tr("Delete the selected cabinets; their chains close up"),
                          QKeySequence::Delete, [](Document& wall) { wall.DeleteSelection(); });
    for (QAction* action : {cut, remove}) // in a list or a field it would delete what nobody looks at
        action->setShortcutContext(Qt::WidgetShortcut);
    QAction* group = add(tr("&Group"), tr("Make one group of the selected cabinets and groups of a port"),
                         Keys("Ctrl+G"), [](Document& wall) { wall.GroupSelection(); });
    QAction* ungroup = add(tr("U&ngroup"), tr("Take the outermost groups of the selected cabinets apart"),
                           Keys("Ctrl+Shift+G"), [](Document& wall) { wall.UngroupSelection(); });
    QAction* selectGroup =
        add(tr("Select gr&oup"), tr("Select all of the groups that the selected cabinets are in"), Qt::Key_G,
            [](Document& wall) { wall.SelectGroups(); });
    QAction* selectNone = add(tr("&Select none"), tr("Select no cabinet"), Keys("Ctrl+Shift+A"),
                              [](Document& wall) { wall.Select({}, Document::Choice::Replace); });
    m_ofSelection.append(m_moveToPort);
    m_menu = {m_undo, m_redo,  nullptr,      cut,     copy,        m_paste,     remove,    nullptr,
              group,  ungroup, m_moveToPort, nullptr, m_selectAll, selectGroup, selectNone};
    connect(&document, &DocumentController::Changed, this, &EditActions::Show);
    connect(&document, &DocumentController::SenderChanged, this, &EditActions::Show);
    connect(&document, &DocumentController::SelectionChanged, this, &EditActions::ShowSelection);
    Show();
}

void EditActions::AddTo(QMenu& menu)
{
    auto* ports = new QMenu(&menu);
    connect(ports, &QMenu::aboutToShow, this, [this, ports] { FillPorts(*ports); });
    m_moveToPort->setMenu(ports);
    for (QAction* action : qAsConst(m_menu)) {
        if (action)
            menu.addAction(action);
        else
            menu.addSeparator();
    }
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
        action->setStatusTip(why);
    }
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
    for (QAction* action : qAsConst(m_ofSelection))
        action->setEnabled(hasSelection);
    m_paste->setEnabled(m_document.HasCopies());
}
