#include "project/projectdata.h"

#include "layout/changeteller.h"
#include "layout/projectundoredo.h"
#include "layout/sender.h"
#include "project/projectlookup.h"

#include <QSet>

#include <algorithm>

namespace {

/// [ref] Null when there is no such group. `Groups` is a list of them, constant or not.
template <class Groups> auto* FindGroup(Groups& groups, const QUuid& id)
{
    const auto found = std::find_if(groups.begin(), groups.end(),
                                    [&id](const SSenderGroupInfo& group) { return group.id == id; });
    return found == groups.end() ? nullptr : &*found;
}

} // namespace

CProjectData::CProjectData()
{
    m_state.id = QUuid::createUuid();
}

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
    m_state = ProjectState();
    m_state.id = QUuid::createUuid();
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
    m_state = other.m_state;
    RestartHistory();
}

QUuid CProjectData::AddGroupInfo(const QString& name)
{
    m_state.groups.append({QUuid::createUuid(), name, true});
    MarkModified();
    return m_state.groups.last().id;
}

void CProjectData::SetGroupName(const QUuid& id, const QString& name)
{
    SSenderGroupInfo* group = FindGroup(m_state.groups, id);
    if (!group || group->name == name)
        return;
    group->name = name;
    MarkModified();
}

bool CProjectData::GetGroupExpand(const QUuid& id) const
{
    const SSenderGroupInfo* group = FindGroup(m_state.groups, id);
    return group && group->expanded;
}

void CProjectData::SetGroupExpand(const QUuid& id, bool expanded)
{
    if (SSenderGroupInfo* group = FindGroup(m_state.groups, id))
        group->expanded = expanded;
}

void CProjectData::DeleteSenderGroup(const QUuid& id)
{
    const auto isGroup = [&id](const SSenderGroupInfo& group) { return group.id == id; };
    const auto found = std::find_if(m_state.groups.begin(), m_state.groups.end(), isGroup);
    if (found == m_state.groups.end())
        return;
    m_state.groups.erase(found);
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

QUuid CProjectData::GetGroupIDBySenderIndex(int sender) const
{
    const CSender* found = GetSender(sender);
    const QUuid id = found ? found->GetBelongGroup() : QUuid();
    return FindGroup(m_state.groups, id) ? id : QUuid();
}

void CProjectData::AddRcvParamGamma(const SMD5& type, float gamma)
{
    if (GetRcvParamGamma(type, nullptr))
        SetRcvParamGamma(type, gamma);
    else
        m_state.gamma.append({type, gamma});
}

void CProjectData::SetRcvParamGamma(const SMD5& type, float gamma)
{
    for (SRcvParamGamma& row : m_state.gamma)
        if (row.type == type)
            row.gamma = gamma;
}

bool CProjectData::GetRcvParamGamma(const SMD5& type, float* gamma) const
{
    for (const SRcvParamGamma& row : m_state.gamma) {
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
    m_state.gamma.erase(std::remove_if(m_state.gamma.begin(), m_state.gamma.end(), isType),
                        m_state.gamma.end());
}

CProjectUndoRedo* CProjectData::History() const
{
    return GetProjectLookup()->IsOpenDocument(this) ? GetProjectLookup()->History() : nullptr;
}

void CProjectData::MarkModified() const
{
    if (CProjectUndoRedo* history = History())
        history->PrjModify();
}

void CProjectData::RestartHistory() const
{
    CProjectUndoRedo* history = History();
    DocumentOperation operation(history);
    operation.Changed(&SDocumentChange::documentReplaced);
    if (history)
        history->Init();
}
