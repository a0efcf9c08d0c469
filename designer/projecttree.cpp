#include "projecttree.h"

#include "documentcontroller.h"
#include "grouprows.h"
#include "loaddelegate.h"
#include "senderedits.h"

#include <orvantools/portload.h>

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTimer>
#include <QToolTip>

namespace {

struct DraggedPort : QMimeData
{
    SPortPlace place;
};

/// None, when something else is dragged, or a port of another window.
SPortPlace DraggedBy(const QDropEvent* event)
{
    const auto* dragged = dynamic_cast<const DraggedPort*>(event->mimeData());
    return dragged ? dragged->place : SPortPlace();
}

QIcon ColorIcon(int port)
{
    QPixmap picture(12, 12);
    picture.fill(QColor(CConstantData::GetColorByPort(port).rgb()));
    return QIcon(picture);
}

} // namespace

ProjectTree::ProjectTree(DocumentController& document, SenderEdits& edits, QWidget* parent)
    : QTreeWidget(parent), m_document(document), m_edits(edits)
{
    setHeaderLabels({tr("Sender, port"), tr("Show"), tr("Lock"), tr("Load")});
    setEditTriggers(NoEditTriggers);
    setItemDelegateForColumn(Load, new LoadDelegate(this));
    setUniformRowHeights(true);
    setAllColumnsShowFocus(false);
    setSelectionBehavior(SelectRows);
    setAccessibleName(tr("Senders, ports and groups"));
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setDragDropMode(DragDrop);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(Name, QHeaderView::Stretch);
    for (const int column : {int(Shown), int(Locked)})
        header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    header()->setMinimumSectionSize(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 5);
    header()->resizeSection(Load, fontMetrics().horizontalAdvance(QLatin1Char('0')) * 8);
    setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 30); // no name of a port is cut
    setIndentation(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 2);
    connect(this, &QTreeWidget::currentItemChanged, this, &ProjectTree::TakeCurrent);
    connect(this, &QTreeWidget::itemChanged, this, &ProjectTree::TakeEdit);
    connect(this, &QTreeWidget::itemClicked, this, &ProjectTree::ChooseGroup);
    connect(this, &QTreeWidget::itemActivated, this, &ProjectTree::ChooseGroup);
    connect(&document, &DocumentController::PortStatesChanged, this, &ProjectTree::ShowStates);
    connect(&document, &DocumentController::SenderChanged, this, &ProjectTree::ShowStates);
}

QTreeWidgetItem* ProjectTree::ItemOf(int sender, int port) const
{
    const QTreeWidgetItem* parent = topLevelItem(sender);
    return parent ? parent->child(port) : nullptr;
}

SPortPlace ProjectTree::PlaceOf(QTreeWidgetItem* item) const
{
    while (item && item->parent() && item->parent()->parent())
        item = item->parent();
    if (!item || !item->parent())
        return {};
    return {indexOfTopLevelItem(item->parent()), item->parent()->indexOfChild(item)};
}

int ProjectTree::GetSelectedSender() const
{
    QTreeWidgetItem* item = currentItem();
    return item && !item->parent() ? indexOfTopLevelItem(item) : PlaceOf(item).sender;
}

void ProjectTree::Take(const SDocumentChange& change)
{
    const QScopedValueRollback<bool> filling(m_filling, true);
    if (change.documentReplaced || change.senders || change.properties) {
        Fill();
    } else {
        for (const SPortPlace& place : change.ports) {
            if (ItemOf(place.sender, place.port))
                FillPort(place.sender, place.port);
        }
    }
    ShowStates(); // an edit may make another port the current one
}

/// Items stay while they have their sender or port: the tree may be about to use the one that was changed.
void ProjectTree::Fill()
{
    const CProjectData& project = m_document.GetProject();
    while (topLevelItemCount() > project.GetSenderCount())
        delete takeTopLevelItem(topLevelItemCount() - 1);
    for (int i = 0; i < project.GetSenderCount(); ++i)
        FillSender(i);
}

