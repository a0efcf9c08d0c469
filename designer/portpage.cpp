#include "portpage.h"

#include "documentcontroller.h"
#include "loadofport.h"
#include "portactions.h"
#include "senderedits.h"

#include <QLocale>

PortPage::PortPage(DocumentController& document, SenderEdits& edits, PortActions& actions, QWidget* parent)
    : PageForm(document, edits, parent)
{
    AddInfo(tr("Port:"), [this] {
        return tr("%1 of %2").arg(Place().port + 1).arg(m_document.GetSender()->GetPortCount());
    });
    AddSwitch(
        tr("&Shown"), tr("Hidden ports are neither drawn nor edited"), [this] { return Port().IsVisible(); },
        [this](bool on) { m_edits.SetShown(Place(), on); });
    AddSwitch(
        tr("Loc&ked"), tr("Cabinets of a locked port stay as they are"),
        [this] { return Port().IsFlagLock(); }, [this](bool on) { m_edits.SetLocked(Place(), on); });
    AddInfo(tr("Cabinets:"), [this] { return CabinetText(); });
    AddInfo(tr("Load:"), [this] { return LoadText(); });
    AddInfo(tr("It carries:"), [this] { return CapacityText(); });
    AddInfo(tr("Backup of:"),
            [this] { return Port().IsBackupDest() ? m_edits.SourceText(Place()) : tr("none"); });
    for (QAction* action : actions.GetActions())
        AddAction(action);
}

const CPort& PortPage::Port() const
{
    return *m_document.GetPort();
}

SPortPlace PortPage::Place() const
{
    return {m_document.GetProject().GetCurSenderIndex(), Port().GetPortIndex()};
}

QString PortPage::CabinetText() const
{
    const int count = Port().GetTileSet().GetCount();
    const QString text = QLocale().toString(count);
    return Port().IsBackupDest() && count > 0 ? tr("%1, kept until the backup ends").arg(text) : text;
}

QString PortPage::LoadText() const
{
    if (Port().IsBackupDest())
        return tr("as the port that it backs up");
    const qint64 pixels = PixelsOf(Port());
    return tr("%1 pixels, %2")
        .arg(QLocale().toString(pixels), CapacityOf(*m_document.GetSender()).PercentText(pixels));
}

QString PortPage::CapacityText() const
{
    const OrvanTools::PortCapacity capacity = CapacityOf(*m_document.GetSender());
    return tr("%1 pixels at %2 Hz and %3 bit")
        .arg(QLocale().toString(capacity.Carried()), QString::number(capacity.framesPerSecond),
             QString::number(capacity.colorBits));
}
