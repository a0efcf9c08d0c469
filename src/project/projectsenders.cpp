// The senders of a project: order, names, deletion, backups between them, selection.
#include "common/texts.h"
#include "layout/changeteller.h"
#include "layout/projectundoredo.h"
#include "layout/sender.h"
#include "layout/tile.h"
#include "project/projectdata.h"
#include "project/projectlookup.h"
#include "settings/constantdata.h"

#include "custommessagebox.h"

#include <QFile>
#include <QSet>

#include <algorithm>

namespace {

/// The one strategy in which the project follows the processors found on the network.
constexpr int kStrategyFollowNetwork = 2;

bool Confirms(QWidget* parent, const QString& question)
{
    return CCustomMessageBox::question(parent, question) == QMessageBox::Yes;
}

bool HasLockedPort(const CSender& sender)
{
    return std::any_of(sender.GetPorts().begin(), sender.GetPorts().end(),
                       [](const CPort& port) { return port.IsFlagLock(); });
}

/// The deleted sender's background image goes with it; those behind it move up, unless they are kept.
void RenameImages(int deleted, int countBefore, bool keep)
{
    QFile::remove(CConstantData::GetSenderBKImgName(deleted, true));
    for (int i = deleted + 1; i < countBefore && !keep; ++i)
        QFile::rename(CConstantData::GetSenderBKImgName(i, true),
                      CConstantData::GetSenderBKImgName(i - 1, true));
}

/// Sets up a sender found at an address, like the first sender of the project if there is one.
void SetUpDetected(CSender& sender, quint32 ip, const CSender* model)
{
    if (model) {
        sender.SetPortCount(model->GetPortCount());
        sender.SetCanvasSize(model->GetCanvasSize());
    }
    sender.SetNetSenderIP(ip);
    sender.SetOffset(QSize(0, 0));
    sender.SetBelongGroup(GetProjectLookup()->AddGroupId());
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
    DocumentOperation operation(History());
    operation.Changed(&SDocumentChange::senders);
    m_senders.append(sender);
    if (m_senders.size() == 1)
        m_state.currentSender = 0;
    MarkModified();
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
        m_state.currentSender = index;
}

int CProjectData::GetCurSenderIndexForRtCnnt() const
{
    return GetCurrentSender() ? m_state.currentSender : 0;
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
    return Texts::tr("主控 %1").arg(sender + 1) + QStringLiteral("(%1)").arg(GetShowSenderName(sender, true))
           + Texts::tr(",输出口 %1 ").arg(port + 1);
}

void CProjectData::DeleteSender(const QUuid& id)
{
    RemoveSenderAt(GetScIndexByID(id));
}

void CProjectData::RemoveSenderAt(int index)
{
    if (!GetSender(index))
        return;
    DocumentOperation operation(History());
    operation.Changed(&SDocumentChange::senders);
    CSender* sender = m_senders.takeAt(index);
    if (m_state.currentSender > index || m_state.currentSender >= m_senders.size())
        --m_state.currentSender;
    if (CProjectUndoRedo* history = History())
        history->SenderUndoRedoRelease(sender->GetId());
    delete sender;
    MarkModified();
}

void CProjectData::DeleteAllSender()
{
    DocumentOperation operation(History());
    while (!m_senders.isEmpty())
        RemoveSenderAt(m_senders.size() - 1);
}

void CProjectData::DestroySenders()
{
    while (!m_senders.isEmpty())
        delete m_senders.takeLast();
}

void CProjectData::TakeSenders(const QList<CSender*>& senders)
{
    DestroySenders();
    m_senders = senders;
    if (!GetCurrentSender())
        m_state.currentSender = 0;
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
    DocumentOperation operation(History());
    const int countBefore = m_senders.size();
    RemoveSenderAt(index);
    if (m_senders.size() == 1)
        m_senders.first()->SetOffset(QSize(0, 0));
    SetCurrentSender(qBound(0, selectPrevious ? index - 1 : index, m_senders.size() - 1));
    if (GetProjectLookup()->IsOpenDocument(this)
        && GetProjectLookup()->CurSelectNode() != m_state.currentSender)
        GetProjectLookup()->SetCurSelectNode(m_state.currentSender);
    RenameImages(index, countBefore, keepImages);
    return true;
}

bool CProjectData::UpdateProjectSenders(const QList<unsigned long>& first, const QList<unsigned long>& second)
{
    if (GetProjectLookup()->DetectStrategy() != kStrategyFollowNetwork)
        return false;
    DocumentOperation operation(History());
    QSet<quint32> known{0};
    for (const CSender* sender : qAsConst(m_senders))
        known.insert(static_cast<quint32>(sender->GetNetSenderIP()));
    const int before = m_senders.size();
    const CSender* model = GetSender(0);
    for (const unsigned long address : first + second) {
        const auto ip = static_cast<quint32>(address);
        if (known.contains(ip))
            continue;
        known.insert(ip);
        SetUpDetected(*NewSender(), ip, model);
    }
    return m_senders.size() > before;
}

void CProjectData::CancelAllTileSelect(EInterfaceDlg iface)
{
    for (CSender* sender : qAsConst(m_senders)) {
        for (CPort& port : sender->GetPorts()) {
            port.GetTileSet().UnSelectAll(iface);
            port.GetTileGroupSet().CancelAllSelect(iface);
        }
    }
}

void CProjectData::SelectAllTile()
{
    for (CSender* sender : qAsConst(m_senders))
        for (CPort& port : sender->GetPorts())
            port.GetTileSet().SelectAll(InterfaceDesign);
}

bool CProjectData::HasTileRotated() const
{
    for (CSender* sender : m_senders)
        for (const CPort& port : sender->GetPorts())
            for (const CTile* tile : port.GetTileSet().GetTiles())
                if (tile->IsTileRotated())
                    return true;
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
