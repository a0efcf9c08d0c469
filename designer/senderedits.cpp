#include "senderedits.h"

#include "custommessagebox.h"

#include <orvantools/backupmap.h>

namespace {

CProjectUndoRedo& History()
{
    return *GetRuntimeData()->GetProjectUndoRedo();
}

bool Ask(const QStringList& losses, QWidget* parent)
{
    if (losses.isEmpty())
        return true;
    const QStringList lines = losses + QStringList(SenderEdits::tr("Go on?"));
    return CCustomMessageBox::question(parent, lines.join(QStringLiteral("\n\n"))) == QMessageBox::Yes;
}

} // namespace

void SenderEdits::MarkModified()
{
    History().PrjModify();
}

// senders

void SenderEdits::SetPrintName(int sender, const SPrintLine& name)
{
    SetValue(sender, &CSender::IsPrintNameEnable, &CSender::SetPrintNameEnable, name.enable);
    SetValue(sender, &CSender::GetPrintName, &CSender::SetPrintName, name.text);
}

/// The library raises the offset that a sender has.
void SenderEdits::SetOffset(int sender, const QSize& offset)
{
    CSender* found = FindSender(sender);
    if (!found)
        return;
    const QSize before = found->GetOffset();
    found->SetOffset(offset);
    found->OffsetValid();
    if (found->GetOffset() != before)
        MarkModified();
}

QList<int> SenderEdits::GetPortCounts()
{
    QList<int> counts;
    for (int count = 1; count <= kMaxPorts; ++count) {
        if (CSender::IsPortCountAccepted(count))
            counts.append(count);
    }
    return counts;
}

bool SenderEdits::SetPortCount(int sender, int count, QWidget* parent)
{
    CSender* found = FindSender(sender);
    if (!found || !CSender::IsPortCountAccepted(count) || count == found->GetPortCount())
        return false;
    QStringList used;
    const OrvanTools::BackupMap backups(m_document.GetProject());
    for (int i = count; i < found->GetPortCount(); ++i) {
        const CPort& port = *found->GetPort(i);
        if (port.IsBackupDest() || port.GetTileSet().GetCount() > 0
            || !backups.BackupsOf({sender, i}).empty())
            used.append(QString::number(i + 1));
    }
    const QString losses = tr("These ports hold cabinets or have to do with backups, and would go: %1. They "
                              "come back with a larger number of ports, but a save leaves them out.");
    if (!used.isEmpty() && !Ask({losses.arg(used.join(QStringLiteral(", ")))}, parent))
        return false;
    found->SetPortCount(count);
    m_document.KeepCurrentPort();
    MarkModified();
    return true;
}

// ports

/// In use: of those beyond the number of ports nothing is seen.
CPort* SenderEdits::FindPort(const SPortPlace& place) const
{
    CSender* sender = FindSender(place.sender);
    return sender && place.port < sender->GetPortCount() ? sender->GetPort(place.port) : nullptr;
}

/// What cannot be seen or changed is not selected either.
void SenderEdits::SetShown(const SPortPlace& place, bool shown)
{
    CPort* port = FindPort(place);
    if (port && port->SetVisible(shown))
        NoteState(*port, !shown);
}

void SenderEdits::SetLocked(const SPortPlace& place, bool locked)
{
    CPort* port = FindPort(place);
    if (port && port->SetFlagLock(locked))
        NoteState(*port, locked);
}

void SenderEdits::NoteState(CPort& port, bool closed)
{
    if (closed)
        port.GetPortProject()->CancelAllSelected();
    MarkModified();
    emit m_document.PortStatesChanged();
}

// backups

QString SenderEdits::WhyNotBackup(const SPortPlace& backup) const
{
    const CPort* port = FindPort(backup);
    if (!port)
        return tr("There is no such port.");
    const QString number = QString::number(backup.port + 1);
    if (port->IsBackupDest())
        return tr("Port %1 is a backup already. End that first.").arg(number);
    if (!OrvanTools::BackupMap(m_document.GetProject()).BackupsOf({backup.sender, backup.port}).empty())
        return tr("Port %1 has a backup itself, and a backup has none.").arg(number);
    return DocumentController::WhyClosed(*port);
}

