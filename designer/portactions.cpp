#include "portactions.h"

#include "documentcontroller.h"
#include "makeaction.h"
#include "senderedits.h"

#include <QMenu>

PortActions::PortActions(DocumentController& document, SenderEdits& edits, QWidget& window)
    : QObject(&window), m_document(document), m_edits(edits), m_window(window), m_sources(new QMenu(&window)),
      m_make(MakeAction(this, tr("Make it the &backup of"),
                        tr("The current port feeds what another one feeds, should that fail"))),
      m_end(MakeAction(this, tr("&End the backup"), tr("Make the current port one of its own again"),
                       Keys("Ctrl+Shift+B")))
{
    m_make->setMenu(m_sources);
    connect(m_sources, &QMenu::aboutToShow, this, &PortActions::FillSources);
    connect(m_end, &QAction::triggered, this, [this] { m_edits.EndBackup(Place(), &m_window); });
    connect(&document, &DocumentController::Changed, this, &PortActions::Show);
    connect(&document, &DocumentController::PortStatesChanged, this, &PortActions::Show);
    connect(&document, &DocumentController::SenderChanged, this, &PortActions::Show);
    Show();
}

SPortPlace PortActions::Place() const
{
    const CPort* port = m_document.GetPort();
    return port ? SPortPlace{m_document.GetProject().GetCurSenderIndex(), port->GetPortIndex()}
                : SPortPlace();
}

void PortActions::Show()
{
    const CPort* port = m_document.GetPort();
    m_make->setEnabled(port && !port->IsBackupDest());
    m_end->setEnabled(port && port->IsBackupDest());
}

void PortActions::FillSources()
{
    const SPortPlace place = Place();
    m_sources->clear();
    const QString why = m_edits.WhyNotBackup(place);
    if (!why.isEmpty()) {
        m_sources->addAction(why)->setEnabled(false);
        return;
    }
    for (const SPortPlace& source : m_edits.GetSourcesFor(place)) {
        QString name = m_edits.PortText(source, place.sender);
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        m_sources->addAction(name, this,
                             [this, place, source] { m_edits.MakeBackup(place, source, &m_window); });
    }
}
