// The senders of a project: order, names, deletion, backups between them, selection.
#include "common/texts.h"
#include "layout/projectundoredo.h"
#include "layout/sender.h"
#include "layout/tile.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"
#include "settings/constantdata.h"

#include "custommessagebox.h"

#include <QFile>
#include <QSet>

namespace {

/// Processors are looked for on the network, and the project follows, in this strategy alone.
constexpr int kStrategyFollowNetwork = 2;

bool Confirms(QWidget* parent, const QString& question)
{
    return CCustomMessageBox::question(parent, question) == QMessageBox::Yes;
}

bool HasLockedPort(CSender& sender)
{
    for (int i = 0; i < kMaxPorts; ++i)
        if (sender.GetPort(i)->IsFlagLock())
            return true;
    return false;
}

/// Whether the port backs up one of the sender's own ports.
bool IsSelfBackup(const CSender& sender, const CPort& port)
{
    if (port.GetBackupSrcIP() != 0)
        return port.GetBackupSrcIP() == sender.GetNetSenderIP();
    return port.GetBackupSrcSenderId() == sender.GetId();
}

bool NamesASource(const CPort& port)
{
    return port.IsBackupDest() && (port.GetBackupSrcIP() != 0 || !port.GetBackupSrcSenderId().isNull());
}

} // namespace

CSender* CProjectData::NewSender()
{
    AddSender(new CSender);
    return m_senders.last();
}

void CProjectData::AddSender(CSender* sender)
{
    if (!sender || m_senders.contains(sender))
        return;
    m_senders.append(sender);
    if (m_senders.size() == 1)
        m_currentSender = 0;
    MarkModified();
}

CSender* CProjectData::GetSender(int index) const
{
    return m_senders.value(index);
}

int CProjectData::GetSenderCount() const
{
    return m_senders.size();
}

QList<CSender*> CProjectData::GetSenders() const
{
    return m_senders;
}

int CProjectData::GetScIndexByID(const QUuid& id) const
{
    for (int i = 0; i < m_senders.size(); ++i)
        if (m_senders[i]->GetId() == id)
            return i;
    return -1;
}

void CProjectData::SetCurrentSender(int index)
{
    if (GetSender(index))
        m_currentSender = index;
}

CSender* CProjectData::GetCurrentSender() const
{
    return GetSender(m_currentSender);
}

int CProjectData::GetCurSenderIndex() const
{
    return m_currentSender;
}

int CProjectData::GetCurSenderIndexForRtCnnt() const
{
    return GetCurrentSender() ? m_currentSender : 0;
}

int CProjectData::GetCurPortIndex() const
{
    const CSender* sender = GetCurrentSender();
    return sender ? sender->GetRecentPortIndex() : -1;
}

QString CProjectData::GetSenderName(int index) const
{
    const CSender* sender = GetSender(index);
    return sender ? sender->GetSenderName() : QString();
}

QString CProjectData::GetShowSenderName(int index, bool numbered) const
{
    const CSender* sender = GetSender(index);
    if (!sender)
        return {};
    if (!sender->GetSenderName().isEmpty())
        return sender->GetSenderName();
    return numbered ? QStringLiteral("Processor %1").arg(index + 1) : QStringLiteral("Processor");
}

QString CProjectData::GetPortDescription(int sender, int port) const
{
    if (!GetSender(sender) || port < 0 || port >= kMaxPorts)
        return {};
    QString text = Texts::tr("主控 %1").arg(sender + 1);
    const QString name = GetShowSenderName(sender, true);
    if (!name.isEmpty())
        text += QStringLiteral("(%1)").arg(name);
    return text + Texts::tr(",输出口 %1 ").arg(port + 1);
}

void CProjectData::DeleteSender(const QUuid& id)
{
    RemoveSenderAt(GetScIndexByID(id));
}

void CProjectData::RemoveSenderAt(int index)
{
    if (!GetSender(index))
        return;
    CSender* sender = m_senders.takeAt(index);
    if (m_currentSender > index || m_currentSender >= m_senders.size())
        --m_currentSender;
    CProjectUndoRedo* history = IsOpenDocument() ? GetProjectLookup()->History() : nullptr;
    if (history)
        history->SenderUndoRedoRelease(sender->GetId());
    delete sender;
    MarkModified();
}

void CProjectData::DeleteAllSender()
{
    while (!m_senders.isEmpty())
        RemoveSenderAt(m_senders.size() - 1);
}

void CProjectData::DestroySenders()
{
    while (!m_senders.isEmpty())
        delete m_senders.takeLast();
}

bool CProjectData::DeleteSenderBefore(int index, bool ask, QWidget* parent)
{
    CSender* sender = GetSender(index);
    if (m_senders.size() < 2 || !sender)
        return false;
    int other = -1;
    if (IsSenderBackupDest(index, &other)) {
        CCustomMessageBox::information(parent, Texts::tr("选择主控为备份主控，请先取消备份。"));
        return false;
    }
    if (IsSenderBackupSource(index, &other)) {
        CCustomMessageBox::information(parent, Texts::tr("选择的主控存在备份主控，请先取消备份。"));
        return false;
    }
    if (HasLockedPort(*sender))
        return Confirms(parent, Texts::tr("主控存在输出口被锁住，您确定要删除选择的主控吗？"));
    return !ask || Confirms(parent, Texts::tr("您确定要删除选择的主控吗？"));
}