QString SenderEdits::WhyNotBackup(const SPortPlace& backup, const SPortPlace& source) const
{
    const CPort* port = FindPort(source);
    if (!port || backup == source)
        return tr("A port is a backup of another port.");
    if (port->IsBackupDest())
        return tr("Port %1 is a backup itself, and a backup has none.").arg(source.port + 1);
    return WhyNotBackup(backup);
}

QList<SPortPlace> SenderEdits::GetSourcesFor(const SPortPlace& backup) const
{
    QList<SPortPlace> sources;
    const CProjectData& project = m_document.GetProject();
    for (int sender = 0; sender < project.GetSenderCount(); ++sender) {
        for (int port = 0; port < project.GetSender(sender)->GetPortCount(); ++port) {
            const SPortPlace place{sender, port};
            if (place != backup && !FindPort(place)->IsBackupDest())
                sources.append(place);
        }
    }
    return sources;
}

bool SenderEdits::MakeBackup(const SPortPlace& backup, const SPortPlace& source, QWidget* parent)
{
    if (!m_document.IsAllowed(WhyNotBackup(backup, source)))
        return false;
    CPort& port = *FindPort(backup);
    QStringList losses;
    if (const int own = port.GetTileSet().GetCount())
        losses.append(tr("Port %1 has cabinets of its own: %2. They stay in the project, but are neither "
                         "shown nor checked until the backup ends.")
                          .arg(backup.port + 1)
                          .arg(own));
    const QString what = tr("Port %1 becomes the backup of %2.").arg(backup.port + 1);
    if (!MayRestartHistory(backup.sender, what.arg(PortText(source, backup.sender)), losses, parent))
        return false;
    port.GetPortProject()->CancelAllSelected();
    port.SetBeBackupDest(FindSender(source.sender)->GetId(), source.port);
    RestartHistory(backup.sender);
    return true;
}

bool SenderEdits::EndBackup(const SPortPlace& backup, QWidget* parent)
{
    CPort* port = FindPort(backup);
    if (!port || !port->IsBackupDest() || !m_document.IsAllowed(DocumentController::WhyShut(*port))
        || !MayRestartHistory(backup.sender, tr("Port %1 is no backup any more.").arg(backup.port + 1), {},
                              parent))
        return false;
    port->CancelBackupDest();
    RestartHistory(backup.sender);
    return true;
}

bool SenderEdits::MayRestartHistory(int sender, const QString& what, QStringList losses,
                                    QWidget* parent) const
{
    const CSenderUndoRedo* history = History().GetSenderUndoRedoFromID(FindSender(sender)->GetId());
    if (history && history->GetStepCount() > 1)
        losses.append(tr("The edits of this sender can no longer be undone afterwards."));
    if (!losses.isEmpty())
        losses.prepend(what);
    return Ask(losses, parent);
}

void SenderEdits::RestartHistory(int sender)
{
    History().SenderUndoRedoInit(FindSender(sender));
    MarkModified();
    emit m_document.PortStatesChanged();
}

QString SenderEdits::PortText(const SPortPlace& place, int sender) const
{
    const QString number = QString::number(place.port + 1);
    if (place.sender == sender)
        return tr("port %1").arg(number);
    return tr("%1, port %2").arg(m_document.GetProject().GetShowSenderName(place.sender, true), number);
}

QString SenderEdits::SourceText(const SPortPlace& backup) const
{
    const auto source = OrvanTools::BackupMap(m_document.GetProject()).SourceOf({backup.sender, backup.port});
    return source ? PortText({source->sender, source->port}, backup.sender) : tr("a port that is not there");
}

// printed form

void SenderEdits::SetPrintLine(SPrintLine SPrintFormData::*line, const SPrintLine& value)
{
    SPrintLine& present = m_document.GetProject().GetPrintSetData()->*line;
    if (present.enable == value.enable && present.text == value.text)
        return;
    present = value;
    MarkModified();
}
