#include "project/projectdata.h"

#include "layout/projectundoredo.h"
#include "layout/sender.h"
#include "project/projectlookup.h"

#include <QSet>

#include <algorithm>

CProjectData::CProjectData() : m_id(QUuid::createUuid())
{}

CProjectData::CProjectData(const CProjectData& other)
{
    CopyProject(other);
}

CProjectData::~CProjectData()
{
    DestroySenders();
}

CProjectData& CProjectData::operator=(const CProjectData& other)
{
    CopyProject(other);
    return *this;
}

void CProjectData::SetToDefault()
{
    DestroySenders();
    ClearLists();
    m_id = QUuid::createUuid();
    m_deviceSetName.clear();
    m_projectName.clear();
    m_currentSender = -1;
    m_lastFileError.clear();
    RestartHistory();
}

void CProjectData::CopyProject(const CProjectData& other)
{
    if (this == &other)
        return;
    DestroySenders();
    for (const CSender* source : other.m_senders) {
        m_senders.append(new CSender);
        m_senders.last()->CopySender(*source);
    }
    m_id = other.m_id;
    m_deviceSetName = other.m_deviceSetName;
    m_projectName = other.m_projectName;
    m_currentSender = other.m_currentSender;
    m_groups = other.m_groups;
    m_gamma = other.m_gamma;
    m_parameterFiles = other.m_parameterFiles;
    m_print = other.m_print;
    m_demo = other.m_demo;
    m_videoInputs = other.m_videoInputs;
    RestartHistory();
}

void CProjectData::SetToSpecified(const CProjectData& other)
{
    CopyProject(other);
}

QUuid CProjectData::GetID() const
{
    return m_id;
}

void CProjectData::SetID(const QUuid& id)
{
    m_id = id;
}

QString CProjectData::GetDeviceSetName() const
{
    return m_deviceSetName;
}

void CProjectData::SetDeviceSetName(const QString& name)
{
    m_deviceSetName = name;
}

QString CProjectData::GetCurProjectName() const
{
    return m_projectName;
}

void CProjectData::SetCurProjectName(const QString& name)
{
    m_projectName = name;
}

QUuid CProjectData::AddGroupInfo(const QString& name)
{
    m_groups.append({QUuid::createUuid(), name, true});
    MarkModified();
    return m_groups.last().id;
}

void CProjectData::SetGroupName(const QUuid& id, const QString& name)
{
    SSenderGroupInfo* group = FindGroup(id);
    if (!group || group->name == name)
        return;
    group->name = name;
    MarkModified();
}

bool CProjectData::GetGroupExpand(const QUuid& id) const
{
    const SSenderGroupInfo* group = const_cast<CProjectData*>(this)->FindGroup(id);
    return group && group->expanded;
}

void CProjectData::SetGroupExpand(const QUuid& id, bool expanded)
{
    if (SSenderGroupInfo* group = FindGroup(id))
        group->expanded = expanded;
}

void CProjectData::DeleteSenderGroup(const QUuid& id)
{
    const auto isGroup = [&id](const SSenderGroupInfo& group) { return group.id == id; };
    const auto found = std::find_if(m_groups.begin(), m_groups.end(), isGroup);
    if (found == m_groups.end())
        return;
    m_groups.erase(found);
    for (CSender* sender : qAsConst(m_senders))
        if (sender->GetBelongGroup() == id)
            sender->SetBelongGroup(QUuid());
    MarkModified();
}

void CProjectData::GetSendersInGroup(const QUuid& id, QList<QUuid>& senders) const
{
    senders.clear();
    for (const CSender* sender : m_senders)
        if (sender->GetBelongGroup() == id)
            senders.append(sender->GetId());
}

void CProjectData::GetAllSenderGroup(QList<SSenderGroupInfo>& groups) const
{
    groups = m_groups;
}

int CProjectData::GetSenderGroupCount() const
{
    return m_groups.size();
}

QUuid CProjectData::GetSenderGroupID(int index) const
{
    return m_groups.value(index).id;
}

QUuid CProjectData::GetGroupIDBySenderIndex(int sender) const
{
    const CSender* found = GetSender(sender);
    const QUuid id = found ? found->GetBelongGroup() : QUuid();
    return const_cast<CProjectData*>(this)->FindGroup(id) ? id : QUuid();
}

SSenderGroupInfo* CProjectData::FindGroup(const QUuid& id)
{
    const auto found = std::find_if(m_groups.begin(), m_groups.end(),
                                    [&id](const SSenderGroupInfo& group) { return group.id == id; });
    return found == m_groups.end() ? nullptr : &*found;
}

void CProjectData::AddRcvParamGamma(const SMD5& type, float gamma)
{
    if (GetRcvParamGamma(type, nullptr))
        SetRcvParamGamma(type, gamma);
    else
        m_gamma.append({type, gamma});
}

void CProjectData::SetRcvParamGamma(const SMD5& type, float gamma)
{
    for (SRcvParamGamma& row : m_gamma)
        if (row.type == type)
            row.gamma = gamma;
}

bool CProjectData::GetRcvParamGamma(const SMD5& type, float* gamma) const
{
    for (const SRcvParamGamma& row : m_gamma) {
        if (row.type != type)
            continue;
        if (gamma)
            *gamma = row.gamma;
        return true;
    }
    return false;
}

void CProjectData::DeleteRcvParamGamma(const SMD5& type)
{
    const auto isType = [&type](const SRcvParamGamma& row) { return row.type == type; };
    m_gamma.erase(std::remove_if(m_gamma.begin(), m_gamma.end(), isType), m_gamma.end());
}

QList<SRcvParamGamma> CProjectData::GetRcvParamGammas() const
{
    return m_gamma;
}

SPrintFormData* CProjectData::GetPrintSetData()
{
    return &m_print;
}

const SPrintFormData* CProjectData::GetPrintSetData() const
{
    return &m_print;
}

bool CProjectData::GetDemoModeEnable() const
{
    return m_demo.enable;
}

void CProjectData::SetDemoModeEnable(bool enable)
{
    m_demo.enable = enable;
}

int CProjectData::GetDemoSenderType() const
{
    return m_demo.senderType;
}

void CProjectData::SetDemoSenderType(int type)
{
    m_demo.senderType = type;
}

QList<SVideoInput> CProjectData::GetVideoInputs() const
{
    return m_videoInputs;
}

void CProjectData::SetVideoInputs(const QList<SVideoInput>& inputs)
{
    m_videoInputs = inputs;
}

bool CProjectData::IsOpenDocument() const
{
    return GetProjectLookup()->IsOpenDocument(this);
}

void CProjectData::MarkModified() const
{
    CProjectUndoRedo* history = IsOpenDocument() ? GetProjectLookup()->History() : nullptr;
    if (history)
        history->PrjModify();
}

void CProjectData::RestartHistory() const
{
    CProjectUndoRedo* history = IsOpenDocument() ? GetProjectLookup()->History() : nullptr;
    if (history)
        history->Init();
}

void CProjectData::ClearLists()
{
    m_groups.clear();
    m_gamma.clear();
    m_parameterFiles.clear();
    m_print = SPrintFormData();
    m_demo = SDemoMode();
    m_videoInputs.clear();
}