bool CProjectData::DeleteSender(int index, bool ask, bool keepImages, bool selectPrevious, QWidget* parent)
{
    if (!DeleteSenderBefore(index, ask, parent))
        return false;
    const int countBefore = m_senders.size();
    RemoveSenderAt(index);
    if (m_senders.size() == 1)
        m_senders.first()->SetOffset(QSize(0, 0));
    SetCurrentSender(qBound(0, selectPrevious ? index - 1 : index, m_senders.size() - 1));
    if (IsOpenDocument() && GetProjectLookup()->CurSelectNode() != m_currentSender)
        GetProjectLookup()->SetCurSelectNode(m_currentSender);
    RenameSenderImages(index, countBefore, keepImages);
    return true;
}

void CProjectData::RenameSenderImages(int deleted, int countBefore, bool keepImages) const
{
    QFile::remove(CConstantData::GetSenderBKImgName(deleted, true));
    if (keepImages)
        return;
    for (int k = deleted + 1; k < countBefore; ++k)
        QFile::rename(CConstantData::GetSenderBKImgName(k, true),
                      CConstantData::GetSenderBKImgName(k - 1, true));
}

bool CProjectData::UpdateProjectSenders(const QList<unsigned long>& first, const QList<unsigned long>& second)
{
    if (GetProjectLookup()->DetectStrategy() != kStrategyFollowNetwork)
        return false;
    QSet<quint32> known{0};
    for (const CSender* sender : qAsConst(m_senders))
        known.insert(static_cast<quint32>(sender->GetNetSenderIP()));
    const int before = m_senders.size();
    for (const unsigned long address : first + second) {
        const auto ip = static_cast<quint32>(address);
        if (known.contains(ip))
            continue;
        known.insert(ip);
        AppendDetectedSender(ip);
    }
    return m_senders.size() > before;
}

void CProjectData::AppendDetectedSender(quint32 ip)
{
    const CSender* model = GetSender(0);
    CSender* sender = NewSender();
    if (model) {
        sender->SetPortCount(model->GetPortCount());
        sender->SetCanvasSize(model->GetCanvasSize());
    }
    sender->SetNetSenderIP(ip);
    sender->SetOffset(QSize(0, 0));
    sender->SetBelongGroup(GetProjectLookup()->AddGroupId());
}

void CProjectData::CancelAllTileSelect(EInterfaceDlg iface)
{
    for (CSender* sender : qAsConst(m_senders)) {
        for (int i = 0; i < kMaxPorts; ++i) {
            CPortProject* layout = sender->GetPort(i)->GetPortProject();
            layout->GetTileSet()->UnSelectAll(iface);
            layout->GetTileGroupSet()->CancelAllSelect(iface);
        }
    }
}

void CProjectData::SelectAllTile()
{
    for (CSender* sender : qAsConst(m_senders))
        for (int i = 0; i < kMaxPorts; ++i)
            sender->GetPort(i)->GetPortProject()->GetTileSet()->SelectAll(InterfaceDesign);
}

bool CProjectData::HasTileRotated() const
{
    for (CSender* sender : m_senders) {
        for (int i = 0; i < kMaxPorts; ++i) {
            const CTileSet* tiles = sender->GetPort(i)->GetPortProject()->GetTileSet();
            for (int t = 0; t < tiles->GetCount(); ++t)
                if (tiles->GetTile(t)->IsTileRotated())
                    return true;
        }
    }
    return false;
}

int CProjectData::FindSourceOf(const CPort& port) const
{
    if (!port.IsBackupDest())
        return -1;
    if (!port.GetBackupSrcSenderId().isNull())
        return GetScIndexByID(port.GetBackupSrcSenderId());
    for (int i = 0; i < m_senders.size(); ++i)
        if (port.GetBackupSrcIP() != 0 && m_senders[i]->GetNetSenderIP() == port.GetBackupSrcIP())
            return i;
    return -1;
}

bool CProjectData::IsSenderBackupDest(int sender, int* source) const
{
    CSender* backup = GetSender(sender);
    for (int i = 0; backup && i < backup->GetPortCount(); ++i) {
        const CPort& port = *backup->GetPort(i);
        if (!NamesASource(port) || IsSelfBackup(*backup, port))
            continue;
        if (source)
            *source = FindSourceOf(port);
        return true;
    }
    return false;
}

bool CProjectData::IsSenderBackupSource(int sender, int* dest) const
{
    if (!GetSender(sender))
        return false;
    for (int other = 0; other < m_senders.size(); ++other) {
        for (int i = 0; other != sender && i < m_senders[other]->GetPortCount(); ++i) {
            if (FindSourceOf(*m_senders[other]->GetPort(i)) != sender)
                continue;
            if (dest)
                *dest = other;
            return true;
        }
    }
    return false;
}

bool CProjectData::IsSenderSelfPortBackup(int sender) const
{
    CSender* found = GetSender(sender);
    for (int i = 0; found && i < found->GetPortCount(); ++i)
        if (NamesASource(*found->GetPort(i)) && IsSelfBackup(*found, *found->GetPort(i)))
            return true;
    return false;
}

bool CProjectData::MatchSrcBackup(int sender, int port, int& senderOut, int& portOut, bool& found) const
{
    CSender* backup = GetSender(sender);
    const CPort* backupPort = backup ? backup->GetPort(port) : nullptr;
    senderOut = backupPort ? FindSourceOf(*backupPort) : -1;
    found = senderOut >= 0;
    portOut = found ? backupPort->GetBackupSrcPortIndex() : -1;
    return found;
}
