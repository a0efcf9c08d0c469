#include "chainactions.h"

#include "documentcontroller.h"
#include "makeaction.h"
#include "patternicon.h"

#include <QGuiApplication>
#include <QMenu>
#include <QToolBar>

ChainActions::ChainActions(DocumentController& document, QMenu& menu, QToolBar& bar)
    : QObject(&menu), m_document(document)
{
    for (int i = AutoNumberRowsTopLeft; i <= AutoNumberColumnsBottomLeft; ++i) {
        const auto pattern = static_cast<EnAutoNumberType>(i);
        const QString name = PatternName(pattern);
        QAction* action =
            AddAction(menu, this, name, tr("Number all cabinets of the current port: %1").arg(name.toLower()),
                      QKeySequence(QStringLiteral("Alt+%1").arg(i + 1)),
                      [this, pattern] { m_document.NumberAll(pattern); });
        action->setIcon(PatternIcon(pattern, QGuiApplication::palette()));
        m_patterns.append(action);
    }
    menu.addSeparator();
    m_clear = AddAction(menu, this, tr("&Clear numbers"),
                        tr("Take the numbers of all cabinets of the current port away"), {},
                        [this] { m_document.ClearNumbers(); });
    bar.addActions(m_patterns);
    bar.addAction(m_clear);
    using Document = DocumentController;
    connect(&document, &Document::Changed, this, &ChainActions::Show);
    connect(&document, &Document::PortStatesChanged, this, &ChainActions::Show);
    connect(&document, &Document::SenderChanged, this, &ChainActions::Show);
}

/// What stays enabled says itself why a port stays as it is.
void ChainActions::Show()
{
    const CPort* port = m_document.GetPort();
    for (QAction* action : qAsConst(m_patterns))
        action->setEnabled(port != nullptr);
    m_clear->setEnabled(port && port->GetTileSet().HasNumberedTiles());
}
