#include "projecttree.h"

#include "documentcontroller.h"
#include "loaddelegate.h"
#include "loadofport.h"

#include <QHeaderView>
#include <QScopedValueRollback>

namespace {

QIcon ColorIcon(int port)
{
    QPixmap picture(12, 12);
    picture.fill(QColor(CConstantData::GetColorByPort(port).rgb()));
    return QIcon(picture);
}

} // namespace

ProjectTree::ProjectTree(DocumentController& document, QWidget* parent)
    : QTreeWidget(parent), m_document(document)
{
    setHeaderLabels({tr("Sender, port"), tr("Show"), tr("Lock"), tr("Load")});
    setEditTriggers(NoEditTriggers);
    setItemDelegateForColumn(Load, new LoadDelegate(this));
    setUniformRowHeights(true);
    setAllColumnsShowFocus(false);
    setSelectionBehavior(SelectRows);
    setAccessibleName(tr("Senders and ports"));
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(Name, QHeaderView::Stretch);
    for (const int column : {int(Shown), int(Locked)})
        header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    header()->setMinimumSectionSize(fontMetrics().averageCharWidth() * 5);
    header()->resizeSection(Load, fontMetrics().averageCharWidth() * 8);
    setIndentation(fontMetrics().averageCharWidth() * 2);
    connect(this, &QTreeWidget::currentItemChanged, this, &ProjectTree::TakeCurrent);
    connect(this, &QTreeWidget::itemChanged, this, &ProjectTree::TakeEdit);
    connect(&document, &DocumentController::PortStatesChanged, this, &ProjectTree::ShowStates);
    connect(&document, &DocumentController::SenderChanged, this, &ProjectTree::ShowStates);
}

QTreeWidgetItem* ProjectTree::ItemOf(int sender, int port) const
{
    const QTreeWidgetItem* parent = topLevelItem(sender);
    return parent ? parent->child(port) : nullptr;
}

int ProjectTree::GetSelectedSender() const
{
    QTreeWidgetItem* item = currentItem();
    return item ? indexOfTopLevelItem(item->parent() ? item->parent() : item) : -1;
}

void ProjectTree::Take(const SDocumentChange& change)
{
    if (change.documentReplaced || change.senders || change.properties) {
        Fill();
        return;
    }
    const QScopedValueRollback<bool> filling(m_filling, true);
    for (const SPortPlace& place : change.ports) {
        if (ItemOf(place.sender, place.port))
            FillPort(place.sender, place.port);
    }
}

/// Items stay while they have their sender or port: the tree may be about to use the one that was changed.
void ProjectTree::Fill()
{
    const CProjectData& project = m_document.GetProject();
    {
        const QScopedValueRollback<bool> filling(m_filling, true);
        while (topLevelItemCount() > project.GetSenderCount())
            delete takeTopLevelItem(topLevelItemCount() - 1);
        for (int i = 0; i < project.GetSenderCount(); ++i)
            FillSender(i);
    }
    ShowStates();
}

void ProjectTree::FillSender(int index)
{
    const int ports = m_document.GetProject().GetSender(index)->GetPortCount();
    QTreeWidgetItem* sender = topLevelItem(index);
    if (!sender) {
        sender = new QTreeWidgetItem(this);
        sender->setFlags(sender->flags() | Qt::ItemIsEditable);
        sender->setToolTip(Name, tr("F2 renames the sender"));
        sender->setExpanded(true);
    }
    sender->setText(Name, m_document.GetProject().GetShowSenderName(index, true));
    while (sender->childCount() > ports)
        delete sender->takeChild(sender->childCount() - 1);
    for (int port = 0; port < ports; ++port) {
        if (port == sender->childCount())
            new QTreeWidgetItem(sender);
        FillPort(index, port);
    }
}

void ProjectTree::FillPort(int sender, int index)
{
    const CPort& port = *m_document.GetProject().GetSender(sender)->GetPort(index);
    QTreeWidgetItem& item = *ItemOf(sender, index);
    item.setIcon(Name, ColorIcon(index));
    if (port.IsBackupDest()) {
        item.setText(Name, tr("Port %1, backup").arg(index + 1));
        item.setText(Load, QString());
        item.setToolTip(Load, QString());
        return;
    }
    const OrvanTools::PortCapacity capacity = CapacityOf(*m_document.GetProject().GetSender(sender));
    const qint64 pixels = PixelsOf(port);
    item.setText(Name, tr("Port %1").arg(index + 1));
    item.setText(Load, capacity.PercentText(pixels));
    item.setData(Load, Qt::UserRole, capacity.LoadOf(pixels));
    item.setToolTip(Load, tr("%1 cabinets with %2 pixels, of %3 that a port carries at %4 Hz and %5 bit")
                              .arg(port.GetTileSet().GetCount())
                              .arg(pixels)
                              .arg(capacity.Carried())
                              .arg(capacity.framesPerSecond)
                              .arg(capacity.colorBits));
}

/// The current port is where the tree's cursor is, and in bold.
void ProjectTree::ShowStates()
{
    const QScopedValueRollback<bool> filling(m_filling, true);
    const CProjectData& project = m_document.GetProject();
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const CSender& sender = *project.GetSender(i);
        for (int port = 0; port < topLevelItem(i)->childCount(); ++port) {
            QTreeWidgetItem& item = *ItemOf(i, port);
            const bool isCurrent = i == project.GetCurSenderIndex() && port == sender.GetRecentPortIndex();
            item.setCheckState(Shown, sender.GetPort(port)->IsVisible() ? Qt::Checked : Qt::Unchecked);
            item.setCheckState(Locked, sender.GetPort(port)->IsFlagLock() ? Qt::Checked : Qt::Unchecked);
            QFont bold = font();
            bold.setBold(isCurrent);
            item.setFont(Name, bold);
            if (isCurrent && currentItem() != &item)
                setCurrentItem(&item, currentColumn() < 0 ? int(Name) : currentColumn());
        }
    }
}

void ProjectTree::TakeCurrent(const QTreeWidgetItem* item)
{
    if (m_filling || !item)
        return;
    const QTreeWidgetItem* parent = item->parent();
    if (parent)
        m_document.SetCurrentPort(indexOfTopLevelItem(item->parent()),
                                  parent->indexOfChild(const_cast<QTreeWidgetItem*>(item)));
}

void ProjectTree::TakeEdit(const QTreeWidgetItem* item, int column)
{
    if (m_filling)
        return;
    auto* const changed = const_cast<QTreeWidgetItem*>(item);
    if (!item->parent()) {
        m_document.RenameSender(indexOfTopLevelItem(changed), item->text(Name));
        return;
    }
    const SPortPlace place{indexOfTopLevelItem(item->parent()), item->parent()->indexOfChild(changed)};
    const bool on = item->checkState(column) == Qt::Checked;
    if (column == Shown)
        m_document.SetPortShown(place, on);
    else if (column == Locked)
        m_document.SetPortLocked(place, on);
}

void ProjectTree::RenameCurrent()
{
    if (QTreeWidgetItem* sender = topLevelItem(GetSelectedSender()))
        editItem(sender, Name);
}
