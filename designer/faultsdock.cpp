#include "faultsdock.h"

#include "documentcontroller.h"

#include <orvantools/layoutcheck.h>

#include <QAction>
#include <QApplication>
#include <QListWidget>

namespace {

constexpr int kWait = 300; ///< milliseconds
constexpr int kMostListed = 500;
constexpr int kPlaceRole = Qt::UserRole;       ///< an SPortPlace
constexpr int kCabinetRole = Qt::UserRole + 1; ///< from 0, negative: none

/// In the order of OrvanTools::FaultKind.
constexpr const char* kKinds[] = {
    QT_TRANSLATE_NOOP("FaultsDock", "lies over another cabinet"),
    QT_TRANSLATE_NOOP("FaultsDock", "lies outside the canvas"),
    QT_TRANSLATE_NOOP("FaultsDock", "is not in the chain"),
    QT_TRANSLATE_NOOP("FaultsDock", "has the number of another cabinet"),
    QT_TRANSLATE_NOOP("FaultsDock", "leaves a gap before it in the chain"),
    QT_TRANSLATE_NOOP("FaultsDock", "has other receiving cards before it than the file says"),
    QT_TRANSLATE_NOOP("FaultsDock", "is of a product that is not known here"),
    QT_TRANSLATE_NOOP("FaultsDock", "a parameter file is missing"),
    QT_TRANSLATE_NOOP("FaultsDock", "is in a group that there is not"),
    QT_TRANSLATE_NOOP("FaultsDock", "backs up a port that there is not"),
    QT_TRANSLATE_NOOP("FaultsDock", "backs itself up in the end"),
    QT_TRANSLATE_NOOP("FaultsDock", "has more pixels than it can carry"),
};

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
        auto* item = new QListWidgetItem(TextOf(fault), m_list);
        item->setToolTip(fault.Line());
        item->setData(kPlaceRole, QVariant::fromValue(SPortPlace{fault.sender - 1, fault.port - 1}));
        item->setData(kCabinetRole, fault.cabinet - 1);
    });
    if (m_count > kMostListed)
        new QListWidgetItem(tr("… and %1 more").arg(m_count - kMostListed), m_list);
    setWindowTitle(m_count == 0 ? tr("No faults") : tr("Faults: %1").arg(m_count));
    toggleViewAction()->setText(tr("Faults")); // which would follow the title
}

/// A cabinet goes by what the wall shows: its number, or without one its place.
QString FaultsDock::TextOf(const OrvanTools::Fault& fault) const
{
    const QString what = tr(kKinds[static_cast<int>(fault.kind)]);
    const CSender* sender = m_document.GetProject().GetSender(fault.sender - 1);
    const CPort* port = sender ? sender->GetPort(fault.port - 1) : nullptr;
    if (!port)
        return what;
    const QString place = tr("Sender %1, port %2").arg(fault.sender).arg(fault.port);
    const CTile* tile = port->GetTileSet().GetTile(fault.cabinet - 1);
    if (!tile)
        return tr("%1: %2").arg(place, what);
    return tile->HasSetConnectIndex()
               ? tr("%1, cabinet number %2: %3").arg(place).arg(tile->GetConnectionIndex() + 1).arg(what)
               : tr("%1, cabinet at %2, %3: %4").arg(place).arg(tile->GetX()).arg(tile->GetY()).arg(what);
}

/// The list may be older than the document, for as long as the check waits.
void FaultsDock::Choose(const QListWidgetItem* item)
{
    const auto place = item->data(kPlaceRole).value<SPortPlace>();
    const CSender* sender = m_document.GetProject().GetSender(place.sender);
    const CPort* port = sender ? sender->GetPort(place.port) : nullptr;
    if (!port || place.port >= sender->GetPortCount())
        return;
    m_document.SetCurrentPort(place.sender, place.port);
    CTile* tile = port->GetTileSet().GetTile(item->data(kCabinetRole).toInt());
    if (!tile)
        return;
    emit CabinetChosen(tile->GetBound());
    if (m_document.MayEditPort())
        m_document.Select({tile}, DocumentController::Choice::Replace);
}