void ProjectTree::FillSender(int index)
{
    const int ports = m_document.GetProject().GetSender(index)->GetPortCount();
    QTreeWidgetItem* sender = topLevelItem(index);
    if (!sender) {
        sender = new QTreeWidgetItem(this);
        sender->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable);
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
    item.setFirstColumnSpanned(port.IsBackupDest()); // it is drawn nowhere and loads nothing
    if (port.IsBackupDest()) {
        const QString number = QString::number(index + 1);
        item.setText(Name, tr("Port %1, backup of %2").arg(number, m_edits.SourceText({sender, index})));
        item.setToolTip(Name, tr("It feeds what the other port feeds, should that fail"));
        item.setText(Load, QString());
        item.setToolTip(Load, QString());
        qDeleteAll(item.takeChildren());
        return;
    }
    item.setToolTip(
        Name,
        tr("Space shows or hides it, Shift+Space locks or unlocks it. Drag it onto another port to make it "
           "the backup of that one."));
    ShowGroups(port, item);
    const OrvanTools::PortCapacity capacity =
        OrvanTools::CapacityOf(*m_document.GetProject().GetSender(sender));
    const qint64 pixels = OrvanTools::PixelsOf(port.GetTileSet());
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

/// The current port is in bold, and the tree's cursor is on it, on one of its groups or on its sender.
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
            if (isCurrent && currentItem() != topLevelItem(i)
                && PlaceOf(currentItem()) != SPortPlace{i, port})
                setCurrentItem(&item, currentColumn() < 0 ? int(Name) : currentColumn());
        }
    }
}

void ProjectTree::TakeCurrent(QTreeWidgetItem* item)
{
    if (m_filling || !item)
        return;
    const SPortPlace place = PlaceOf(item);
    if (place.port >= 0)
        m_document.SetCurrentPort(place.sender, place.port);
    else
        m_document.SetCurrentSender(indexOfTopLevelItem(item));
}

void ProjectTree::TakeEdit(QTreeWidgetItem* item, int column)
{
    if (m_filling)
        return;
    const bool on = item->checkState(column) == Qt::Checked;
    if (!item->parent())
        m_edits.SetValue(indexOfTopLevelItem(item), &CSender::GetSenderName, &CSender::SetSenderName,
                         item->text(Name));
    else if (column == Shown)
        m_edits.SetShown(PlaceOf(item), on);
    else if (column == Locked)
        m_edits.SetLocked(PlaceOf(item), on);
}

/// The cursor stays with the names, so the boxes beside them have keys of their own.
void ProjectTree::keyPressEvent(QKeyEvent* event)
{
    QTreeWidgetItem* item = currentItem();
    const Column column = event->modifiers() & Qt::ShiftModifier ? Locked : Shown;
    if (event->key() != Qt::Key_Space || !item || item->data(column, Qt::CheckStateRole).isNull())
        return QTreeWidget::keyPressEvent(event);
    item->setCheckState(column, item->checkState(column) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void ProjectTree::ChooseGroup(QTreeWidgetItem* item)
{
    const QUuid id = item->data(Name, Qt::UserRole).toUuid();
    if (!id.isNull())
        m_document.SelectGroup(PlaceOf(item), id);
}

// dragging a port onto another

QMimeData* ProjectTree::mimeData(const QList<QTreeWidgetItem*> items) const
{
    auto* dragged = new DraggedPort;
    dragged->place = PlaceOf(items.value(0));
    dragged->setData(mimeTypes().first(), {}); // what the base class looks for
    return dragged;
}

void ProjectTree::dragMoveEvent(QDragMoveEvent* event)
{
    QTreeWidget::dragMoveEvent(event); // scrolls at the edges
    const SPortPlace backup = DraggedBy(event);
    const SPortPlace source = PlaceOf(itemAt(event->pos()));
    QString text;
    event->setAccepted(source.port >= 0 && source != backup && MayDrop(backup, source, &text));
    QToolTip::showText(viewport()->mapToGlobal(event->pos()), text, this);
}

bool ProjectTree::MayDrop(const SPortPlace& backup, const SPortPlace& source, QString* text) const
{
    const QString why = m_edits.WhyNotBackup(backup, source);
    *text = why.isEmpty()
                ? tr("Port %1 becomes the backup of %2")
                      .arg(QString::number(backup.port + 1), m_edits.PortText(source, backup.sender))
                : why;
    return why.isEmpty();
}

/// Something may be asked, which has to wait for the end of the drag.
void ProjectTree::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    setState(NoState);
    const SPortPlace backup = DraggedBy(event);
    const SPortPlace source = PlaceOf(itemAt(event->pos()));
    QTimer::singleShot(0, this, [this, backup, source] { m_edits.MakeBackup(backup, source, window()); });
}

void ProjectTree::RenameCurrent()
{
    if (QTreeWidgetItem* sender = topLevelItem(GetSelectedSender()))
        editItem(sender, Name);
}
