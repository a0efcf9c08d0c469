#include "faultsdock.h"

#include "documentcontroller.h"

#include <orvantools/layoutcheck.h>

#include <QApplication>
#include <QListWidget>

namespace {

constexpr int kWait = 300; ///< milliseconds
constexpr int kMostListed = 500;
constexpr int kPlaceRole = Qt::UserRole;       ///< an SPortPlace
constexpr int kCabinetRole = Qt::UserRole + 1; ///< from 0, negative: none

} // namespace

FaultsDock::FaultsDock(DocumentController& document, QWidget* parent)
    : QDockWidget(tr("Faults"), parent), m_document(document), m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("faults"));
    setWidget(m_list);
    m_list->setAccessibleName(tr("Faults of the project"));
    m_list->setUniformItemSizes(true);
    m_wait.setSingleShot(true);
    m_wait.setInterval(kWait);
    connect(&m_wait, &QTimer::timeout, this, &FaultsDock::Check);
    connect(&document, &DocumentController::Changed, &m_wait, QOverload<>::of(&QTimer::start));
    connect(m_list, &QListWidget::itemClicked, this, &FaultsDock::Choose);
    connect(m_list, &QListWidget::itemActivated, this, &FaultsDock::Choose);
}

void FaultsDock::Check()
{
    if (QApplication::activeModalWidget()) { // perhaps a document is being replaced
        m_wait.start();
        return;
    }
    OrvanTools::CheckOptions options;
    options.atOwnRate = true;
    m_list->clear();
    m_count = 0;
    OrvanTools::CheckProject(m_document.GetProject(), options, [this](const OrvanTools::Fault& fault) {
        if (++m_count > kMostListed)
            return;
        auto* item = new QListWidgetItem(fault.Line(), m_list);
        item->setData(kPlaceRole, QVariant::fromValue(SPortPlace{fault.sender - 1, fault.port - 1}));
        item->setData(kCabinetRole, fault.cabinet - 1);
    });
    if (m_count > kMostListed)
        new QListWidgetItem(tr("… and %1 more").arg(m_count - kMostListed), m_list);
    setWindowTitle(m_count == 0 ? tr("No faults") : tr("Faults: %1").arg(m_count));
}

/// The list may be older than the document, for as long as the check waits.
void FaultsDock::Choose(const QListWidgetItem* item)
{
    const auto place = item->data(kPlaceRole).value<SPortPlace>();
    const CSender* sender = m_document.GetProject().GetSender(place.sender);
    const CPort* port = sender ? sender->GetPort(place.port) : nullptr;
    if (!port)
        return;
    m_document.SetCurrentPort(place.sender, place.port);
    if (CTile* tile = port->GetTileSet().GetTile(item->data(kCabinetRole).toInt())) {
        m_document.Select({tile}, DocumentController::Choice::Replace);
        emit CabinetChosen(tile->GetBound());
    }
}
