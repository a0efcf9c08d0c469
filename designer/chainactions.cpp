#include "chainactions.h"

#include "documentcontroller.h"
#include "patternicon.h"

#include <QAction>
#include <QGuiApplication>
#include <QMenu>
#include <QToolBar>

ChainActions::ChainActions(DocumentController& document, QObject* parent)
    : QObject(parent), m_document(document), m_clear(new QAction(tr("&Clear numbers"), this))
{
    const QString names[] = {tr("Rows from the top left"),        tr("Rows from the top right"),
                             tr("Rows from the bottom right"),    tr("Rows from the bottom left"),
                             tr("Columns from the top left"),     tr("Columns from the top right"),
                             tr("Columns from the bottom right"), tr("Columns from the bottom left")};
    int number = 0;
    for (const QString& name : names) {
        const auto pattern = static_cast<EnAutoNumberType>(number++);
        auto* action = new QAction(PatternIcon(pattern, QGuiApplication::palette()), name, this);
        action->setShortcut(QKeySequence(Qt::ALT | (Qt::Key_0 + number)));
        const QString tip = tr("Number all cabinets of the current port: %1").arg(name.toLower());
        action->setStatusTip(tip);
        action->setToolTip(
            QStringLiteral("%1 (%2)").arg(tip, action->shortcut().toString(QKeySequence::NativeText)));
        connect(action, &QAction::triggered, this, [this, pattern] { m_document.NumberAll(pattern); });
        m_patterns.append(action);
    }
    m_clear->setStatusTip(tr("Take the numbers of all cabinets of the current port away"));
    m_clear->setToolTip(m_clear->statusTip());
    connect(m_clear, &QAction::triggered, this, [this] { m_document.ClearNumbers(); });
}

void ChainActions::AddTo(QMenu& menu)
{
    menu.addActions(m_patterns);
    menu.addSeparator();
    menu.addAction(m_clear);
}

void ChainActions::AddTo(QToolBar& bar)
{
    bar.addActions(m_patterns);
    bar.addAction(m_clear);
}
