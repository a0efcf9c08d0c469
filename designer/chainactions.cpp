#include "chainactions.h"

#include "documentcontroller.h"
#include "makeaction.h"
#include "patternicon.h"

#include <QGuiApplication>
#include <QMenu>
#include <QToolBar>

ChainActions::ChainActions(DocumentController& document, QObject* parent)
    : QObject(parent), m_document(document),
      m_clear(MakeAction(this, tr("&Clear numbers"),
                         tr("Take the numbers of all cabinets of the current port away")))
{
    for (int i = AutoNumberRowsTopLeft; i <= AutoNumberColumnsBottomLeft; ++i) {
        const auto pattern = static_cast<EnAutoNumberType>(i);
        const QString name = PatternName(pattern);
        QAction* action =
            MakeAction(this, name, tr("Number all cabinets of the current port: %1").arg(name.toLower()),
                       QKeySequence(QStringLiteral("Alt+%1").arg(i + 1)));
        action->setIcon(PatternIcon(pattern, QGuiApplication::palette()));
        connect(action, &QAction::triggered, this, [this, pattern] { m_document.NumberAll(pattern); });
        m_patterns.append(action);
    }
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
